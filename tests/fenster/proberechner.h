#pragma once
// A calculator as small as one can be, to show what the frame asks of it: three fields and a list, a table, a
// report, a chart, notes and a project.

#include <QPushButton>
#include <cmath>

#include "fenster/rechner/projektablage.h"
#include "fenster/rechner/rechner.h"
#include "fenster/rechner/registernotizen.h"
#include "fenster/ui/bausteine.h"
#include "fenster/ui/feldraster.h"
#include "fenster/ui/feldtafel.h"
#include "fenster/ui/tabelle.h"
#include "kern/dateien/ganzedatei.h"
#include "kern/dateien/selbstwertaufbau.h"
#include "kern/dates/zahlformat.h"

namespace zinfolio {

struct Anlage {
    std::string Betrag = {}, Zins = {}, Jahre = {};
    std::int16_t Zinsart = 0;
};
constexpr std::array anlagezeilen{Selbstfeld<&Anlage::Betrag>(1), Selbstfeld<&Anlage::Zins>(2),
                                  Selbstfeld<&Anlage::Jahre>(3), Selbstfeld<&Anlage::Zinsart>(4)};
constexpr Selbstwertaufbau<Anlage> anlagedatei{30, anlagezeilen};
constexpr std::array<std::string_view, 2> zinsarten{"mit Zinseszins", "ohne Zinseszins"};
constexpr std::array anlagefelder{
    Feld<&Anlage::Betrag>(
        {.name = "Betrag", .titel = "&Betrag", .filter = Tastenfilter::betrag, .einheit = "€"}),
    Feld<&Anlage::Zins>({.name = "Zins", .titel = "&Zins", .filter = Tastenfilter::prozent, .einheit = "%"}),
    Feld<&Anlage::Jahre>({.name = "Jahre", .titel = "&Jahre", .filter = Tastenfilter::ganzzahl}),
    Feld<&Anlage::Zinsart>(
        {.name = "Combo1", .titel = "Z&insart", .art = Feldart::liste, .texte = zinsarten})};

class Proberechner : public Rechner {
  public:
    explicit Proberechner(const std::filesystem::path& ordner)
        : Rechner({.name = "Probe", .titel = "Probe"}, ordner) {
        felder_.Anlegen(anlagefelder, *new Feldraster(daten_));
        auto* Drucktaste =
            NeueTaste("Drucken", "Dr&ucken", this, [this] { Drucken([this] { return AlsBericht(); }); });
        auto* Grafik =
            NeueTaste("Grafik", "&Grafik", this, [this] { Zeichnen([this] { return AlsDiagramm(); }); });
        auto* ergebnis = Seite(Grid_, {Drucktaste, Grafik});
        Einrichten({.register_ = {{.seite = daten_, .titel = "Daten", .eingabe = true},
                                  {ergebnis, "Berechnen", [this] { Berechnen(); }, true},
                                  {notizen_, "Notizen", [this] { notizen_->setFocus(); }}},
                    .ablage = new Projektablage(*this, Projekt()),
                    .befehle = {{"Auswertungen", "berechnen", "Berechnen", "Berechnen", Qt::Key_F9,
                                 [this, ergebnis] { RegisterWaehlen(ergebnis); }}}});
    }

  private:
    static std::filesystem::path Nebendatei(const std::filesystem::path& datei) {
        return datei.parent_path() / ("Anlage" + datei.stem().string());
    }
    Projektart Projekt() {
        return {.sache = "Anlage",
                .nichtGespeichert = "Die Anlage konnte nicht gespeichert werden.",
                .filter = "Anlagen (*.PRB) |*.PRB",
                .endung = "PRB",
                .neu =
                    [this] {
                        felder_.Zeigen({});
                        notizen_->Oeffnen({});
                    },
                .laden =
                    [this](const auto& datei, Leseanlass) {
                        std::string notiz = GanzeDateiLesen(datei, 1 << 20);
                        felder_.Zeigen(anlagedatei.Lesen(Nebendatei(datei)));
                        notizen_->Wiederladen(std::move(notiz));
                    },
                .speichern =
                    [this](const auto& datei) {
                        anlagedatei.Schreiben(Nebendatei(datei), felder_.Lesen(), Sicherung::Dauerhaft);
                        AtomarSchreiben(datei, notizen_->AlsDatei(), Sicherung::Dauerhaft);
                    }};
    }
    void Berechnen() {
        Rechnen([this]() -> std::optional<Ablehnung> {
            const Anlage a = felder_.Lesen();
            if (a.Zins.empty()) return Ablehnung{"Bitte den Zins eingeben.", "Zins", "Daten"};
            staende_ = {Zahl(a.Betrag)};
            const double q = Zahl(a.Zins) / 100;
            for (int jahr = 1; jahr <= Ganzzahl16(Zahl(a.Jahre)); ++jahr)
                staende_.push_back(staende_[0] * (a.Zinsart == 0 ? std::pow(1 + q, jahr) : 1 + q * jahr));
            Grid_->Zeige(AlsTafel());
            return std::nullopt;
        });
    }
    Tabelleninhalt AlsTafel() const {
        std::vector<std::vector<std::string>> zeilen;
        for (std::size_t jahr = 0; jahr < staende_.size(); ++jahr)
            zeilen.push_back({std::to_string(jahr), Format(staende_[jahr], betragsmuster)});
        return TexttabelleBilden({{"Jahr"}, {"Kapital"}}, std::move(zeilen));
    }
    Bericht AlsBericht() const {
        Bericht bericht;
        bericht.kopfblock = {Projektname().toStdString()};
        bericht.tabelle = BerichtstabelleBilden(AlsTafel(), "^1.0in|^1.6in", 10);
        return bericht;
    }
    std::variant<Diagramm, Ablehnung> AlsDiagramm() const {
        if (staende_.size() < 2) return Ablehnung{"Ein Jahr ergibt kein Bild.", "Jahre", "Daten"};
        return Diagramm{.zeilentexte = std::vector<std::string>(staende_.size()),
                        .reihen = {{"Kapital", staende_}}};
    }

    QWidget* daten_ = new QWidget(this);
    Tabelle* Grid_ = new Tabelle("Grid", this);
    RegisterNotizen* notizen_ = new RegisterNotizen("RT", this);
    Feldgruppe<Anlage> felder_{daten_};
    std::vector<double> staende_;
};

}  // namespace zinfolio
