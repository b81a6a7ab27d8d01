#include "kern/staffel/kontoansicht.h"

#include "kern/dates/textteile.h"
#include "kern/dates/zahl.h"
#include "kern/dates/zahlformat.h"
#include "kern/grund/windows1252.h"

namespace zinfolio {
namespace {

std::string Datumszelle(const Staffelsatz& satz) {
    return NachUtf8(satz.Satzdatum.Getrimmt());
}

std::string Vorgang(const Staffelsatz& satz) {
    switch (satz.Zahlungsart) {
        case zahlungsart::kondition:
            return "Konditionenänderung";
        case zahlungsart::zinstermin:
            return "Zinstermin";
        default:
            break;
    }
    const std::string text = NachUtf8(Getrimmt(satz.Zahlungstext.Getrimmt()));
    return text.empty() ? "Zahlung" : text;
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

template <double Staffelsatz::*Feld>
std::string Betrag(const Staffelsatz& satz) {
    return Format(satz.*Feld, betragsmuster);
}

template <auto Feld>
std::string Zahlzelle(const Staffelsatz& satz) {
    return Zahltext(satz.*Feld);
}

template <auto Feld>
std::string Konditionszelle(const Staffelsatz& satz) {
    return Zahltext(satz.kondition.*Feld);
}

std::string Zinstagezelle(const Staffelsatz& satz) {
    return std::to_string(satz.Zinstage);
}

constexpr std::array kurzform{
    Ansichtsspalte{"Datum", Datumszelle},
    Ansichtsspalte{"Vorgang", Vorgang},
    Ansichtsspalte{"Zahlungsbetrag", Betrag<&Staffelsatz::Zahlbetrag>},
    Ansichtsspalte{"Zinsen", Betrag<&Staffelsatz::Zinsgutschrift>},
    Ansichtsspalte{"Kontostand", Betrag<&Staffelsatz::Kontostand>},
};

constexpr std::array detailansicht1{
    Ansichtsspalte{"Datum", Datumszelle},
    Ansichtsspalte{"Vorgang", Vorgang},
    Ansichtsspalte{"Betrag (t)", Betrag<&Staffelsatz::Zahlbetrag>},
    Ansichtsspalte{"Zinsen bis (t+1)", Betrag<&Staffelsatz::Periodenzins>},
    Ansichtsspalte{"kumulierte Zinsen bis (t+1)", Betrag<&Staffelsatz::Kumulzins>},
    Ansichtsspalte{"Kontostand (t)", Betrag<&Staffelsatz::Kontostand>},
};

constexpr std::array detailansicht2{
    Ansichtsspalte{"Datum", Datumszelle},
    Ansichtsspalte{"Vorgang", Vorgang},
    Ansichtsspalte{"Betrag (t)", Betrag<&Staffelsatz::Zahlbetrag>},
    Ansichtsspalte{"Tage bis (t+1)", Zinstagezelle},
    Ansichtsspalte{"Zinsen bis (t+1)", Betrag<&Staffelsatz::Periodenzins>},
    Ansichtsspalte{"Zinsgutschrift (t)", Zahlzelle<&Staffelsatz::Zinsgutschrift>},
    Ansichtsspalte{"kumulierte Zinsen bis (t+1)", Betrag<&Staffelsatz::Kumulzins>},
    Ansichtsspalte{"Kontostand (t)", Betrag<&Staffelsatz::Kontostand>},
};

constexpr std::array detailansicht3{
    Ansichtsspalte{"Datum", Datumszelle},
    Ansichtsspalte{"Vorgang", Vorgang},
    Ansichtsspalte{"Guthabenzins 1           bis(t+1)  %", Konditionszelle<&Konditionen::Gutzins1>},
    Ansichtsspalte{"Guthabenzins 2           bis(t+1)  %", Konditionszelle<&Konditionen::Gutzins2>},
    Ansichtsspalte{"Guthabenlinie            bis(t+1)", Konditionszelle<&Konditionen::Guthabenlinie>},
    Ansichtsspalte{"Kreditzins 1             bis (t+1) %", Konditionszelle<&Konditionen::Kreditzins1>},
    Ansichtsspalte{"Kreditzins 2             bis (t+1) %", Konditionszelle<&Konditionen::Kreditzins2>},
    Ansichtsspalte{"Kreditlinie bis(t+1)", Konditionszelle<&Konditionen::Kreditlinie>},
    Ansichtsspalte{"Basis für Zinssatz 2", Zinsbasiszelle},
    Ansichtsspalte{"Betrag (t)", Betrag<&Staffelsatz::Zahlbetrag>},
    Ansichtsspalte{"Tage bis (t+1)", Zinstagezelle},
    Ansichtsspalte{"Zinsen bis (t+1)", Betrag<&Staffelsatz::Periodenzins>},
    Ansichtsspalte{"Zinsgutschrift (t)", Zahlzelle<&Staffelsatz::Zinsgutschrift>},
    Ansichtsspalte{"kumulierte Zinsen bis (t+1)", Betrag<&Staffelsatz::Kumulzins>},
    Ansichtsspalte{"Kontostand (t)", Betrag<&Staffelsatz::Kontostand>},
};

}  // namespace

std::span<const Ansichtsspalte> Ansichtsspalten(Kontoansicht ansicht) {
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

std::vector<std::size_t> Ansichtszeilen(Kontoansicht ansicht, std::span<const Staffelsatz> loesung) {
    std::vector<std::size_t> zeilen;
    zeilen.reserve(loesung.size());
    for (std::size_t i = 0; i < loesung.size(); ++i) {
        const bool kondition = loesung[i].Zahlungsart == zahlungsart::kondition;
        if (ansicht != Kontoansicht::kurzform || !kondition) zeilen.push_back(i);
    }
    return zeilen;
}

Kontosummen KontosummenBilden(std::span<const Staffelsatz> loesung) {
    double zahlungen = 0;
    double endvermoegen = 0;
    for (const Staffelsatz& satz : loesung) {
        if (satz.Zahlungsart == zahlungsart::kondition) continue;
        zahlungen += satz.Zahlbetrag;
        endvermoegen = satz.Kontostand;
    }
    return {.Gesamtzahlungssumme = Format(zahlungen, betragsmuster),
            .Endvermögen = Format(endvermoegen, betragsmuster),
            .Gesamtzinsen = Format(endvermoegen - zahlungen, betragsmuster)};
}

}  // namespace zinfolio
