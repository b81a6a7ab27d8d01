#include "fenster/rechner/rechner.h"

#include <QCloseEvent>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>

#include "fenster/rechner/ablage.h"
#include "fenster/rechner/registernotizen.h"
#include "fenster/ui/bausteine.h"
#include "fenster/ui/datumsfeld.h"
#include "fenster/ui/eingabefeld.h"
#include "fenster/ui/feldtafel.h"
#include "fenster/ui/fenstergroesse.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"

namespace zinfolio {
namespace {

/// What scrolls a page; made where it has none yet.
QWidget* Rollrahmen(QWidget* seite) {
    const QWidget* sicht = seite->parentWidget();
    auto* rahmen = sicht ? qobject_cast<QScrollArea*>(sicht->parentWidget()) : nullptr;
    return rahmen ? rahmen : Rollbar(seite);
}

}  // namespace
Rechner::Rechner(const Rechnerart& art, const std::filesystem::path& arbeitsordner)
    : titel_(art.titel),
      ende_(art.ende),
      mitte_(new QStackedWidget(this)),
      TabStrip1_(new QTabWidget),
      herkunft_(TabStrip1_) {
    setObjectName(QString::fromUtf8(art.name));
    TabStrip1_->setObjectName("TabStrip1");
    mitte_->addWidget(TabStrip1_);
    AusgabenAnlegen(art, arbeitsordner);
    setCentralWidget(mitte_);
    RegistertastenAnlegen();
    FenstergroesseHolen(*this, art.groesse);
}

void Rechner::AusgabenAnlegen(const Rechnerart& art, const std::filesystem::path& arbeitsordner) {
    vorschau_ = new FormVorschau(arbeitsordner, art.vorschau);
    connect(vorschau_, &FormVorschau::zurueck, this, &Rechner::Zurueck);
    SeiteAnlegen(vorschau_);
    for (const Diagrammart& diagrammart : art.diagramme) {
        auto* diagramm = diagramme_.emplace_back(new FormDiagramm(diagrammart));
        connect(diagramm, &FormDiagramm::zurueck, this, &Rechner::Zurueck);
        SeiteAnlegen(diagramm);
    }
}

void Rechner::Einrichten(Rechnerinhalt inhalt) {
    inhalt_ = std::move(inhalt);
    RegisterAnlegen();
    LeisteAnlegen();
    connect(inhalt_.ablage, &Ablage::benannt, this, &Rechner::TitelZeigen);
    connect(inhalt_.ablage, &Ablage::gewechselt, this,
            [this] { RegisterWaehlen(inhalt_.register_[0].seite); });
    inhalt_.ablage->Beginnen();
    TitelZeigen();
}

void Rechner::RegisterAnlegen() {
    for (const Registerzeile& zeile : inhalt_.register_) {
        Beobachten(zeile);
        TabStrip1_->addTab(Rollbar(zeile.seite), QString::fromUtf8(zeile.titel));
    }
    connect(TabStrip1_, &QTabWidget::currentChanged, this, &Rechner::Betreten);
    connect(TabStrip1_, &QTabWidget::tabBarClicked, this, [this](int stelle) {
        // A click on another tab changes to it, which is told by its own signal.
        const bool gewaehlt = stelle >= 0 && stelle == TabStrip1_->currentIndex();
        if (gewaehlt && static_cast<std::size_t>(stelle) < inhalt_.register_.size() &&
            inhalt_.register_[static_cast<std::size_t>(stelle)].erneut)
            Betreten(stelle);
    });
}

void Rechner::Beobachten(const Registerzeile& zeile) {
    const auto geaendert = [this] { Geaendert(); };
    if (auto* notizen = qobject_cast<RegisterNotizen*>(zeile.seite))
        connect(notizen, &RegisterNotizen::inhaltGeaendert, this, geaendert);
    if (!zeile.eingabe) return;
    for (const auto* felder : zeile.seite->findChildren<Feldtafel*>())
        connect(felder, &Feldtafel::bearbeitet, this, geaendert);
}

void Rechner::RegistertastenAnlegen() {
    for (const auto& [taste, richtung] :
         {std::pair(Qt::CTRL | Qt::Key_Tab, 1), std::pair(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, -1)}) {
        auto* kuerzel = new QShortcut(QKeySequence(taste), this);
        connect(kuerzel, &QShortcut::activated, this, [this, weite = richtung] { RegisterWechseln(weite); });
    }
}

void Rechner::RegisterWechseln(int richtung) {
    const int anzahl = TabStrip1_->count();
    mitte_->setCurrentWidget(TabStrip1_);
    TabStrip1_->setCurrentIndex((TabStrip1_->currentIndex() + richtung + anzahl) % anzahl);
}

void Rechner::Betreten(int stelle) {
    // A tab that is there for a while has no row.
    if (stelle < 0 || static_cast<std::size_t>(stelle) >= inhalt_.register_.size()) return;
    const auto& betreten = inhalt_.register_[static_cast<std::size_t>(stelle)].betreten;
    if (betreten) Geschuetzt(this, betreten);
}

int Rechner::Stelle(QWidget* seite) const {
    for (int stelle = 0; stelle < TabStrip1_->count(); ++stelle) {
        QWidget* reiter = TabStrip1_->widget(stelle);
        if (reiter == seite || reiter->isAncestorOf(seite)) return stelle;
    }
    return -1;
}

void Rechner::RegisterWaehlen(QWidget* seite) {
    mitte_->setCurrentWidget(TabStrip1_);
    const int stelle = Stelle(seite);
    if (stelle != TabStrip1_->currentIndex()) return TabStrip1_->setCurrentIndex(stelle);
    if (inhalt_.register_[static_cast<std::size_t>(stelle)].erneut) Betreten(stelle);
}

void Rechner::RegisterZeigen(QWidget* seite) {
    const QSignalBlocker ohneWirkung(TabStrip1_);
    mitte_->setCurrentWidget(TabStrip1_);
    TabStrip1_->setCurrentIndex(Stelle(seite));
}

void Rechner::RegisterAnhaengen(QWidget* seite, const char* titel, const std::function<void()>& zurueck) {
    if (!RegisterVorhanden(seite)) TabStrip1_->addTab(Rollrahmen(seite), QString::fromUtf8(titel));
    if (seite->findChildren<QShortcut*>(Qt::FindDirectChildrenOnly).isEmpty()) BeiEscape(seite, zurueck);
    RegisterZeigen(seite);
}

void Rechner::RegisterEntfernen(QWidget* seite) {
    if (const int stelle = Stelle(seite); stelle >= 0) TabStrip1_->removeTab(stelle);
}

bool Rechner::RegisterGewaehlt(QWidget* seite) const {
    return Stelle(seite) == TabStrip1_->currentIndex();
}

bool Rechner::RegisterVorhanden(QWidget* seite) const {
    return Stelle(seite) >= 0;
}

void Rechner::SeiteAnlegen(QWidget* seite) {
    mitte_->addWidget(Rollrahmen(seite));
    BeiEscape(seite, [this] { Zurueck(); });
}

void Rechner::SeiteZeigen(QWidget* seite) {
    QWidget* rahmen = Rollrahmen(seite);
    if (mitte_->currentWidget() != rahmen) herkunft_ = mitte_->currentWidget();
    mitte_->setCurrentWidget(rahmen);
}

void Rechner::Zurueck() {
    mitte_->setCurrentWidget(std::exchange(herkunft_, TabStrip1_));
}

bool Rechner::Ausfuehren(const Rechenschritt& schritt) {
    std::optional<Ablehnung> ablehnung;
    const bool gelungen = GeschuetztMitWartezeiger(this, [&] { ablehnung = schritt(); });
    if (ablehnung) Ablehnen(*ablehnung);
    return gelungen && !ablehnung;
}

bool Rechner::Rechnen(const Rechenschritt& schritt) {
    bool abgelehnt = false;
    const bool gelungen = Ausfuehren([&] {
        auto ablehnung = schritt();
        abgelehnt = ablehnung.has_value();
        return ablehnung;
    });
    if (!gelungen && !abgelehnt) TabStrip1_->setCurrentIndex(0);
    return gelungen;
}

void Rechner::Ablehnen(const Ablehnung& ablehnung) {
    MeldungZeigen(this, {.text = Anzeigetext(ablehnung.Meldung)});
    QWidget* bereich = TabStrip1_;
    for (int stelle = 0; stelle < TabStrip1_->count(); ++stelle) {
        if (TabStrip1_->tabText(stelle) != Anzeigetext(ablehnung.Register)) continue;
        mitte_->setCurrentWidget(TabStrip1_);
        TabStrip1_->setCurrentIndex(stelle);
        bereich = TabStrip1_->widget(stelle);
    }
    if (ablehnung.Feld.empty()) return;
    if (auto* feld = bereich->findChild<QWidget*>(QString::fromStdString(ablehnung.Feld)))
        ElementAnspringen(*feld);
}

void Rechner::Drucken(const std::function<Bericht()>& bilden) {
    GeschuetztMitWartezeiger(this, [&] {
        vorschau_->Zeigen(bilden);
        SeiteZeigen(vorschau_);
    });
}

bool Rechner::Zeichnen(const Zeichenschritt& bilden, std::size_t nummer) {
    return Ausfuehren([&]() -> std::optional<Ablehnung> {
        auto ergebnis = bilden();
        if (auto* grund = std::get_if<Ablehnung>(&ergebnis)) return std::move(*grund);
        auto& diagramm = std::get<Diagramm>(ergebnis);
        diagramm.titel = Projektname().toStdString();
        diagramme_.at(nummer)->Zeigen(diagramm);
        SeiteZeigen(diagramme_[nummer]);
        return std::nullopt;
    });
}

QString Rechner::Projektname() const {
    return inhalt_.ablage->Name();
}

void Rechner::TitelZeigen() {
    const QString name = Projektname();
    const QString titel = QString::fromUtf8(titel_);
    const QString stamm = inhalt_.ablage->Exportstamm();
    setWindowFilePath(stamm.isEmpty() ? titel : stamm);
    setWindowTitle(name.isEmpty() ? titel + "[*]" : titel + " – " + name + "[*]");
}

void Rechner::closeEvent(QCloseEvent* ereignis) {
    bool gewollt = false;
    Geschuetzt(this, [&] { gewollt = DatumSteht(*this) && inhalt_.ablage->VerlassenGewollt(); });
    if (!gewollt) return ereignis->ignore();
    FenstergroesseMerken(*this);
    ereignis->accept();
    emit verlassen();
}

}  // namespace zinfolio
