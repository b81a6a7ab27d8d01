// Saves one or more files together, between two marks that a trace of its system calls shows.
//   atomar_probe fluechtig|dauerhaft TARGET SOURCE [TARGET SOURCE ...]
// Exit status: 0 saved, 1 a fault was reported, 2 wrong arguments.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

#include "kern/dateien/atomar.h"
#include "kern/dateien/dateifehler.h"

namespace {

using zinfolio::Sicherung;

struct Auftrag {
    std::filesystem::path ziel;
    std::string inhalt;
};

std::string Einlesen(const char* quelle) {
    std::ifstream datei(quelle, std::ios::binary);
    return {std::istreambuf_iterator<char>(datei), std::istreambuf_iterator<char>()};
}

void Marke(const char* name) {
    (void)::access(name, F_OK);
}

void Sichern(const std::vector<Auftrag>& auftraege, Sicherung sicherung) {
    std::vector<zinfolio::AtomareDatei> dateien;
    dateien.reserve(auftraege.size());
    for (const Auftrag& auftrag : auftraege)
        dateien.emplace_back(auftrag.ziel, zinfolio::AlsBytes(auftrag.inhalt), sicherung);
    for (zinfolio::AtomareDatei& datei : dateien)
        datei.Vollenden();
}

}  // namespace

int main(int anzahl, char** argumente) {
    if (anzahl < 4 || anzahl % 2 != 0) return 2;
    const bool dauerhaft = std::string_view(argumente[1]) == "dauerhaft";
    std::vector<Auftrag> auftraege;
    for (int i = 2; i < anzahl; i += 2)
        auftraege.push_back({argumente[i], Einlesen(argumente[i + 1])});
    try {
        Marke("/marke-anfang");
        Sichern(auftraege, dauerhaft ? Sicherung::Dauerhaft : Sicherung::Fluechtig);
        Marke("/marke-ende");
    } catch (const zinfolio::Dateifehler& fehler) {
        std::cerr << fehler.what() << '\n';
        return 1;
    }
    return 0;
}
