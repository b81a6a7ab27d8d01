#include "stapel/befehle/fliessband.h"

#include <utility>

namespace zinfolio {
namespace {

/// A place does not keep the memory of an unusually large result.
constexpr std::size_t dauerplatz = std::size_t{4} << 20;

void Leeren(std::string& ergebnis) {
    if (ergebnis.capacity() > dauerplatz) {
        ergebnis = {};
    } else {
        ergebnis.clear();
    }
}

}  // namespace

bool Fliessband::Auflegen(Zeilenblock& block) {
    Sperre sperre(schloss);
    bewegung.wait(sperre, [&] { return aufgelegt - geschrieben < ring.size() || fehler; });
    if (fehler) return false;
    Werkstueck& stueck = Platz(aufgelegt);
    std::swap(stueck.block, block);
    stueck.nummer = aufgelegt++;
    stueck.fertig = false;
    bewegung.notify_all();
    return true;
}

void Fliessband::Schliessen() {
    const Sperre sperre(schloss);
    geschlossen = true;
    bewegung.notify_all();
}

Werkstueck* Fliessband::Nehmen() {
    Sperre sperre(schloss);
    bewegung.wait(sperre, [&] { return genommen < aufgelegt || geschlossen || fehler; });
    if (fehler || genommen == aufgelegt) return nullptr;
    return &Platz(genommen++);
}

void Fliessband::Schreiben(Werkstueck& stueck, Sperre& sperre) {
    schreibend = true;
    sperre.unlock();
    senke(stueck.ergebnis);
    Leeren(stueck.ergebnis);
    sperre.lock();
    schreibend = false;
}

void Fliessband::Zwischenausgabe(Werkstueck& stueck) {
    Sperre sperre(schloss);
    bewegung.wait(sperre, [&] { return (geschrieben == stueck.nummer && !schreibend) || fehler; });
    if (!fehler) Schreiben(stueck, sperre);
}

void Fliessband::Fertig(Werkstueck& stueck) {
    Sperre sperre(schloss);
    stueck.fertig = true;
    while (!schreibend && !fehler && geschrieben < genommen && Platz(geschrieben).fertig) {
        Schreiben(Platz(geschrieben), sperre);
        ++geschrieben;
        bewegung.notify_all();
    }
}

void Fliessband::Abbrechen(std::exception_ptr grund) {
    const Sperre sperre(schloss);
    if (!fehler) fehler = std::move(grund);
    bewegung.notify_all();
}

void Fliessband::FehlerWerfen() const {
    const Sperre sperre(schloss);
    if (fehler) std::rethrow_exception(fehler);
}

}  // namespace zinfolio
