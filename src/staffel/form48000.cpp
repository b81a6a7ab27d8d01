#include "staffel/form48000.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QTabWidget>
#include <QToolBar>

#include "finmath/effektivdateien.h"
#include "staffel/form48000berechnung.h"
#include "staffel/form48000effektivzins.h"
#include "staffel/form48000zahlungen.h"
#include "staffel/form48000zinssaetze.h"
#include "staffel/form48000zinsverrechnung.h"
#include "staffel/meldungen.h"
#include "ui/bausteine.h"
#include "ui/datumsfeld.h"
#include "ui/fenstergroesse.h"
#include "ui/geschuetzt.h"
#include "ui/meldungsfenster.h"
#include "ui/symbol.h"

namespace zinfolio {
namespace {

constexpr QSize anfangsgroesse(1180, 720);

}  // namespace

Form48000::Form48000(const std::filesystem::path& arbeitsordner)
    : dateien_(arbeitsordner),
      TabStrip1_(new QTabWidget(this)),
      zahlungen_(new RegisterZahlungen(dateien_.Zahlungen(), this)),
      zinssaetze_(new RegisterZinssaetze(dateien_.Konditionen(), this)),
      zinsverrechnung_(new RegisterZinsverrechnung(this)),
      berechnung_(new RegisterBerechnung(this)),
      notizen_(new QWidget(this)),
      effektivzins_(new RegisterEffektivzins(this)) {
    setObjectName("Form48000");
    setWindowTitle("Zinsstaffelrechner");
    TabStrip1_->setObjectName("TabStrip1");
    TabStrip1_->addTab(Rollbar(zahlungen_), "Zahlungen");
    TabStrip1_->addTab(Rollbar(zinssaetze_), "Zinssätze");
    TabStrip1_->addTab(Rollbar(zinsverrechnung_), "Zinsverrechnung");
    TabStrip1_->addTab(berechnung_, "Zinsstaffel berechnen");
    TabStrip1_->addTab(notizen_, "Notizen");
    effektivzins_->hide();
    setCentralWidget(TabStrip1_);
    connect(berechnung_, &RegisterBerechnung::effektivzinsVerlangt, this, &Form48000::EffektivzinsRechnen);
    connect(effektivzins_, &RegisterEffektivzins::zurueck, this, [this] {
        const QSignalBlocker ohneNeueRechnung(TabStrip1_);
        TabStrip1_->setCurrentIndex(berechnung);
    });
    MenueAnlegen();
    LeisteAnlegen();
    connect(TabStrip1_, &QTabWidget::tabBarClicked, this, [this](int register_) {
        // Selecting the tab that is selected already calculates anew.
        if (register_ == berechnung && TabStrip1_->currentIndex() == berechnung) Rechnen();
    });
    Neu();
    zinsverrechnung_->Zeigen(KontoeinstellungenLesen(dateien_.Ordner()));
    connect(TabStrip1_, &QTabWidget::currentChanged, this, &Form48000::RegisterGewaehlt);
    FenstergroesseHolen(*this, anfangsgroesse);
}

void Form48000::MenueAnlegen() {
    QMenu* datei = menuBar()->addMenu("&Datei");
    datei->addAction(Symbol("ende"), "&Ende", QKeySequence::Quit, this, &QWidget::close)
        ->setObjectName("Programmende");
}

void Form48000::LeisteAnlegen() {
    QToolBar* leiste = addToolBar("Werkzeuge");
    leiste->setObjectName("Toolbar1");
    leiste->setMovable(false);
    leiste->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QAction* auswertungen = leiste->addAction(Symbol("berechnen"), "&Berechnen", [this] {
        if (TabStrip1_->currentIndex() == berechnung) return Rechnen();
        TabStrip1_->setCurrentIndex(berechnung);
    });
    auswertungen->setObjectName("Auswertungen");
    auswertungen->setToolTip("Zinsstaffel berechnen");
    auswertungen->setShortcut(Qt::Key_F9);
    auto* abstand = new QWidget;
    abstand->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    leiste->addWidget(abstand);
    QAction* ende = leiste->addAction(Symbol("ende"), "Ende", this, &QWidget::close);
    ende->setObjectName("Command2");
    ende->setToolTip("Zurück zum Startbildschirm");
}

void Form48000::Neu() {
    dateien_.Neu();
    zahlungen_->Leeren();
    zahlungen_->NeuSchreiben();
    zinssaetze_->Leeren();
    zinssaetze_->NeuSchreiben2();
    berechnung_->Leeren();
    berechnung_->EffektivzinsVerbergen();
    TabStrip1_->removeTab(TabStrip1_->indexOf(effektivzins_));
    TabStrip1_->setCurrentIndex(zahlungen);
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
        Kontoeffektivzins ergebnis =
            KontoEffektivzinsRechnen(berechnung_->Loesung(), berechnung_->GewaehlteEffektivmethode());
        KontoEffektivzinsAblegen(dateien_.Ordner(), ergebnis);
        berechnung_->EffektivzinsZeigen(ergebnis.ezins);
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

void Form48000::closeEvent(QCloseEvent* ereignis) {
    if (auto* datum = qobject_cast<Datumsfeld*>(focusWidget()); datum && !datum->DarfVerlassenWerden()) {
        ereignis->ignore();
        return;
    }
    Geschuetzt(this, [this] { KontoeinstellungenSchreiben(dateien_.Ordner(), zinsverrechnung_->Lesen()); });
    FenstergroesseMerken(*this);
    ereignis->accept();
    emit verlassen();
}

}  // namespace zinfolio
