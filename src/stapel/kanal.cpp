#include "stapel/kanal.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

#include "dateien/dateifehler.h"
#include "dateien/deskriptor.h"
#include "stapel/jsonleser.h"

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

Dateitext AllesLesen(int nummer, std::size_t hoechstens) {
    constexpr std::size_t lesemenge = std::size_t{64} << 10;
    Dateitext text;
    std::size_t gelesen = 1;
    while (gelesen > 0) {
        text.puffer.resize(text.laenge + lesemenge);
        gelesen = KanalLesen(nummer, text.puffer.data() + text.laenge, lesemenge);
        text.laenge += gelesen;
        if (text.laenge > hoechstens) throw Kanalfehler("Die Datei ist zu groß.");
    }
    text.puffer.resize(text.laenge);
    text.puffer.append(nachlauf, '\0');
    return text;
}

}  // namespace

std::size_t KanalLesen(int nummer, char* ziel, std::size_t platz) {
    const auto anzahl = OhneUnterbrechung([&] { return ::read(nummer, ziel, platz); });
    if (anzahl < 0) throw Kanalfehler("Die Eingabe kann nicht gelesen werden: " + Systemgrund(errno));
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
