#include "kern/tabellen/faktortabelle.h"

#include <cstdint>

#include "kern/dates/zahl.h"
#include "kern/dates/zahlformat.h"
#include "kern/grund/rechenfehler.h"
#include "kern/tabellen/feldwert.h"

namespace zinfolio {
namespace {

constexpr std::array<double, 6> schritte{0.1, 0.2, 0.3, 0.4, 0.5, 1};
constexpr Zahlmuster faktormuster = Zahlmuster::Lesen("###,#0.0000000");
constexpr std::string_view achsenkopf = "Jahr / Zins";
/// How far a rate may lie above the last one: the error of its own sum.
constexpr double satzspielraum = 1e-9;

struct Grenzen {
    double von = 0;
    double bis = 0;
};

struct Bereich {
    Grenzen saetze;
    Grenzen jahre;
};

std::optional<Ablehnung> BereichLesen(const Faktortabelleneingabe& eingabe, Bereich& bereich) {
    const std::array pflichtfelder{
        Pflichtzahl{eingabe.Pro1, bereich.saetze.von, "Pro1",
                    "Geben Sie bitte den 1. Prozentsatz ein. (grösser als 0)"},
        Pflichtzahl{eingabe.Pro2, bereich.saetze.bis, "Pro2", "Geben Sie bitte den 2. Prozentsatz ein."},
        Pflichtzahl{eingabe.J1, bereich.jahre.von, "J1", "Geben Sie bitte den 1. Jahreswert ein."},
        Pflichtzahl{eingabe.J2, bereich.jahre.bis, "J2", "Geben Sie bitte den 2. Jahreswert ein."},
    };
    if (auto ablehnung = PflichtzahlenLesen(pflichtfelder)) return ablehnung;
    if (bereich.saetze.bis < bereich.saetze.von)
        return Ablehnung{"Die 1. Prozentangabe darf nicht vor der 2. Prozentangabe liegen.", "Pro1", ""};
    if (bereich.jahre.bis < bereich.jahre.von)
        return Ablehnung{"Das 1. Jahr darf nicht vor dem 2. Jahr liegen.", "J1", ""};
    return std::nullopt;
}

/// The values of an axis; not more of them than a 2-byte counter can name. Their number is rounded to the
/// even neighbour, and may thus reach one too far.
std::vector<double> Achse(const Grenzen& grenzen, double schritt) {
    const std::int16_t anzahl = Ganzzahl16((grenzen.bis - grenzen.von) / schritt + 1);
    std::vector<double> werte;
    for (int k = 1; k <= anzahl; ++k) {
        const double wert = grenzen.von + schritt * (k - 1);
        if (wert <= grenzen.bis + satzspielraum) werte.push_back(wert);
    }
    return werte;
}

}  // namespace

double Faktortabelle::Wert(std::size_t zeile, std::size_t spalte) const {
    if (zeile == 0) return saetze_[spalte - 1];
    if (spalte == 0) return jahre_[zeile - 1];
    return werte_[(zeile - 1) * saetze_.size() + spalte - 1];
}

std::string Faktortabelle::Zelle(std::size_t zeile, std::size_t spalte) const {
    if (zeile == 0 && spalte == 0) return std::string(achsenkopf);
    const double wert = Wert(zeile, spalte);
    return zeile == 0 || spalte == 0 ? Zahltext(wert) : Format(wert, faktormuster);
}

std::optional<Ablehnung> FaktortabelleRechnen(const Faktortabelleneingabe& eingabe, Faktortabelle& tabelle) {
    Bereich bereich;
    if (auto ablehnung = BereichLesen(eingabe, bereich)) return ablehnung;
    Faktortabelle neu;
    neu.saetze_ = Achse(bereich.saetze, schritte.at(static_cast<std::size_t>(eingabe.Schrittweite)));
    neu.jahre_ = Achse(bereich.jahre, 1);
    if (neu.saetze_.size() * neu.jahre_.size() > hoechstzahlFaktoren)
        throw Rechenfehler("Mehr Werte, als eine Tabelle hat.");
    // The factor that overflows first: a table that is none ends before it takes time and room.
    (void)Aufzinsungsfaktor(neu.saetze_.back(), neu.jahre_.back());
    neu.werte_.reserve(neu.saetze_.size() * neu.jahre_.size());
    for (const double jahr : neu.jahre_)
        for (const double satz : neu.saetze_)
            neu.werte_.push_back(Faktorwert(eingabe.wahl, satz, jahr));
    tabelle = std::move(neu);
    return std::nullopt;
}

Tabelleninhalt FaktortabelleZeigen(std::shared_ptr<const Faktortabelle> tabelle) {
    Tabelleninhalt inhalt;
    if (tabelle->Leer()) return inhalt;
    for (std::size_t spalte = 0; spalte < tabelle->Spalten(); ++spalte) {
        const std::string kopf = tabelle->Zelle(0, spalte);
        const bool letzte = spalte + 1 == tabelle->Spalten();
        // The header texts of a report stand between bars with a blank on each side.
        const std::string berichtskopf = spalte == 0 ? kopf + " " : " " + kopf + (letzte ? " %" : " % ");
        inhalt.spalten.push_back({.kopf = kopf, .berichtskopf = berichtskopf});
    }
    inhalt.zeilen = tabelle->Zeilen() - 1;
    inhalt.zelle = [tabelle](std::size_t zeile, std::size_t spalte) {
        return tabelle->Zelle(zeile + 1, spalte);
    };
    inhalt.zahl = [tabelle](std::size_t zeile, std::size_t spalte) -> std::optional<double> {
        return tabelle->Wert(zeile + 1, spalte);
    };
    return inhalt;
}

}  // namespace zinfolio
