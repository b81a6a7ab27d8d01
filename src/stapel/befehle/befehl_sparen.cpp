#include <array>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "kern/dateien/ganzedatei.h"
#include "kern/dates/zahlformat.h"
#include "kern/sparen/meldungen.h"
#include "kern/sparen/plandateien.h"
#include "kern/sparen/sparbericht.h"
#include "kern/sparen/sparrechnung.h"
#include "stapel/auftraege/sparergebnis.h"
#include "stapel/befehle/aufruf.h"
#include "stapel/befehle/befehle.h"
#include "stapel/befehle/optionen.h"

namespace zinfolio {
namespace {

namespace fs = std::filesystem;

constexpr const char* sparenbeispiele =
    "Beispiele:\n"
    "  zinfolio-cli sparen 'VEWertneu 1' --form Form90000\n"
    "  zinfolio-cli sparen plan --form Form92000 --ansicht detail1 --pdf plan.pdf\n"
    "Formulare: Form90000 (Endkapital), Form92000 (Rendite), Form94000 (Sparrate), Form96000 (Anspardauer),\n"
    "Form99000 (Anfangskapital).";

/// What the command is asked for.
struct Sparaufruf {
    std::string plandatei{};
    const Sparform* form = nullptr;
    Kontoansicht ansicht = Kontoansicht::kurzform;
    std::optional<Effektivmethode> effektivmethode{};
    Ausgabewunsch ausgaben{};
};

/// A calculated plan.
struct Sparrechnung {
    Sparplan plan;
    Sparstand stand{};
    Sparergebnis ergebnis{};
};

/// The words of the forms.
struct Formwort {
    std::string_view wort;
};

std::vector<Formwort> Formwoerter() {
    std::vector<Formwort> woerter;
    for (const Sparform& form : Sparformen())
        woerter.push_back({form.name});
    return woerter;
}

class Sparoptionen {
  public:
    explicit Sparoptionen(CLI::App& zeile);

    [[nodiscard]] Sparaufruf Lesen() const;

  private:
    [[nodiscard]] const Sparform& FormLesen() const;

    Option plandatei_;
    Option form_;
    Option ansicht_;
    Option effektiv_;
    Ausgabeoptionen ausgaben_;
};

// The members are initialised, and thus the options listed, in their order.
Sparoptionen::Sparoptionen(CLI::App& zeile)
    : plandatei_(zeile.add_option("PLANDATEI")
                     ->description("Der gespeicherte Sparplan")
                     ->option_text(" ")
                     ->required()),
      form_(OptionAnbieten(zeile, "--form", "FORM", "Wessen Plan es ist: " + Aufzaehlung(Formwoerter()))),
      ansicht_(OptionAnbieten(zeile, "--ansicht", "ANSICHT", Aufzaehlung(kontoansichtwahl) + "; sonst kurz")),
      effektiv_(
          OptionAnbieten(zeile, "--effektiv", "METHODE",
                         "Der Effektivzinssatz nach " + Aufzaehlung(effektivwahl) + "; sonst wie im Plan")),
      ausgaben_(zeile) {
    zeile.footer(sparenbeispiele);
}

const Sparform& Sparoptionen::FormLesen() const {
    if (!OptionSteht(form_)) throw Aufruffehler("Dem Befehl \"sparen\" fehlt die Option \"--form\".");
    const Sparform* form = SparformSuchen(Optionstext(form_));
    if (form == nullptr) WertAblehnen(form_, Aufzaehlung(Formwoerter()));
    return *form;
}

Sparaufruf Sparoptionen::Lesen() const {
    Sparaufruf aufruf{
        .plandatei = Optionstext(plandatei_), .form = &FormLesen(), .ausgaben = ausgaben_.Lesen()};
    if (aufruf.plandatei.empty()) throw Aufruffehler("Dem Befehl \"sparen\" fehlt die PLANDATEI.");
    if (OptionSteht(ansicht_)) aufruf.ansicht = Optionswahl(kontoansichtwahl, ansicht_);
    if (OptionSteht(effektiv_)) aufruf.effektivmethode = Optionswahl(effektivwahl, effektiv_);
    return aufruf;
}

/// What the form's labels say beside the statement: totals, what was solved for, and the rate.
std::string Kennzahlen(const Sparform& form, const Sparergebnis& ergebnis) {
    const auto zeile = [](std::string_view name, std::string_view wert) {
        return std::string(name) + ": " + std::string(wert) + "\n";
    };
    std::string text = "\n" + zeile("Gesamtzahlungssumme", ergebnis.summen.Gesamtzahlungssumme) +
                       zeile("Gesamtzinsen", ergebnis.summen.Gesamtzinsen) +
                       zeile("Endvermögen", ergebnis.summen.Endvermögen);
    switch (form.ziel) {
        case Sparziel::endkapital:
            break;
        case Sparziel::sparrate:
            text += zeile("Sparrate", Format(ergebnis.loesung, betragsmuster));
            break;
        case Sparziel::rendite:
            text += zeile("Nominalzins", ergebnis.Nzins);
            break;
        case Sparziel::anspardauer:
            text += zeile("Enddatum", ergebnis.Enddatum);
            break;
        case Sparziel::anfangskapital:
            text += zeile("Anfangskapital", Format(ergebnis.loesung, betragsmuster));
            break;
    }
    return text;
}

/// The calculated rows, sharing the whole result, of which they are a part.
std::shared_ptr<const std::vector<Staffelsatz>> Loesung(const std::shared_ptr<const Sparrechnung>& rechnung) {
    return {rechnung, &*rechnung->ergebnis.lauf.loesung};
}

/// Whether the form shows an effective rate without being asked for it, an empty one too.
bool ZeigtEffektivzins(const Sparaufruf& aufruf) {
    return aufruf.effektivmethode || aufruf.form->effektivzinsMitErgebnis ||
           aufruf.form->ziel == Sparziel::rendite;
}

Bericht BerichtBilden(const std::shared_ptr<const Sparrechnung>& rechnung, const Sparaufruf& aufruf) {
    const Sparergebnis& ergebnis = rechnung->ergebnis;
    return SparberichtBilden(
        {.form = aufruf.form,
         .mandant = fs::path(aufruf.plandatei).filename().string(),
         .plan = rechnung->plan,
         .kapital = ergebnis.loesung,
         .ezins = ZeigtEffektivzins(aufruf) ? std::optional(ergebnis.ezins) : std::nullopt,
         .Nzins = ergebnis.Nzins,
         .loesung = Loesung(rechnung),
         .ansicht = aufruf.ansicht});
}

std::variant<Befehlsergebnis, Ablehnung> Rechnen(Sparplan plan, const Sparaufruf& aufruf) {
    const auto rechnung = std::make_shared<Sparrechnung>(Sparrechnung{.plan = std::move(plan)});
    Sparergebnis& ergebnis = rechnung->ergebnis;
    const Sparform& form = *aufruf.form;
    if (aufruf.effektivmethode)
        rechnung->plan.Combo5 = static_cast<std::int16_t>(static_cast<int>(*aufruf.effektivmethode) - 1);
    if (auto ablehnung = SparplanRechnen(form, rechnung->plan, rechnung->stand, ergebnis))
        return std::move(*ablehnung);
    if (aufruf.effektivmethode && !form.effektivzinsMitErgebnis) EffzinsRechnen(rechnung->plan, ergebnis);
    std::string nachsatz = Kennzahlen(form, ergebnis);
    if (ZeigtEffektivzins(aufruf))
        nachsatz += Effektivzeilen(ergebnis.ezins, static_cast<Effektivmethode>(rechnung->plan.Combo5 + 1));
    return Befehlsergebnis{
        .felder = [rechnung, &form](JsonSchreiber& s) { SparergebnisSchreiben(form, rechnung->ergebnis, s); },
        .tabelle = [rechnung, &form,
                    ansicht = aufruf.ansicht] { return SparansichtBilden(form, ansicht, Loesung(rechnung)); },
        .nachsatz = std::move(nachsatz),
        .bericht = [rechnung, aufruf] { return BerichtBilden(rechnung, aufruf); }};
}

int Ausfuehren(const Sparaufruf& aufruf) {
    AusgabenPruefen(aufruf.ausgaben, std::array{fs::path(aufruf.plandatei)});
    LesbarkeitPruefen(aufruf.plandatei);
    Sparplan plan = SparplanLesen(*aufruf.form, aufruf.plandatei);
    return ErgebnisAusgeben(
        aufruf.ausgaben, [&] { return Rechnen(std::move(plan), aufruf); }, register_::daten);
}

std::function<int()> SparenAnbieten(CLI::App& zeile) {
    return [optionen = Sparoptionen(zeile)] { return Ausfuehren(optionen.Lesen()); };
}

}  // namespace

constexpr Befehl befehlSparen{
    "sparen", "Rechnet einen gespeicherten Sparplan und zeigt die Staffel oder schreibt ihren Bericht",
    SparenAnbieten};

}  // namespace zinfolio
