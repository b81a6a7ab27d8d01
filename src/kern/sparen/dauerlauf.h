#pragma once
// The balance of a plan at any end: what a search for the end asks for. The rows before a closing date do not
// depend on it, so they are calculated once and carried on as far as the latest end asked for.

#include <cstddef>
#include <vector>

#include "kern/sparen/planlauf.h"
#include "kern/sparen/ratenfolge.h"
#include "kern/staffel/zinstermine.h"

namespace zinfolio {

/// A plan of one rate, open at its end.
class Dauerlauf {
  public:
    /// Form and plan outlive this object. A field that is no date or number is a fault.
    Dauerlauf(const Sparform& form, const Sparplan& plan);

    /// The `LetzterKontostand` of a pass that ends at `ende`, bit for bit; faults where that pass has one. 0
    /// for an end before the plan begins, where there is no account.
    [[nodiscard]] double Endstand(Datum ende);

  private:
    enum class Art { kondition, zahlung, zinstermin };
    struct Zahlung {
        Datum tag;
        double betrag;
    };
    /// After a row: the balance, and the interest accrued before the row's own period.
    struct Stand {
        Datum tag;
        Art art;
        double kontostand;
        double angefallen;
    };

    void ZahlungenBis(Datum ende);
    void TermineBis(Datum ende);
    void Anfuegen(Datum tag, Art art, double betrag);
    [[nodiscard]] double Periodenzins(const Stand& stand, Datum bis) const;
    [[nodiscard]] bool HatSchlusszeile(Datum ende) const;

    Verzinsungsmethode methode;
    Zinsverrechnungsart rhythmus;
    float zins;
    Ratenfolge folge;
    Ratentage tage;
    Datum anfang;
    Datum ersterKandidat;
    Datum ersterTermin;
    Datum naechsterTermin;
    Datum naechsteRate;
    std::vector<Zahlung> zahlungen;
    std::vector<Datum> termine;
    std::size_t gebuchteZahlungen = 0;
    std::size_t gebuchteTermine = 0;
    std::vector<Stand> staende;
};

}  // namespace zinfolio
