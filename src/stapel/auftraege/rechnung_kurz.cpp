#include <algorithm>
#include <utility>

#include "kern/tabellen/kurzrechner.h"
#include "stapel/auftraege/rechnungen.h"
#include "stapel/json/auftragsfehler.h"

namespace zinfolio {
namespace {

/// A text that is there in the job, and where.
struct Kurztext {
    std::string text;
    const char* stelle = nullptr;
};

struct Kurzformwahl {
    const Kurzrechner* rechner = nullptr;
};
struct Zahlweise {
    std::int16_t wert = 0;
};
struct Modus {
    std::int16_t wert = 0;
};

/// Which of the fields a job has to have depends on its form.
struct Kurzauftrag {
    Kurzformwahl Form;
    Zahlweise m;
    Modus Zahlungsmodus;
    Kurztext rate, Laufzeitjahre, Laufjahre, Lauftage, Zins, Kap, kap, Vendwert, Vwert;
};

void FeldLesen(JsonWert& wert, Kurzformwahl& ziel) {
    const auto form = wert.Text();
    for (const Kurzrechner& rechner : AlleKurzrechner())
        if (rechner.name == form) ziel.rechner = &rechner;
    if (ziel.rechner == nullptr)
        wert.Ungueltig("muss \"Form4b\", \"Form5b\", \"Form7b\" oder \"Form8b\" sein");
}

void FeldLesen(JsonWert& wert, Kurztext& ziel) {
    ziel.stelle = wert.Stelle();
    ziel.text = wert.Text();
}

void FeldLesen(JsonWert& wert, Zahlweise& ziel) {
    ziel.wert = static_cast<std::int16_t>(wert.Ganzzahl(1, 12));
    if (KurzwahlSuchen(kurzzahlweisen, ziel.wert) == nullptr)
        wert.Ungueltig("muss 12, 6, 4, 3, 2 oder 1 sein");
}

void FeldLesen(JsonWert& wert, Modus& ziel) {
    ziel.wert = static_cast<std::int16_t>(wert.Ganzzahl(1, 2));
}

constexpr auto kurzfelder = Auftragsfelder(
    Pflichtfeld<&Kurzauftrag::Form>("Form"), Pflichtfeld<&Kurzauftrag::m>("m"),
    Pflichtfeld<&Kurzauftrag::Zahlungsmodus>("Zahlungsmodus"), Kannfeld<&Kurzauftrag::rate>("rate"),
    Kannfeld<&Kurzauftrag::Laufzeitjahre>("Laufzeitjahre"), Kannfeld<&Kurzauftrag::Laufjahre>("Laufjahre"),
    Kannfeld<&Kurzauftrag::Lauftage>("Lauftage"), Kannfeld<&Kurzauftrag::Zins>("Zins"),
    Kannfeld<&Kurzauftrag::Kap>("Kap"), Kannfeld<&Kurzauftrag::kap>("kap"),
    Kannfeld<&Kurzauftrag::Vendwert>("Vendwert"), Kannfeld<&Kurzauftrag::Vwert>("Vwert"));

constexpr std::array<std::pair<std::string_view, Kurztext Kurzauftrag::*>, 9> kurztexte{{
    {"rate", &Kurzauftrag::rate},
    {"Laufzeitjahre", &Kurzauftrag::Laufzeitjahre},
    {"Laufjahre", &Kurzauftrag::Laufjahre},
    {"Lauftage", &Kurzauftrag::Lauftage},
    {"Zins", &Kurzauftrag::Zins},
    {"Kap", &Kurzauftrag::Kap},
    {"kap", &Kurzauftrag::kap},
    {"Vendwert", &Kurzauftrag::Vendwert},
    {"Vwert", &Kurzauftrag::Vwert},
}};

const Kurzfeld* FeldSuchen(const Kurzrechner& rechner, std::string_view name) {
    const auto feld = std::find_if(rechner.felder.begin(), rechner.felder.end(),
                                   [&](const Kurzfeld& f) { return f.name == name; });
    return feld == rechner.felder.end() ? nullptr : &*feld;
}

[[noreturn]] void Ungueltig(std::string_view name, std::string_view grund, const char* stelle) {
    throw Auftragsfehler("Das Feld \"" + std::string(name) + "\" " + std::string(grund) + ".", stelle);
}

/// Fields that another form has are unknown here; those of this one must be there, but for its results.
Kurzeingabe EingabeAus(const Kurzauftrag& auftrag) {
    Kurzeingabe eingabe{.texte = {}, .m = auftrag.m.wert, .Zahlungsmodus = auftrag.Zahlungsmodus.wert};
    for (const auto& [name, glied] : kurztexte) {
        const Kurztext& text = auftrag.*glied;
        const Kurzfeld* feld = FeldSuchen(*auftrag.Form.rechner, name);
        const bool da = text.stelle != nullptr;
        if (feld == nullptr && da) Ungueltig(name, "ist unbekannt", text.stelle);
        if (feld == nullptr || feld->ergebnis) continue;
        if (!da) Ungueltig(name, "fehlt", nullptr);
        eingabe[feld->groesse] = text.text;
    }
    return eingabe;
}

std::optional<Ablehnung> RechneKurz(const Kurzauftrag& auftrag, JsonSchreiber& ergebnis) {
    Kurzeingabe eingabe = EingabeAus(auftrag);
    const Kurzrechner& rechner = *auftrag.Form.rechner;
    if (auto ablehnung = KurzRechnen(rechner, eingabe)) return ablehnung;
    for (const Kurzfeld& feld : rechner.felder)
        ergebnis.Feld(feld.name, eingabe[feld.groesse]);
    return std::nullopt;
}

}  // namespace

constexpr Rechnungsart rechnungKurz = Auftragsart<kurzfelder, RechneKurz>("kurz");

}  // namespace zinfolio
