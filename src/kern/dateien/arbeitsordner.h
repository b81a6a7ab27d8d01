#pragma once

#include <filesystem>
#include <string_view>

namespace zinfolio {

/// What the platform says about where a program may keep its state; an empty path where it says nothing.
struct Ordnerangaben {
    std::filesystem::path konfiguration{};  ///< $XDG_CONFIG_HOME
    std::filesystem::path heim{};           ///< $HOME
    std::filesystem::path kontoheim{};      ///< home folder in the user's password entry
    std::filesystem::path programm{};       ///< folder of the running program
};

/// The rule of `Arbeitsordner`, apart from the machine. Relative entries of the environment count as not set,
/// as the XDG base directory standard wants it.
[[nodiscard]] std::filesystem::path ArbeitsordnerAus(const Ordnerangaben& angaben);

/// The folder of all working files: "Fiskaris" under $XDG_CONFIG_HOME, else under ~/.config, else in the
/// folder of the running program. Makes nothing.
[[nodiscard]] std::filesystem::path Arbeitsordner();

/// Makes the folder and its missing parents, readable for their owner alone. An existing folder is fine.
/// Throws `Dateifehler`.
void ArbeitsordnerAnlegen(const std::filesystem::path& ordner);

/// Deletes the file `name` (UTF-8) in the folder; any failure is ignored, above all that there is none.
void LoescheDatei(const std::filesystem::path& ordner, std::string_view name);

}  // namespace zinfolio
