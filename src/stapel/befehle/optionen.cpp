#include "stapel/befehle/optionen.h"

#include <array>

#include "kern/dates/datum.h"
#include "kern/dates/zahl.h"
#include "stapel/befehle/aufruf.h"

namespace zinfolio {
namespace {

constexpr std::array formate{
    Wahl{"text", Ausgabeformat::text},
    Wahl{"csv", Ausgabeformat::csv},
    Wahl{"json", Ausgabeformat::json},
};

}  // namespace

Option OptionAnbieten(CLI::App& befehl, const char* name, const char* wert, const std::string& erklaerung) {
    return befehl.add_option(name)->description(erklaerung)->option_text(wert)->take_last();
}

bool OptionSteht(Option option) {
    return option->count() > 0;
}

std::string Optionstext(Option option) {
    return OptionSteht(option) ? option->as<std::string>() : std::string();
}

std::string Optionsdatei(Option option) {
    std::string name = Optionstext(option);
    if (OptionSteht(option) && name.empty())
        throw Aufruffehler("Die Option " + Angefuehrt(option->get_name()) +
                           " verlangt den Namen einer Datei.");
    return name;
}

std::string Optionsdatum(Option option) {
    std::string text = Optionstext(option);
    if (text.empty() || Datum::Versuche(text)) return text;
    throw Aufruffehler("Die Option " + Angefuehrt(option->get_name()) +
                       " verlangt ein Datum der Form tt.mm.jjjj, " + Angefuehrt(text) + " ist keines.");
}

std::string Optionszahl(Option option) {
    std::string text = Optionstext(option);
    if (OptionSteht(option) && !ZahlVersuch(text)) WertAblehnen(option, "eine Zahl mit Dezimalkomma");
    return text;
}

void NebeneinanderAblehnen(std::initializer_list<Option> optionen, std::string_view daneben) {
    for (const Option option : optionen) {
        if (OptionSteht(option))
            throw Aufruffehler("Die Option " + Angefuehrt(option->get_name()) + " steht nicht neben " +
                               std::string(daneben) + ".");
    }
}

void WertAblehnen(Option option, const std::string& verlangtes) {
    throw Aufruffehler("Die Option " + Angefuehrt(option->get_name()) + " verlangt " + verlangtes +
                       ", nicht " + Angefuehrt(Optionstext(option)) + ".");
}

Ausgabeoptionen::Ausgabeoptionen(CLI::App& befehl)
    : format_(OptionAnbieten(befehl, "--format", "FORMAT", Aufzaehlung(formate) + "; sonst text")),
      ausgabe_(OptionAnbieten(befehl, "--ausgabe", "DATEI", "In diese Datei statt auf die Standardausgabe")),
      pdf_(OptionAnbieten(befehl, "--pdf", "DATEI", "Den Bericht als PDF schreiben")),
      rtf_(OptionAnbieten(befehl, "--rtf", "DATEI", "Den Bericht als RTF schreiben")),
      html_(OptionAnbieten(befehl, "--html", "DATEI",
                           "Den Bericht als HTML schreiben. Neben einem Bericht kommt die Tabelle nur mit "
                           "--format oder --ausgabe")) {}

Ausgabewunsch Ausgabeoptionen::Lesen() const {
    Ausgabewunsch wunsch{.ausgabe = Optionsdatei(ausgabe_),
                         .pdf = Optionsdatei(pdf_),
                         .rtf = Optionsdatei(rtf_),
                         .html = Optionsdatei(html_)};
    if (OptionSteht(format_)) {
        wunsch.format = Optionswahl(formate, format_);
    } else if (OptionSteht(ausgabe_) || !wunsch.Berichte()) {
        wunsch.format = Ausgabeformat::text;
    }
    return wunsch;
}

}  // namespace zinfolio
