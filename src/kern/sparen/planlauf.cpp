#include "kern/sparen/planlauf.h"

#include <algorithm>
#include <cmath>

#include "kern/dateien/satzdatei.h"
#include "kern/dates/zahl.h"
#include "kern/grund/rechenfehler.h"
#include "kern/grund/utf8.h"
#include "kern/grund/windows1252.h"
#include "kern/sparen/ratenfolge.h"
#include "kern/staffel/dateienmischen.h"
#include "kern/staffel/staffelberechnung.h"
#include "kern/staffel/zinstermine.h"

namespace zinfolio {
namespace {

Festtext<25> Zahlungstext(std::string_view utf8) {
    return Festtext<25>::AusWindows1252(NachWindows1252(utf8));
}

/// What the rows of rates are called.
struct Ratentexte {
    Festtext<25> erste;
    Festtext<25> weitere;
    /// For amounts up to 0.
    Festtext<25> auszahlung;

    [[nodiscard]] const Festtext<25>& Weitere(double betrag) const {
        return betrag <= 0 ? auszahlung : weitere;
    }
};

Ratentexte TexteFuer(Dynamik dynamik, double startrate) {
    const Festtext<25> zahlung = Zahlungstext("Zahlung");
    // The simple form does not tell the sign, and its small letter is intended to stay.
    if (dynamik == Dynamik::einfach)
        return {Zahlungstext("Rate"), Zahlungstext("rate"), Zahlungstext("rate")};
    const Festtext<25> auszahlung = Zahlungstext("Auszahlung");
    return {startrate <= 0 ? auszahlung : zahlung, zahlung, auszahlung};
}

/// Puts payments one behind the other.
class Zahlungsschreiber {
  public:
    explicit Zahlungsschreiber(std::vector<Staffelsatz>& zielsaetze) : ziel(zielsaetze) { ziel.clear(); }

    void Schreibe(std::string_view datumstext, double betrag, const Festtext<25>& text) {
        if (ziel.size() >= HoechstzahlSaetze) throw Rechenfehler(UeberHoechstzahl("Zahlungen"));
        Staffelsatz& satz = ziel.emplace_back();
        satz.Zahlungsart = zahlungsart::zahlung;
        satz.Zahlungstext = text;
        SetzeDatum(satz, datumstext);
        satz.Zahlbetrag = betrag;
    }

  private:
    std::vector<Staffelsatz>& ziel;
};

Konditionen EinZins(float zins) {
    return {.Gutzins1 = zins,
            .Gutzins2 = zins,
            .Guthabenlinie = 0,
            .Kreditzins1 = zins,
            .Kreditzins2 = zins,
            .Kreditlinie = 0,
            .Zweitzinsart = 1};
}

/// Room for all rows up to the end of a plan.
std::size_t HoechstensRaten(const Sparplan& plan, Datum ende) {
    const int monate = 12 * (ende.Jahr() - Datum::Lesen(plan.ratdatum1).Jahr() + 1);
    const int raten = std::max(0, monate / Zahlungsmonate(plan));
    return std::min(static_cast<std::size_t>(raten) + 3, HoechstzahlSaetze);
}

void TermineSchreiben(const Sparplan& plan, Datum anfang, Datum ende, std::vector<Staffelsatz>& ziel) {
    std::vector<Datum> termine;
    const auto uebernehmen = [&] {
        ziel.clear();
        ziel.reserve(termine.size());
        for (const Datum termin : termine)
            ziel.push_back(Zinsterminsatz(termin));
    };
    try {
        Zinstermine(anfang, ende, static_cast<Zinsverrechnungsart>(plan.Combo4), termine);
    } catch (...) {
        uebernehmen();
        throw;
    }
    uebernehmen();
}

}  // namespace

double Startkapital(const Sparplan& plan, const Planprobe& probe) {
    return probe.kapital ? *probe.kapital : Zahl(plan.AnfVermögen);
}

double Startrate(const Sparplan& plan, const Planprobe& probe) {
    return probe.rate ? *probe.rate : Zahl(plan.Betrag);
}

Datum Planende(const Sparplan& plan, const Planprobe& probe) {
    return probe.ende ? *probe.ende : Datum::Lesen(plan.Enddatum);
}

float Satzzins(double prozent) {
    const auto satz = static_cast<float>(prozent);
    if (!std::isfinite(satz)) throw Rechenfehler("Der Zinssatz ist zu groß.");
    return satz;
}

void RatenErzeugen(const Sparform& form, const Sparplan& plan, const Planprobe& probe,
                   std::vector<Staffelsatz>& ziel) {
    Zahlungsschreiber schreiber(ziel);
    schreiber.Schreibe(plan.Anfdatum, Startkapital(plan, probe), Zahlungstext("Anfangsvermögen"));
    const double startrate = Startrate(plan, probe);
    const Ratentexte texte = TexteFuer(form.dynamik, startrate);
    schreiber.Schreibe(plan.ratdatum1, startrate, texte.erste);
    const Datum ende = Planende(plan, probe);
    ziel.reserve(HoechstensRaten(plan, ende));
    Ratenfolge folge(form, plan, startrate);
    Ratentage tage(plan);
    while (true) {
        const Datum rohes = tage.Rohes();
        if (ende < rohes) break;
        const Datum tag = tage.Weiter(rohes);
        const double rate = folge.Naechste();
        schreiber.Schreibe(tag.Text(), rate, texte.Weitere(rate));
    }
    if (probe.mitEndvermoegen)
        schreiber.Schreibe(plan.Enddatum, -Zahl(plan.Vermendwert), Zahlungstext("Endvermögen"));
}

void KonditionenSchreiben(const Sparform& form, const Sparplan& plan, const Planprobe& probe,
                          std::vector<Staffelsatz>& ziel) {
    ziel.clear();
    const float zins = Satzzins(probe.zins ? *probe.zins : Zahl(plan.Zins));
    ziel.push_back(Konditionssatz(plan.Anfdatum, EinZins(zins)));
    if (!form.zinstabelle) return;
    constexpr std::size_t kuerzestesDatum = 4;
    for (std::size_t i = 0; i < zinstabellenzeilen; ++i) {
        const std::string& datum = plan.ZinsWDAt[i];
        if (Zeichenzahl(datum) < kuerzestesDatum || Datum::Lesen(datum) > Datum::Lesen(plan.Enddatum))
            continue;
        ziel.push_back(Konditionssatz(datum, EinZins(Satzzins(Zahl(plan.Zinsbetrag[i])))));
        ziel.back().Zahlungstext = Zahlungstext("Zinsänderung");
    }
}

void Planlauf(const Sparform& form, const Sparplan& plan, const Planprobe& probe, Sparlauf& lauf) {
    RatenErzeugen(form, plan, probe, lauf.zahlungen.emplace());
    const Datum ende = Planende(plan, probe);
    TermineSchreiben(plan, DatumVon(lauf.zahlungen->front()), ende, lauf.termine.emplace());
    KonditionenSchreiben(form, plan, probe, lauf.konditionen.emplace());
    const Staffelquellen quellen{*lauf.zahlungen, *lauf.konditionen, *lauf.termine};
    // Never refused: a plan has its first payment and its first condition.
    static_cast<void>(dateienmischen(quellen, ende, lauf.loesung.emplace()));
    Staffelberechnung(*lauf.loesung, static_cast<Verzinsungsmethode>(plan.Combo2));
}

double LetzterKontostand(const Sparlauf& lauf) {
    if (!lauf.loesung || lauf.loesung->empty()) throw Rechenfehler("Das Konto hat keine Zeile.");
    return lauf.loesung->back().Kontostand;
}

}  // namespace zinfolio
