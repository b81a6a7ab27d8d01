#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zinfolio {

/// Where in the files a fault was found. `satznummer` counts from 1; 0 means the file as a whole.
struct Fundstelle {
    std::filesystem::path datei;
    std::size_t satznummer = 0;
};

/// A file or folder that cannot be read, written or understood. `what()` is a German sentence for the user
/// which names the file, the record where there is one, and the system's reason.
class Dateifehler : public std::runtime_error {
  public:
    explicit Dateifehler(const std::string& meldung) : std::runtime_error(meldung) {}
    Dateifehler(const Fundstelle& stelle, std::string_view grund);
};

/// A record whose bytes make no sense, or a value that does not fit into its record. Says the reason alone:
/// whoever knows the file turns it into a `Dateifehler` with its `Fundstelle`.
class Satzfehler : public Dateifehler {
  public:
    using Dateifehler::Dateifehler;
};

/// The German words for an `errno` value; its number for those that no file meets.
[[nodiscard]] std::string Systemgrund(int fehlernummer);

/// `Die Datei "X" kann nicht <vorgang> werden: <reason>`; `vorgang` is a participle such as "gelesen".
[[nodiscard]] Dateifehler Systemfehler(const std::filesystem::path& datei, std::string_view vorgang,
                                       int fehlernummer);

}  // namespace zinfolio
