#include "kern/staffel/kontoeinstellungen.h"

#include <array>

#include "kern/dateien/selbstwertaufbau.h"

namespace zinfolio {
namespace {

constexpr std::array einstellungszeilen{
    Selbstfeld<&Kontoeinstellungswerte::Zinsverrechnungsart>(1, {.eintraege = zinsverrechnungsarten.size()}),
    Selbstfeld<&Kontoeinstellungswerte::Kontodatum>(2),
    Selbstfeld<&Kontoeinstellungswerte::Verzinsungsmethode>(3, {.eintraege = verzinsungsmethoden.size()}),
};
constexpr Selbstwertaufbau<Kontoeinstellungswerte> einstellungsdatei{30, einstellungszeilen};

}  // namespace

std::string Rechengrundlage(const Kontoeinstellungen& einstellungen) {
    const auto text = [](const auto& texte, auto auswahl) {
        return std::string(texte.at(static_cast<std::size_t>(auswahl)));
    };
    return text(verzinsungsmethoden, einstellungen.Verzinsungsmethode) +
           "  ·  Zinsverrechnung: " + text(zinsverrechnungsarten, einstellungen.Zinsverrechnungsart) +
           "  ·  Kontoabschluss: " + einstellungen.Kontodatum;
}

void KontoeinstellungenSchreiben(const std::filesystem::path& ordner,
                                 const Kontoeinstellungen& einstellungen) {
    einstellungsdatei.Schreiben(
        ordner / "Zinsverrechnung",
        {einstellungen.Zinsverrechnungsart, einstellungen.Kontodatum, einstellungen.Verzinsungsmethode});
}

Kontoeinstellungswerte KontoeinstellungenLesen(const std::filesystem::path& ordner, std::string_view name) {
    return einstellungsdatei.Lesen(ordner / name);
}

Kontoeinstellungswerte KontoeinstellungenAus(std::span<const std::byte> bytes,
                                             const std::filesystem::path& datei,
                                             std::vector<Befund>& befunde) {
    if (const auto satz = einstellungsdatei.AbgeschnittenerSatz(bytes))
        befunde.push_back({{datei, *satz}, "Der Wert ist abgeschnitten und zählt nicht."});
    return einstellungsdatei.AusBytes(bytes, datei);
}

}  // namespace zinfolio
