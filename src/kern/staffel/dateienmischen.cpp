#include "kern/staffel/dateienmischen.h"

#include <string>

#include "kern/dateien/satzdatei.h"
#include "kern/grund/rechenfehler.h"
#include "kern/staffel/meldungen.h"

namespace zinfolio {
namespace {

constexpr Datum kalenderende = *Datum::Aus(Datum::letztesJahr, 12, 31);

/// Walks over one source. Behind its last row it stands at the end of the calendar; a row that is dated there
/// counts as the end too.
class Quelle {
  public:
    explicit Quelle(std::span<const Staffelsatz> saetze) : saetze_(saetze) { Lesen(); }

    [[nodiscard]] Datum Stand() const { return datum_; }
    [[nodiscard]] bool AmEnde() const { return datum_ == kalenderende; }

    [[nodiscard]] const Staffelsatz& Satz() const { return saetze_[stelle_]; }

    void Weiter() {
        ++stelle_;
        Lesen();
    }

  private:
    void Lesen() { datum_ = stelle_ < saetze_.size() ? DatumVon(saetze_[stelle_]) : kalenderende; }

    std::span<const Staffelsatz> saetze_;
    std::size_t stelle_ = 0;
    Datum datum_;
};

Quelle& NaechsteQuelle(Quelle& zahlungen, Quelle& konditionen, Quelle& termine) {
    const Datum zahlung = zahlungen.Stand();
    const Datum kondition = konditionen.Stand();
    const Datum termin = termine.Stand();
    if (zahlung < kondition && zahlung <= termin) return zahlungen;
    if (kondition <= zahlung && kondition <= termin) return konditionen;
    return termine;
}

}  // namespace

std::optional<Ablehnung> QuellenPruefen(std::span<const Staffelsatz> zahlungen,
                                        std::span<const Staffelsatz> konditionen) {
    if (zahlungen.empty()) {
        return Ablehnung{std::string(meldung::keineZahlungen), "", std::string(register_::zahlungen)};
    }
    if (konditionen.empty()) {
        return Ablehnung{std::string(meldung::keineKonditionen), "", std::string(register_::zinssaetze)};
    }
    return std::nullopt;
}

std::optional<Ablehnung> dateienmischen(const Staffelquellen& quellen, Datum abschluss,
                                        std::vector<Staffelsatz>& loesung) {
    loesung.clear();
    if (auto ablehnung = QuellenPruefen(quellen.zahlungen, quellen.konditionen)) return ablehnung;
    if (quellen.termine.empty()) throw Rechenfehler("Die Datei der Zinstermine ist leer.");
    loesung.reserve(quellen.zahlungen.size() + quellen.konditionen.size() + quellen.termine.size());
    Quelle zahlungen(quellen.zahlungen);
    Quelle konditionen(quellen.konditionen);
    Quelle termine(quellen.termine);
    do {
        Quelle& naechste = NaechsteQuelle(zahlungen, konditionen, termine);
        if (naechste.Stand() > abschluss) break;
        if (loesung.size() >= HoechstzahlSaetze) throw Rechenfehler(UeberHoechstzahl("Zeilen der Staffel"));
        loesung.push_back(naechste.Satz());
        naechste.Weiter();
    } while (!(zahlungen.AmEnde() && konditionen.AmEnde() && termine.AmEnde()));
    return std::nullopt;
}

}  // namespace zinfolio
