#include "stapel/befehle/kanal.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/deskriptor.h"
#include "kern/dateien/ganzedatei.h"
#include "stapel/json/jsonleser.h"

namespace zinfolio {
namespace {

/// Writes everything; false, with `errno` set, where the system refuses.
bool Schreiben(int nummer, std::string_view text) {
    while (!text.empty()) {
        const auto anzahl = OhneUnterbrechung([&] { return ::write(nummer, text.data(), text.size()); });
        if (anzahl < 0) return false;
        text.remove_prefix(static_cast<std::size_t>(anzahl));
    }
    return true;
}

Kanalfehler Lesefehler(int fehlernummer) {
    return Kanalfehler("Die Eingabe kann nicht gelesen werden: " + Systemgrund(fehlernummer));
}

Dateitext AllesLesen(int nummer, std::size_t hoechstens) {
    Dateitext text;
    if (!RestLesen(nummer, hoechstens, text.puffer)) {
        if (errno == EFBIG) throw Kanalfehler("Die Datei ist zu groß.");
        throw Lesefehler(errno);
    }
    text.laenge = text.puffer.size();
    text.puffer.append(nachlauf, '\0');
    return text;
}

}  // namespace

std::size_t KanalLesen(int nummer, char* ziel, std::size_t platz) {
    const auto anzahl = OhneUnterbrechung([&] { return ::read(nummer, ziel, platz); });
    if (anzahl < 0) throw Lesefehler(errno);
    return static_cast<std::size_t>(anzahl);
}

void AusgabeSchreiben(std::string_view text) {
    if (Schreiben(STDOUT_FILENO, text)) return;
    throw Kanalfehler("Die Ausgabe kann nicht geschrieben werden: " + Systemgrund(errno));
}

void FehlerMelden(std::string_view meldung) {
    // Where standard error fails too there is nobody left to tell.
    static_cast<void>(Schreiben(STDERR_FILENO, std::string(meldung) + "\n"));
}

Dateitext DateiLesen(const std::string& name, std::size_t hoechstens) {
    if (name == "-") return AllesLesen(STDIN_FILENO, hoechstens);
    const Deskriptor datei(name, O_RDONLY);
    if (!datei.Offen()) throw Kanalfehler("Die Datei kann nicht geöffnet werden: " + Systemgrund(errno));
    return AllesLesen(datei.Nummer(), hoechstens);
}

}  // namespace zinfolio
