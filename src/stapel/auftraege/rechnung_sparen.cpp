#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "kern/sparen/meldungen.h"
#include "kern/sparen/sparrechnung.h"
#include "stapel/auftraege/felder.h"
#include "stapel/auftraege/rechnungen.h"
#include "stapel/auftraege/sparergebnis.h"
#include "stapel/json/auftragsfehler.h"

namespace zinfolio {
namespace {

/// A form of the family by its name.
struct Sparformwahl {
    const Sparform* form = nullptr;
};

void FeldLesen(JsonWert& wert, Sparformwahl& ziel) {
    ziel.form = SparformSuchen(wert.Text());
    if (ziel.form == nullptr)
        wert.Ungueltig(
            "muss \"Form90000\", \"Form92000\", \"Form94000\", \"Form96000\" oder \"Form99000\" sein");
}

/// The controls of a job, whichever form they belong to: that is told by another field.
struct Sparfelder {
    struct Gegeben {
        const Sparfeld* feld;
        const char* stelle;
    };
    Sparplan plan;
    std::vector<Gegeben> gegeben;
};

/// A control of the family that a job can give; null for all other names.
const Sparfeld* SparfeldSuchen(std::string_view name) {
    for (const Sparform& form : Sparformen()) {
        const Formzeile* zeile = FormzeileSuchen(form, name);
        if (zeile != nullptr && zeile->feld->art != Sparfeldart::einheit) return zeile->feld;
    }
    return nullptr;
}

std::int16_t Auswahl(JsonWert& wert, const Sparfeld& feld) {
    const std::size_t eintraege = feld.art == Sparfeldart::haken ? 2 : feld.eintraege.size();
    return static_cast<std::int16_t>(wert.Ganzzahl(0, static_cast<std::int64_t>(eintraege) - 1));
}

void FeldLesen(JsonWert& wert, Sparfelder& ziel) {
    wert.Felder([&](std::string_view name, JsonWert& feldwert) {
        const Sparfeld* feld = SparfeldSuchen(name);
        if (feld == nullptr) feldwert.Ungueltig("ist unbekannt");
        if (std::ranges::find(ziel.gegeben, feld, &Sparfelder::Gegeben::feld) != ziel.gegeben.end())
            feldwert.Ungueltig("kommt doppelt vor");
        ziel.gegeben.push_back({feld, feldwert.Stelle()});
        if (feld->text != nullptr) {
            ziel.plan.*feld->text = feldwert.Text();
        } else {
            ziel.plan.*feld->zahl = Auswahl(feldwert, *feld);
        }
    });
}

/// The table of rate changes: pairs of a date and a rate, as texts.
struct Zinstabelle {
    std::vector<std::array<std::string, 2>> zeilen;
    const char* stelle = nullptr;
};

void FeldLesen(JsonWert& wert, Zinstabelle& ziel) {
    ziel.stelle = wert.Stelle();
    wert.Elemente([&](JsonWert& zeile) {
        if (ziel.zeilen.size() == zinstabellenzeilen)
            zeile.Ungueltig("ist mehr als die 40 Zeilen der Tabelle");
        std::vector<std::string> texte;
        FeldLesen(zeile, texte);
        if (texte.size() != 2) zeile.Ungueltig("muss ein Datum und einen Zinssatz haben");
        ziel.zeilen.push_back({texte[0], texte[1]});
    });
}

/// The caption of the unit button.
struct Einheit {
    std::string_view text;
    const char* stelle = nullptr;
};

void FeldLesen(JsonWert& wert, Einheit& ziel) {
    ziel.stelle = wert.Stelle();
    ziel.text = wert.Text();
    if (ziel.text != einheitProzent && ziel.text != einheitBetrag)
        wert.Ungueltig("muss \"%\" oder \"€\" sein");
}

struct Sparauftrag {
    Sparformwahl Form;
    Sparfelder Felder;
    zinfolio::Zinstabelle Zinstabelle;
    Einheit Command6;
};

constexpr auto sparenfelder = Auftragsfelder(
    Pflichtfeld<&Sparauftrag::Form>("Form"), Pflichtfeld<&Sparauftrag::Felder>("Felder"),
    Kannfeld<&Sparauftrag::Zinstabelle>("Zinstabelle"), Kannfeld<&Sparauftrag::Command6>("Command6"));

[[noreturn]] void FehltImFormular(const Sparform& form, std::string_view feld, const char* stelle) {
    throw Auftragsfehler(
        "Das Feld \"" + std::string(feld) + "\" gibt es in " + std::string(form.name) + " nicht.", stelle);
}

/// The plan of a job; a control that its form lacks is an `Auftragsfehler`.
Sparplan PlanAus(const Sparauftrag& auftrag) {
    const Sparform& form = *auftrag.Form.form;
    for (const auto& [feld, stelle] : auftrag.Felder.gegeben) {
        if (FormzeileSuchen(form, feld->name) == nullptr)
            FehltImFormular(form, "Felder." + std::string(feld->name), stelle);
    }
    if (!auftrag.Zinstabelle.zeilen.empty() && !form.zinstabelle)
        FehltImFormular(form, "Zinstabelle", auftrag.Zinstabelle.stelle);
    if (!auftrag.Command6.text.empty() && form.dynamik != Dynamik::einfach)
        FehltImFormular(form, "Command6", auftrag.Command6.stelle);
    Sparplan plan = auftrag.Felder.plan;
    for (std::size_t i = 0; i < auftrag.Zinstabelle.zeilen.size(); ++i) {
        plan.ZinsWDAt[i] = auftrag.Zinstabelle.zeilen[i][0];
        plan.Zinsbetrag[i] = auftrag.Zinstabelle.zeilen[i][1];
    }
    if (!auftrag.Command6.text.empty()) plan.Command6 = auftrag.Command6.text;
    return plan;
}

std::optional<Ablehnung> RechneSparen(const Sparauftrag& auftrag, JsonSchreiber& ergebnis) {
    const Sparform& form = *auftrag.Form.form;
    Sparplan plan = PlanAus(auftrag);
    Sparstand stand;
    Sparergebnis gerechnet;
    if (auto ablehnung = SparplanRechnen(form, plan, stand, gerechnet)) return ablehnung;
    SparergebnisSchreiben(form, gerechnet, ergebnis);
    return std::nullopt;
}

}  // namespace

constexpr Rechnungsart rechnungSparen = Auftragsart<sparenfelder, RechneSparen>("sparen", register_::daten);

}  // namespace zinfolio
