#include "fenster/rechner/projektablage.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <utility>

#include "fenster/rechner/letzteprojekte.h"
#include "fenster/ui/datumsfeld.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"

namespace zinfolio {
namespace {

constexpr const char* befundvorspann = "Nicht alles in den Dateien kann berücksichtigt werden:\n\n";

}  // namespace

Projektablage::Projektablage(QWidget& fenster, Projektart art) : Ablage(fenster), art_(std::move(art)) {}

std::vector<Befehlszeile> Projektablage::Befehle() {
    return {
        {"Neu", "neu", "&Neu", "Neue Datei", QKeySequence::New, [this] { NeuBeginnen(); }},
        {"Öffnen", "oeffnen", "Ö&ffnen", "Datei öffnen", QKeySequence::Open, [this] { Oeffnen(); }},
        {"Schnellspeich", "speichern", "&Speichern", "Speichern", QKeySequence::Save,
         [this] { Speichern(); }},
        {"Speich", "", "Speichern &unter", "Unter einem anderen Namen speichern",
         QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), [this] { SpeichernUnter(); },
         Befehlszeile::Ort::menue},
    };
}

QWidget* Projektablage::NeueAnzeige() {
    auto* anzeige = new QWidget;
    auto* zeile = new QHBoxLayout(anzeige);
    zeile->setContentsMargins(0, 0, 0, 0);
    auto* Projekt = new QLabel(Name());
    Projekt->setObjectName("Projekt");
    connect(this, &Ablage::benannt, Projekt, [this, Projekt] { Projekt->setText(Name()); });
    zeile->addWidget(new QLabel("Datei: "));
    zeile->addWidget(Projekt);
    return anzeige;
}

QMenu* Projektablage::NeuesMenue() {
    return NeuesProjektmenue(Fenster(), QString::fromUtf8(art_.endung), [this](const QString& datei) {
        Geschuetzt(Fenster(), [&] { ZuDateiWechseln(datei.toStdString()); });
    });
}

QString Projektablage::Name() const {
    if (!datei_) return {};
    return QString::fromStdString((art_.mitEndung ? datei_->filename() : datei_->stem()).string());
}

QString Projektablage::Exportstamm() const {
    return datei_ ? QString::fromStdString((datei_->parent_path() / datei_->stem()).string()) : QString();
}

void Projektablage::Beginnen() {
    art_.neu();
    Benennen(std::nullopt);
    emit gewechselt();
}

void Projektablage::NeuBeginnen() {
    if (DatumSteht(*Fenster()) && (!art_.neuFragt || AufgebenGewollt())) Beginnen();
}

void Projektablage::Oeffnen() {
    if (!DatumSteht(*Fenster()) || !AufgebenGewollt()) return;
    if (const auto datei = DateiFragen(Fenster(), Frage(Dateifrage::Zweck::oeffnen))) DateiOeffnen(*datei);
}

void Projektablage::DateiOeffnen(const std::filesystem::path& datei) {
    if (Laden(datei, Leseanlass::oeffnen)) BefundeMelden();
}

void Projektablage::ZuDateiWechseln(const std::filesystem::path& datei) {
    std::error_code unwichtig;
    if (datei_ && std::filesystem::equivalent(*datei_, datei, unwichtig)) return;
    if (DatumSteht(*Fenster()) && AufgebenGewollt()) DateiOeffnen(datei);
}

bool Projektablage::Laden(const std::filesystem::path& datei, Leseanlass anlass) {
    // A project that cannot be read wholly changes nothing.
    return MitLesemeldung(Fenster(), [&] {
        art_.laden(datei, anlass);
        Benennen(datei);
        ProjektMerken(QString::fromStdString(datei.string()));
        emit gewechselt();
        Fenster()->setWindowModified(false);
    });
}

void Projektablage::BefundeMelden() {
    constexpr qsizetype hoechstens = 6;
    QStringList zeilen;
    if (art_.befunde)
        for (const Befund& befund : art_.befunde())
            zeilen << QString::fromStdString(Befundtext(befund));
    if (zeilen.isEmpty()) return;
    QString text = befundvorspann + zeilen.mid(0, hoechstens).join('\n');
    if (zeilen.size() <= hoechstens) return MeldungZeigen(Fenster(), {.text = text});
    text += QString("\n… und %1 weitere").arg(zeilen.size() - hoechstens);
    MeldungZeigen(Fenster(), {.text = text, .einzelheiten = zeilen.join('\n')});
}

bool Projektablage::ErsetzenGewollt(const std::filesystem::path& datei) {
    std::optional<std::string> frage;
    if (art_.aufbau && datei_ != datei) frage = Ersetzungsfrage(datei, *art_.aufbau);
    return !frage || Fragen(Fenster(), {.text = QString::fromStdString(*frage), .titel = "Speichern"});
}

bool Projektablage::Speichern() {
    if (!datei_) return SpeichernUnter();
    return DatumSteht(*Fenster()) && Festhalten() && ProjektSchreiben(*datei_);
}

bool Projektablage::SpeichernUnter() {
    if (!DatumSteht(*Fenster()) || !Festhalten()) return false;
    const auto datei = DateiFragen(Fenster(), Frage(Dateifrage::Zweck::speichern));
    return datei && ErsetzenGewollt(*datei) && ProjektSchreiben(*datei);
}

bool Projektablage::Festhalten() {
    return !art_.festhalten || Schreiben(art_.nichtGespeichert, art_.festhalten);
}

bool Projektablage::ProjektSchreiben(const std::filesystem::path& datei) {
    if (!Schreiben(art_.nichtGespeichert, [&] { art_.speichern(datei); })) return false;
    Laden(datei, Leseanlass::wiederladen);
    return true;
}

void Projektablage::VorDerFrage() {
    (void)Festhalten();
}

bool Projektablage::VorDemAbschied() {
    return !art_.ordnen || Geschuetzt(Fenster(), art_.ordnen);
}

void Projektablage::Benennen(std::optional<std::filesystem::path> datei) {
    datei_ = std::move(datei);
    emit benannt();
    Fenster()->setWindowModified(false);
}

Dateifrage Projektablage::Frage(Dateifrage::Zweck zweck) const {
    const QString sache = QString::fromUtf8(art_.sache);
    return {
        .zweck = zweck,
        .titel = sache + (zweck == Dateifrage::Zweck::oeffnen ? " öffnen" : " speichern"),
        .filter = QString::fromUtf8(art_.filter),
        .endung = QString::fromUtf8(art_.endung),
        .vorgabe = datei_ ? QString::fromStdString(datei_->string()) : QString(),
    };
}

}  // namespace zinfolio
