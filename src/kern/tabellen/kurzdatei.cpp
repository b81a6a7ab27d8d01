#include "kern/tabellen/kurzdatei.h"

#include "kern/dateien/selbstwertaufbau.h"

namespace zinfolio {
namespace {

constexpr std::size_t satzlaenge = 100;
constexpr std::size_t satzZahlweise = 6;
constexpr std::size_t satzModus = 7;

template <std::size_t groesse>
constexpr Selbstwertzeile<Kurzeingabe> Textfeld(std::size_t satz) {
    return Selbstfeld < [](auto& e) -> auto& {
        return e.texte[groesse];
    }
    , Kurzeingabe > (satz);
}

Selbstwertzeile<Kurzeingabe> Groessenzeile(Kurzgroesse groesse, std::size_t satz) {
    constexpr std::array zeilen{Textfeld<0>, Textfeld<1>, Textfeld<2>, Textfeld<3>, Textfeld<4>, Textfeld<5>};
    return zeilen[static_cast<std::size_t>(groesse)](satz);
}

std::vector<Selbstwertzeile<Kurzeingabe>> Dateizeilen(const Kurzrechner& rechner) {
    std::vector<Selbstwertzeile<Kurzeingabe>> zeilen;
    for (std::size_t i = 0; i < rechner.saetze.size(); ++i)
        if (rechner.saetze[i]) zeilen.push_back(Groessenzeile(*rechner.saetze[i], i + 1));
    zeilen.push_back(Selbstfeld<&Kurzeingabe::m>(satzZahlweise));
    zeilen.push_back(Selbstfeld<&Kurzeingabe::Zahlungsmodus>(satzModus));
    return zeilen;
}

std::filesystem::path Pfad(const std::filesystem::path& ordner, const Kurzrechner& rechner) {
    return ordner / rechner.datei;
}

void WahlPruefen(std::span<const Kurzwahl> liste, std::int16_t wert, const Fundstelle& stelle) {
    if (KurzwahlSuchen(liste, wert) != nullptr) return;
    throw Dateifehler(stelle, "Eine Auswahl " + std::to_string(wert) + " gibt es nicht.");
}

}  // namespace

Kurzeingabe KurzeingabeLesen(const std::filesystem::path& ordner, const Kurzrechner& rechner) {
    const auto pfad = Pfad(ordner, rechner);
    const auto zeilen = Dateizeilen(rechner);
    Kurzeingabe eingabe = Selbstwertaufbau<Kurzeingabe>{satzlaenge, zeilen}.Lesen(pfad);
    WahlPruefen(kurzzahlweisen, eingabe.m, {pfad, satzZahlweise});
    WahlPruefen(kurzzahlungsmodi, eingabe.Zahlungsmodus, {pfad, satzModus});
    return eingabe;
}

void KurzeingabeSchreiben(const std::filesystem::path& ordner, const Kurzrechner& rechner,
                          const Kurzeingabe& eingabe) {
    const auto zeilen = Dateizeilen(rechner);
    Selbstwertaufbau<Kurzeingabe>{satzlaenge, zeilen}.Schreiben(Pfad(ordner, rechner), eingabe);
}

}  // namespace zinfolio
