#include "stapel/befehle/pdfmodul.h"

#include <cstdint>
#include <dlfcn.h>
#include <filesystem>
#include <system_error>

#include "kern/dateien/programmordner.h"

namespace zinfolio {
namespace {

constexpr std::uint64_t berichtslayout = ZINFOLIO_BERICHTSLAYOUT;
constexpr const char* modulname = "zinfolio-pdf.so";
constexpr const char* funktionsname = "ZinfolioBerichtAlsPdf";
/// The module's number for how a report lies in memory.
constexpr const char* layoutname = "ZinfolioBerichtslayout";

/// Gives 0 for success, else the reason in `fehler`.
using Modulfunktion = int (*)(const Bericht*, const char* datei, std::string* fehler);

/// Where the module lies: beside the program, or in the folder of its installation.
std::filesystem::path Modulpfad() {
    const std::filesystem::path ordner = Programmordner();
    std::error_code fehler;
    const std::filesystem::path daneben = ordner / modulname;
    return std::filesystem::exists(daneben, fehler) ? daneben : ordner / "../lib/zinfolio" / modulname;
}

/// Null where the module is missing, or was built with another report. It stays loaded until the program
/// ends.
Modulfunktion ModulLaden() {
    void* const modul = ::dlopen(Modulpfad().c_str(), RTLD_NOW | RTLD_LOCAL);
    if (modul == nullptr) return nullptr;
    const auto* const layout = static_cast<const std::uint64_t*>(::dlsym(modul, layoutname));
    if (layout == nullptr || *layout != berichtslayout) return nullptr;
    return reinterpret_cast<Modulfunktion>(::dlsym(modul, funktionsname));
}

}  // namespace

std::string PdfSchreiben(const Bericht& bericht, const std::string& datei) {
    const Modulfunktion schreiben = ModulLaden();
    if (schreiben == nullptr) {
        return "Diese Installation kann keine PDF-Dateien schreiben: Neben dem Programm fehlt das Modul " +
               std::string(modulname) + ", oder es passt nicht zu diesem Programm.";
    }
    std::string fehler;
    if (schreiben(&bericht, datei.c_str(), &fehler) == 0) return {};
    return fehler.empty() ? "Die PDF-Datei \"" + datei + "\" kann nicht geschrieben werden." : fehler;
}

}  // namespace zinfolio
