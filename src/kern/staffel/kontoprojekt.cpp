#include "kern/staffel/kontoprojekt.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "kern/dateien/atomar.h"
#include "kern/dateien/dateifehler.h"
#include "kern/dateien/ganzedatei.h"
#include "kern/dateien/satzdatei.h"
#include "kern/grund/utf8.h"

namespace zinfolio {
namespace {

namespace fs = std::filesystem;

/// Far more than any account or notes; so that no file can fill the memory.
constexpr std::size_t hoechsteDateilaenge = std::size_t{64} << 20;
constexpr std::size_t endungslaenge = 4;

/// A working file and its copy in a project.
struct Projektteil {
    std::string_view arbeitsdatei;
    fs::path Projektpfade::*beidatei;
};

/// In the order in which they are copied.
constexpr std::array projektteile{
    Projektteil{"Zinsstaffel1", &Projektpfade::zahlungen},
    Projektteil{"ZinsstaffelZins", &Projektpfade::konditionen},
    Projektteil{"Zinsverrechnung", &Projektpfade::einstellungen},
};

constexpr std::array<std::string_view, 5> arbeitsdateien{"Zinsstaffel1", "ZinsstaffelZins", "Zinsverrechnung",
                                                         "Zinsverrechnungstermine", "Lösungsdatei"};

/// Where each character of a name begins; a byte that is no UTF-8 counts as one.
std::vector<std::size_t> Zeichenanfaenge(std::string_view name) {
    std::vector<std::size_t> anfaenge;
    for (std::size_t i = 0; i < name.size();) {
        anfaenge.push_back(i);
        const auto zeichen = Utf8Lesen(name.substr(i));
        i += zeichen ? zeichen->laenge : 1;
    }
    return anfaenge;
}

std::string Stamm(const fs::path& projektdatei) {
    const std::string name = projektdatei.filename().string();
    const auto anfaenge = Zeichenanfaenge(name);
    if (anfaenge.size() <= endungslaenge) {
        throw Dateifehler({projektdatei}, "Der Name ist zu kurz: vor der Endung \".ZiS\" steht nichts.");
    }
    return name.substr(0, anfaenge[anfaenge.size() - endungslaenge]);
}

/// A project in the working folder itself could take the place of what it is saved from.
void ArbeitsdateiVerweigern(const fs::path& arbeitsordner, const fs::path& datei) {
    const std::string name = datei.filename().string();
    if (std::find(arbeitsdateien.begin(), arbeitsdateien.end(), name) == arbeitsdateien.end()) return;
    std::error_code fehler;
    const bool imArbeitsordner = fs::equivalent(fs::absolute(datei).parent_path(), arbeitsordner, fehler);
    if (fehler || !imArbeitsordner) return;
    throw Dateifehler({datei}, "So heißt hier schon eine Arbeitsdatei des Programms.");
}

void NamenPruefen(const fs::path& arbeitsordner, const Projektpfade& pfade) {
    for (const fs::path& datei : {pfade.zahlungen, pfade.konditionen, pfade.einstellungen, pfade.projekt})
        ArbeitsdateiVerweigern(arbeitsordner, datei);
}

std::vector<Staffelsatz> SaetzeLesen(const fs::path& datei) {
    LesbarkeitPruefen(datei);
    return Satzdatei<Staffelsatz>(datei.parent_path(), datei.filename().string()).Lesen();
}

Kontoeinstellungen EinstellungenLesen(const fs::path& datei) {
    LesbarkeitPruefen(datei);
    const auto werte = KontoeinstellungenLesen(datei.parent_path(), datei.filename().string());
    const Kontoeinstellungen neue;
    return {werte.Zinsverrechnungsart.value_or(neue.Zinsverrechnungsart),
            werte.Kontodatum.value_or(neue.Kontodatum),
            werte.Verzinsungsmethode.value_or(neue.Verzinsungsmethode)};
}

}  // namespace

Projektpfade::Projektpfade(const fs::path& projektdatei) : projekt(projektdatei) {
    const std::string stamm = Stamm(projektdatei);
    const fs::path ordner = projektdatei.parent_path();
    zahlungen = ordner / ("Zinsstaffel1" + stamm);
    // With a small z, unlike the working file's name (wanted).
    konditionen = ordner / ("Zinsstaffelzins" + stamm);
    einstellungen = ordner / ("Zinsverrechnung" + stamm);
}

void KontoprojektSpeichern(const fs::path& arbeitsordner, const fs::path& projektdatei,
                           std::string_view notizen) {
    const Projektpfade pfade(projektdatei);
    NamenPruefen(arbeitsordner, pfade);
    std::array<std::string, projektteile.size()> inhalte;
    for (std::size_t i = 0; i < inhalte.size(); ++i)
        inhalte[i] = GanzeDateiLesen(arbeitsordner / projektteile[i].arbeitsdatei, hoechsteDateilaenge);
    std::vector<AtomareDatei> dateien;
    dateien.reserve(inhalte.size() + 1);
    for (std::size_t i = 0; i < inhalte.size(); ++i)
        dateien.emplace_back(pfade.*projektteile[i].beidatei, AlsBytes(inhalte[i]), Sicherung::Dauerhaft);
    dateien.emplace_back(pfade.projekt, AlsBytes(notizen), Sicherung::Dauerhaft);
    for (AtomareDatei& datei : dateien)
        datei.Vollenden();
}

std::string KontoprojektEinlesen(const fs::path& arbeitsordner, const fs::path& projektdatei) {
    std::string notizen = GanzeDateiLesen(projektdatei, hoechsteDateilaenge);
    const Projektpfade pfade(projektdatei);
    for (const Projektteil& teil : projektteile) {
        const std::string inhalt = GanzeDateiLesen(pfade.*teil.beidatei, hoechsteDateilaenge);
        AtomarSchreiben(arbeitsordner / teil.arbeitsdatei, inhalt, Sicherung::Fluechtig);
    }
    return notizen;
}

Konto KontoprojektLesen(const fs::path& projektdatei) {
    LesbarkeitPruefen(projektdatei);
    const Projektpfade pfade(projektdatei);
    Konto konto;
    konto.zahlungen = SaetzeLesen(pfade.zahlungen);
    konto.konditionen = SaetzeLesen(pfade.konditionen);
    konto.einstellungen = EinstellungenLesen(pfade.einstellungen);
    return konto;
}

}  // namespace zinfolio
