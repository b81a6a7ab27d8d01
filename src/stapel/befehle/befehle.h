#pragma once
// The commands of the program. A command is one file `befehl_NAME.cpp`: its options, how they are read, and
// what it does. It is entered here, in the list below.

#include <array>
#include <functional>

namespace CLI {
class App;
}

namespace zinfolio {

/// A command by its word on the command line.
struct Befehl {
    const char* wort;
    /// One line of the help.
    const char* erklaerung;
    /// Adds options and examples to the command line, which outlives them. Gives what runs the command once
    /// the line has been read: it returns the exit status (`aufruf.h`) and throws `Aufruffehler` for
    /// wrong values, `Kanalfehler` and `Dateifehler` for what cannot be read or written.
    std::function<int()> (*anbieten)(CLI::App& zeile);
};

extern const Befehl befehlRechne;
extern const Befehl befehlReihe;
extern const Befehl befehlSparen;
extern const Befehl befehlStaffel;
extern const Befehl befehlStapel;

/// All commands in the order of the help.
inline constexpr std::array befehle{&befehlStapel, &befehlRechne, &befehlStaffel, &befehlReihe,
                                    &befehlSparen};

}  // namespace zinfolio
