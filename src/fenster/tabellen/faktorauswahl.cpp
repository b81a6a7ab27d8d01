#include "fenster/tabellen/faktorauswahl.h"

#include <QComboBox>
#include <QLabel>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/feldraster.h"
#include "fenster/ui/meldungsfenster.h"

namespace zinfolio {
namespace {

/// What the longest explanation takes in a column of the width of the lists.
constexpr int erklaerungszeilen = 6;

constexpr auto faktoreintraege = [] {
    std::array<std::string_view, finanzfaktoren.size()> eintraege;
    for (std::size_t i = 0; i < eintraege.size(); ++i)
        eintraege[i] = finanzfaktoren[i].eintrag;
    return eintraege;
}();

}  // namespace

Faktorauswahl::Faktorauswahl(const Faktorauswahlnamen& namen, QWidget* form,
                             const std::function<void()>& geaendert)
    : faktor_(NeueAuswahl(namen.faktor, faktoreintraege, form)),
      erklaerung_(NeuerErklaerungstext(namen.erklaerung, erklaerungszeilen, form)),
      rhythmus_(NeueAuswahl(namen.rhythmus, rentenrhythmen, form)),
      faelligkeit_(NeueAuswahl(namen.faelligkeit, rentenfaelligkeiten, form)) {
    const auto erklaeren = [this_ = erklaerung_](int index) {
        if (index >= 0)
            this_->setText(Anzeigetext(finanzfaktoren.at(static_cast<std::size_t>(index)).erklaerung));
    };
    QObject::connect(faktor_, &QComboBox::currentIndexChanged, form, erklaeren);
    erklaeren(faktor_->currentIndex());
    for (QComboBox* auswahl : {faktor_, rhythmus_, faelligkeit_})
        QObject::connect(auswahl, &QComboBox::activated, form, geaendert);
}

void Faktorauswahl::FaktorInRaster(Feldraster& raster) {
    // The entries are long: the list has the whole width.
    auto* titel = new QLabel("&Faktor");
    titel->setBuddy(faktor_);
    for (QWidget* zeile : std::initializer_list<QWidget*>{titel, faktor_, erklaerung_})
        raster.GanzeZeile(zeile);
}

void Faktorauswahl::RhythmusInRaster(Feldraster& raster) {
    raster.Zeile("Zahlungs&weise", rhythmus_);
    raster.Zeile("Fä&lligkeit", faelligkeit_);
}

Faktorwahl Faktorauswahl::Lesen() const {
    return {static_cast<Finanzfaktor>(faktor_->currentIndex()),
            static_cast<Rentenrhythmus>(rhythmus_->currentIndex()),
            static_cast<Rentenfaelligkeit>(faelligkeit_->currentIndex())};
}

void Faktorauswahl::Zeigen(const Faktorwahl& wahl) {
    faktor_->setCurrentIndex(static_cast<int>(wahl.faktor));
    rhythmus_->setCurrentIndex(static_cast<int>(wahl.rhythmus));
    faelligkeit_->setCurrentIndex(static_cast<int>(wahl.faelligkeit));
}

QLabel* NeuerErklaerungstext(const char* name, int zeilen, QWidget* eltern) {
    auto* text = new QLabel(eltern);
    text->setObjectName(QString::fromUtf8(name));
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->setMinimumHeight(zeilen * text->fontMetrics().lineSpacing());
    return text;
}

}  // namespace zinfolio
