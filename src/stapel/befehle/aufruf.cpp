#include "stapel/befehle/aufruf.h"

#include <CLI/CLI.hpp>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "stapel/befehle/befehle.h"
#include "stapel/befehle/kanal.h"

namespace zinfolio {
namespace {

constexpr const char* beispiele =
    "Beispiele:\n"
    "  zinfolio-cli rechne konto.json\n"
    "  zinfolio-cli staffel konto.ZiS --pdf konto.pdf\n"
    "  zinfolio-cli stapel < auftraege.jsonl > ergebnisse.jsonl\n"
    "\n"
    "Status am Ende: 0 gerechnet; 1 abgelehnt (im Stapel: wenigstens ein Auftrag ohne Ergebnis);\n"
    "2 falscher Aufruf, unlesbare Eingabe oder unschreibbare Ausgabe.";

/// The command line with what it has been filled with.
struct Kommandozeile {
    CLI::App app{"Rechnet Konten und Zahlungen, wie die Fenster von zinfolio es tun.", "zinfolio-cli"};
    /// Runs the command that the line calls.
    std::function<int()> ausfuehren;

    Kommandozeile() {
        Beschriften();
        app.allow_extras();
        app.set_version_flag("--version", "zinfolio-cli " ZINFOLIO_VERSION, "Die Version zeigen")
            ->group("Optionen");
        app.require_subcommand(1);
        app.footer(beispiele);
        for (const Befehl* const befehl : befehle)
            Anmelden(*befehl);
    }

    void Beschriften() {
        const auto form = std::make_shared<CLI::Formatter>();
        form->label("Usage", "Aufruf");
        form->label("OPTIONS", "OPTIONEN");
        form->label("SUBCOMMAND", "BEFEHL");
        form->label("Positionals", "Angaben");
        form->column_width(24);
        app.formatter(form);
        app.option_defaults()->group("Optionen");
        app.set_help_flag("-h,--help", "Diese Hilfe zeigen; hinter einem Befehl die des Befehls")
            ->group("Optionen");
    }

    void Anmelden(const Befehl& befehl) {
        CLI::App* const zeile = app.add_subcommand(befehl.wort, befehl.erklaerung)->group("Befehle");
        zeile->set_help_flag("-h,--help", "Diese Hilfe zeigen")->group("Optionen");
        // Options are made only where the command is called, so that no command pays for the others.
        zeile->preparse_callback(
            [this, &befehl, zeile](std::size_t) { ausfuehren = befehl.anbieten(*zeile); });
    }
};

/// Refuses what no command or option has taken.
void UeberzaehligesAblehnen(const CLI::App& app) {
    const auto ueberzaehlig = app.remaining(true);
    if (ueberzaehlig.empty()) return;
    const std::string& erstes = ueberzaehlig.front();
    if (erstes.starts_with("-")) throw Aufruffehler("Die Option " + Angefuehrt(erstes) + " gibt es nicht.");
    if (app.get_subcommands().empty())
        throw Aufruffehler("Den Befehl " + Angefuehrt(erstes) + " gibt es nicht.");
    throw Aufruffehler("Die Angabe " + Angefuehrt(erstes) + " ist zu viel.");
}

/// The word that a message of the library begins with: an option or the name of an argument.
std::string ErstesWort(const CLI::ParseError& fehler) {
    const std::string_view text = fehler.what();
    return std::string(text.substr(0, text.find_first_of(" :")));
}

[[noreturn]] void EtwasFehlt(const CLI::App& app, const CLI::RequiredError& fehler) {
    UeberzaehligesAblehnen(app);
    const auto gerufen = app.get_subcommands();
    if (gerufen.empty()) throw Aufruffehler("Es fehlt der Befehl.");
    throw Aufruffehler("Dem Befehl " + Angefuehrt(gerufen.front()->get_name()) + " fehlt die " +
                       ErstesWort(fehler) + ".");
}

/// Reads the arguments and runs the command. Throws `Aufruffehler`.
int Verarbeiten(Kommandozeile& zeile, int argc, const char* const* argv) {
    try {
        zeile.app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        AusgabeSchreiben(zeile.app.help());
        return status::fertig;
    } catch (const CLI::CallForVersion& version) {
        AusgabeSchreiben(std::string(version.what()) + "\n");
        return status::fertig;
    } catch (const CLI::RequiredError& fehler) {
        EtwasFehlt(zeile.app, fehler);
    } catch (const CLI::ParseError& fehler) {
        throw Aufruffehler("Die Option " + Angefuehrt(ErstesWort(fehler)) +
                           " steht nicht mit der richtigen Zahl von Werten.");
    }
    UeberzaehligesAblehnen(zeile.app);
    return zeile.ausfuehren();
}

}  // namespace

int Aufrufen(int argc, const char* const* argv) {
    Kommandozeile zeile;
    try {
        return Verarbeiten(zeile, argc, argv);
    } catch (const Aufruffehler& fehler) {
        FehlerMelden("zinfolio-cli: " + std::string(fehler.what()) + "\nHilfe: zinfolio-cli --help");
        return status::falsch;
    }
}

}  // namespace zinfolio
