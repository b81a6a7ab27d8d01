// Saves an account as a project, between two marks that a trace of its system calls shows.
//   projekt_probe WORKINGFOLDER PROJECTFILE NOTES
// Exit status: 0 saved, 1 a fault was reported, 2 wrong arguments.

#include <iostream>
#include <string>
#include <unistd.h>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/ganzedatei.h"
#include "kern/staffel/kontoprojekt.h"

namespace {

constexpr std::size_t reichlich = std::size_t{1} << 20;

void Marke(const char* name) {
    (void)::access(name, F_OK);
}

}  // namespace

int main(int anzahl, char** argumente) {
    if (anzahl != 4) return 2;
    const std::string notizen = zinfolio::GanzeDateiLesen(argumente[3], reichlich);
    try {
        Marke("/marke-anfang");
        zinfolio::KontoprojektSpeichern(argumente[1], argumente[2], notizen);
        Marke("/marke-ende");
    } catch (const zinfolio::Dateifehler& fehler) {
        std::cerr << fehler.what() << '\n';
        return 1;
    }
    return 0;
}
