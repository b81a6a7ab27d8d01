#include "fenster/ui/meldungsfenster.h"

#include <QMessageBox>
#include <utility>

#include "fenster/ui/zeuge.h"

namespace zinfolio {
namespace {

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

Tasten TastenAus(Meldungstasten tasten) {
    switch (tasten) {
        case Meldungstasten::okAbbrechen:
            return {QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel};
        case Meldungstasten::jaNein:
            return {QMessageBox::Yes | QMessageBox::No, QMessageBox::No};
        case Meldungstasten::jaNeinAbbrechen:
            return {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel};
        case Meldungstasten::ok:
            break;
    }
    return {QMessageBox::Ok, QMessageBox::Ok};
}

Antwort AntwortAus(int taste) {
    if (taste == QMessageBox::Yes || taste == QMessageBox::Ok) return Antwort::ja;
    return taste == QMessageBox::Cancel ? Antwort::abbrechen : Antwort::nein;
}

Antwort Zeigen(QWidget* fenster, const Meldung& meldung) {
    if (auto& zeuge = Zeugenplatz<Meldungszeuge>()) return zeuge(meldung);
    const auto& [inhalt, art, tastenart] = meldung;
    const Tasten tasten = TastenAus(tastenart);
    QMessageBox box(Zeichen(art), inhalt.titel, inhalt.text, tasten.alle, fenster);
    box.setTextFormat(Qt::PlainText);
    box.setEscapeButton(tasten.schliessen);
    if (!inhalt.einzelheiten.isEmpty()) box.setDetailedText(inhalt.einzelheiten);
    return AntwortAus(box.exec());
}

}  // namespace

void MeldungZeigen(QWidget* fenster, const Meldungsinhalt& inhalt, Meldungsart art) {
    Zeigen(fenster, {inhalt, art, Meldungstasten::ok});
}

bool Fragen(QWidget* fenster, const Meldungsinhalt& inhalt) {
    return Zeigen(fenster, {inhalt, Meldungsart::frage, Meldungstasten::jaNein}) == Antwort::ja;
}

bool Bestaetigen(QWidget* fenster, const Meldungsinhalt& inhalt) {
    return Zeigen(fenster, {inhalt, Meldungsart::warnung, Meldungstasten::okAbbrechen}) == Antwort::ja;
}

Antwort FragenMitAbbruch(QWidget* fenster, const Meldungsinhalt& inhalt) {
    return Zeigen(fenster, {inhalt, Meldungsart::frage, Meldungstasten::jaNeinAbbrechen});
}

Meldungszeuge MeldungenUmleiten(Meldungszeuge zeuge) {
    return std::exchange(Zeugenplatz<Meldungszeuge>(), std::move(zeuge));
}

QString Anzeigetext(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace zinfolio
