#include <array>
#include <filesystem>
#include <memory>
#include <vector>

#include "kern/staffel/kontobericht.h"
#include "kern/staffel/kontocsv.h"
#include "kern/staffel/kontoprojekt.h"
#include "stapel/auftraege/ergebnisse.h"
#include "stapel/befehle/aufruf.h"
#include "stapel/befehle/befehle.h"
#include "stapel/befehle/eingaben.h"
#include "stapel/befehle/kanal.h"
#include "stapel/befehle/optionen.h"

namespace zinfolio {
namespace {

namespace fs = std::filesystem;

constexpr std::array zinsverrechnungen{
    Wahl{"monatsende", Zinsverrechnungsart::monatsende},   Wahl{"2monate", Zinsverrechnungsart::alle2Monate},
    Wahl{"quartal", Zinsverrechnungsart::quartalsende},    Wahl{"4monate", Zinsverrechnungsart::alle4Monate},
    Wahl{"halbjahr", Zinsverrechnungsart::halbjahresende}, Wahl{"jahr", Zinsverrechnungsart::jahresende},
};

constexpr const char* staffelbeispiele =
    "Beispiele:\n"
    "  zinfolio-cli staffel konto.ZiS --ansicht detail1 --effektiv isma\n"
    "  zinfolio-cli staffel konto.ZiS --pdf konto.pdf\n"
    "  zinfolio-cli staffel --zahlungen zahlungen.csv --zinssaetze zinssaetze.csv --abschluss 31.12.2007\n"
    "Die Tabellen sind durch Semikolons getrennt, in UTF-8 oder Windows-1252, mit diesen Kopfzeilen:\n"
    "  Datum;Betrag;Beschreibung\n"
    "  Datum;Gutzins1;Gutzins2;Guthabenlinie;Kreditzins1;Kreditzins2;Kreditlinie;Zweitzinsart\n"
    "Beträge und Zinssätze haben ein Dezimalkomma. Zweitzinsart 1: der zweite Zinssatz gilt für den ganzen\n"
    "Saldo, 2: für den Betrag über der Linie.";

/// What the command is asked for.
struct Staffelaufruf {
    /// Empty: the account comes from the two tables and `einstellungen`.
    std::string projekt{};
    std::string zahlungen{};
    std::string zinssaetze{};
    Kontoeinstellungen einstellungen{};
    Kontoansicht ansicht = Kontoansicht::kurzform;
    std::optional<Effektivmethode> effektivmethode{};
    Ausgabewunsch ausgaben{};
};

class Staffeloptionen {
  public:
    explicit Staffeloptionen(CLI::App& zeile);

    [[nodiscard]] Staffelaufruf Lesen() const;

  private:
    void EingabePruefen() const;
    [[nodiscard]] Kontoeinstellungen EinstellungenLesen() const;

    Option projekt_;
    Option zahlungen_;
    Option zinssaetze_;
    Option abschluss_;
    Option zinsverrechnung_;
    Option verzinsung_;
    Option ansicht_;
    Option effektiv_;
    Ausgabeoptionen ausgaben_;
};

// The members are initialised, and thus the options listed, in their order.
Staffeloptionen::Staffeloptionen(CLI::App& zeile)
    : projekt_(zeile.add_option("KONTO.ZiS")->description("Das gespeicherte Konto")->option_text(" ")),
      zahlungen_(OptionAnbieten(zeile, "--zahlungen", "DATEI",
                                "Statt eines Kontos: Tabelle der Zahlungen; - ist die Standardeingabe")),
      zinssaetze_(OptionAnbieten(zeile, "--zinssaetze", "DATEI", "und Tabelle der Zinssätze")),
      abschluss_(OptionAnbieten(zeile, "--abschluss", "DATUM",
                                "Zu Tabellen: Datum des Kontoabschlusses, tt.mm.jjjj")),
      zinsverrechnung_(OptionAnbieten(zeile, "--zinsverrechnung", "ART",
                                      "Zu Tabellen: " + Aufzaehlung(zinsverrechnungen) + "; sonst jahr")),
      verzinsung_(OptionAnbieten(zeile, "--verzinsung", "METHODE",
                                 "Zu Tabellen: " + Aufzaehlung(verzinsungen) + "; sonst 30/360")),
      ansicht_(OptionAnbieten(zeile, "--ansicht", "ANSICHT", Aufzaehlung(kontoansichtwahl) + "; sonst kurz")),
      effektiv_(OptionAnbieten(zeile, "--effektiv", "METHODE",
                               "Dazu der Effektivzinssatz nach " + Aufzaehlung(effektivwahl))),
      ausgaben_(zeile) {
    zeile.footer(staffelbeispiele);
}

void Staffeloptionen::EingabePruefen() const {
    const bool konto = !Optionstext(projekt_).empty();
    if (konto)
        return NebeneinanderAblehnen({zahlungen_, zinssaetze_, abschluss_, zinsverrechnung_, verzinsung_},
                                     "einem Konto");
    if (!OptionSteht(zahlungen_) && !OptionSteht(zinssaetze_))
        throw Aufruffehler("Dem Befehl \"staffel\" fehlt das Konto.");
    if (!OptionSteht(zahlungen_) || !OptionSteht(zinssaetze_))
        throw Aufruffehler("Die Optionen \"--zahlungen\" und \"--zinssaetze\" stehen nur zusammen.");
    if (Optionstext(zahlungen_) == "-" && Optionstext(zinssaetze_) == "-")
        throw Aufruffehler("Die Standardeingabe kann nur eine der beiden Tabellen sein.");
}

Kontoeinstellungen Staffeloptionen::EinstellungenLesen() const {
    Kontoeinstellungen einstellungen;
    einstellungen.Kontodatum = Optionsdatum(abschluss_);
    if (OptionSteht(zinsverrechnung_))
        einstellungen.Zinsverrechnungsart = Optionswahl(zinsverrechnungen, zinsverrechnung_);
    if (OptionSteht(verzinsung_)) einstellungen.Verzinsungsmethode = Optionswahl(verzinsungen, verzinsung_);
    return einstellungen;
}

Staffelaufruf Staffeloptionen::Lesen() const {
    EingabePruefen();
    Staffelaufruf aufruf{.projekt = Optionstext(projekt_),
                         .zahlungen = Optionsdatei(zahlungen_),
                         .zinssaetze = Optionsdatei(zinssaetze_),
                         .einstellungen = EinstellungenLesen(),
                         .ausgaben = ausgaben_.Lesen()};
    if (OptionSteht(ansicht_)) aufruf.ansicht = Optionswahl(kontoansichtwahl, ansicht_);
    if (OptionSteht(effektiv_)) aufruf.effektivmethode = Optionswahl(effektivwahl, effektiv_);
    return aufruf;
}

std::vector<fs::path> Eingaben(const Staffelaufruf& aufruf) {
    if (aufruf.projekt.empty()) return {aufruf.zahlungen, aufruf.zinssaetze};
    const Projektpfade pfade(aufruf.projekt);
    return {pfade.projekt, pfade.zahlungen, pfade.konditionen, pfade.einstellungen};
}

/// A project's account; what its files hold and no calculation would mention is told.
Konto ProjektLesen(const fs::path& datei) {
    Kontoprojekt projekt = KontoprojektLesen(datei);
    for (const Befund& befund : projekt.befunde)
        FehlerMelden(Befundtext(befund));
    return std::move(projekt.konto);
}

Konto KontoLesen(const Staffelaufruf& aufruf) {
    if (!aufruf.projekt.empty()) return ProjektLesen(aufruf.projekt);
    Konto konto;
    konto.zahlungen = TabelleLesen(aufruf.zahlungen, ZahlungenAusCsv);
    konto.konditionen = TabelleLesen(aufruf.zinssaetze, KonditionenAusCsv);
    konto.einstellungen = aufruf.einstellungen;
    return konto;
}

/// The calculated rows, sharing the whole result, of which they are a part.
std::shared_ptr<const std::vector<Staffelsatz>> Loesung(
    const std::shared_ptr<const Staffelergebnis>& ergebnis) {
    return {ergebnis, &ergebnis->konto.loesung};
}

Bericht BerichtBilden(const std::shared_ptr<const Staffelergebnis>& ergebnis, const Staffelaufruf& aufruf) {
    Kontoberichtsdaten daten;
    daten.projekt = fs::path(aufruf.projekt).filename().string();
    daten.einstellungen = ergebnis->konto.einstellungen;
    if (ergebnis->effektivzins) {
        daten.ezins = ergebnis->effektivzins->ezins;
        daten.effektivmethode = Effektivmethodentext(*aufruf.effektivmethode);
    }
    daten.konditionen = ergebnis->konto.konditionen;
    daten.loesung = Loesung(ergebnis);
    daten.ansicht = aufruf.ansicht;
    return KontoberichtBilden(daten);
}

std::variant<Befehlsergebnis, Ablehnung> Rechnen(const std::shared_ptr<Staffelergebnis>& ergebnis,
                                                 const Staffelaufruf& aufruf) {
    if (auto ablehnung = StaffelRechnen(*ergebnis, aufruf.effektivmethode)) return std::move(*ablehnung);
    Befehlsergebnis ausgang{
        .felder = [ergebnis](JsonSchreiber& s) { StaffelergebnisSchreiben(*ergebnis, s); },
        .tabelle = [ergebnis, aufruf] { return AnsichtBilden(aufruf.ansicht, Loesung(ergebnis)); },
        .bericht = [ergebnis, aufruf] { return BerichtBilden(ergebnis, aufruf); }};
    if (ergebnis->effektivzins)
        ausgang.nachsatz = Effektivzeilen(ergebnis->effektivzins->ezins, *aufruf.effektivmethode);
    return ausgang;
}

int Ausfuehren(const Staffelaufruf& aufruf) {
    AusgabenPruefen(aufruf.ausgaben, Eingaben(aufruf));
    const auto ergebnis = std::make_shared<Staffelergebnis>();
    ergebnis->konto = KontoLesen(aufruf);
    return ErgebnisAusgeben(aufruf.ausgaben, [&] { return Rechnen(ergebnis, aufruf); });
}

std::function<int()> StaffelAnbieten(CLI::App& zeile) {
    return [optionen = Staffeloptionen(zeile)] { return Ausfuehren(optionen.Lesen()); };
}

}  // namespace

constexpr Befehl befehlStaffel{
    "staffel", "Rechnet ein gespeichertes Konto und zeigt die Staffel oder schreibt ihren Bericht",
    StaffelAnbieten};

}  // namespace zinfolio
