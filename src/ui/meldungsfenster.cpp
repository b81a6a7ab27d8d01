#include "ui/meldungsfenster.h"

#include <QMessageBox>

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

Antwort Zeigen(QWidget* fenster, Meldungsart art, const Meldungsinhalt& inhalt) {
    if (Zeuge()) return Zeuge()(art, inhalt);
    const bool frage = art == Meldungsart::frage;
    QMessageBox box(
        Zeichen(art), inhalt.titel, inhalt.text,
        frage ? QMessageBox::Yes | QMessageBox::No : QMessageBox::StandardButtons(QMessageBox::Ok), fenster);
    box.setTextFormat(Qt::PlainText);
    if (frage) box.setEscapeButton(QMessageBox::No);
    if (!inhalt.einzelheiten.isEmpty()) box.setDetailedText(inhalt.einzelheiten);
    return box.exec() == QMessageBox::Yes ? Antwort::ja : Antwort::nein;
}

}  // namespace

void MeldungZeigen(QWidget* fenster, const Meldungsinhalt& inhalt, Meldungsart art) {
    Zeigen(fenster, art, inhalt);
}

bool Fragen(QWidget* fenster, const Meldungsinhalt& inhalt) {
    return Zeigen(fenster, Meldungsart::frage, inhalt) == Antwort::ja;
}

Meldungszeuge MeldungenUmleiten(Meldungszeuge zeuge) {
    return std::exchange(Zeuge(), std::move(zeuge));
}

QString Anzeigetext(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace zinfolio
