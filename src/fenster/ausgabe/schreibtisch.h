#pragma once
// Which word processor the desktop offers, by the freedesktop.org standards for desktop entries and for MIME
// applications.

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace zinfolio {

/// Where a desktop keeps its programs and what the user chose; of two entries the earlier folder's counts.
struct Schreibtischangaben {
    std::vector<std::filesystem::path> programmordner;      ///< $PATH
    std::vector<std::filesystem::path> datenordner;         ///< $XDG_DATA_HOME, $XDG_DATA_DIRS
    std::vector<std::filesystem::path> einstellungsordner;  ///< $XDG_CONFIG_HOME, $XDG_CONFIG_DIRS
};

/// What the environment of the program says, with the standards' defaults.
[[nodiscard]] Schreibtischangaben Schreibtisch();

/// How to start a word processor. Of the arguments, "%f" stands for the file and "%u" for its URL.
struct Textverarbeitung {
    std::filesystem::path programm;
    std::vector<std::string> argumente;

    friend bool operator==(const Textverarbeitung&, const Textverarbeitung&) = default;
};

/// The word processor that opens rich text: the one the user chose for it, else the first installed, else
/// LibreOffice or AbiWord in $PATH. A mere text editor does not count, nor does a program that is not there.
[[nodiscard]] std::optional<Textverarbeitung> TextverarbeitungFinden(const Schreibtischangaben& angaben);

/// Starts it with a file and does not wait for it. False where it cannot be started.
[[nodiscard]] bool TextverarbeitungStarten(const Textverarbeitung& textverarbeitung,
                                           const std::filesystem::path& datei);

}  // namespace zinfolio
