#include "kern/staffel/zahlungseingabe.h"

#include <cmath>

#include "kern/dateien/satzdatei.h"
#include "kern/dates/datumpruefen.h"
#include "kern/dates/feldtext.h"
#include "kern/dates/rundung.h"
#include "kern/dates/zahl.h"
#include "kern/grund/rechenfehler.h"
#include "kern/staffel/meldungen.h"

namespace zinfolio {
namespace {

/// A count or spacing typed into a field, empty counting as `leer`.
std::int64_t Anzahl(const std::string& text, std::int64_t leer) {
    if (text.empty()) return leer;
    const double wert = std::nearbyint(Zahl(text));
    constexpr double grenze = 1e9;
    if (!(std::fabs(wert) <= grenze)) throw Zahlfehler("»" + text + "« ist zu groß.");
    return static_cast<std::int64_t>(wert);
}

bool HatStufen(const Zahlungseingabe& eingabe) {
    return eingabe.Check1 && !eingabe.Stufen.empty() && eingabe.Stufen != "0";
}

Datum PlusEinheiten(Datum datum, std::int64_t anzahl, Abstandseinheit einheit) {
    switch (einheit) {
        case Abstandseinheit::tage:
            return PlusTage(datum, anzahl);
        case Abstandseinheit::jahre:
            return PlusJahre(datum, anzahl);
        case Abstandseinheit::monate:
            break;
    }
    return PlusMonate(datum, anzahl);
}

/// Writes the payments of one entry, one after the other.
class Reihenschreiber {
  public:
    Reihenschreiber(const Zahlungseingabe& eingabe, std::vector<Staffelsatz>& ziel)
        : eingabe_(eingabe), ziel_(ziel) {}

    void Schreibe(std::string_view datumstext, double betrag) {
        if (ziel_.size() >= HoechstzahlSaetze) throw Rechenfehler(UeberHoechstzahl("Zahlungen"));
        ziel_.push_back(Zahlungssatz(datumstext, betrag, eingabe_.Beschreibung));
    }

    /// `anzahl` further payments behind the last one.
    void SchreibeFolgende(std::int64_t anzahl, double betrag) {
        for (std::int64_t i = 0; i < anzahl; ++i) {
            if (!letztes_) Beginnen();
            letztes_ = Naechstes(*letztes_);
            Schreibe(letztes_->Text(), betrag);
        }
    }

  private:
    /// Reads what only a second payment needs.
    void Beginnen() {
        letztes_ = anker_ = Datum::Lesen(eingabe_.Begdatum);
        abstand_ = Anzahl(eingabe_.Abstand, 0);
    }

    [[nodiscard]] Datum Naechstes(Datum datum) const {
        const Datum naechstes = PlusEinheiten(datum, abstand_, eingabe_.Combo5);
        if (eingabe_.Combo5 != Abstandseinheit::monate) return naechstes;
        if (eingabe_.Check2) return Monatsletzter(naechstes);
        const int monatslaenge = Monatslaenge(naechstes.Jahr(), naechstes.Monat());
        return *Datum::Aus(naechstes.Jahr(), naechstes.Monat(), std::min(anker_->Tag(), monatslaenge));
    }

    const Zahlungseingabe& eingabe_;
    std::vector<Staffelsatz>& ziel_;
    std::int64_t abstand_ = 0;
    std::optional<Datum> anker_;
    std::optional<Datum> letztes_;
};

double NaechsteStufe(double betrag, const Zahlungseingabe& eingabe) {
    const double delta = Zahl(eingabe.Delta);
    if (eingabe.Command1 == Deltaeinheit::betrag) return betrag + delta;
    return RundeKaufmaennisch(betrag * (1 + delta / 100), 2);
}

void FuelleLeer(std::string& feld, std::string_view ersatz) {
    if (feld.empty()) feld = ersatz;
}

}  // namespace

std::optional<Ablehnung> ZahlungseingabePruefen(Zahlungseingabe& eingabe, Nullbetrag nullbetrag) {
    FuelleLeer(eingabe.Begdatum, "0");
    FuelleLeer(eingabe.Betrag, "0");
    eingabe.Betrag = Feldtext(Zahltext(Zahl(eingabe.Betrag)));
    FuelleLeer(eingabe.Ratzahl, "1");
    FuelleLeer(eingabe.Delta, "0");
    if (eingabe.Check1 && eingabe.Stufen.empty()) {
        return Ablehnung{std::string(meldung::stufenFehlen), "Stufen", ""};
    }
    const bool ohneBetrag = nullbetrag == Nullbetrag::abgelehnt && Zahl(eingabe.Betrag) == 0;
    if (ohneBetrag || DatumFehlt(eingabe.Begdatum)) {
        return Ablehnung{std::string(meldung::unvollstaendig), "Begdatum", ""};
    }
    return std::nullopt;
}

bool IstZahlungsreihe(const Zahlungseingabe& eingabe) {
    return eingabe.Check1 || Anzahl(eingabe.Ratzahl, 0) > 1;
}

void ZahlungenErzeugen(const Zahlungseingabe& eingabe, std::vector<Staffelsatz>& ziel) {
    Reihenschreiber reihe(eingabe, ziel);
    double betrag = Zahl(eingabe.Betrag);
    reihe.Schreibe(eingabe.Begdatum, betrag);
    const std::int64_t raten = Anzahl(eingabe.Ratzahl, 0);
    reihe.SchreibeFolgende(raten - 1, betrag);
    if (!eingabe.Check1 || raten <= 0) return;
    const std::int64_t stufen = Anzahl(eingabe.Stufen, 0);
    for (std::int64_t stufe = 1; stufe < stufen; ++stufe) {
        betrag = NaechsteStufe(betrag, eingabe);
        reihe.SchreibeFolgende(raten, betrag);
    }
}

std::string Datumrech(const Zahlungseingabe& eingabe) {
    if (eingabe.Begdatum.size() != 10 || eingabe.Abstand.empty()) return "";
    const std::int64_t raten = Anzahl(eingabe.Ratzahl, 1);
    if (raten <= 0) return "";
    const std::int64_t zahlungen = HatStufen(eingabe) ? raten * Anzahl(eingabe.Stufen, 0) : raten;
    if (std::abs(zahlungen) > 10'000'000) throw Zahlfehler("Die Zahlungsreihe ist zu lang.");
    const std::int64_t abstaende = Anzahl(eingabe.Abstand, 0) * (zahlungen - 1);
    return PlusEinheiten(Datum::Lesen(eingabe.Begdatum), abstaende, eingabe.Combo5).Text();
}

bool MonatsendeAngeboten(std::string_view begdatum) {
    const auto datum = Datum::Versuche(begdatum);
    return datum && datum->Tag() != 31 && datum->Tag() == Monatslaenge(datum->Jahr(), datum->Monat());
}

}  // namespace zinfolio
