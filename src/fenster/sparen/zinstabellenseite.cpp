#include "fenster/sparen/zinstabellenseite.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/datumsfeld.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"

namespace zinfolio {
namespace {

constexpr std::size_t zeilenJeBlock = 20;

/// A key that would change the text.
bool IstEingabe(const QKeyEvent& taste) {
    if (taste.key() == Qt::Key_Backspace || taste.key() == Qt::Key_Delete) return true;
    return !taste.text().isEmpty() && taste.text().at(0).isPrint();
}

}  // namespace

Zinstabellenseite::Zinstabellenseite(QWidget* eltern) : QWidget(eltern) {
    setObjectName("Frame(6)");
    auto* bloecke = new QWidget;
    auto* nebeneinander = new QHBoxLayout(bloecke);
    nebeneinander->addWidget(Zeilenblock(0, zeilenJeBlock));
    nebeneinander->addSpacing(24);
    nebeneinander->addWidget(Zeilenblock(zeilenJeBlock, zinstabellenzeilen));
    nebeneinander->addStretch();
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addWidget(new QLabel("Zinssatzänderungen: ab welchem Datum welcher Nominalzinssatz gilt"));
    anordnung->addWidget(Rollbar(bloecke), 1);
    anordnung->addWidget(Tasten());
}

QWidget* Zinstabellenseite::Zeilenblock(std::size_t von, std::size_t bis) {
    auto* block = new QWidget;
    auto* raster = new QGridLayout(block);
    raster->setVerticalSpacing(2);
    raster->addWidget(new QLabel("Gültig ab"), 0, 1);
    raster->addWidget(new QLabel("Zinssatz %"), 0, 2, Qt::AlignRight);
    for (std::size_t i = von; i < bis; ++i) {
        auto* datum = new Datumsfeld(QString::fromStdString(Zinszeilenname(i, Zinsspalte::datum)), this);
        auto* betrag = new Eingabefeld(QString::fromStdString(Zinszeilenname(i, Zinsspalte::betrag)),
                                       Tastenfilter::prozent, this);
        betrag->setAlignment(Qt::AlignRight);
        datum->setAccessibleName(QString("Gültig ab, Zeile %1").arg(i + 1));
        betrag->setAccessibleName(QString("Zinssatz in Prozent, Zeile %1").arg(i + 1));
        const int zeile = static_cast<int>(i - von) + 1;
        raster->addWidget(new QLabel(QString::number(i + 1)), zeile, 0, Qt::AlignRight);
        raster->addWidget(datum, zeile, 1);
        raster->addWidget(betrag, zeile, 2);
        for (Eingabefeld* feld : {static_cast<Eingabefeld*>(datum), betrag}) {
            feld->installEventFilter(this);
            connect(feld, &QLineEdit::textEdited, this, &Zinstabellenseite::geaendert);
            connect(feld, &QLineEdit::textEdited, this, &Zinstabellenseite::Markieren);
        }
        ZinsWDAt_[i] = datum;
        Zinsbetrag_[i] = betrag;
    }
    raster->setRowStretch(static_cast<int>(bis - von) + 1, 1);
    return block;
}

QWidget* Zinstabellenseite::Tasten() {
    auto* leiste = new QWidget;
    leiste->setLayout(Tastenzeile({
        NeueTaste("Command13", "&Zurück", this, [this] { emit zurueck(); }),
        NeueTaste("Datumsortier", "Datum &sortieren", this, [this] { Sortieren(); }),
    }));
    return leiste;
}

void Zinstabellenseite::Lesen(Sparplan& plan) const {
    for (std::size_t i = 0; i < zinstabellenzeilen; ++i) {
        plan.ZinsWDAt[i] = ZinsWDAt_[i]->Wert();
        plan.Zinsbetrag[i] = Zinsbetrag_[i]->Wert();
    }
}

void Zinstabellenseite::Zeigen(const Sparplan& plan) {
    for (std::size_t i = 0; i < zinstabellenzeilen; ++i) {
        // Setting a text takes the selection away, also where it is the same.
        if (ZinsWDAt_[i]->Wert() != plan.ZinsWDAt[i]) ZinsWDAt_[i]->Setze(plan.ZinsWDAt[i]);
        if (Zinsbetrag_[i]->Wert() != plan.Zinsbetrag[i]) Zinsbetrag_[i]->Setze(plan.Zinsbetrag[i]);
    }
    Markieren();
}

void Zinstabellenseite::Fokussieren(const std::string& name) {
    if (auto* feld = findChild<QLineEdit*>(QString::fromStdString(name))) {
        feld->setFocus();
        feld->selectAll();
    }
}

void Zinstabellenseite::Sortieren() {
    Geschuetzt(this, [this] {
        Sparplan plan;
        Lesen(plan);
        ZinstabelleSortieren(plan);
        Zeigen(plan);
    });
}

void Zinstabellenseite::Markieren() {
    Sparplan plan;
    Lesen(plan);
    emit markiert(ZinstabelleMarkieren(plan));
}

bool Zinstabellenseite::Abgewiesen(QObject* feld) {
    Sparplan plan;
    Lesen(plan);
    const auto datum = std::ranges::find(ZinsWDAt_, feld);
    const bool istDatum = datum != ZinsWDAt_.end();
    const auto stelle =
        istDatum ? datum - ZinsWDAt_.begin() : std::ranges::find(Zinsbetrag_, feld) - Zinsbetrag_.begin();
    const auto ablehnung = ZinszeileGesperrt(plan, static_cast<std::size_t>(stelle),
                                             istDatum ? Zinsspalte::datum : Zinsspalte::betrag);
    if (!ablehnung) return false;
    MeldungZeigen(this, {.text = Anzeigetext(ablehnung->Meldung)});
    Fokussieren(ablehnung->Feld);
    return true;
}

bool Zinstabellenseite::eventFilter(QObject* ziel, QEvent* ereignis) {
    const bool istDatum = std::ranges::find(ZinsWDAt_, ziel) != ZinsWDAt_.end();
    if (ereignis->type() == QEvent::KeyPress && IstEingabe(*static_cast<QKeyEvent*>(ereignis)))
        return Abgewiesen(ziel);
    if (ereignis->type() == QEvent::FocusIn && istDatum) Sortieren();
    if (ereignis->type() == QEvent::FocusOut && !istDatum) Sortieren();
    return false;
}

}  // namespace zinfolio
