#pragma once
// What the tests of windows share: controls by their fixed names, real keys, and somebody who answers the
// boxes.

#include <QTemporaryDir>
#include <QtTest>
#include <fstream>
#include <sstream>

#include "fenster/fenstertest.h"
#include "fenster/ui/dateidialog.h"
#include "fenster/ui/meldungsfenster.h"

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

/// Answers every box while it lives, and keeps what the boxes said.
class Zeuge {
  public:
    Zeuge() {
        vorher_ = MeldungenUmleiten([this](Meldungsart, const Meldungsinhalt& inhalt) {
            texte << inhalt.text;
            titel << inhalt.titel;
            einzelheiten << inhalt.einzelheiten;
            return antwort;
        });
    }
    ~Zeuge() { MeldungenUmleiten(vorher_); }
    Zeuge(const Zeuge&) = delete;
    Zeuge& operator=(const Zeuge&) = delete;

    QStringList texte;
    QStringList titel;
    QStringList einzelheiten;
    Antwort antwort = Antwort::ja;

  private:
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

}  // namespace zinfolio
