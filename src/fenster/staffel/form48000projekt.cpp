// The account as a project: new, open, save, and the question on leaving.

#include <QLabel>
#include <QStackedWidget>
#include <QTabWidget>

#include "fenster/staffel/form48000.h"
#include "fenster/staffel/registerberechnung.h"
#include "fenster/staffel/registereffektivzins.h"
#include "fenster/staffel/registerzahlungen.h"
#include "fenster/staffel/registerzinssaetze.h"
#include "fenster/staffel/registerzinsverrechnung.h"
#include "fenster/ui/dateidialog.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/notizfeld.h"
#include "kern/richtext/rtflesen.h"
#include "kern/richtext/rtfschreiben.h"
#include "kern/staffel/kontoprojekt.h"
#include "kern/staffel/staffelsortierung.h"

namespace zinfolio {
namespace {

constexpr const char* nichtGespeichert = "Das Konto konnte nicht gespeichert werden.\n\n";
Meldungsinhalt Speicherfrage() {
    return {.text = "Speichern ?", .titel = "Speichern"};
}

Dateifrage Projektfrage(Dateifrage::Zweck zweck, const std::optional<std::filesystem::path>& projekt) {
    return {
        .zweck = zweck,
        .titel = zweck == Dateifrage::Zweck::oeffnen ? "Konto öffnen" : "Konto speichern",
        .filter = "Zahlungsdateien (*.ZiS) |*.ZiS",
        .endung = "ZiS",
        .vorgabe = projekt ? QString::fromStdString(projekt->string()) : QString(),
    };
}

}  // namespace

void Form48000::Neu() {
    dateien_.Neu();
    EffektivregisterEntfernen();
    zinssaetze_->Leeren();
    zinssaetze_->KontoWechseln();
    zahlungen_->Leeren();
    zahlungen_->KontoWechseln();
    berechnung_->Leeren();
    berechnung_->EffektivzinsVerbergen();
    NotizenZeigen({}, Anlass::oeffnen);
    ProjektBenennen(std::nullopt);
    mitte_->setCurrentWidget(TabStrip1_);
    TabStrip1_->setCurrentIndex(zahlungen);
}

void Form48000::NeuBeginnen() {
    if (!DatumSteht() || !AufgebenGewollt()) return;
    Geschuetzt(this, [this] { Neu(); });
}

void Form48000::Oeffnen() {
    if (!DatumSteht() || !AufgebenGewollt()) return;
    EffektivregisterEntfernen();
    if (const auto datei = DateiFragen(this, Projektfrage(Dateifrage::Zweck::oeffnen, projekt_)))
        Laden(*datei, Anlass::oeffnen);
}

void Form48000::Laden(const std::filesystem::path& datei, Anlass anlass) {
    const bool gelungen = GeschuetztMitWartezeiger(this, [&] {
        std::string notiz = KontoprojektEinlesen(dateien_.Ordner(), datei);
        ProjektBenennen(datei);
        zahlungen_->KontoWechseln();
        zinssaetze_->KontoWechseln();
        zinsverrechnung_->Zeigen(KontoeinstellungenLesen(dateien_.Ordner()));
        mitte_->setCurrentWidget(TabStrip1_);
        TabStrip1_->setCurrentIndex(zahlungen);
        NotizenZeigen(std::move(notiz), anlass);
        setWindowModified(false);
    });
    if (gelungen) return;
    // What was copied stays, but must not be saved over the project that it is a part of.
    ProjektBenennen(std::nullopt);
    Geschuetzt(this, [this] {
        zahlungen_->KontoWechseln();
        zinssaetze_->KontoWechseln();
    });
    berechnung_->Leeren();
    berechnung_->EffektivzinsVerbergen();
    TabStrip1_->setCurrentIndex(zahlungen);
    setWindowModified(true);
}

bool Form48000::Speichern() {
    if (!projekt_) return SpeichernUnter();
    return DatumSteht() && EinstellungenSchreiben() && ProjektSchreiben(*projekt_);
}

bool Form48000::SpeichernUnter() {
    if (!DatumSteht() || !EinstellungenSchreiben()) return false;
    const auto datei = DateiFragen(this, Projektfrage(Dateifrage::Zweck::speichern, projekt_));
    return datei && ProjektSchreiben(*datei);
}

bool Form48000::EinstellungenSchreiben() {
    return MitSchreibmeldung(
        this, [this] { KontoeinstellungenSchreiben(dateien_.Ordner(), zinsverrechnung_->Lesen()); },
        nichtGespeichert);
}

bool Form48000::ProjektSchreiben(const std::filesystem::path& datei) {
    std::string notiz = NotizenAlsDatei();
    const bool geschrieben = MitSchreibmeldung(
        this, [&] { KontoprojektSpeichern(dateien_.Ordner(), datei, notiz); }, nichtGespeichert);
    if (!geschrieben) return false;
    notizdatei_ = std::move(notiz);
    Laden(datei, Anlass::wiederladen);
    return true;
}

std::string Form48000::NotizenAlsDatei() const {
    return notizdatei_ ? *notizdatei_ : RtfSchreiben(notizen_->Lesen());
}

void Form48000::NotizenZeigen(std::string datei, Anlass anlass) {
    if (notizdatei_ == datei && anlass == Anlass::wiederladen) return;
    notizen_->Zeigen(RtfLesen(datei));
    if (anlass == Anlass::oeffnen) notizen_->GrundschriftSetzen();
    notizdatei_.reset();
    if (datei.starts_with("{\\rtf")) notizdatei_ = std::move(datei);
}

bool Form48000::AufgebenGewollt() {
    if (!isWindowModified()) return true;
    const Antwort antwort = FragenMitAbbruch(this, Speicherfrage());
    return antwort == Antwort::nein || (antwort == Antwort::ja && Speichern());
}

bool Form48000::VerlassenGewollt() {
    EinstellungenSchreiben();
    const Antwort antwort = FragenMitAbbruch(this, Speicherfrage());
    if (antwort != Antwort::ja) return antwort == Antwort::nein;
    const bool sortiert = Geschuetzt(this, [this] {
        std::vector<Staffelsatz> saetze = dateien_.Zahlungen().Lesen();
        SortiereZahlungen(saetze);
        dateien_.Zahlungen().Schreiben(saetze);
    });
    return sortiert && Speichern();
}

void Form48000::ProjektBenennen(std::optional<std::filesystem::path> datei) {
    projekt_ = std::move(datei);
    const QString name = Projektname();
    Projekt_->setText(name);
    setWindowTitle(name.isEmpty() ? "Zinsstaffelrechner[*]" : "Zinsstaffelrechner – " + name + "[*]");
    setWindowModified(false);
}

QString Form48000::Projektname() const {
    return projekt_ ? QString::fromStdString(projekt_->filename().string()) : QString();
}

void Form48000::EffektivregisterEntfernen() {
    if (const int stelle = TabStrip1_->indexOf(effektivzins_); stelle >= 0) TabStrip1_->removeTab(stelle);
}

}  // namespace zinfolio
