#include "kern/allround/jahreswerte.h"

#include <vector>

#include "kern/allround/mischzins.h"
#include "kern/dates/zahl.h"
#include "kern/dates/zahlformat.h"

namespace zinfolio {
namespace {

/// The columns, counted from 0.
enum Spalte : std::size_t { stichtag, barwert, kumuliert, zahlungen, deltaBarwert, zinseffekt };

struct Jahreszahlung {
    Datum datum;
    /// `Tage30` from the first payment: the count between two dates is the difference of theirs.
    int tage30 = 0;
    double betrag = 0;
};

std::vector<Jahreszahlung> JahresreiheLesen(std::span<const Staffelsatz> saetze) {
    const Datum beginn = DatumVon(saetze.front());
    std::vector<Jahreszahlung> reihe;
    reihe.reserve(saetze.size());
    for (const Staffelsatz& satz : saetze) {
        const Datum datum = DatumVon(satz);
        reihe.push_back({datum, Tage30(beginn, datum), satz.Zahlbetrag});
    }
    return reihe;
}

Datum Jahresende(int jahr) {
    const auto datum = Datum::Aus(jahr, 12, 31);
    if (!datum) throw Datumsfehler("Ein Stichtag liegt vor dem Beginn des Kalenders.");
    return *datum;
}

/// The year end one year before the table's first one.
Datum VorDemErsten(const Datum& barwertdatum) {
    const Datum ende = Jahresende(barwertdatum.Jahr());
    return PlusJahre(barwertdatum == ende ? ende : Jahresende(barwertdatum.Jahr() - 1), -1);
}

/// What is still to come after a year's end.
struct Rest {
    double barwert = 0;
    double summe = 0;
};

Rest RestBilden(std::span<const Jahreszahlung> reihe, const Datum& tag, Mischzins& zins) {
    const int versatz = Tage30(reihe.front().datum, tag);
    Rest rest;
    for (const Jahreszahlung& zahlung : reihe) {
        if (zahlung.datum <= tag) continue;
        rest.barwert += zahlung.betrag / zins.Faktor(zahlung.tage30 - versatz);
        rest.summe += zahlung.betrag;
    }
    return {Endlich(rest.barwert), Endlich(rest.summe)};
}

/// The three columns that are read off the others.
void DifferenzenBilden(Zellentabelle& tabelle) {
    double vorwert = 0;
    double vorsumme = 0;
    for (std::size_t zeile = 0; zeile < tabelle.Zeilen(); ++zeile) {
        const double wert = Zahl(tabelle.Zelle(zeile, barwert));
        const double summe = Zahl(tabelle.Zelle(zeile, kumuliert));
        const std::string gezahlt = Format(zeile == 0 ? 0 : vorsumme - summe, betragsmuster);
        const double zuwachs = wert - vorwert;
        tabelle.Setzen(zeile, deltaBarwert, Format(zuwachs, betragsmuster));
        tabelle.Setzen(zeile, zinseffekt, Format(zeile == 0 ? 0 : zuwachs + Zahl(gezahlt), betragsmuster));
        tabelle.Setzen(zeile, zahlungen, gezahlt);
        vorwert = wert;
        vorsumme = summe;
    }
}

}  // namespace

std::optional<Ablehnung> Jahreswerttabelle(std::span<const Staffelsatz> saetze, Jahreswerteingabe& eingabe,
                                           Zellentabelle& tabelle) {
    tabelle = Zellentabelle({"Stichtag", "Barwert", "kum. Zahlungen gesamt", "Zahlungen in t",
                             "Delta Barwert", "Zinseffekt in t"});
    if (eingabe.Abzins2.empty()) eingabe.Abzins2 = "0";
    if (saetze.empty()) return OhneZahlungen(meldung::erstZahlungen);
    Mischzins zins(Zahlwert(eingabe.Abzins2));
    Datum tag = VorDemErsten(Datum::Lesen(eingabe.BarwDatum));
    const std::vector<Jahreszahlung> reihe = JahresreiheLesen(saetze);
    const Datum letzter = Jahresende(reihe.back().datum.Jahr());
    do {
        if (tabelle.Zeilen() == hoechstzahlJahreswerte) {
            return Ablehnung{std::string(meldung::reiheZuLang), "", std::string(register_::zahlungen)};
        }
        tag = PlusJahre(tag, 1);
        const Rest rest = RestBilden(reihe, tag, zins);
        tabelle.Anhaengen(std::array<std::string, 6>{tag.Text(), Format(rest.barwert, betragsmuster),
                                                     Format(rest.summe, betragsmuster)});
    } while (tag < letzter);
    DifferenzenBilden(tabelle);
    return std::nullopt;
}

}  // namespace zinfolio
