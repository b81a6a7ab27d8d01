#pragma once
// Dates and interest of the slow account: on texts and the standard calendar, nothing shared with the engine.

#include <chrono>
#include <cmath>
#include <string>

namespace zinfolio::langsam {

using std::chrono::days;
using std::chrono::months;
using std::chrono::sys_days;
using std::chrono::year_month_day;

inline int Teil(const std::string& datumstext, std::size_t stelle, std::size_t breite) {
    return std::stoi(datumstext.substr(stelle - 1, breite));
}

inline sys_days Tag(const std::string& datumstext) {
    return std::chrono::year(Teil(datumstext, 7, 4)) /
           std::chrono::month(static_cast<unsigned>(Teil(datumstext, 4, 2))) /
           std::chrono::day(static_cast<unsigned>(Teil(datumstext, 1, 2)));
}

inline std::string Text(sys_days tag) {
    const year_month_day d = tag;
    const auto zweistellig = [](unsigned zahl) { return (zahl < 10 ? "0" : "") + std::to_string(zahl); };
    return zweistellig(unsigned{d.day()}) + "." + zweistellig(unsigned{d.month()}) + "." +
           std::to_string(int{d.year()});
}

/// So many months on, the day clipped to the month, then day by day to the month's end.
inline sys_days NaechsterTermin(sys_days tag, int schritte) {
    year_month_day ziel = year_month_day(tag) + months(schritte);
    if (!ziel.ok()) ziel = ziel.year() / ziel.month() / std::chrono::last;
    sys_days d = ziel;
    while (year_month_day(d).month() == ziel.month())
        d += days(1);
    return d - days(1);
}

inline int Tage30(const std::string& von, const std::string& bis) {
    const auto dreissiger = [](const std::string& text) {
        const int tag = Teil(text, 1, 2);
        const bool schaltjahr = std::chrono::year(Teil(text, 7, 4)).is_leap();
        if (Teil(text, 4, 2) == 2 && tag >= (schaltjahr ? 29 : 28)) return 30;
        return tag == 31 ? 30 : tag;
    };
    return dreissiger(bis) + 30 * (Teil(bis, 4, 2) - Teil(von, 4, 2)) +
           360 * (Teil(bis, 7, 4) - Teil(von, 7, 4)) - dreissiger(von);
}

inline int Kalendertage(const std::string& von, const std::string& bis) {
    return static_cast<int>((Tag(bis) - Tag(von)).count());
}

inline int Zinstage(const std::string& von, const std::string& bis, int methode) {
    return methode == 0 || methode == 3 ? Tage30(von, bis) : Kalendertage(von, bis);
}

struct Paar {
    float satz;
    double betrag;
};

inline double Formel(const Paar& eins, const Paar& zwei, int t, int j) {
    const float q1 = eins.satz / 100.0F;
    const float q2 = zwei.satz / 100.0F;
    return ((eins.betrag * q1) * t) / j + ((zwei.betrag * q2) * t) / j;
}

/// Over a year's end both amounts are added before each division.
inline double FormelSumme(const Paar& eins, const Paar& zwei, int t, int j) {
    const float q1 = eins.satz / 100.0F;
    const float q2 = zwei.satz / 100.0F;
    return (eins.betrag * q1 * t + zwei.betrag * q2 * t) / j;
}

inline int Jahrestage(int jahr) {
    return Kalendertage("01.01." + std::to_string(jahr), "31.12." + std::to_string(jahr)) + 1;
}

inline double Periodenzins(const std::string& von, const std::string& bis, int methode, const Paar& eins,
                           const Paar& zwei) {
    double zins = 0;
    const int y1 = Teil(von, 7, 4);
    const int y2 = Teil(bis, 7, 4);
    if (methode != 1) {
        const int j = methode == 0 || methode == 2 ? 360 : 365;
        zins = Formel(eins, zwei, Zinstage(von, bis, methode), j);
    } else if (y1 == y2) {
        zins = Formel(eins, zwei, Kalendertage(von, bis), Jahrestage(y1));
    } else {
        const std::string silvester = "31.12." + std::to_string(y1);
        zins = FormelSumme(eins, zwei, Kalendertage(von, silvester), Jahrestage(y1)) +
               FormelSumme(eins, zwei, Kalendertage(silvester, bis), Jahrestage(y2));
    }
    return std::floor(100 * zins + 0.5) / 100;
}

}  // namespace zinfolio::langsam
