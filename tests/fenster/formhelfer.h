#pragma once
// What the tests of windows share: controls by their fixed names, real keys, and somebody who answers the
// boxes.

#include <QAbstractButton>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>
#include <deque>
#include <fstream>
#include <functional>
#include <initializer_list>
#include <memory>
#include <sstream>

#include "fenster/fenstertest.h"
#include "fenster/ui/dateidialog.h"
#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/uhr.h"

namespace zinfolio {

/// The control of that name and type; without it the test fails and lists the names that do exist.
template <class Element>
Element* Finde(QObject* form, const char* name) {
    auto* element = form->findChild<Element*>(QString::fromUtf8(name));
    if (!element) {
        QStringList namen;
        for (const Element* vorhanden : form->findChildren<Element*>())
            namen << vorhanden->objectName();
        qFatal("Kein %s unter: %s", name, qPrintable(namen.join(", ")));
    }
    return element;
}

/// Types a text key by key into whatever has the focus.
inline void Tippe(const QString& text) {
    for (const QChar zeichen : text)
        QTest::keyClick(QApplication::focusWidget(), zeichen.toLatin1());
}

/// Presses a key on whatever has the focus.
inline void Druecke(Qt::Key taste, Qt::KeyboardModifiers zusatz = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), taste, zusatz);
}

/// The fixed name of the control that has the focus.
inline QString Fokus() {
    return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
}

/// Where a key leads from the control with the focus, by fixed names, until it comes where it was before.
inline QStringList Gang(Qt::Key taste, int hoechstens = 80) {
    QStringList namen{Fokus()};
    while (namen.size() < hoechstens) {
        Druecke(taste);
        if (namen.contains(Fokus())) break;
        namen << Fokus();
    }
    return namen;
}

/// A click on a button by its fixed name.
inline void Klicke(QWidget& form, const char* name) {
    QTest::mouseClick(Finde<QAbstractButton>(&form, name), Qt::LeftButton);
}

/// A click on a tab of a calculator, counted from 0.
inline void Waehle(QWidget& form, int register_) {
    QTabBar* leiste = Finde<QTabWidget>(&form, "TabStrip1")->tabBar();
    QTest::mouseClick(leiste, Qt::LeftButton, Qt::NoModifier, leiste->tabRect(register_).center());
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
    for (int spalte = 0; spalte < modell->columnCount(); ++spalte)
        zellen << modell->index(zeile, spalte).data().toString();
    return zellen.join('|');
}

inline int Zeilen(QWidget& form, const char* tabelle) {
    return Finde<QTableView>(&form, tabelle)->model()->rowCount();
}

/// Answers every box while it lives, and keeps what the boxes said and showed.
class Zeuge {
  public:
    /// Answers with `folge`, box by box, then with `antwort`.
    Zeuge(std::initializer_list<Antwort> folge = {}) : folge_(folge) {
        vorher_ = MeldungenUmleiten([this](const Meldung& meldung) { return Antworten(meldung); });
    }
    ~Zeuge() { MeldungenUmleiten(vorher_); }
    Zeuge(const Zeuge&) = delete;
    Zeuge& operator=(const Zeuge&) = delete;

    QStringList texte;
    QStringList titel;
    QStringList einzelheiten;
    std::vector<Meldungsart> arten;
    std::vector<Meldungstasten> tasten;
    Antwort antwort = Antwort::ja;
    /// Called while a box is open.
    std::function<void(const Meldung&)> dabei;

  private:
    Antwort Antworten(const Meldung& meldung) {
        texte << meldung.inhalt.text;
        titel << meldung.inhalt.titel;
        einzelheiten << meldung.inhalt.einzelheiten;
        arten.push_back(meldung.art);
        tasten.push_back(meldung.tasten);
        if (dabei) dabei(meldung);
        if (folge_.empty()) return antwort;
        const Antwort naechste = folge_.front();
        folge_.pop_front();
        return naechste;
    }

    std::deque<Antwort> folge_;
    Meldungszeuge vorher_;
};

/// Answers every file dialog while it lives, and keeps what was asked.
class Dateiwahl {
  public:
    Dateiwahl() {
        vorher_ = DateifragenUmleiten([this](const Dateifrage& frage) {
            fragen.push_back(frage);
            return antwort;
        });
    }
    explicit Dateiwahl(std::filesystem::path datei) : Dateiwahl() { antwort = std::move(datei); }
    ~Dateiwahl() { DateifragenUmleiten(vorher_); }
    Dateiwahl(const Dateiwahl&) = delete;
    Dateiwahl& operator=(const Dateiwahl&) = delete;

    std::vector<Dateifrage> fragen;
    /// Nothing: the dialog is cancelled.
    std::optional<std::filesystem::path> antwort;

  private:
    Dateizeuge vorher_;
};

/// A working folder of its own, gone with the test.
class Testordner {
  public:
    [[nodiscard]] std::filesystem::path Pfad() const { return ordner_.path().toStdString(); }

  private:
    QTemporaryDir ordner_;
};

/// All the bytes of a file; empty where it cannot be read.
inline std::string Inhalt(const std::filesystem::path& datei) {
    std::ifstream strom(datei, std::ios::binary);
    std::ostringstream inhalt;
    inhalt << strom.rdbuf();
    return inhalt.str();
}

/// Shows a window and waits until it can take keys.
inline void Zeige(QWidget& fenster) {
    fenster.show();
    QVERIFY(QTest::qWaitForWindowActive(&fenster));
}

/// A calculator that is open, in a working folder of its own and with another one for its files; today is
/// 21.11.2026.
template <class Form>
struct Pruefstand {
    Pruefstand() {
        UhrStellen(*Datum::Aus(2026, 11, 21));
        Oeffnen();
    }

    /// Opens the calculator anew in the same folder, as after a start of the program.
    void Oeffnen() {
        form.reset();
        form = std::make_unique<Form>(arbeit.Pfad());
        Zeige(*form);
    }

    void Taste(Qt::Key taste, Qt::KeyboardModifiers zusatz = Qt::ControlModifier) {
        QTest::keyClick(form.get(), taste, zusatz);
    }

    Testordner arbeit;
    Testordner ablage;
    std::unique_ptr<Form> form;
};

}  // namespace zinfolio
