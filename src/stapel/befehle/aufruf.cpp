#include "stapel/befehle/aufruf.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

#include "stapel/befehle/aufruffehler.h"
#include "stapel/befehle/ausgangsstatus.h"
#include "stapel/befehle/befehle.h"
#include "stapel/befehle/kanal.h"
#include "stapel/befehle/staffeloptionen.h"

namespace zinfolio {
namespace {

constexpr unsigned hoechsteKerne = 256;

constexpr const char* statusworte =
    "Status am Ende: 0 gerechnet; 1 abgelehnt (im Stapel: wenigstens ein Auftrag ohne Ergebnis);\n"
    "2 falscher Aufruf, unlesbare Eingabe oder unschreibbare Ausgabe.";

constexpr const char* stapelbeispiel =
    "Beispiel:\n"
    "  zinfolio-cli stapel < auftraege.jsonl > ergebnisse.jsonl\n"
    "Ein Auftrag ist ein JSON-Objekt auf einer Zeile:\n"
    R"(  {"id":1,"rechnung":"tage","Von":"01.01.2007","Bis":"31.03.2007","Verzinsungsmethode":0})";

constexpr const char* rechnebeispiel =
    "Beispiel:\n"
    "  zinfolio-cli rechne konto.json";

/// The command line with what it has been filled with.
struct Kommandozeile {
    CLI::App app{"Rechnet Konten und Zahlungen, wie die Fenster von zinfolio es tun.", "zinfolio-cli"};
    CLI::App* stapel = nullptr;
    CLI::App* rechne = nullptr;
    CLI::App* staffel = nullptr;
    CLI::Option* kerne = nullptr;
    std::string kernetext;
    std::string datei;
    std::optional<Staffeloptionen> staffeloptionen;

    Kommandozeile() {
        Beschriften();
        app.allow_extras();
        app.set_version_flag("--version", "zinfolio-cli " ZINFOLIO_VERSION, "Die Version zeigen")
            ->group("Optionen");
        app.require_subcommand(1);
        app.footer(
            "Beispiele:\n"
            "  zinfolio-cli rechne konto.json\n"
            "  zinfolio-cli staffel konto.ZiS --pdf konto.pdf\n"
            "  zinfolio-cli stapel < auftraege.jsonl > ergebnisse.jsonl\n" +
            std::string("\n") + statusworte);
        Befehle();
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

    void Befehle() {
        stapel = app.add_subcommand("stapel", "Rechnet Aufträge von der Standardeingabe, einen je Zeile");
        kerne = stapel->add_option("--kerne", kernetext,
                                   "Zahl der Rechenkerne, 1 bis " + std::to_string(hoechsteKerne) +
                                       "; sonst alle des Rechners. Das Ergebnis ist immer dasselbe");
        kerne->option_text("N")->take_last();
        rechne =
            app.add_subcommand("rechne", "Rechnet den Auftrag einer Datei und zeigt das Ergebnis eingerückt");
        rechne->add_option("DATEI", datei, "Der Auftrag als JSON; - ist die Standardeingabe")
            ->option_text(" ")
            ->required();
        stapel->footer(stapelbeispiel);
        rechne->footer(rechnebeispiel);
        staffel = app.add_subcommand(
            "staffel", "Rechnet ein gespeichertes Konto und zeigt die Staffel oder schreibt ihren Bericht");
        // Its many options are made only where the command is called, so that the others start as fast as
        // before.
        staffel->preparse_callback([this](std::size_t) { staffeloptionen.emplace(*staffel); });
        for (CLI::App* const befehl : {stapel, rechne, staffel}) {
            befehl->group("Befehle");
            befehl->set_help_flag("-h,--help", "Diese Hilfe zeigen")->group("Optionen");
        }
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

/// The option that the library's message begins with.
[[noreturn]] void WertFehlt(const CLI::ParseError& fehler) {
    const std::string_view text = fehler.what();
    throw Aufruffehler("Die Option " + Angefuehrt(text.substr(0, text.find_first_of(" :"))) +
                       " steht nicht mit der richtigen Zahl von Werten.");
}

unsigned KerneLesen(const Kommandozeile& zeile) {
    if (zeile.kerne->count() == 0) return std::max(1U, std::thread::hardware_concurrency());
    const std::string& text = zeile.kernetext;
    unsigned kerne = 0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), kerne);
    const bool ganz = fehler == std::errc() && ende == text.data() + text.size();
    if (ganz && kerne >= 1 && kerne <= hoechsteKerne) return kerne;
    throw Aufruffehler("Die Option \"--kerne\" verlangt eine ganze Zahl von 1 bis " +
                       std::to_string(hoechsteKerne) + ", nicht " + Angefuehrt(text) + ".");
}

int Ausfuehren(const Kommandozeile& zeile) {
    UeberzaehligesAblehnen(zeile.app);
    if (zeile.stapel->parsed()) return BefehlStapel(KerneLesen(zeile));
    if (zeile.staffel->parsed()) return BefehlStaffel(zeile.staffeloptionen->Lesen());
    return BefehlRechne(zeile.datei);
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
    } catch (const CLI::RequiredError&) {
        UeberzaehligesAblehnen(zeile.app);
        if (zeile.rechne->parsed()) throw Aufruffehler("Dem Befehl \"rechne\" fehlt die DATEI.");
        throw Aufruffehler("Es fehlt der Befehl.");
    } catch (const CLI::ParseError& fehler) {
        WertFehlt(fehler);
    }
    return Ausfuehren(zeile);
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
