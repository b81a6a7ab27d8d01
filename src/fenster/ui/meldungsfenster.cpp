#include "fenster/ui/meldungsfenster.h"

#include <QMessageBox>
#include <utility>

namespace zinfolio {
namespace {

Meldungszeuge& Zeuge() {
    static Meldungszeuge zeuge;
    return zeuge;
}

QMessageBox::Icon Zeichen(Meldungsart art) {
    switch (art) {
        case Meldungsart::hinweis:
            return QMessageBox::Information;
        case Meldungsart::frage:
            return QMessageBox::Question;
        case Meldungsart::warnung:
            break;
    }
    return QMessageBox::Warning;
}

/// The buttons of a box, and the one that closing it stands for.
struct Tasten {
    QMessageBox::StandardButtons alle;
    QMessageBox::StandardButton schliessen;
};

constexpr Tasten hinweistasten{QMessageBox::Ok, QMessageBox::Ok};
constexpr Tasten bestaetigungstasten{QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel};
constexpr Tasten fragetasten{QMessageBox::Yes | QMessageBox::No, QMessageBox::No};
constexpr Tasten abbruchtasten{QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel};

Antwort AntwortAus(int taste) {
    if (taste == QMessageBox::Yes || taste == QMessageBox::Ok) return Antwort::ja;
    return taste == QMessageBox::Cancel ? Antwort::abbrechen : Antwort::nein;
}

Antwort Zeigen(QWidget* fenster, Meldungsart art, const Meldungsinhalt& inhalt, const Tasten& tasten) {
    if (Zeuge()) return Zeuge()(art, inhalt);
    QMessageBox box(Zeichen(art), inhalt.titel, inhalt.text, tasten.alle, fenster);
    box.setTextFormat(Qt::PlainText);
    box.setEscapeButton(tasten.schliessen);
    if (!inhalt.einzelheiten.isEmpty()) box.setDetailedText(inhalt.einzelheiten);
    return AntwortAus(box.exec());
}

}  // namespace

void MeldungZeigen(QWidget* fenster, const Meldungsinhalt& inhalt, Meldungsart art) {
    Zeigen(fenster, art, inhalt, hinweistasten);
}

bool Fragen(QWidget* fenster, const Meldungsinhalt& inhalt) {
    return Zeigen(fenster, Meldungsart::frage, inhalt, fragetasten) == Antwort::ja;
}

bool Bestaetigen(QWidget* fenster, const Meldungsinhalt& inhalt) {
    return Zeigen(fenster, Meldungsart::warnung, inhalt, bestaetigungstasten) == Antwort::ja;
}

Antwort FragenMitAbbruch(QWidget* fenster, const Meldungsinhalt& inhalt) {
    return Zeigen(fenster, Meldungsart::frage, inhalt, abbruchtasten);
}

Meldungszeuge MeldungenUmleiten(Meldungszeuge zeuge) {
    return std::exchange(Zeuge(), std::move(zeuge));
}

QString Anzeigetext(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace zinfolio
