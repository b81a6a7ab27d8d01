#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <malloc.h>
#include <sys/mman.h>
#include <thread>
#include <unistd.h>

#include "stapel/befehle/aufruf.h"
#include "stapel/befehle/befehle.h"
#include "stapel/befehle/kanal.h"
#include "stapel/befehle/optionen.h"
#include "stapel/befehle/stapelverarbeitung.h"

namespace zinfolio {
namespace {

constexpr unsigned hoechsteKerne = 256;

constexpr const char* stapelbeispiel =
    "Beispiel:\n"
    "  zinfolio-cli stapel < auftraege.jsonl > ergebnisse.jsonl\n"
    "Ein Auftrag ist ein JSON-Objekt auf einer Zeile:\n"
    R"(  {"id":1,"rechnung":"tage","Von":"01.01.2007","Bis":"31.03.2007","Verzinsungsmethode":0})";

/// Asks the system for large pages for the coming results. A statement of thirty thousand rows takes some 16
/// MB, and fetching them page by page of 4 KB would take a third of its time. Nothing happens where the
/// system has no such pages.
void GrosseSeitenErbitten() {
    constexpr int vorrat = 32 << 20;  // the most that M_MMAP_THRESHOLD takes
    constexpr std::size_t grosseSeite = std::size_t{2} << 20U;
    // All memory comes from one growing range, and stays in it when it is given back.
    mallopt(M_MMAP_THRESHOLD, vorrat);
    mallopt(M_TRIM_THRESHOLD, 4 * vorrat);
    mallopt(M_TOP_PAD, 2 * vorrat);
    const auto* const anfang = static_cast<char*>(sbrk(0));
    // NOLINTBEGIN(cppcoreguidelines-no-malloc): it is the allocator itself that shall grow
    void* volatile probe = std::malloc(grosseSeite);  // volatile, or the compiler drops the pair
    std::free(probe);
    // NOLINTEND(cppcoreguidelines-no-malloc)
    auto* const ende = static_cast<char*>(sbrk(0));
    const std::size_t rand = reinterpret_cast<std::uintptr_t>(ende) % grosseSeite;
    const auto gewachsen = static_cast<std::size_t>(ende - anfang);
    if (gewachsen < grosseSeite + rand) return;
    const std::size_t laenge = (gewachsen - rand) / grosseSeite * grosseSeite;
    madvise(ende - rand - laenge, laenge, MADV_HUGEPAGE);
}

unsigned KerneLesen(Option option) {
    if (!OptionSteht(option)) return std::max(1U, std::thread::hardware_concurrency());
    const std::string text = Optionstext(option);
    unsigned kerne = 0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), kerne);
    const bool ganz = fehler == std::errc() && ende == text.data() + text.size();
    if (ganz && kerne >= 1 && kerne <= hoechsteKerne) return kerne;
    WertAblehnen(option, "eine ganze Zahl von 1 bis " + std::to_string(hoechsteKerne));
}

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

int Ausfuehren(unsigned kerne) {
    GrosseSeitenErbitten();
    const auto eingabe = [](char* ziel, std::size_t platz) { return KanalLesen(STDIN_FILENO, ziel, platz); };
    return StapelRechnen(eingabe, AusgebenOderEnden, kerne) ? status::fertig : status::abgelehnt;
}

std::function<int()> StapelAnbieten(CLI::App& zeile) {
    zeile.footer(stapelbeispiel);
    const Option kerne = OptionAnbieten(zeile, "--kerne", "N",
                                        "Zahl der Rechenkerne, 1 bis " + std::to_string(hoechsteKerne) +
                                            "; sonst alle des Rechners. Das Ergebnis ist immer dasselbe");
    return [kerne] { return Ausfuehren(KerneLesen(kerne)); };
}

}  // namespace

constexpr Befehl befehlStapel{"stapel", "Rechnet Aufträge von der Standardeingabe, einen je Zeile",
                              StapelAnbieten};

}  // namespace zinfolio
