#pragma once
// How a command offers its options, and how their words are read. What is wrong is an `Aufruffehler`.

#include <CLI/App.hpp>
#include <algorithm>
#include <array>
#include <initializer_list>
#include <string>
#include <string_view>

#include "kern/dates/verzinsungsmethode.h"
#include "kern/finmath/effektivmethode.h"
#include "kern/staffel/kontoansicht.h"
#include "stapel/befehle/ausgaben.h"

namespace zinfolio {

/// A word of the command line and what it stands for.
template <typename T>
struct Wahl {
    std::string_view wort;
    T wert;
};
template <typename T>
Wahl(const char*, T) -> Wahl<T>;

using Option = const CLI::Option*;

/// Adds an option with a value; the last of several counts.
Option OptionAnbieten(CLI::App& befehl, const char* name, const char* wert, const std::string& erklaerung);

[[nodiscard]] bool OptionSteht(Option option);

/// The value; empty where the option is missing.
[[nodiscard]] std::string Optionstext(Option option);

/// The name of a file; empty where the option is missing.
[[nodiscard]] std::string Optionsdatei(Option option);

/// A real date tt.mm.jjjj; empty where the option is missing or its value is empty.
[[nodiscard]] std::string Optionsdatum(Option option);

/// A number in German notation as text; empty where the option is missing.
[[nodiscard]] std::string Optionszahl(Option option);

/// Refuses options that stand beside something they do not go with: "... steht nicht neben `daneben`.".
void NebeneinanderAblehnen(std::initializer_list<Option> optionen, std::string_view daneben);

/// Throws »Die Option "..." verlangt `verlangtes`, nicht "...".«
[[noreturn]] void WertAblehnen(Option option, const std::string& verlangtes);

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

/// What the word of an option stands for. REQUIRES: the option stands.
template <typename Liste>
auto Optionswahl(const Liste& liste, Option option) {
    const auto wahl = std::ranges::find(liste, Optionstext(option), &Liste::value_type::wort);
    if (wahl == liste.end()) WertAblehnen(option, Aufzaehlung(liste));
    return wahl->wert;
}

/// The words of the day-count methods.
inline constexpr std::array verzinsungen{
    Wahl{"30/360", Verzinsungsmethode::deutsch},       Wahl{"kal/kal", Verzinsungsmethode::englisch},
    Wahl{"kal/360", Verzinsungsmethode::franzoesisch}, Wahl{"30/365", Verzinsungsmethode::dreissig365},
    Wahl{"kal/365", Verzinsungsmethode::kalender365},
};

/// The words of the views of a statement.
inline constexpr std::array kontoansichtwahl{
    Wahl{"kurz", Kontoansicht::kurzform},
    Wahl{"detail1", Kontoansicht::detailansicht1},
    Wahl{"detail2", Kontoansicht::detailansicht2},
    Wahl{"detail3", Kontoansicht::detailansicht3},
};

/// The words of the methods for an effective rate.
inline constexpr std::array effektivwahl{
    Wahl{"pangv-alt", Effektivmethode::pangvAlt},
    Wahl{"aidb360", Effektivmethode::aidb360},
    Wahl{"isma", Effektivmethode::isma},
    Wahl{"pangv2000", Effektivmethode::pangv2000},
};

/// The options on where results go, which all commands with a table share.
class Ausgabeoptionen {
  public:
    explicit Ausgabeoptionen(CLI::App& befehl);

    /// What the parsed options ask for.
    [[nodiscard]] Ausgabewunsch Lesen() const;

  private:
    Option format_;
    Option ausgabe_;
    Option pdf_;
    Option rtf_;
    Option html_;
};

}  // namespace zinfolio
