#include "kern/finmath/woertlich.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace zinfolio::woertlich {
namespace {

struct Fehlschlag : std::runtime_error {
    Fehlschlag() : std::runtime_error("Fehlschlag") {}
};

void Pruefe(bool gut) {
    if (!gut) throw Fehlschlag();
}

struct Tag {
    int tag = 0;
    int monat = 0;
    int jahr = 0;
};

bool Schaltjahr(int jahr) {
    return (jahr % 4 == 0 && jahr % 100 != 0) || jahr % 400 == 0;
}

int LetzterTag(int monat, int jahr) {
    const int tage[] = {31, Schaltjahr(jahr) ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return tage[monat - 1];
}

Tag TagAus(int tag, int monat, int jahr) {
    Pruefe(jahr >= 100 && jahr <= 9999 && monat >= 1 && monat <= 12);
    Pruefe(tag >= 1 && tag <= LetzterTag(monat, jahr));
    return {tag, monat, jahr};
}

Tag TagVon(const Reihensatz& satz) {
    return TagAus(satz.Tag, satz.Monat, satz.Jahr);
}

std::string Datumstext(const Tag& d) {
    char text[32];
    std::snprintf(text, sizeof text, "%02d.%02d.%04d", d.tag, d.monat, d.jahr);
    return text;
}

/// Days since the start of the calendar, counted year by year and month by month.
int Laufnummer(const Tag& d) {
    int tage = d.tag;
    for (int monat = 1; monat < d.monat; ++monat)
        tage += LetzterTag(monat, d.jahr);
    const int vorjahre = d.jahr - 1;
    return tage + 365 * vorjahre + vorjahre / 4 - vorjahre / 100 + vorjahre / 400;
}

int Dreissiger(const Tag& d) {
    if (d.monat == 2 && d.tag == LetzterTag(2, d.jahr)) return 30;
    return d.tag == 31 ? 30 : d.tag;
}

int Tage(const Tag& d1, const Tag& d2) {
    return Dreissiger(d2) + 30 * (d2.monat - d1.monat) + 360 * (d2.jahr - d1.jahr) - Dreissiger(d1);
}

int GanzerTeil(int zaehler, int nenner) {
    return static_cast<int>(std::trunc(static_cast<double>(zaehler) / nenner));
}

double Hoch(double basis, double exponent) {
    Pruefe(!(basis <= 0 && std::floor(exponent) != exponent));
    const double ergebnis = std::pow(basis, exponent);
    Pruefe(std::isfinite(ergebnis));
    return ergebnis;
}

double G(int tage, double r) {
    const int n = GanzerTeil(tage, 360);
    const int rest = tage - 360 * n;
    const double ergebnis = (1 + rest * r / 360) * Hoch(1 + r, n);
    Pruefe(std::isfinite(ergebnis));
    return ergebnis;
}

double Faktor(Effektivmethode methode, const Tag& d1, const Tag& d2, double r) {
    if (methode == Effektivmethode::aidb360) return Hoch(1 + r, Tage(d1, d2) / 360.0);
    if (methode == Effektivmethode::isma) return Hoch(1 + r, (Laufnummer(d2) - Laufnummer(d1)) / 365.0);
    int t = Tage(d1, d2);
    const int j = GanzerTeil(t, 360);
    t = t - 360 * j;
    const int m = GanzerTeil(t, 30);
    t = t - 30 * m;
    const double x = 365 * j + 30.4166666 * m + t;
    return Hoch(1 + r, x / 365);
}

struct Zeile {
    double wert = 0;
    double faktor = 0;
};

Zeile EndzeileMethode1(std::span<const Reihensatz> reihe, const Reihensatz& satz, double r) {
    const Tag b = TagVon(reihe.front());
    const Tag e = TagVon(reihe.back());
    const Tag d = TagVon(satz);
    const double a = satz.Reihenbetrag;
    const int t = Tage(d, e);
    int s = Tage(TagAus(d.tag, d.monat, b.jahr), b);
    s = s - 360 * GanzerTeil(s, 360);
    if (s < 0) s = s + 360;
    const int u = t - s;
    if (u > 0) {
        const double a1 = a + a * r * (s / 360.0);
        return {G(u, r) * a1, (1 + r * (s / 360.0)) * G(u, r)};
    }
    return {G(t, r) * a, G(t, r)};
}

Zeile Endzeile(std::span<const Reihensatz> reihe, Effektivmethode methode, const Reihensatz& satz, double r) {
    if (methode == Effektivmethode::pangvAlt) return EndzeileMethode1(reihe, satz, r);
    const double faktor = Faktor(methode, TagVon(satz), TagVon(reihe.back()), r);
    return {satz.Reihenbetrag * faktor, faktor};
}

Zeile Barzeile(std::span<const Reihensatz> reihe, Effektivmethode methode, const Reihensatz& satz, double r) {
    if (methode == Effektivmethode::pangvAlt) {
        const double gesamt = G(Tage(TagVon(reihe.front()), TagVon(reihe.back())), r);
        double q = std::fabs(EndzeileMethode1(reihe, satz, r).faktor / gesamt);
        Pruefe(std::isfinite(q));
        if (q == 0) q = 1;
        return {satz.Reihenbetrag * q, 1 / q};
    }
    const double faktor = Faktor(methode, TagVon(reihe.front()), TagVon(satz), r);
    return {satz.Reihenbetrag / faktor, faktor};
}

using Zeilenrechnung = Zeile (*)(std::span<const Reihensatz>, Effektivmethode, const Reihensatz&, double);

double Summe(std::span<const Reihensatz> reihe, Effektivmethode methode, double r, Zeilenrechnung rechnen,
             std::vector<Ergebnissatz>* tabelle) {
    double summe = 0;
    double betraege = 0;
    for (const Reihensatz& satz : reihe) {
        const Zeile zeile = rechnen(reihe, methode, satz, r);
        summe = summe + zeile.wert;
        betraege = betraege + satz.Reihenbetrag;
        Pruefe(std::isfinite(summe));
        if (tabelle == nullptr) continue;
        const auto faktor = static_cast<float>(zeile.faktor);
        Pruefe(std::isfinite(faktor) && std::isfinite(betraege));
        tabelle->push_back({Festtext<10>::AusWindows1252(Datumstext(TagVon(satz))), satz.Reihenbetrag, faktor,
                            zeile.wert, summe, betraege});
    }
    return summe;
}

double BarwertOhneTabelle(std::span<const Reihensatz> reihe, Effektivmethode methode, double zinssatz) {
    Pruefe(std::isfinite(zinssatz));
    const double r = zinssatz / 100;
    if (methode != Effektivmethode::pangvAlt) return Summe(reihe, methode, r, Barzeile, nullptr);
    const double endwert = Summe(reihe, methode, r, Endzeile, nullptr);
    const double barwert = endwert / G(Tage(TagVon(reihe.front()), TagVon(reihe.back())), r);
    Pruefe(std::isfinite(barwert));
    return barwert;
}

/// Counts the changes of sign of the amounts.
int Vorzeichenwechsel(std::span<const Reihensatz> reihe) {
    int anzahl = 0;
    int vorher = 0;
    for (const Reihensatz& satz : reihe) {
        if (satz.Reihenbetrag < 0 && vorher > 0) anzahl = anzahl + 1;
        if (satz.Reihenbetrag > 0 && vorher < 0) anzahl = anzahl + 1;
        if (satz.Reihenbetrag < 0) vorher = -1;
        if (satz.Reihenbetrag > 0) vorher = 1;
    }
    return anzahl;
}

double SucheZins(std::span<const Reihensatz> reihe, Effektivmethode methode) {
    const auto f = [&](double rate) {
        const double y = UeberText(BarwertOhneTabelle(reihe, methode, rate));
        Pruefe(std::isfinite(y));
        return y;
    };
    int klammer = 0;
    int schritte = 0;
    double x0 = 10, y0 = f(x0);
    double xo = x0, yo = y0;
    double x1 = 1, y1 = f(x1);
    double xu = x1, yu = y1;
    if ((yo >= 0 && yu <= 0) || (yo <= 0 && yu >= 0)) klammer = 1;
    while (true) {
        schritte = schritte + 1;
        Pruefe(y1 - y0 != 0 && std::isfinite(y1 - y0));
        double s = x0 / 100 - ((x1 / 100 - x0 / 100) * y0) / (y1 - y0);
        Pruefe(std::isfinite(s));
        if (klammer == 1 && (s <= xu / 100 || s >= xo / 100)) s = (xu + xo) / 200;
        x0 = x1;
        y0 = y1;
        x1 = 100 * s;
        y1 = f(x1);
        if (klammer == 1 && x1 > xu && x1 < xo) {
            if ((yo > 0 && y1 > 0) || (yo < 0 && y1 < 0)) {
                xo = x1;
                yo = y1;
            } else {
                Pruefe(std::fabs(yu) < 2147483648.0);
                const bool zweite = std::llrint(yu) != 0 && y1 > 0;
                if ((yu < 0 && y1 < 0) || zweite) {
                    xu = x1;
                    yu = y1;
                }
            }
        }
        if (std::fabs(y1) < 0.00001 || schritte == 50) break;
    }
    Pruefe(std::fabs(y1) <= 1);
    return x1;
}

}  // namespace

double UeberText(double wert) {
    char text[40];
    std::snprintf(text, sizeof text, "%.15G", wert);
    const double gelesen = std::strtod(text, nullptr);
    return gelesen == 0 ? 0 : gelesen;
}

std::optional<double> Barwert(std::span<const Reihensatz> reihe, Effektivmethode methode, double zinssatz) {
    try {
        return BarwertOhneTabelle(reihe, methode, zinssatz);
    } catch (const Fehlschlag&) {
        return std::nullopt;
    }
}

Bewertung Bewerten(std::span<const Reihensatz> reihe, Effektivmethode methode, double zinssatz,
                   bool tabellen) {
    Bewertung b;
    try {
        Pruefe(!reihe.empty());
        const Tag erster = TagVon(reihe.front());
        const Tag letzter = TagVon(reihe.back());
        const double r = zinssatz / 100;
        if (!tabellen) {
            b.endwert = Summe(reihe, methode, r, Endzeile, nullptr);
            b.barwert = BarwertOhneTabelle(reihe, methode, zinssatz);
            return b;
        }
        b.endwert = Summe(reihe, methode, r, Endzeile, &b.vendwertberechnung.emplace());
        b.barwertberechnung.emplace();
        if (methode == Effektivmethode::pangvAlt) G(Tage(erster, letzter), r);
        b.barwert = Summe(reihe, methode, r, Barzeile, &*b.barwertberechnung);
    } catch (const Fehlschlag&) {
        return b;
    }
    return b;
}

Suche Suchen(std::span<const Reihensatz> reihe, Effektivmethode methode) {
    try {
        Pruefe(!reihe.empty());
        TagVon(reihe.front());
        TagVon(reihe.back());
        if (Vorzeichenwechsel(reihe) < 1) {
            return {std::nullopt,
                    " Es gibt nur Ein- bzw. nur Auszahlungen. Ein Effektivzinssatz existiert nicht !"};
        }
        return {SucheZins(reihe, methode), ""};
    } catch (const Fehlschlag&) {
        return {std::nullopt, "Es wurde kein Effektivzinssatz gefunden."};
    }
}

}  // namespace zinfolio::woertlich
