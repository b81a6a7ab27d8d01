#pragma once
// The five calculators of the family as data: what each has, in which order, and how it differs.

#include <cstddef>
#include <span>
#include <string_view>

#include "kern/sparen/planpruefen.h"
#include "kern/sparen/sparfeld.h"

namespace zinfolio {

/// What a form solves for.
enum class Sparziel { endkapital, sparrate, rendite, anspardauer, anfangskapital };

/// Where on its form a control stands.
enum class Sparabschnitt { plan, dynamisierung, begrenzung, ziel };

/// Whether the check before a calculation fills an empty field with "0".
enum class Leerfeld { bleibtLeer, wirdNull };

/// One control of one form.
struct Formzeile {
    const Sparfeld* feld;
    std::string_view beschriftung;
    /// The number of its record in a plan file.
    std::size_t satz;
    Sparabschnitt abschnitt = Sparabschnitt::plan;
    Leerfeld leer = Leerfeld::bleibtLeer;
    /// What stands behind the field.
    std::string_view einheit{};
};

/// How a form writes the texts of its payment rows and changes its rate. `mitGrenzen`: percent and amount at
/// once, a number of stages, a highest and a lowest rate. `einfach`: one change in percent or currency.
enum class Dynamik { mitGrenzen, einfach };

/// The files of a form's named plans.
struct Planablagenamen {
    std::string_view planindex;
    std::string_view plandatei;
    std::string_view notizendatei;
};

/// The working files that a form's calculation writes, besides `Lösungsdatei` and `Lösungszahlungsreihe`.
struct Laufdateinamen {
    std::string_view zahlungen = "Zinsstaffel1";
    std::string_view konditionen = "ZinsstaffelZins";
    std::string_view termine = "Zinsverrechnungstermine";
};

/// What differs in a form's report.
struct Sparberichtsangaben {
    /// Between the number of `Delta` and its sign.
    std::string_view vorProzent = " ";
    /// The column format of its widest view; empty: the one of the account.
    std::string_view detailansicht3 =
        "^+0.6in|^1.1in|^0.6in|^0.6in|^0.8in|^0.6in|^0.6in|^0.8in|^0.8in|^0.8in|^0.5in|^0.8in|^0.8in|^0.8in|"
        "^1.1in";
    /// The target of the plan stands in no line.
    bool ohneZiel = false;
};

struct Sparform {
    /// "Form90000"
    std::string_view name;
    std::string_view titel;
    Sparziel ziel;
    /// In the order of entry, which is that of the report's head too.
    std::span<const Formzeile> felder;
    /// The checks behind the first, in their order.
    std::span<const Planpruefung* const> pruefungen;
    /// The rate may change during the plan.
    bool zinstabelle = true;
    Dynamik dynamik = Dynamik::mitGrenzen;
    /// A calculation shows the effective rate of its account at once.
    bool effektivzinsMitErgebnis = true;
    Planablagenamen ablage;
    Laufdateinamen laufdateien{};
    /// The layout of its plan files.
    Selbstwertaufbau<Sparplan> plandatei;
    /// The short calculator of the same question; empty: there is none.
    std::string_view kurzrechner{};
    Sparberichtsangaben bericht{};
};

/// By the numbers of `Sparziel`.
[[nodiscard]] std::span<const Sparform> Sparformen();
[[nodiscard]] const Sparform& SparformVon(Sparziel ziel);

/// The form of a name such as "Form90000"; null where there is none.
[[nodiscard]] const Sparform* SparformSuchen(std::string_view name);

/// The row of a control on a form; null where the form does not have it.
[[nodiscard]] const Formzeile* FormzeileSuchen(const Sparform& form, std::string_view feldname);

}  // namespace zinfolio
