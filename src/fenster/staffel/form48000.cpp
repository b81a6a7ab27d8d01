#include "fenster/staffel/form48000.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolBar>

#include "fenster/ausgabe/formdiagramm.h"
#include "fenster/ausgabe/formvorschau.h"
#include "fenster/staffel/registerberechnung.h"
#include "fenster/staffel/registereffektivzins.h"
#include "fenster/staffel/registerzahlungen.h"
#include "fenster/staffel/registerzinssaetze.h"
#include "fenster/staffel/registerzinsverrechnung.h"
#include "fenster/ui/bausteine.h"
#include "fenster/ui/datumsfeld.h"
#include "fenster/ui/fenstergroesse.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/notizfeld.h"
#include "fenster/ui/symbol.h"
#include "kern/staffel/effektivdateien.h"

namespace zinfolio {
namespace {

constexpr QSize anfangsgroesse(1180, 720);

}  // namespace

Form48000::Form48000(const std::filesystem::path& arbeitsordner)
    : dateien_(arbeitsordner),
      mitte_(new QStackedWidget(this)),
      TabStrip1_(new QTabWidget),
      Projekt_(new QLabel),
      zahlungen_(new RegisterZahlungen(dateien_.Zahlungen(), this)),
      zinssaetze_(new RegisterZinssaetze(dateien_.Konditionen(), this)),
      zinsverrechnung_(new RegisterZinsverrechnung(this)),
      berechnung_(new RegisterBerechnung(this)),
      notizen_(new Notizfeld("RTZinsstaffel", this)),
      effektivzins_(new RegisterEffektivzins(this)),
      vorschau_(new FormVorschau(arbeitsordner)),
      diagramm_(new FormDiagramm) {
    setObjectName("Form48000");
    RegisterAnlegen();
    for (QWidget* bild : std::initializer_list<QWidget*>{TabStrip1_, vorschau_, diagramm_})
        mitte_->addWidget(bild);
    setCentralWidget(mitte_);
    MenueUndLeisteAnlegen();
    Neu();
    zinsverrechnung_->Zeigen(KontoeinstellungenLesen(dateien_.Ordner()));
    Verdrahten();
    FenstergroesseHolen(*this, anfangsgroesse);
}

void Form48000::RegisterAnlegen() {
    TabStrip1_->setObjectName("TabStrip1");
    TabStrip1_->addTab(Rollbar(zahlungen_), "Zahlungen");
    TabStrip1_->addTab(Rollbar(zinssaetze_), "Zinssätze");
    TabStrip1_->addTab(Rollbar(zinsverrechnung_), "Zinsverrechnung");
    TabStrip1_->addTab(berechnung_, "Zinsstaffel berechnen");
    TabStrip1_->addTab(notizen_, "Notizen");
    effektivzins_->hide();
}

QAction* Form48000::Befehl(const Befehlsangaben& angaben) {
    auto* befehl = new QAction(Symbol(angaben.symbol), QString::fromUtf8(angaben.text), this);
    befehl->setObjectName(QString::fromUtf8(angaben.name));
    befehl->setToolTip(QString::fromUtf8(angaben.hinweis));
    befehl->setShortcut(angaben.taste);
    connect(befehl, &QAction::triggered, this, angaben.wirkung);
    return befehl;
}

void Form48000::MenueUndLeisteAnlegen() {
    const auto wirkung = [this](auto operation) { return [this, operation] { (this->*operation)(); }; };
    QAction* neu =
        Befehl({"Neu", "neu", "&Neu", "Neue Datei", QKeySequence::New, wirkung(&Form48000::NeuBeginnen)});
    QAction* oeffnen = Befehl(
        {"Öffnen", "oeffnen", "Ö&ffnen", "Datei öffnen", QKeySequence::Open, wirkung(&Form48000::Oeffnen)});
    QAction* speichern = Befehl({"Schnellspeich", "speichern", "&Speichern", "Speichern", QKeySequence::Save,
                                 wirkung(&Form48000::Speichern)});
    QAction* speichernUnter = Befehl({"Speich", "", "Speichern &unter", "Unter einem anderen Namen speichern",
                                      QKeySequence("Ctrl+Shift+S"), wirkung(&Form48000::SpeichernUnter)});
    QAction* auswertungen = Befehl({"Auswertungen", "berechnen", "&Berechnen", "Zinsstaffel berechnen",
                                    QKeySequence("F9"), wirkung(&Form48000::BerechnungWaehlen)});
    QAction* ende = Befehl({"Programmende", "ende", "&Ende", "Zurück zum Startbildschirm", QKeySequence::Quit,
                            wirkung(&QWidget::close)});
    QMenu* datei = menuBar()->addMenu("&Datei");
    datei->addActions({neu, oeffnen, speichern, speichernUnter});
    datei->addSeparator();
    datei->addAction(ende);
    QToolBar* leiste = addToolBar("Werkzeuge");
    leiste->setObjectName("Toolbar1");
    leiste->setMovable(false);
    leiste->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    leiste->addActions({neu, oeffnen, speichern, auswertungen});
    auto* abstand = new QWidget;
    abstand->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    leiste->addWidget(abstand);
    leiste->addWidget(new QLabel("Datei: "));
    Projekt_->setObjectName("Projekt");
    leiste->addWidget(Projekt_);
    leiste->addSeparator();
    leiste->addAction(ende);
    leiste->widgetForAction(ende)->setObjectName("Command2");
}

void Form48000::Verdrahten() {
    connect(TabStrip1_, &QTabWidget::currentChanged, this, &Form48000::RegisterGewaehlt);
    connect(TabStrip1_, &QTabWidget::tabBarClicked, this, [this](int register_) {
        // Selecting the tab that is selected already calculates anew.
        if (register_ == berechnung && TabStrip1_->currentIndex() == berechnung) Rechnen();
    });
    connect(berechnung_, &RegisterBerechnung::effektivzinsVerlangt, this, &Form48000::EffektivzinsRechnen);
    connect(berechnung_, &RegisterBerechnung::druckenVerlangt, this, &Form48000::KontoDrucken);
    connect(berechnung_, &RegisterBerechnung::grafikVerlangt, this, &Form48000::GrafikZeigen);
    connect(effektivzins_, &RegisterEffektivzins::druckenVerlangt, this, &Form48000::EffektivzinsDrucken);
    connect(effektivzins_, &RegisterEffektivzins::zurueck, this, [this] {
        const QSignalBlocker ohneNeueRechnung(TabStrip1_);
        TabStrip1_->setCurrentIndex(berechnung);
    });
    connect(vorschau_, &FormVorschau::zurueck, this, [this] { mitte_->setCurrentWidget(TabStrip1_); });
    connect(diagramm_, &FormDiagramm::zurueck, this, [this] { mitte_->setCurrentWidget(TabStrip1_); });
    const auto geaendert = [this] { setWindowModified(true); };
    connect(zahlungen_, &RegisterZahlungen::geaendert, this, geaendert);
    connect(zinssaetze_, &RegisterZinssaetze::geaendert, this, geaendert);
    connect(zinsverrechnung_, &RegisterZinsverrechnung::geaendert, this, geaendert);
    connect(notizen_, &Notizfeld::geaendert, this, [this] {
        notizdatei_.reset();
        setWindowModified(true);
    });
}

void Form48000::BerechnungWaehlen() {
    mitte_->setCurrentWidget(TabStrip1_);
    if (TabStrip1_->currentIndex() == berechnung) return Rechnen();
    TabStrip1_->setCurrentIndex(berechnung);
}

void Form48000::RegisterGewaehlt(int register_) {
    if (register_ == berechnung) return Rechnen();
    if (register_ == effektivzinssatz) return;
    berechnung_->KurzformWaehlen();
    if (register_ == zinssaetze) zinssaetze_->Betreten();
    if (register_ == zinsverrechnung) zinsverrechnung_->Betreten();
    if (register_ == notizen) notizen_->setFocus();
}

void Form48000::Rechnen() {
    std::optional<Ablehnung> ablehnung;
    const bool gelungen = GeschuetztMitWartezeiger(this, [&] {
        Konto konto;
        berechnung_->Leeren();
        ablehnung = dateien_.Rechnen(zinsverrechnung_->Lesen(), konto);
        zahlungen_->NeuSchreiben();
        zinssaetze_->NeuSchreiben2();
        if (!ablehnung) berechnung_->Zeigen(std::move(konto.loesung));
        if (TabStrip1_->indexOf(effektivzins_) < 0) berechnung_->EffektivzinsVerbergen();
    });
    if (ablehnung) Ablehnen(*ablehnung);
    if (!gelungen) TabStrip1_->setCurrentIndex(zahlungen);
}

void Form48000::EffektivzinsRechnen() {
    GeschuetztMitWartezeiger(this, [this] {
        const Effektivmethode methode = berechnung_->GewaehlteEffektivmethode();
        Kontoeffektivzins ergebnis = KontoEffektivzinsRechnen(berechnung_->Loesung(), methode);
        KontoEffektivzinsAblegen(dateien_.Ordner(), ergebnis);
        berechnung_->EffektivzinsZeigen(ergebnis.ezins, methode);
        effektivzins_->Zeigen(std::move(ergebnis));
        if (TabStrip1_->indexOf(effektivzins_) < 0) TabStrip1_->addTab(effektivzins_, "Effektivzinssatz");
        TabStrip1_->setCurrentWidget(effektivzins_);
    });
}

void Form48000::Ablehnen(const Ablehnung& ablehnung) {
    MeldungZeigen(this, {.text = Anzeigetext(ablehnung.Meldung)});
    const QString ziel = QString::fromStdString(ablehnung.Register);
    for (int register_ = 0; register_ < TabStrip1_->count(); ++register_) {
        if (TabStrip1_->tabText(register_) == ziel) TabStrip1_->setCurrentIndex(register_);
    }
    zinsverrechnung_->Fokussieren(ablehnung.Feld);
}

bool Form48000::DatumSteht() {
    auto* datum = qobject_cast<Datumsfeld*>(focusWidget());
    return !datum || datum->DarfVerlassenWerden();
}

void Form48000::closeEvent(QCloseEvent* ereignis) {
    if (!DatumSteht() || !VerlassenGewollt()) {
        ereignis->ignore();
        return;
    }
    FenstergroesseMerken(*this);
    ereignis->accept();
    emit verlassen();
}

}  // namespace zinfolio
