#pragma once
// Driving the form of the account as a user does.

#include <QAbstractButton>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>

#include "fenster/formhelfer.h"
#include "fenster/staffel/form48000.h"
#include "fenster/ui/tabelle.h"

namespace zinfolio {

/// A click on a tab of the form.
inline void Waehle(Form48000& form, Form48000::Register register_) {
    QTabBar* leiste = Finde<QTabWidget>(&form, "TabStrip1")->tabBar();
    QTest::mouseClick(leiste, Qt::LeftButton, Qt::NoModifier, leiste->tabRect(register_).center());
}

/// A click on a button by its fixed name.
inline void Klicke(QWidget& form, const char* name) {
    QTest::mouseClick(Finde<QAbstractButton>(&form, name), Qt::LeftButton);
}

/// Puts the focus on a field as Tab does, and types over what stands there.
inline void Fuelle(QWidget& form, const char* name, const QString& text) {
    auto* feld = Finde<QLineEdit>(&form, name);
    feld->setFocus(Qt::TabFocusReason);
    feld->selectAll();
    if (text.isEmpty()) Druecke(Qt::Key_Backspace);
    Tippe(text);
}

/// One row of a table as the user sees it, cells joined by "|".
inline QString Zeile(QWidget& form, const char* tabelle, int zeile) {
    const QAbstractItemModel* modell = Finde<QTableView>(&form, tabelle)->model();
    QStringList zellen;
    for (int spalte = 0; spalte < modell->columnCount(); ++spalte) {
        zellen << modell->index(zeile, spalte).data().toString();
    }
    return zellen.join('|');
}

inline int Zeilen(QWidget& form, const char* tabelle) {
    return Finde<QTableView>(&form, tabelle)->model()->rowCount();
}

/// One payment, typed and taken over.
inline void Zahlung(Form48000& form, const QString& datum, const QString& betrag, const QString& text = {}) {
    Fuelle(form, "Begdatum", datum);
    Fuelle(form, "Betrag", betrag);
    Fuelle(form, "Beschreibung", text);
    Klicke(form, "Speichern");
}

/// A condition of 10 % from 31.12.2006 on, without limits that matter.
inline void Kondition(Form48000& form) {
    Waehle(form, Form48000::zinssaetze);
    const Zeuge zeuge;
    Fuelle(form, "Gültigdatum", "31.12.2006");
    Fuelle(form, "Gutzins1", "10");
    Fuelle(form, "Guthabenlinie", "9999999");
    Fuelle(form, "Kreditlinie", "9999999");
    Klicke(form, "speichern2");
}

}  // namespace zinfolio
