#include "kern/staffel/kontocsv.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <span>

#include "kern/dates/datum.h"
#include "kern/dates/textteile.h"
#include "kern/dates/zahl.h"
#include "kern/grund/utf8.h"

namespace zinfolio {
namespace {

using Kopf = std::span<const std::string_view>;

constexpr std::array<std::string_view, 3> zahlungskopf{"Datum", "Betrag", "Beschreibung"};
constexpr std::array<std::string_view, 8> konditionskopf{"Datum",         "Gutzins1",    "Gutzins2",
                                                         "Guthabenlinie", "Kreditzins1", "Kreditzins2",
                                                         "Kreditlinie",   "Zweitzinsart"};

/// True where every point of a number in German notation stands between thousands, and one in all such places
/// or none.
bool IstGruppiert(std::string_view zahl) {
    zahl = Getrimmt(zahl);
    if (zahl.starts_with('-') || zahl.starts_with('+')) zahl.remove_prefix(1);
    zahl = zahl.substr(0, zahl.find(','));
    if (zahl.find('.') == std::string_view::npos) return true;
    for (; zahl.size() > 3; zahl.remove_suffix(4))
        if (zahl[zahl.size() - 4] != '.' || zahl.substr(zahl.size() - 3).find('.') != std::string_view::npos)
            return false;
    return !zahl.empty() && zahl.find('.') == std::string_view::npos;
}

/// The fields of one row, read from left to right as what they must be.
class Zeilenfelder {
  public:
    Zeilenfelder(const Csvzeile& zeile, Kopf kopf) : zeile_(zeile), kopf_(kopf) {}

    const std::string& Text() { return zeile_.felder[naechstes_++]; }

    const std::string& Datumstext() {
        const std::string& text = Text();
        if (!Datum::Versuche(text)) Ungueltig("muss ein Datum der Form tt.mm.jjjj sein, ", " ist keines.");
        return text;
    }

    /// A point elsewhere than between thousands is no grouping, but most likely meant as a decimal point.
    double Zahl() {
        const std::string& text = Text();
        const auto zahl = ZahlVersuch(text);
        if (!zahl) Ungueltig("muss eine Zahl sein, ", " ist keine.");
        if (!IstGruppiert(text)) Ungueltig("hat ein Dezimalkomma, ein Punkt trennt nur Tausender: ", ".");
        return *zahl;
    }

    float Satz() {
        const auto satz = static_cast<float>(Zahl());
        if (!std::isfinite(satz))
            Ungueltig("liegt außerhalb des Bereichs einer 4-Byte-Gleitkommazahl: ", ".");
        return satz;
    }

    std::int16_t Ganzzahl() {
        using Grenzen = std::numeric_limits<std::int16_t>;
        const double zahl = Zahl();
        if (zahl != std::trunc(zahl) || zahl < Grenzen::min() || zahl > Grenzen::max())
            Ungueltig("muss eine ganze Zahl von -32768 bis 32767 sein, ", " ist keine.");
        return static_cast<std::int16_t>(zahl);
    }

  private:
    /// Refuses the field that was read last.
    [[noreturn]] void Ungueltig(std::string_view anforderung, std::string_view schluss) const {
        constexpr std::size_t zeigbar = 40;
        std::string grund = "Das Feld \"" + std::string(kopf_[naechstes_ - 1]) + "\" ";
        grund.append(anforderung).append("\"");
        grund.append(Gekuerzt(zeile_.felder[naechstes_ - 1], zeigbar)).append("\"").append(schluss);
        throw Csvfehler(zeile_.nummer, grund);
    }

    const Csvzeile& zeile_;
    Kopf kopf_;
    std::size_t naechstes_ = 0;
};

std::string Kopfzeile(Kopf kopf) {
    std::string zeile;
    for (const std::string_view name : kopf)
        zeile.append(zeile.empty() ? "" : ";").append(name);
    return zeile;
}

void KopfPruefen(const std::vector<Csvzeile>& zeilen, Kopf kopf) {
    const bool richtig = !zeilen.empty() && std::ranges::equal(zeilen.front().felder, kopf);
    if (richtig) return;
    throw Csvfehler(zeilen.empty() ? 1 : zeilen.front().nummer,
                    "Die erste Zeile muss \"" + Kopfzeile(kopf) + "\" lauten.");
}

void FelderzahlPruefen(const Csvzeile& zeile, Kopf kopf) {
    if (zeile.felder.size() == kopf.size()) return;
    throw Csvfehler(zeile.nummer, "Die Zahl der Felder ist " + std::to_string(zeile.felder.size()) +
                                      ", muss aber " + std::to_string(kopf.size()) +
                                      " sein: " + Kopfzeile(kopf) + ".");
}

template <typename Satzbilder>
std::vector<Staffelsatz> Saetze(std::string_view text, Kopf kopf, Satzbilder bilde) {
    const std::vector<Csvzeile> zeilen = CsvLesen(text);
    KopfPruefen(zeilen, kopf);
    std::vector<Staffelsatz> saetze;
    saetze.reserve(zeilen.size() - 1);
    for (const Csvzeile& zeile : std::span(zeilen).subspan(1)) {
        FelderzahlPruefen(zeile, kopf);
        saetze.push_back(bilde(Zeilenfelder(zeile, kopf)));
    }
    return saetze;
}

Staffelsatz AusZahlungszeile(Zeilenfelder felder) {
    const std::string& datum = felder.Datumstext();
    const double betrag = felder.Zahl();
    return Zahlungssatz(datum, betrag, felder.Text());
}

Staffelsatz Konditionszeile(Zeilenfelder felder) {
    const std::string& datum = felder.Datumstext();
    // Braces read the fields in this order.
    const Konditionen kondition{.Gutzins1 = felder.Satz(),
                                .Gutzins2 = felder.Satz(),
                                .Guthabenlinie = felder.Zahl(),
                                .Kreditzins1 = felder.Satz(),
                                .Kreditzins2 = felder.Satz(),
                                .Kreditlinie = felder.Zahl(),
                                .Zweitzinsart = felder.Ganzzahl()};
    return Konditionssatz(datum, kondition);
}

}  // namespace

std::vector<Staffelsatz> ZahlungenAusCsv(std::string_view text) {
    return Saetze(text, zahlungskopf, AusZahlungszeile);
}

std::vector<Staffelsatz> KonditionenAusCsv(std::string_view text) {
    return Saetze(text, konditionskopf, Konditionszeile);
}

}  // namespace zinfolio
