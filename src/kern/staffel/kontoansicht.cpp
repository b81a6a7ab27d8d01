#include "kern/staffel/kontoansicht.h"

#include <string>
#include <utility>

#include "kern/dates/textteile.h"
#include "kern/dates/zahl.h"
#include "kern/dates/zahlformat.h"
#include "kern/grund/windows1252.h"

namespace zinfolio {
namespace {

template <Zahlungsvorgang Art>
std::string Vorgang(const Staffelsatz& satz) {
    if (satz.Zahlungsart == zahlungsart::kondition) return "Konditionenänderung";
    if (satz.Zahlungsart == zahlungsart::zinstermin) return "Zinstermin";
    if constexpr (Art == Zahlungsvorgang::zahlung) return "Zahlung";
    std::string text = NachUtf8(Getrimmt(satz.Zahlungstext.Getrimmt()));
    return text.empty() && Art == Zahlungsvorgang::textOderZahlung ? "Zahlung" : text;
}

std::string Zinsbasiszelle(const Staffelsatz& satz) {
    switch (satz.kondition.Zweitzinsart) {
        case 1:
            return "Gesamtbetrag";
        case 2:
            return "Betrag über Limit";
        default:
            return "";
    }
}

template <auto Feld>
double Zahlenwert(const Staffelsatz& satz) {
    return satz.*Feld;
}

template <auto Feld>
double Konditionswert(const Staffelsatz& satz) {
    return satz.kondition.*Feld;
}

template <auto Feld>
constexpr Kontospalte Betragsspalte(std::string_view kopf, std::string_view berichtskopf = {}) {
    return {.kopf = kopf,
            .zelle = [](const Staffelsatz& satz) { return Format(satz.*Feld, betragsmuster); },
            .zahl = Zahlenwert<Feld>,
            .berichtskopf = berichtskopf};
}

/// The plain text of the number.
template <auto Feld>
constexpr Kontospalte Zahlspalte(std::string_view kopf, std::string_view berichtskopf = {}) {
    return {.kopf = kopf,
            .zelle = [](const Staffelsatz& satz) { return Zahltext(satz.*Feld); },
            .zahl = Zahlenwert<Feld>,
            .berichtskopf = berichtskopf};
}

constexpr Kontospalte tagespalte{
    .kopf = "Tage bis (t+1)",
    .zelle = [](const Staffelsatz& satz) { return std::to_string(satz.Zinstage); },
    .zahl = Zahlenwert<&Staffelsatz::Zinstage>};

template <auto Feld>
constexpr Kontospalte Konditionsspalte(std::string_view kopf, std::string_view berichtskopf) {
    return {.kopf = kopf,
            .zelle = [](const Staffelsatz& satz) { return Zahltext(satz.kondition.*Feld); },
            .zahl = Konditionswert<Feld>,
            .berichtskopf = berichtskopf};
}

constexpr Kontospalte datumsspalte{.kopf = "Datum", .zelle = SatzdatumText, .art = Zellart::datum};

Kontospalte Vorgangsspalte(Zahlungsvorgang art) {
    constexpr std::array zellen{Vorgang<Zahlungsvorgang::textOderZahlung>, Vorgang<Zahlungsvorgang::text>,
                                Vorgang<Zahlungsvorgang::zahlung>};
    return {.kopf = "Vorgang", .zelle = zellen.at(static_cast<std::size_t>(art)), .art = Zellart::text};
}

// What follows date and "Vorgang" in each view.

constexpr std::array kurzform{
    Betragsspalte<&Staffelsatz::Zahlbetrag>("Zahlungsbetrag"),
    Betragsspalte<&Staffelsatz::Zinsgutschrift>("Zinsen"),
    Betragsspalte<&Staffelsatz::Kontostand>("Kontostand"),
};

constexpr std::array detailansicht1{
    Betragsspalte<&Staffelsatz::Zahlbetrag>("Betrag (t)"),
    Betragsspalte<&Staffelsatz::Periodenzins>("Zinsen bis (t+1)"),
    Betragsspalte<&Staffelsatz::Kumulzins>("kumulierte Zinsen bis (t+1)"),
    Betragsspalte<&Staffelsatz::Kontostand>("Kontostand (t)", "Kontostand"),
};

constexpr std::array detailansicht2{
    Betragsspalte<&Staffelsatz::Zahlbetrag>("Betrag (t)"),
    tagespalte,
    Betragsspalte<&Staffelsatz::Periodenzins>("Zinsen bis (t+1)"),
    Zahlspalte<&Staffelsatz::Zinsgutschrift>("Zinsgutschrift (t)", "Zinsgutschrift t"),
    Betragsspalte<&Staffelsatz::Kumulzins>("kumulierte Zinsen bis (t+1)"),
    Betragsspalte<&Staffelsatz::Kontostand>("Kontostand (t)", "Kontostand"),
};

constexpr std::array detailansicht3{
    Konditionsspalte<&Konditionen::Gutzins1>("Guthabenzins 1           bis(t+1)  %", "Zins1(+) bis (t+1)"),
    Konditionsspalte<&Konditionen::Gutzins2>("Guthabenzins 2           bis(t+1)  %", "Zins2(+) bis (t+1)"),
    Konditionsspalte<&Konditionen::Guthabenlinie>("Guthabenlinie            bis(t+1)",
                                                  "Guthabenlinie bis (t+1)"),
    Konditionsspalte<&Konditionen::Kreditzins1>("Kreditzins 1             bis (t+1) %", "Zins1(-) bis (t+1)"),
    Konditionsspalte<&Konditionen::Kreditzins2>("Kreditzins 2             bis (t+1) %", "Zins2(-) bis (t+1)"),
    Konditionsspalte<&Konditionen::Kreditlinie>("Kreditlinie bis(t+1)", "Kreditlinie bis (t+1)"),
    Kontospalte{.kopf = "Basis für Zinssatz 2",
                .zelle = Zinsbasiszelle,
                .art = Zellart::text,
                .berichtskopf = "Basis für Zinssatz2"},
    Betragsspalte<&Staffelsatz::Zahlbetrag>("Betrag (t)"),
    tagespalte,
    Betragsspalte<&Staffelsatz::Periodenzins>("Zinsen bis (t+1)"),
    Zahlspalte<&Staffelsatz::Zinsgutschrift>("Zinsgutschrift (t)"),
    Betragsspalte<&Staffelsatz::Kumulzins>("kumulierte Zinsen bis (t+1)"),
    Betragsspalte<&Staffelsatz::Kontostand>("Kontostand (t)"),
};

std::span<const Kontospalte> EigeneSpalten(Kontoansicht ansicht) {
    switch (ansicht) {
        case Kontoansicht::detailansicht1:
            return detailansicht1;
        case Kontoansicht::detailansicht2:
            return detailansicht2;
        case Kontoansicht::detailansicht3:
            return detailansicht3;
        case Kontoansicht::kurzform:
            break;
    }
    return kurzform;
}

bool InKurzform(const Staffelsatz& satz, const Ansichtsregel& regel) {
    return regel.konditionenInKurzform || satz.Zahlungsart != zahlungsart::kondition;
}

}  // namespace

std::vector<Kontospalte> Ansichtsspalten(Kontoansicht ansicht, const Ansichtsregel& regel) {
    std::vector<Kontospalte> spalten{datumsspalte, Vorgangsspalte(regel.vorgang)};
    const auto eigene = EigeneSpalten(ansicht);
    spalten.insert(spalten.end(), eigene.begin(), eigene.end());
    return spalten;
}

std::vector<std::size_t> Ansichtszeilen(Kontoansicht ansicht, std::span<const Staffelsatz> loesung,
                                        const Ansichtsregel& regel) {
    std::vector<std::size_t> zeilen;
    zeilen.reserve(loesung.size());
    for (std::size_t i = 0; i < loesung.size(); ++i) {
        if (ansicht != Kontoansicht::kurzform || InKurzform(loesung[i], regel)) zeilen.push_back(i);
    }
    return zeilen;
}

Tabelleninhalt AnsichtBilden(Kontoansicht ansicht, std::shared_ptr<const std::vector<Staffelsatz>> loesung,
                             const Ansichtsregel& regel) {
    if (!loesung) loesung = std::make_shared<const std::vector<Staffelsatz>>();
    std::vector<std::size_t> zeilen = Ansichtszeilen(ansicht, *loesung, regel);
    Tabelleninhalt inhalt =
        TabelleBilden(Ansichtsspalten(ansicht, regel), std::move(loesung), std::move(zeilen));
    inhalt.festeSpalten = 2;
    return inhalt;
}

Kontosummen KontosummenBilden(std::span<const Staffelsatz> loesung, const Ansichtsregel& regel) {
    double zahlungen = 0;
    double endvermoegen = 0;
    for (const Staffelsatz& satz : loesung) {
        if (!InKurzform(satz, regel)) continue;
        zahlungen += satz.Zahlbetrag;
        endvermoegen = satz.Kontostand;
    }
    return {.Gesamtzahlungssumme = Format(zahlungen, betragsmuster),
            .Endvermögen = Format(endvermoegen, betragsmuster),
            .Gesamtzinsen = Format(endvermoegen - zahlungen, betragsmuster)};
}

}  // namespace zinfolio
