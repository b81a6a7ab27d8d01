#include "kern/allround/allrounddateien.h"

#include <exception>

#include "kern/allround/zahlungsreihe.h"
#include "kern/dateien/selbstwertaufbau.h"
#include "kern/staffel/staffelsortierung.h"

namespace zinfolio {
namespace {

constexpr std::int16_t vorgabe = 10;

struct Allroundvorgaben {
    Selbstwert Abzins = vorgabe;
};

constexpr std::array vorgabezeilen{Selbstfeld<&Allroundvorgaben::Abzins>(1)};
constexpr Selbstwertaufbau<Allroundvorgaben> vorgabedatei{100, vorgabezeilen};
constexpr std::string_view vorgabename = "Allrounddatenallgemein";

/// A damaged file counts as none: the calculator must open all the same.
Selbstwert VorgabeLesen(const std::filesystem::path& datei) {
    try {
        return vorgabedatei.Lesen(datei).Abzins;
    } catch (const Dateifehler&) {
        return vorgabe;
    }
}

/// Runs an operation and then what leaves its files, whether it threw or not.
template <typename Rechenweg, typename Ablegen>
std::optional<Ablehnung> RechnenUndAblegen(Rechenweg rechenweg, Ablegen ablegen) {
    std::optional<Ablehnung> ablehnung;
    std::exception_ptr fehler;
    try {
        ablehnung = rechenweg();
    } catch (...) {
        fehler = std::current_exception();
    }
    ablegen();
    if (fehler) std::rethrow_exception(fehler);
    return ablehnung;
}

void WertetabellenAblegen(const std::filesystem::path& ordner, const Reihenauswertung& bewertung) {
    const Satzdatei<Ergebnissatz> endwerte(ordner, "Vendwertberechnung");
    endwerte.Loeschen();
    if (const auto& tabelle = bewertung.Vendwertberechnung) endwerte.Schreiben(*tabelle);
    if (const auto& tabelle = bewertung.Barwertberechnung) {
        Satzdatei<Ergebnissatz>(ordner, "Barwertberechnung").Schreiben(*tabelle);
    }
}

}  // namespace

Allrounddateien::Allrounddateien(std::filesystem::path arbeitsordner)
    : ordner_(std::move(arbeitsordner)),
      zahlungen_(ordner_, "ZahlungenT"),
      planreihe_(ordner_, "LösungszahlungsreiheR") {}

void Allrounddateien::Neu() const {
    zahlungen_.Schreiben({});
}

std::vector<Staffelsatz> Allrounddateien::ZahlungenSortieren() const {
    std::vector<Staffelsatz> saetze = zahlungen_.Lesen();
    const std::vector<Staffelsatz> vorher = saetze;
    SortiereZahlungen(saetze);
    if (saetze != vorher) zahlungen_.Schreiben(saetze);
    return saetze;
}

std::optional<Ablehnung> Allrounddateien::EffektivzinsRechnen(Effektivmethode methode,
                                                              Reihenzins& zins) const {
    const std::vector<Staffelsatz> zahlungen = zahlungen_.Lesen();
    std::vector<Reihensatz> reihe;
    const auto ablehnung = RechnenUndAblegen(
        [&]() -> std::optional<Ablehnung> {
            ReiheSchreiben(zahlungen, reihe);
            if (zahlungen.empty()) return OhneZahlungen(meldung::erstDieZahlungen);
            return std::nullopt;
        },
        [&] { Satzdatei<Reihensatz>(ordner_, "Lösungszahlungsreihe").Schreiben(reihe); });
    if (ablehnung) return ablehnung;
    zins = zinfolio::EffektivzinsRechnen(reihe, methode);
    if (!zins.Effektivergebnis.empty()) WertetabellenAblegen(ordner_, zins.bewertung);
    return std::nullopt;
}

std::optional<Ablehnung> Allrounddateien::ReiheSchreibenR() const {
    const std::vector<Staffelsatz> zahlungen = ZahlungenSortieren();
    std::vector<Reihensatz> reihe;
    return RechnenUndAblegen(
        [&]() -> std::optional<Ablehnung> {
            ReiheSchreiben(zahlungen, reihe);
            if (HatBeideRichtungen(reihe)) return std::nullopt;
            return Ablehnung{std::string(meldung::keinPlanInEineRichtung), "", ""};
        },
        [&] { planreihe_.Schreiben(reihe); });
}

void Allrounddateien::PlanAblegen(const Tilgungsplan& plan) const {
    const auto ablegen = [&](std::string_view name, const auto& saetze) {
        if (saetze) Satzdatei<Staffelsatz>(ordner_, name).Schreiben(*saetze);
    };
    ablegen("Lösungstableau5R", plan.Tableau);
    ablegen("Kurztableau5R", plan.Kurztableau);
}

std::string Allrounddateien::VorgabezinsLesen() const {
    const Selbstwert wert = VorgabeLesen(ordner_ / vorgabename);
    if (const auto* text = std::get_if<std::string>(&wert))
        return text->empty() ? std::string(vorgabezins) : *text;
    if (const auto* zahl = std::get_if<std::int16_t>(&wert)) return std::to_string(*zahl);
    return std::string(vorgabezins);
}

void Allrounddateien::VorgabezinsSchreiben(const std::string& abzins) const {
    Allroundvorgaben vorgaben;
    if (!abzins.empty()) vorgaben.Abzins = abzins;
    vorgabedatei.Schreiben(ordner_ / vorgabename, vorgaben);
}

}  // namespace zinfolio
