#include "kern/staffel/dateikonto.h"

#include <cmath>
#include <utility>

namespace zinfolio::langsam {

namespace {

std::string ErsterKandidat(int zinsverrechnungsart, int jahr) {
    const std::array<std::string, 6> tage{"31.01.", std::chrono::year(jahr).is_leap() ? "29.02." : "28.02.",
                                          "31.03.", "30.04.",
                                          "30.06.", "31.12."};
    return tage.at(static_cast<std::size_t>(zinsverrechnungsart)) + std::to_string(jahr);
}

Staffelsatz Termin(sys_days tag) {
    Staffelsatz satz;
    satz.Zahlungsart = 3;
    satz.Satzdatum = Festtext<10>::AusWindows1252(Text(tag));
    return satz;
}

/// One source of the merge: its current row, and its date text, which becomes the last day when it is used
/// up.
struct Quelle {
    Satzkanal datei;
    std::size_t k = 1;
    Staffelsatz satz;
    std::string datum;

    explicit Quelle(Satzkanal offen)
        : datei(std::move(offen)), satz(datei.Lesen(1)), datum(Datumstext(satz)) {}

    void Weiter() {
        ++k;
        if (k <= datei.Anzahl()) {
            satz = datei.Lesen(k);
            datum = Datumstext(satz);
        } else {
            datum = "31.12.9999";
        }
    }
};

std::pair<Paar, Paar> Paare(double b, const Konditionen& k) {
    if (b < 0) {
        if (std::abs(b) < k.Kreditlinie) return {{k.Kreditzins1, b}, {k.Kreditzins1, 0}};
        if (k.Zweitzinsart == 1) return {{k.Kreditzins2, b}, {k.Kreditzins2, 0}};
        return {{k.Kreditzins1, -k.Kreditlinie}, {k.Kreditzins2, b + k.Kreditlinie}};
    }
    if (b < k.Guthabenlinie) return {{k.Gutzins1, b}, {k.Gutzins1, 0}};
    if (k.Zweitzinsart == 1) return {{k.Gutzins2, b}, {k.Gutzins2, 0}};
    return {{k.Gutzins1, k.Guthabenlinie}, {k.Gutzins2, b - k.Guthabenlinie}};
}

}  // namespace

void Dateikonto::TermineBilden() const {
    const std::string erster = Datumstext(Oeffnen("Zinsstaffel1").Lesen(1));
    Satzkanal termine = Oeffnen("Zinsverrechnungstermine", true);
    const int schritte = std::array{1, 2, 3, 4, 6, 12}.at(static_cast<std::size_t>(zinsverrechnungsart));
    const sys_days e = Tag(ErsterKandidat(zinsverrechnungsart, Teil(erster, 7, 4)));
    const sys_days k = Tag(kontodatum);
    sys_days d = e;
    while (d < Tag(erster))
        d = NaechsterTermin(d, schritte);
    termine.Schreiben(1, Termin(d));
    std::size_t n = 1;
    for (;;) {
        ++n;
        d = NaechsterTermin(d, schritte);
        if (d >= k) break;
        termine.Schreiben(n, Termin(d));
    }
    if (n == 2 && k < e) n = 1;
    termine.Schreiben(n, Termin(k));
}

void Dateikonto::Mischen() const {
    Quelle p(Oeffnen("Zinsstaffel1"));
    Quelle c(Oeffnen("ZinsstaffelZins"));
    Quelle s(Oeffnen("Zinsverrechnungstermine"));
    Satzkanal loesung = Oeffnen("Lösungsdatei", true);
    do {
        Quelle* naechste = &s;
        if (Tag(p.datum) < Tag(c.datum) && Tag(p.datum) <= Tag(s.datum))
            naechste = &p;
        else if (Tag(c.datum) <= Tag(p.datum) && Tag(c.datum) <= Tag(s.datum))
            naechste = &c;
        if (Tag(naechste->datum) > Tag(kontodatum)) break;
        loesung.Anhaengen(naechste->satz);
        naechste->Weiter();
    } while (p.datum != "31.12.9999" || c.datum != "31.12.9999" || s.datum != "31.12.9999");
}

Staffelsatz Dateikonto::Zeile(Satzkanal& datei, std::size_t i, int methode) {
    Staffelsatz r = datei.Lesen(i);
    const bool ersteKondition = r.Zahlungsart == 2 && i == 1;
    const Staffelsatz q = datei.Lesen(ersteKondition ? 2 : i - 1);
    const Staffelsatz n = datei.Lesen(i < datei.Anzahl() ? i + 1 : i);
    if (r.Zahlungsart != 2) r.kondition = q.kondition;
    if (r.Zahlungsart == 1) r.Kontostand = q.Kontostand + r.Zahlbetrag;
    if (r.Zahlungsart == 2) r.Zahlbetrag = 0;
    if (r.Zahlungsart == 2) r.Kontostand = ersteKondition ? 0 : q.Kontostand + 0;
    if (r.Zahlungsart == 3) r.Kontostand = q.Kontostand + q.Kumulzins;
    const auto [eins, zwei] = Paare(r.Kontostand, r.kondition);
    r.Zinstage = Zinstage(Datumstext(r), Datumstext(n), methode);
    r.Periodenzins = Periodenzins(Datumstext(r), Datumstext(n), methode, eins, zwei);
    r.Kumulzins = r.Zahlungsart == 3 ? r.Periodenzins : q.Kumulzins + r.Periodenzins;
    if (r.Zahlungsart == 1) r.Zinsgutschrift = 0;
    if (r.Zahlungsart == 3) r.Zinsgutschrift = q.Kumulzins;
    return r;
}

void Dateikonto::Berechnen() const {
    Satzkanal loesung = Oeffnen("Lösungsdatei");
    for (std::size_t i = 1; i <= loesung.Anzahl(); ++i)
        loesung.Schreiben(i, Zeile(loesung, i, verzinsungsmethode));
}

}  // namespace zinfolio::langsam
