#include "kern/allround/diagramme.h"

#include <algorithm>

#include "kern/dates/zahl.h"

namespace zinfolio {
namespace {

constexpr std::string_view vorJahr = "            ";
constexpr Einheitentitel einheiten{.millionen = "Angaben in Mio. €",
                                   .tausend = "Angaben in Tausend €",
                                   .einzeln = "Angaben in €",
                                   .abDerGrenze = true};

/// The columns of two lines, and the cell that decides the unit.
struct Spaltenwahl {
    std::size_t zahlungen;
    std::size_t werte;
    double entscheidend;
};

Ablehnung ZuWenige() {
    return {std::string(diagrammBrauchtZweiZeilen), "", ""};
}

Diagrammreihe Reihe(std::string_view name, const Zellentabelle& tabelle, std::size_t spalte, double teiler) {
    Diagrammreihe reihe{.name = std::string(name)};
    for (std::size_t zeile = 0; zeile < tabelle.Zeilen(); ++zeile)
        reihe.werte.push_back(Zahl(tabelle.Zelle(zeile, spalte)) / teiler);
    return reihe;
}

Diagramm ZweiReihen(const Zellentabelle& tabelle, const Spaltenwahl& wahl, Wertart art) {
    const Diagrammeinheit einheit = EinheitWaehlen(wahl.entscheidend, einheiten);
    const char* wert = art == Wertart::barwert ? "Kum.Barwert" : "Kum.Vermögensendwert";
    return {.achsentitel = std::string(einheit.titel),
            .teiler = einheit.teiler,
            .reihen = {Reihe("Kumulierte Zahlungen", tabelle, wahl.zahlungen, einheit.teiler),
                       Reihe(wert, tabelle, wahl.werte, einheit.teiler)}};
}

/// Day and month of a date, as far as its text reads as a number: "31.12", "1.01" and "31.1" for October.
std::string TagUndMonat(std::string_view datumstext) {
    std::string text = Zahltext(Punktwert(datumstext));
    std::ranges::replace(text, ',', '.');
    return text;
}

}  // namespace

std::variant<Diagramm, Ablehnung> Wertdiagramm(const Zellentabelle& tabelle, Wertart art) {
    if (tabelle.Zeilen() < 2) return ZuWenige();
    const double entscheidend = Zahl(tabelle.Zelle(tabelle.Zeilen() - 2, 2));
    Diagramm diagramm = ZweiReihen(tabelle, {2, 7, entscheidend}, art);
    for (std::size_t zeile = 0; zeile < tabelle.Zeilen(); ++zeile) {
        diagramm.zeilennamen.push_back(tabelle.Zelle(zeile, 0));
        diagramm.zeilentexte.push_back(std::string(vorJahr) + Jahrestext(diagramm.zeilennamen.back()));
    }
    return diagramm;
}

std::variant<Diagramm, Ablehnung> Sensitivitaetsdiagramm(const Zellentabelle& tabelle, Wertart art) {
    if (tabelle.Zeilen() < 2) return ZuWenige();
    const double entscheidend = Zahl(tabelle.Zelle(tabelle.Zeilen() - 1, 2));
    Diagramm diagramm = ZweiReihen(tabelle, {1, 2, entscheidend}, art);
    for (std::size_t zeile = 0; zeile < tabelle.Zeilen(); ++zeile)
        diagramm.zeilentexte.push_back(tabelle.Zelle(zeile, 0) + " %");
    return diagramm;
}

std::variant<Diagramm, Ablehnung> Plandiagramm(const Zellentabelle& tabelle, Planansicht ansicht) {
    if (tabelle.Zeilen() < 2) return ZuWenige();
    constexpr double teiler = 1000;
    Diagramm diagramm{.achsentitel = std::string(einheiten.tausend),
                      .teiler = teiler,
                      .reihen = {Reihe("Kontostand", tabelle, 4, teiler)}};
    for (std::size_t zeile = 0; zeile < tabelle.Zeilen(); ++zeile) {
        const std::string& datum = tabelle.Zelle(zeile, 0);
        const std::string text = ansicht == Planansicht::jahresweise ? TagUndMonat(datum) : Jahrestext(datum);
        diagramm.zeilennamen.push_back(datum);
        diagramm.zeilentexte.push_back(std::string(vorJahr) + text);
    }
    return diagramm;
}

}  // namespace zinfolio
