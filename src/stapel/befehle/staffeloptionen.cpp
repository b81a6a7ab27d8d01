#include "stapel/befehle/staffeloptionen.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "kern/dates/datum.h"
#include "stapel/befehle/aufruffehler.h"

namespace zinfolio {
namespace {

/// A word of the command line and what it stands for.
template <typename T>
struct Wahl {
    std::string_view wort;
    T wert;
};
template <typename T>
Wahl(const char*, T) -> Wahl<T>;

constexpr std::array zinsverrechnungen{
    Wahl{"monatsende", Zinsverrechnungsart::monatsende},   Wahl{"2monate", Zinsverrechnungsart::alle2Monate},
    Wahl{"quartal", Zinsverrechnungsart::quartalsende},    Wahl{"4monate", Zinsverrechnungsart::alle4Monate},
    Wahl{"halbjahr", Zinsverrechnungsart::halbjahresende}, Wahl{"jahr", Zinsverrechnungsart::jahresende},
};

constexpr std::array verzinsungen{
    Wahl{"30/360", Verzinsungsmethode::deutsch},       Wahl{"kal/kal", Verzinsungsmethode::englisch},
    Wahl{"kal/360", Verzinsungsmethode::franzoesisch}, Wahl{"30/365", Verzinsungsmethode::dreissig365},
    Wahl{"kal/365", Verzinsungsmethode::kalender365},
};

constexpr std::array formate{
    Wahl{"text", Ausgabeformat::text},
    Wahl{"csv", Ausgabeformat::csv},
    Wahl{"json", Ausgabeformat::json},
};

constexpr std::array ansichten{
    Wahl{"kurz", Kontoansicht::kurzform},
    Wahl{"detail1", Kontoansicht::detailansicht1},
    Wahl{"detail2", Kontoansicht::detailansicht2},
    Wahl{"detail3", Kontoansicht::detailansicht3},
};

constexpr std::array effektivwahl{
    Wahl{"pangv-alt", Effektivmethode::pangvAlt},
    Wahl{"aidb360", Effektivmethode::aidb360},
    Wahl{"isma", Effektivmethode::isma},
    Wahl{"pangv2000", Effektivmethode::pangv2000},
};

/// "a, b oder c"
template <typename Liste>
std::string Aufzaehlung(const Liste& liste) {
    std::string text;
    for (std::size_t i = 0; i < liste.size(); ++i) {
        if (i > 0) text += i + 1 < liste.size() ? ", " : " oder ";
        text += liste[i].wort;
    }
    return text;
}

bool Steht(const CLI::Option* option) {
    return option->count() > 0;
}

/// The value of an option; empty where it is missing.
std::string Text(const CLI::Option* option) {
    return Steht(option) ? option->as<std::string>() : std::string();
}

template <typename Liste>
auto Gewaehlt(const Liste& liste, const CLI::Option* option) {
    const std::string wort = Text(option);
    const auto wahl = std::ranges::find_if(liste, [&](const auto& w) { return w.wort == wort; });
    if (wahl != liste.end()) return wahl->wert;
    throw Aufruffehler("Die Option " + Angefuehrt(option->get_name()) + " verlangt " + Aufzaehlung(liste) +
                       ", nicht " + Angefuehrt(wort) + ".");
}

std::string Dateiname(const CLI::Option* option) {
    std::string name = Text(option);
    if (Steht(option) && name.empty())
        throw Aufruffehler("Die Option " + Angefuehrt(option->get_name()) +
                           " verlangt den Namen einer Datei.");
    return name;
}

std::string Datumstext(const CLI::Option* option) {
    std::string text = Text(option);
    if (text.empty() || Datum::Versuche(text)) return text;
    throw Aufruffehler("Die Option " + Angefuehrt(option->get_name()) +
                       " verlangt ein Datum der Form tt.mm.jjjj, " + Angefuehrt(text) + " ist keines.");
}

const CLI::Option* Anbieten(CLI::App& befehl, const char* name, const char* wert,
                            const std::string& erklaerung) {
    return befehl.add_option(name)->description(erklaerung)->option_text(wert)->take_last();
}

constexpr const char* beispiele =
    "Beispiele:\n"
    "  zinfolio-cli staffel konto.ZiS --ansicht detail1 --effektiv isma\n"
    "  zinfolio-cli staffel konto.ZiS --pdf konto.pdf\n"
    "  zinfolio-cli staffel --zahlungen zahlungen.csv --zinssaetze zinssaetze.csv --abschluss 31.12.2007\n"
    "Die Tabellen sind durch Semikolons getrennt, in UTF-8 oder Windows-1252, mit diesen Kopfzeilen:\n"
    "  Datum;Betrag;Beschreibung\n"
    "  Datum;Gutzins1;Gutzins2;Guthabenlinie;Kreditzins1;Kreditzins2;Kreditlinie;Zweitzinsart\n"
    "Beträge und Zinssätze haben ein Dezimalkomma. Zweitzinsart 1: der zweite Zinssatz gilt für den ganzen\n"
    "Saldo, 2: für den Betrag über der Linie.";

}  // namespace

Staffeloptionen::Staffeloptionen(CLI::App& befehl) {
    EingabenAnbieten(befehl);
    AusgabenAnbieten(befehl);
    befehl.footer(beispiele);
}

void Staffeloptionen::EingabenAnbieten(CLI::App& befehl) {
    projekt_ = befehl.add_option("KONTO.ZiS")->description("Das gespeicherte Konto")->option_text(" ");
    zahlungen_ = Anbieten(befehl, "--zahlungen", "DATEI",
                          "Statt eines Kontos: Tabelle der Zahlungen; - ist die Standardeingabe");
    zinssaetze_ = Anbieten(befehl, "--zinssaetze", "DATEI", "und Tabelle der Zinssätze");
    abschluss_ =
        Anbieten(befehl, "--abschluss", "DATUM", "Zu Tabellen: Datum des Kontoabschlusses, tt.mm.jjjj");
    zinsverrechnung_ = Anbieten(befehl, "--zinsverrechnung", "ART",
                                "Zu Tabellen: " + Aufzaehlung(zinsverrechnungen) + "; sonst jahr");
    verzinsung_ = Anbieten(befehl, "--verzinsung", "METHODE",
                           "Zu Tabellen: " + Aufzaehlung(verzinsungen) + "; sonst 30/360");
}

void Staffeloptionen::AusgabenAnbieten(CLI::App& befehl) {
    ansicht_ = Anbieten(befehl, "--ansicht", "ANSICHT", Aufzaehlung(ansichten) + "; sonst kurz");
    effektiv_ = Anbieten(befehl, "--effektiv", "METHODE",
                         "Dazu der Effektivzinssatz nach " + Aufzaehlung(effektivwahl));
    format_ = Anbieten(befehl, "--format", "FORMAT", Aufzaehlung(formate) + "; sonst text");
    ausgabe_ = Anbieten(befehl, "--ausgabe", "DATEI", "In diese Datei statt auf die Standardausgabe");
    pdf_ = Anbieten(befehl, "--pdf", "DATEI", "Den Bericht als PDF schreiben");
    rtf_ = Anbieten(befehl, "--rtf", "DATEI", "Den Bericht als RTF schreiben");
    html_ = Anbieten(befehl, "--html", "DATEI",
                     "Den Bericht als HTML schreiben. Neben einem Bericht kommt die Tabelle nur mit --format "
                     "oder --ausgabe");
}

void Staffeloptionen::EingabePruefen() const {
    const bool konto = !Text(projekt_).empty();
    if (!konto && !Steht(zahlungen_) && !Steht(zinssaetze_))
        throw Aufruffehler("Dem Befehl \"staffel\" fehlt das Konto.");
    if (!konto && !(Steht(zahlungen_) && Steht(zinssaetze_)))
        throw Aufruffehler("Die Optionen \"--zahlungen\" und \"--zinssaetze\" stehen nur zusammen.");
    if (!konto) return;
    for (const Option option : {zahlungen_, zinssaetze_, abschluss_, zinsverrechnung_, verzinsung_}) {
        if (Steht(option))
            throw Aufruffehler("Die Option " + Angefuehrt(option->get_name()) +
                               " steht nicht neben einem Konto.");
    }
}

Kontoeinstellungen Staffeloptionen::EinstellungenLesen() const {
    Kontoeinstellungen einstellungen;
    einstellungen.Kontodatum = Datumstext(abschluss_);
    if (Steht(zinsverrechnung_))
        einstellungen.Zinsverrechnungsart = Gewaehlt(zinsverrechnungen, zinsverrechnung_);
    if (Steht(verzinsung_)) einstellungen.Verzinsungsmethode = Gewaehlt(verzinsungen, verzinsung_);
    return einstellungen;
}

bool Staffeloptionen::TabelleVerlangt() const {
    const bool bericht = Steht(pdf_) || Steht(rtf_) || Steht(html_);
    return !bericht || Steht(format_) || Steht(ausgabe_);
}

Staffelaufruf Staffeloptionen::Lesen() const {
    EingabePruefen();
    Staffelaufruf aufruf{.projekt = Text(projekt_),
                         .zahlungen = Dateiname(zahlungen_),
                         .zinssaetze = Dateiname(zinssaetze_),
                         .einstellungen = EinstellungenLesen(),
                         .ausgabe = Dateiname(ausgabe_),
                         .pdf = Dateiname(pdf_),
                         .rtf = Dateiname(rtf_),
                         .html = Dateiname(html_)};
    if (Steht(ansicht_)) aufruf.ansicht = Gewaehlt(ansichten, ansicht_);
    if (Steht(effektiv_)) aufruf.effektivmethode = Gewaehlt(effektivwahl, effektiv_);
    if (TabelleVerlangt()) aufruf.format = Steht(format_) ? Gewaehlt(formate, format_) : Ausgabeformat::text;
    return aufruf;
}

}  // namespace zinfolio
