#include "fenster/start/form1.h"

#include <QApplication>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QTimer>
#include <QVBoxLayout>
#include <array>

#include "fenster/allround/form61000.h"
#include "fenster/hilfe/hilfefenster.h"
#include "fenster/hilfe/impressum.h"
#include "fenster/hilfe/netzwege.h"
#include "fenster/rechner/projektablage.h"
#include "fenster/sparen/sparrechner.h"
#include "fenster/staffel/form48000.h"
#include "fenster/start/letztetafel.h"
#include "fenster/start/programmstart.h"
#include "fenster/start/projektabwurf.h"
#include "fenster/start/rechnertaste.h"
#include "fenster/start/spaltenfeld.h"
#include "fenster/tabellen/form14005.h"
#include "fenster/ui/bausteine.h"
#include "fenster/ui/fenstergroesse.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/menuetaste.h"
#include "fenster/ui/symbol.h"
#include "kern/dateien/arbeitsordner.h"

namespace zinfolio {

/// A calculator on the start screen: its entry in the menu, its button with half a sentence, and how its
/// window is made; without the last it is shown, but not offered.
struct Rechnereintrag {
    const char* name;
    const char* menuetext;
    const char* titel;
    const char* erklaerung;
    const char* symbol;
    Rechner* (*anlegen)(const std::filesystem::path& arbeitsordner) = nullptr;
    /// The ending of its projects, empty where it has none.
    const char* endung = "";
};

namespace {

template <class Fenster>
Rechner* Anlegen(const std::filesystem::path& arbeitsordner) {
    return new Fenster(arbeitsordner);
}

constexpr std::array kontorechner{
    Rechnereintrag{"Zinsstaffelrechner", "Zinsstaffelrechner", "Zinsstaffelrechner",
                   "Ein Konto nachrechnen, auf den Cent wie die Bank", "konto", Anlegen<Form48000>, "ZiS"},
};
constexpr std::array reihenrechner{
    Rechnereintrag{"Effektivzinsrechner", "Effektivzinsrechner", "Effektivzinsrechner",
                   "Rendite, Barwert, Tilgungsplan", "reihe", Anlegen<Form61000>, "RRR"},
    Rechnereintrag{"Finanztabellen", "Finanzmathematische Tabellen", "Finanztabellen",
                   "Die sechs Faktoren als Tafel und einzeln", "tabelle", Anlegen<Form14005>},
};
constexpr std::array sparrechner{
    Rechnereintrag{"R1", "Endkapital Ratensparen", "Endkapital", "Was ein Sparplan am Ende ergibt", "sparen",
                   Anlegen<Form90000>},
    Rechnereintrag{"R2", "Höhe einer Sparrate beim Ratensparen", "Sparrate",
                   "Wie viel regelmäßig zu sparen ist", "sparen", Anlegen<Form94000>},
    Rechnereintrag{"R3", "Rendite beim Ratensparen", "Rendite", "Was ein Sparplan wirklich bringt", "sparen",
                   Anlegen<Form92000>},
    Rechnereintrag{"R4", "Anspardauer beim Ratensparen", "Anspardauer", "Wie lange zu sparen ist", "sparen",
                   Anlegen<Form96000>},
    Rechnereintrag{"R5", "Benötigtes Anfangskapital beim Ratensparen", "Anfangskapital",
                   "Womit zu beginnen ist", "sparen", Anlegen<Form99000>},
};

/// The calculator of a project, by the ending of its file; none for other files.
const Rechnereintrag* Projektrechner(const QString& datei) {
    const QString endung = QFileInfo(datei).suffix();
    for (const Rechnereintrag* eintrag : {&kontorechner[0], &reihenrechner[0]})
        if (endung.compare(QString::fromUtf8(eintrag->endung), Qt::CaseInsensitive) == 0) return eintrag;
    return nullptr;
}

/// Room for three columns of buttons in the user's font, as far as the screen has it.
QSize Anfangsgroesse(const QWidget& fenster) {
    const int zeile = fenster.fontMetrics().height();
    return QSize(72 * zeile, 40 * zeile).boundedTo(Bildschirmplatz(fenster));
}

}  // namespace

Form1::Form1(std::filesystem::path arbeitsordner) : arbeitsordner_(std::move(arbeitsordner)) {
    setObjectName("Form1");
    setWindowTitle("Zinfolio                Vers. " ZINFOLIO_VERSION);
    setWindowIcon(QIcon(":/zinfolio.svg"));
    wirkungen_ = {
        {"Hilfetext", [] { Hilfefenster::ZumFokus(); }},
        {"Update", [this] { ImNetz([this] { NachNeuererVersionSehen(this, Herstellerserver()); }); }},
        {"shop", [this] { ImNetz([this] { SeiteZeigen(this, Herstellerserver(), "/"); }); }},
        {"FinSeminare",
         [this] { ImNetz([this] { SeiteZeigen(this, Herstellerserver(), "/Seminare/Seminare.html"); }); }},
        {"Impr", [this] { ImpressumZeigen(this); }},
        {"Enden2", [] { QApplication::quit(); }},
    };
    RechnerAnbieten(kontorechner);
    RechnerAnbieten(reihenrechner);
    RechnerAnbieten(sparrechner);
    MenueAnlegen();
    MenueMitF10(*this);
    TafelAnlegen();
    setAcceptDrops(true);
    auto* abwurf = new Projektabwurf([](const QString& datei) { return Projektrechner(datei); }, this);
    connect(abwurf, &Projektabwurf::projektAbgeworfen, this, &Form1::ProjektOeffnenSobaldFrei);
    qApp->installEventFilter(abwurf);
    findChild<Rechnertaste*>()->setFocus();
    resize(Anfangsgroesse(*this));
    move(0, 0);
}

void Form1::RechnerAnbieten(std::span<const Rechnereintrag> gruppe) {
    for (const Rechnereintrag& eintrag : gruppe) {
        if (eintrag.anlegen) wirkungen_[eintrag.name] = [this, &eintrag] { RechnerOeffnen(eintrag); };
    }
}

QAction* Form1::Eintrag(QWidget& menue, const char* name, const QString& text) {
    auto* eintrag = new QAction(text, this);
    eintrag->setObjectName(QString::fromUtf8(name));
    eintrag->setEnabled(wirkungen_.contains(name));
    connect(eintrag, &QAction::triggered, this, [this, name] { Oeffnen(name); });
    menue.addAction(eintrag);
    return eintrag;
}

void Form1::MenueAnlegen() {
    QMenuBar& leiste = *menuBar();
    Eintrag(leiste, reihenrechner[0].name, reihenrechner[0].menuetext);
    Eintrag(leiste, kontorechner[0].name, kontorechner[0].menuetext);
    QMenu* zinsrechner = leiste.addMenu("Zinsrechner");
    zinsrechner->setObjectName("Zinsrechner");
    for (const Rechnereintrag& rechner : sparrechner)
        Eintrag(*zinsrechner, rechner.name, rechner.menuetext);
    Eintrag(leiste, reihenrechner[1].name, reihenrechner[1].menuetext);
    QMenu* info = leiste.addMenu("Info");
    info->setObjectName("Info");
    Eintrag(*info, "Hilfetext", "Hilfe");
    Eintrag(*info, "Update", "Update - Download");
    Eintrag(*info, "shop", QUrl(ZINFOLIO_SERVER).host());
    Eintrag(*info, "FinSeminare", "Finanz - Seminare");
    Eintrag(*info, "Impr", "Impressum");
    Eintrag(leiste, "Enden2", "Ende");
}

void Form1::TafelAnlegen() {
    auto* mitte = new QWidget;
    auto* tafel = new QVBoxLayout(mitte);
    tafel->setContentsMargins(28, 18, 28, 22);
    auto* titel = new QLabel("Zinfolio");
    titel->setObjectName("Label2");
    QFont schrift = titel->font();
    schrift.setPointSizeF(schrift.pointSizeF() * 2.4);
    schrift.setBold(true);
    titel->setFont(schrift);
    tafel->addWidget(titel);
    tafel->addWidget(new QLabel("Zinsen, Renditen und Sparpläne nachrechnen, auf den Cent genau."));
    tafel->addSpacing(12);
    auto* gruppen = new Spaltenfeld;
    tafel->addWidget(gruppen);
    letzte_ = new Letztetafel([](const QString& datei) {
        const Rechnereintrag* eintrag = Projektrechner(datei);
        return eintrag ? Symbol(QString::fromUtf8(eintrag->symbol)) : QIcon();
    });
    // When its own click is over: what follows may fill the list anew.
    connect(letzte_, &Letztetafel::projektGewaehlt, this, &Form1::ProjektOeffnen, Qt::QueuedConnection);
    tafel->addSpacing(12);
    tafel->addWidget(letzte_);
    tafel->addStretch();
    gruppen->Anfuegen(NeueGruppe("Konto", kontorechner));
    gruppen->Anfuegen(NeueGruppe("Reihen und Tabellen", reihenrechner));
    gruppen->Anfuegen(NeueGruppe("Sparpläne", sparrechner));
    setCentralWidget(Rollbar(mitte));
}

QWidget* Form1::NeueGruppe(const QString& titel, std::span<const Rechnereintrag> rechner) {
    auto* rahmen = new QGroupBox(titel);
    auto* spalte = new QVBoxLayout(rahmen);
    for (const Rechnereintrag& eintrag : rechner) {
        auto* taste =
            new Rechnertaste(Symbol(QString::fromUtf8(eintrag.symbol)), QString::fromUtf8(eintrag.titel),
                             QString::fromUtf8(eintrag.erklaerung));
        taste->setObjectName(QString("Taste") + QString::fromUtf8(eintrag.name));
        taste->setEnabled(wirkungen_.contains(eintrag.name));
        if (!taste->isEnabled()) taste->setToolTip("In dieser Version noch nicht enthalten");
        connect(taste, &QPushButton::clicked, this, [this, name = eintrag.name] { Oeffnen(name); });
        spalte->addWidget(taste);
    }
    spalte->addStretch(1);
    return rahmen;
}

void Form1::Oeffnen(std::string_view name) {
    wirkungen_.at(name)();
}

bool Form1::RechnerOeffnen(const Rechnereintrag& eintrag) {
    return Geschuetzt(this, [&] {
        ArbeitsordnerAnlegen(arbeitsordner_);
        Rechner* rechner = eintrag.anlegen(arbeitsordner_);
        rechner->setAttribute(Qt::WA_DeleteOnClose);
        rechner->setWindowIcon(windowIcon());
        rechner->setAcceptDrops(true);
        connect(rechner, &Rechner::verlassen, this, &Form1::RechnerVerlassen);
        connect(rechner, &Rechner::impressumVerlangt, rechner, [rechner] { ImpressumZeigen(rechner); });
        rechner->show();
        hide();
        rechner_ = rechner;
        offener_ = &eintrag;
    });
}

bool Form1::ProjektOeffnen(const QString& datei) {
    const Rechnereintrag* eintrag = Projektrechner(datei);
    if (!eintrag) return false;
    if (rechner_ && offener_ != eintrag && !RechnerSchliessen()) return true;
    if (!rechner_ && !RechnerOeffnen(*eintrag)) {
        show();
        return false;
    }
    const std::filesystem::path pfad = QFileInfo(datei).absoluteFilePath().toStdString();
    Geschuetzt(rechner_, [&] { rechner_->findChild<Projektablage*>()->ZuDateiWechseln(pfad); });
    return true;
}

void Form1::ProjektOeffnenSobaldFrei(const QString& datei) {
    constexpr int takt = 200;
    if (!Beschaeftigt())
        ProjektOeffnen(datei);
    else
        QTimer::singleShot(takt, this, [this, datei] { ProjektOeffnenSobaldFrei(datei); });
}

bool Form1::Beschaeftigt() const {
    return imNetz_ || QApplication::activeModalWidget() || QApplication::activePopupWidget() ||
           QApplication::overrideCursor();
}

void Form1::NachVorn() {
    QWidget* fenster = QApplication::activeModalWidget();
    if (!fenster) fenster = rechner_ ? static_cast<QWidget*>(rechner_) : this;
    fenster->setWindowState(fenster->windowState() & ~Qt::WindowMinimized);
    fenster->show();
    fenster->raise();
    fenster->activateWindow();
}

void Form1::ImNetz(const std::function<void()>& weg) {
    if (imNetz_) return;
    imNetz_ = true;
    setCursor(Qt::WaitCursor);
    Geschuetzt(this, weg);
    unsetCursor();
    imNetz_ = false;
}

bool Form1::RechnerSchliessen() {
    wechselt_ = true;
    const bool gelungen = rechner_->close();
    wechselt_ = false;
    return gelungen;
}

void Form1::RechnerVerlassen() {
    // It lives until the event loop deletes it.
    rechner_ = nullptr;
    if (wechselt_) return;
    const QStringList argumente = QCoreApplication::arguments().mid(1);
    if (KehrtZumStartZurueck(argumente.join(' '))) {
        show();
    } else {
        QApplication::quit();
    }
}

void Form1::showEvent(QShowEvent* ereignis) {
    QMainWindow::showEvent(ereignis);
    letzte_->Auffrischen();
}

void Form1::closeEvent(QCloseEvent* /*ereignis*/) {
    QApplication::quit();
}

}  // namespace zinfolio
