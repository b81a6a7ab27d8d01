#include <array>
#include <filesystem>
#include <memory>
#include <utility>
#include <vector>

#include "kern/allround/ansichten.h"
#include "kern/allround/jahreswerte.h"
#include "kern/allround/reihenprojekt.h"
#include "kern/allround/reihenzins.h"
#include "kern/allround/sensitivitaet.h"
#include "kern/allround/stillrechnen.h"
#include "kern/allround/zahlungsreihe.h"
#include "kern/dateien/satzdatei.h"
#include "kern/grund/rechenfehler.h"
#include "kern/staffel/herleitungsbericht.h"
#include "kern/staffel/kontocsv.h"
#include "kern/staffel/staffelsortierung.h"
#include "stapel/auftraege/allroundfelder.h"
#include "stapel/auftraege/ergebnisse.h"
#include "stapel/befehle/aufruf.h"
#include "stapel/befehle/befehle.h"
#include "stapel/befehle/eingaben.h"
#include "stapel/befehle/kanal.h"
#include "stapel/befehle/optionen.h"

namespace zinfolio {
namespace {

namespace fs = std::filesystem;
using Reihenausgang = std::variant<Befehlsergebnis, Ablehnung>;
using Zahlungen = std::vector<Staffelsatz>;

constexpr const char* reihebeispiele =
    "Beispiele:\n"
    "  zinfolio-cli reihe reihe.RRR --effektiv isma\n"
    "  zinfolio-cli reihe reihe.RRR --ansicht barwert --zins 4,5 --datum 01.01.2024\n"
    "  zinfolio-cli reihe --zahlungen zahlungen.csv --ansicht plan --termine quartal --pdf plan.pdf\n"
    "Ansichten: effektiv (der Effektivzinssatz und seine Herleitung), barwert, endwert, jahreswerte,\n"
    "sensitivitaet (elf Zinssätze um --zins; --wert sagt, wovon), plan und plan-unterjaehrig "
    "(Tilgungsplan).\n"
    "Die Tabelle der Zahlungen ist durch Semikolons getrennt, in UTF-8 oder Windows-1252, mit der Kopfzeile\n"
    "  Datum;Betrag;Beschreibung";

/// What the command is asked for. Rates and dates are texts, as the form's fields hold them.
struct Reihenaufruf {
    /// Empty: the payments come from the table.
    std::string projekt{};
    std::string zahlungen{};
    Effektivmethode effektivmethode = Effektivmethode::pangv2000;
    std::string zins{};
    std::string datum{};
    Wertart wertart = Wertart::barwert;
    std::size_t schritt = 0;
    Planeingabe plan{};
    Ausgabewunsch ausgaben{};

    [[nodiscard]] std::string Projektname() const { return fs::path(projekt).filename().string(); }
};

/// Makes one result of the payments in the order of their file.
using Auswertung = Reihenausgang (*)(Zahlungen zahlungen, const Reihenaufruf& aufruf);

template <typename Wert>
auto Geteilt(Wert&& wert) {
    return std::make_shared<const std::decay_t<Wert>>(std::forward<Wert>(wert));
}

void Sortieren(Zahlungen& zahlungen) {
    if (zahlungen.size() > HoechstzahlSaetze) throw Rechenfehler(UeberHoechstzahl("Zahlungen"));
    SortiereZahlungen(zahlungen);
}

Reihenausgang Effektivzins(Zahlungen zahlungen, const Reihenaufruf& aufruf) {
    if (zahlungen.empty()) return OhneZahlungen(meldung::erstDieZahlungen);
    std::vector<Reihensatz> reihe;
    ReiheSchreiben(zahlungen, reihe);
    const auto zins = Geteilt(EffektivzinsRechnen(reihe, aufruf.effektivmethode));
    const auto tabelle = [zins] {
        return HerleitungstabelleBilden(Endwertzeilen(*zins), zins->Effektivergebnis);
    };
    return Befehlsergebnis{
        .felder = [reihe, zins](JsonSchreiber& s) { ReihenzinsSchreiben(reihe, zins->methode, s); },
        .tabelle = tabelle,
        .nachsatz = Effektivzeilen(zins->Effzins, zins->methode),
        .bericht =
            [zins, tabelle, projekt = aufruf.Projektname()] {
                return AllroundberichtBilden({.art = Anzeigeart::effektivzins,
                                              .projekt = projekt,
                                              .Effektivergebnis = zins->Effektivergebnis,
                                              .methode = std::string(Effektivmethodentext(zins->methode)),
                                              .tabelle = tabelle()});
            }};
}

/// The lines below the table of an analysis: what the form's labels say.
std::string Aussagen(const Wertergebnis& werte) {
    std::string zeilen = "\n" + werte.Aussagen->Label13 + ": " + werte.Aussagen->Label14 + "\n" +
                         werte.Aussagen->Label12 + "\n";
    if (!werte.Frame1) return zeilen;
    return zeilen + "Statische Amortisation: " + werte.Aussagen->StatAmor +
           "\nDynamische Amortisation: " + werte.Aussagen->DynAmor +
           "\nDynamisch, interpoliert: " + werte.Dynamorinterpoliert.value_or("") + "\n";
}

template <Wertart art>
Reihenausgang Wertanalyse(Zahlungen zahlungen, const Reihenaufruf& aufruf) {
    Sortieren(zahlungen);
    Werteingabe eingabe{art, aufruf.zins, aufruf.datum};
    Wertergebnis ergebnis;
    if (auto ablehnung = WertAnalyse(zahlungen, eingabe, ergebnis)) return std::move(*ablehnung);
    const auto werte = Geteilt(std::move(ergebnis));
    return Befehlsergebnis{.felder = [werte](JsonSchreiber& s) { WertergebnisSchreiben(*werte, s); },
                           .tabelle = [werte] { return WertansichtBilden(*werte); },
                           .nachsatz = Aussagen(*werte),
                           .bericht =
                               [werte, satz = eingabe.Abzins2, projekt = aufruf.Projektname()] {
                                   return AllroundberichtBilden({.art = static_cast<Anzeigeart>(art),
                                                                 .projekt = projekt,
                                                                 .Abzins2 = satz,
                                                                 .tabelle = WertansichtBilden(*werte)});
                               }};
}

/// A table whose cells are all that there is, and how its content becomes a report.
template <typename Berichten>
Befehlsergebnis Zellenergebnis(Zellentabelle&& zellen, Tabelleninhalt (*bilden)(const Zellentabelle&),
                               Berichten berichten) {
    const auto tabelle = Geteilt(std::move(zellen));
    return {.felder = [tabelle](JsonSchreiber& s) { TabelleSchreiben("Zeilen", *tabelle, s); },
            .tabelle = [tabelle, bilden] { return bilden(*tabelle); },
            .bericht = [tabelle, bilden, berichten] { return berichten(bilden(*tabelle)); }};
}

Reihenausgang Sensitivitaet(Zahlungen zahlungen, const Reihenaufruf& aufruf) {
    Sortieren(zahlungen);
    Werteingabe analyse{aufruf.wertart, aufruf.zins, aufruf.datum};
    Wertergebnis werte;
    if (auto ablehnung = WertAnalyse(zahlungen, analyse, werte)) return std::move(*ablehnung);
    Sensitivitaetseingabe eingabe{.Anzeigeart = aufruf.wertart,
                                  .MiZins = analyse.Abzins2,
                                  .Combo2 = aufruf.schritt,
                                  .Vorwert = werte.Vorwert.value_or(0)};
    Zellentabelle tabelle;
    auto ablehnung = StillRechnen([&] { return SensitivitaetRechnen(zahlungen, eingabe, tabelle); });
    if (ablehnung) return std::move(*ablehnung);
    return Zellenergebnis(std::move(tabelle), SensitivitaetsansichtBilden,
                          [art = aufruf.wertart, projekt = aufruf.Projektname()](Tabelleninhalt inhalt) {
                              return AllroundberichtBilden({.art = Anzeigeart::sensitivitaet,
                                                            .projekt = projekt,
                                                            .wertart = art,
                                                            .tabelle = std::move(inhalt)});
                          });
}

Reihenausgang Jahreswerte(Zahlungen zahlungen, const Reihenaufruf& aufruf) {
    Sortieren(zahlungen);
    Werteingabe analyse{Wertart::barwert, aufruf.zins, aufruf.datum};
    Wertergebnis werte;
    if (auto ablehnung = WertAnalyse(zahlungen, analyse, werte)) return std::move(*ablehnung);
    Jahreswerteingabe eingabe{analyse.Abzins2, analyse.BarwDatum};
    Zellentabelle tabelle;
    if (auto ablehnung = Jahreswerttabelle(zahlungen, eingabe, tabelle)) return std::move(*ablehnung);
    return Zellenergebnis(
        std::move(tabelle), JahresansichtBilden,
        [satz = eingabe.Abzins2, projekt = aufruf.Projektname()](const Tabelleninhalt& inhalt) {
            return JahresberichtBilden(projekt, satz, inhalt);
        });
}

Tabelleninhalt Plantabelle(const Tilgungsplan& plan, Planansicht ansicht) {
    return PlanansichtBilden(ansicht == Planansicht::jahresweise
                                 ? Zinsstaffelanzeige2(*plan.Kurztableau, plan.Nominalzins)
                                 : Zinsstaffelanzeige1(*plan.Tableau, plan.Nominalzins),
                             ansicht);
}

template <Planansicht ansicht>
Reihenausgang Plan(Zahlungen zahlungen, const Reihenaufruf& aufruf) {
    Tilgungsplan ergebnis;
    auto ablehnung = StillRechnen([&]() -> std::optional<Ablehnung> {
        Sortieren(zahlungen);
        std::vector<Reihensatz> reihe;
        ReiheSchreiben(zahlungen, reihe);
        if (!HatBeideRichtungen(reihe))
            return Ablehnung{std::string(meldung::keinPlanInEineRichtung), "", ""};
        return TilgungsplanRechnen(reihe, aufruf.plan, ergebnis);
    });
    if (ablehnung) return std::move(*ablehnung);
    const auto plan = Geteilt(std::move(ergebnis));
    constexpr auto art =
        ansicht == Planansicht::jahresweise ? Anzeigeart::planJahresweise : Anzeigeart::planUnterjaehrig;
    const std::string termine(plantermine.at(static_cast<std::size_t>(aufruf.plan.Combo4)));
    return Befehlsergebnis{
        .felder = [plan](JsonSchreiber& s) { PlanSchreiben(*plan, s); },
        .tabelle = [plan] { return Plantabelle(*plan, ansicht); },
        .nachsatz = "\nNominalzinssatz: " + plan->nomzins + "\nEffektivzinssatz: " + plan->effzinssatz + "\n",
        .bericht =
            [plan, termine, projekt = aufruf.Projektname()] {
                return AllroundberichtBilden({.art = art,
                                              .projekt = projekt,
                                              .zinstermine = termine,
                                              .nomzins = plan->nomzins,
                                              .effzinssatz = plan->effzinssatz,
                                              .tabelle = Plantabelle(*plan, ansicht)});
            }};
}

constexpr std::array ansichten{
    Wahl<Auswertung>{"effektiv", Effektivzins},
    Wahl<Auswertung>{"barwert", Wertanalyse<Wertart::barwert>},
    Wahl<Auswertung>{"endwert", Wertanalyse<Wertart::endwert>},
    Wahl<Auswertung>{"jahreswerte", Jahreswerte},
    Wahl<Auswertung>{"sensitivitaet", Sensitivitaet},
    Wahl<Auswertung>{"plan", Plan<Planansicht::jahresweise>},
    Wahl<Auswertung>{"plan-unterjaehrig", Plan<Planansicht::unterjaehrig>},
};

constexpr std::array werte{
    Wahl{"barwert", Wertart::barwert},
    Wahl{"endwert", Wertart::endwert},
};

constexpr std::array schritte{
    Wahl{"0,1", std::size_t{0}}, Wahl{"0,5", std::size_t{1}}, Wahl{"1", std::size_t{2}},
    Wahl{"2", std::size_t{3}},   Wahl{"3", std::size_t{4}},   Wahl{"4", std::size_t{5}},
    Wahl{"5", std::size_t{6}},
};
static_assert(schritte.size() == zinsschritte.size());

constexpr std::array termine{
    Wahl{"zahlung", Plantermine::zahlungstermine}, Wahl{"monatsende", Plantermine::monatsende},
    Wahl{"quartal", Plantermine::quartalsende},    Wahl{"halbjahr", Plantermine::halbjahresende},
    Wahl{"jahr", Plantermine::jahresende},
};

class Reihenoptionen {
  public:
    explicit Reihenoptionen(CLI::App& zeile);

    [[nodiscard]] int Ausfuehren() const;

  private:
    [[nodiscard]] Reihenaufruf Lesen() const;
    void EingabePruefen() const;

    Option projekt_;
    Option zahlungen_;
    Option ansicht_;
    Option effektiv_;
    Option zins_;
    Option datum_;
    Option wert_;
    Option schritt_;
    Option termine_;
    Option verzinsung_;
    Ausgabeoptionen ausgaben_;
};

// The members are initialised, and thus the options listed, in their order.
Reihenoptionen::Reihenoptionen(CLI::App& zeile)
    : projekt_(
          zeile.add_option("REIHE.RRR")->description("Die gespeicherte Zahlungsreihe")->option_text(" ")),
      zahlungen_(OptionAnbieten(zeile, "--zahlungen", "DATEI",
                                "Statt einer Reihe: Tabelle der Zahlungen; - ist die Standardeingabe")),
      ansicht_(OptionAnbieten(zeile, "--ansicht", "ANSICHT", Aufzaehlung(ansichten) + "; sonst effektiv")),
      effektiv_(
          OptionAnbieten(zeile, "--effektiv", "METHODE",
                         "Der Effektivzinssatz nach " + Aufzaehlung(effektivwahl) + "; sonst pangv2000")),
      zins_(OptionAnbieten(zeile, "--zins", "SATZ", "Zu Werten: Zinssatz in Prozent; sonst 10")),
      datum_(OptionAnbieten(zeile, "--datum", "DATUM",
                            "Zu Werten: Datum des Barwerts, tt.mm.jjjj; sonst das der ersten Zahlung")),
      wert_(OptionAnbieten(zeile, "--wert", "WERT",
                           "Zur Sensitivität: " + Aufzaehlung(werte) + "; sonst barwert")),
      schritt_(OptionAnbieten(zeile, "--schritt", "SCHRITT",
                              "Zur Sensitivität: " + Aufzaehlung(schritte) + "; sonst 1")),
      termine_(OptionAnbieten(zeile, "--termine", "ART",
                              "Zum Plan: " + Aufzaehlung(termine) + "; sonst monatsende")),
      verzinsung_(OptionAnbieten(zeile, "--verzinsung", "METHODE",
                                 "Zum Plan: " + Aufzaehlung(verzinsungen) + "; sonst 30/360")),
      ausgaben_(zeile) {
    zeile.footer(reihebeispiele);
}

void Reihenoptionen::EingabePruefen() const {
    if (!Optionstext(projekt_).empty()) return NebeneinanderAblehnen({zahlungen_}, "einer Zahlungsreihe");
    if (!OptionSteht(zahlungen_)) throw Aufruffehler("Dem Befehl \"reihe\" fehlt die Zahlungsreihe.");
}

Reihenaufruf Reihenoptionen::Lesen() const {
    EingabePruefen();
    Reihenaufruf aufruf{.projekt = Optionstext(projekt_),
                        .zahlungen = Optionsdatei(zahlungen_),
                        .zins = Optionszahl(zins_),
                        .datum = Optionsdatum(datum_),
                        .schritt = OptionSteht(schritt_) ? Optionswahl(schritte, schritt_) : 2,
                        .ausgaben = ausgaben_.Lesen()};
    if (OptionSteht(effektiv_)) aufruf.effektivmethode = Optionswahl(effektivwahl, effektiv_);
    if (OptionSteht(wert_)) aufruf.wertart = Optionswahl(werte, wert_);
    if (OptionSteht(termine_)) aufruf.plan.Combo4 = Optionswahl(termine, termine_);
    if (OptionSteht(verzinsung_)) aufruf.plan.Combo6 = Optionswahl(verzinsungen, verzinsung_);
    return aufruf;
}

std::vector<fs::path> Eingaben(const Reihenaufruf& aufruf) {
    if (aufruf.projekt.empty()) return {aufruf.zahlungen};
    const Dateigruppe gruppe(aufruf.projekt, Reihenprojektaufbau());
    return {gruppe.Datei(0), gruppe.Datei(1), gruppe.Datei(2)};
}

Zahlungen ZahlungenLesen(const Reihenaufruf& aufruf) {
    if (aufruf.projekt.empty()) return TabelleLesen(aufruf.zahlungen, ZahlungenAusCsv);
    Reihenprojekt projekt = ReihenprojektLesen(aufruf.projekt);
    for (const Befund& befund : projekt.befunde)
        FehlerMelden(Befundtext(befund));
    return std::move(projekt.zahlungen);
}

int Reihenoptionen::Ausfuehren() const {
    const Reihenaufruf aufruf = Lesen();
    const Auswertung auswerten = OptionSteht(ansicht_) ? Optionswahl(ansichten, ansicht_) : Effektivzins;
    if (auswerten != Effektivzins) NebeneinanderAblehnen({effektiv_}, "einer anderen Ansicht als effektiv");
    AusgabenPruefen(aufruf.ausgaben, Eingaben(aufruf));
    Zahlungen zahlungen = ZahlungenLesen(aufruf);
    return ErgebnisAusgeben(aufruf.ausgaben, [&] { return auswerten(std::move(zahlungen), aufruf); });
}

std::function<int()> ReiheAnbieten(CLI::App& zeile) {
    return [optionen = Reihenoptionen(zeile)] { return optionen.Ausfuehren(); };
}

}  // namespace

constexpr Befehl befehlReihe{
    "reihe", "Rechnet eine gespeicherte Zahlungsreihe: Effektivzinssatz, Werte, Tilgungsplan", ReiheAnbieten};

}  // namespace zinfolio
