#include "fenster/ausgabe/formvorschau.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "fenster/ausgabe/export.h"
#include "fenster/ausgabe/seitenansicht.h"
#include "fenster/ui/bausteine.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/symbol.h"

namespace zinfolio {
namespace {

constexpr std::array<std::string_view, 5> ziele{"Drucker", "*.pdf-Datei (empfohlen !)", "*.rtf-Datei",
                                                "*.htm-Datei", "Aktuelle Seite in Zwischenspeicher kopieren"};
constexpr std::array zoomstufen{50, 65, 75, 100, 125, 150, 200};
constexpr int seitenbreite = -1;
constexpr int ganzeSeite = -2;

/// The step next to a size, to larger or smaller; at the ends the last one.
int Zoomstufe(double prozent, int schritt) {
    constexpr double unmerklich = 0.5;
    if (schritt > 0) {
        const auto* groesser = std::find_if(zoomstufen.begin(), zoomstufen.end(),
                                            [&](int stufe) { return stufe > prozent + unmerklich; });
        return groesser == zoomstufen.end() ? zoomstufen.back() : *groesser;
    }
    const auto kleiner = std::find_if(zoomstufen.rbegin(), zoomstufen.rend(),
                                      [&](int stufe) { return stufe < prozent - unmerklich; });
    return kleiner == zoomstufen.rend() ? zoomstufen.front() : *kleiner;
}

Seitenzoom ZoomAus(int wert) {
    if (wert == seitenbreite) return {.art = Seitenzoom::Art::seitenbreite};
    if (wert == ganzeSeite) return {.art = Seitenzoom::Art::ganzeSeite};
    return {.art = Seitenzoom::Art::prozent, .prozent = wert};
}

}  // namespace

FormVorschau::FormVorschau(std::filesystem::path arbeitsordner, const Vorschauart& art, QWidget* eltern)
    : QWidget(eltern),
      arbeitsordner_(std::move(arbeitsordner)),
      art_(art),
      VP_(new Seitenansicht("VP", this)),
      seitenzahl_(new QSpinBox(this)),
      zoom_(new QComboBox(this)),
      Combo18_(NeueAuswahl("Combo18", ziele, this)) {
    setObjectName(QString::fromUtf8(art.rahmen));
    setFocusProxy(VP_);
    Combo18_->setAccessibleName("Ziel des Exports");
    Zoomliste();
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addLayout(Seitenleiste());
    anordnung->addWidget(VP_, 1);
    anordnung->addLayout(Exportzeile());
    connect(VP_, &Seitenansicht::seiteGewechselt, this, &FormVorschau::SeiteZeigen);
    connect(VP_, &Seitenansicht::zoomVerlangt, this, &FormVorschau::Zoomen);
    for (const auto& [tasten, schritt] :
         {std::pair(QKeySequence::ZoomIn, 1), std::pair(QKeySequence::ZoomOut, -1)})
        new QShortcut(
            tasten, this, [this, richtung = schritt] { Zoomen(richtung); }, Qt::WidgetWithChildrenShortcut);
    SeiteZeigen();
}

QToolButton* FormVorschau::Blaettertaste(const char* name, const char* symbol, const char* hinweis, int taste,
                                         const std::function<int()>& ziel) {
    auto* knopf = new QToolButton(this);
    knopf->setObjectName(QString::fromUtf8(name));
    knopf->setIcon(Symbol(QString::fromUtf8(symbol)));
    knopf->setAutoRaise(true);
    knopf->setToolTip(QString::fromUtf8(hinweis));
    knopf->setAccessibleName(QString::fromUtf8(hinweis));
    const auto blaettern = [this, ziel] { VP_->SeiteWaehlen(ziel()); };
    connect(knopf, &QToolButton::clicked, this, blaettern);
    new QShortcut(QKeySequence(taste), this, blaettern, Qt::WidgetWithChildrenShortcut);
    return knopf;
}

QHBoxLayout* FormVorschau::Seitenleiste() {
    erste_ = Blaettertaste("Ersteseite", "seiteerste", "Erste Seite (Pos1)", Qt::Key_Home, [] { return 0; });
    vorige_ = Blaettertaste("Vorigeseite", "seitezurueck", "Vorige Seite (Bild auf)", Qt::Key_PageUp,
                            [this] { return VP_->Seite() - 1; });
    naechste_ = Blaettertaste("Nächsteseite", "seitevor", "Nächste Seite (Bild ab)", Qt::Key_PageDown,
                              [this] { return VP_->Seite() + 1; });
    letzte_ = Blaettertaste("Letzteseite", "seiteletzte", "Letzte Seite (Ende)", Qt::Key_End,
                            [this] { return VP_->Seiten() - 1; });
    seitenzahl_->setObjectName("Seitenzahl");
    seitenzahl_->setAccessibleName("Seite");
    seitenzahl_->setPrefix("Seite ");
    seitenzahl_->setAlignment(Qt::AlignCenter);
    seitenzahl_->setButtonSymbols(QAbstractSpinBox::NoButtons);
    seitenzahl_->setKeyboardTracking(false);
    connect(seitenzahl_, &QSpinBox::valueChanged, this, [this](int zahl) { VP_->SeiteWaehlen(zahl - 1); });
    auto* zoomtext = new QLabel("&Größe", this);
    zoomtext->setBuddy(zoom_);
    auto* leiste = new QHBoxLayout;
    leiste->addStretch();
    for (QWidget* element : std::initializer_list<QWidget*>{erste_, vorige_, seitenzahl_, naechste_, letzte_})
        leiste->addWidget(element);
    leiste->addStretch();
    leiste->addWidget(zoomtext);
    leiste->addWidget(zoom_);
    return leiste;
}

QHBoxLayout* FormVorschau::Exportzeile() {
    auto* zeile = Tastenzeile({NeueTaste(art_.exportieren, "&Export", this, [this] { Exportieren(); }),
                               NeueTaste(art_.zurueck, "&Zurück", this, [this] { emit zurueck(); })});
    zeile->insertWidget(0, Combo18_);
    return zeile;
}

void FormVorschau::Zoomliste() {
    zoom_->setObjectName("Zoom");
    for (const int stufe : zoomstufen)
        zoom_->addItem(QString("%1 %").arg(stufe), stufe);
    zoom_->addItem("Seitenbreite", seitenbreite);
    zoom_->addItem("Ganze Seite", ganzeSeite);
    connect(zoom_, &QComboBox::currentIndexChanged, this, &FormVorschau::ZoomAnwenden);
}

/// Chooses a size, which joins the list where it is not in it.
void FormVorschau::ZoomZeigen(int prozent) {
    if (zoom_->findData(prozent) < 0) {
        const auto stufen = static_cast<int>(zoomstufen.size());
        int stelle = 0;
        while (stelle < stufen && zoom_->itemData(stelle).toInt() < prozent)
            ++stelle;
        zoom_->insertItem(stelle, QString("%1 %").arg(prozent), prozent);
    }
    zoom_->setCurrentIndex(zoom_->findData(prozent));
}

void FormVorschau::ZoomAnwenden() {
    VP_->ZoomWaehlen(ZoomAus(zoom_->currentData().toInt()));
}

void FormVorschau::Zoomen(int schritt) {
    if (maler_) ZoomZeigen(Zoomstufe(VP_->Prozent(), schritt));
}

void FormVorschau::Zeigen(std::function<Bericht()> bilden) {
    maler_ = std::make_shared<const Seitenmaler>(bilden());
    bilden_ = std::move(bilden);
    ZoomZeigen(maler_->Inhalt().zoom);
    VP_->Zeigen(maler_);
}

void FormVorschau::SeiteZeigen() {
    const int seiten = std::max(1, VP_->Seiten());
    const QSignalBlocker still(seitenzahl_);
    seitenzahl_->setRange(1, seiten);
    seitenzahl_->setSuffix(QString(" von %1").arg(seiten));
    seitenzahl_->setValue(VP_->Seite() + 1);
    for (QToolButton* taste : {erste_, vorige_})
        taste->setEnabled(VP_->Seite() > 0);
    for (QToolButton* taste : {naechste_, letzte_})
        taste->setEnabled(VP_->Seite() + 1 < seiten);
}

void FormVorschau::showEvent(QShowEvent* ereignis) {
    QWidget::showEvent(ereignis);
    VP_->setFocus();
}

void FormVorschau::Exportieren() {
    if (!maler_) return;
    const Exportauftrag auftrag{this, arbeitsordner_, QString::fromUtf8(art_.filter)};
    // The report lives until the export is done, whatever is shown meanwhile.
    const auto maler = maler_;
    Geschuetzt(this, [&] {
        switch (const auto ziel = static_cast<Exportziel>(Combo18_->currentIndex()); ziel) {
            case Exportziel::drucker:
                return DruckerExport(auftrag, *maler);
            case Exportziel::pdf:
                return PdfExport(auftrag, *maler);
            case Exportziel::rtf:
            case Exportziel::htm:
                return TextExport(auftrag, ziel, bilden_());
            case Exportziel::zwischenspeicher:
                return ZwischenspeicherExport(*maler, VP_->Seite());
        }
    });
}

}  // namespace zinfolio
