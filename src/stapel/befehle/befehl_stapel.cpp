#include <cstdlib>
#include <unistd.h>

#include "stapel/befehle/ausgangsstatus.h"
#include "stapel/befehle/befehle.h"
#include "stapel/befehle/kanal.h"
#include "stapel/befehle/speicher.h"
#include "stapel/befehle/stapelverarbeitung.h"

namespace zinfolio {
namespace {

/// Ends the program at once where the output fails: the thread that reads may wait for input that never
/// comes, and there is nothing to be cleaned up.
void AusgebenOderEnden(std::string_view text) {
    try {
        AusgabeSchreiben(text);
    } catch (const Kanalfehler& fehler) {
        FehlerMelden(fehler.what());
        std::_Exit(status::falsch);
    }
}

}  // namespace

int BefehlStapel(unsigned kerne) {
    GrosseSeitenErbitten();
    const auto eingabe = [](char* ziel, std::size_t platz) { return KanalLesen(STDIN_FILENO, ziel, platz); };
    return StapelRechnen(eingabe, AusgebenOderEnden, kerne) ? status::fertig : status::abgelehnt;
}

}  // namespace zinfolio
