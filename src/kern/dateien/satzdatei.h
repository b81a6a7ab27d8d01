#pragma once

#include <concepts>
#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kern/dateien/arbeitsordner.h"
#include "kern/dateien/atomar.h"
#include "kern/dateien/dateifehler.h"

namespace zinfolio {

/// A type that knows its own place in a record file: `Satzlaenge` bytes, written and read field by field.
template <typename T>
concept Satz = requires(const T& satz, std::span<std::byte, T::Satzlaenge> ziel,
                        std::span<const std::byte, T::Satzlaenge> quelle) {
    { satz.Schreiben(ziel) } -> std::same_as<void>;
    { T::Lesen(quelle) } -> std::same_as<T>;
};

/// Record numbers are 2-byte signed integers throughout the system.
inline constexpr std::size_t HoechstzahlSaetze = 32767;

/// What a fault says where there are more than `HoechstzahlSaetze`: "Mehr als 32767 Zahlungen.".
[[nodiscard]] std::string UeberHoechstzahl(std::string_view saetze);

/// Bytes of all whole records; a torn tail is left out. A missing file is created empty. Throws
/// `Dateifehler`, also for more records than `HoechstzahlSaetze`.
[[nodiscard]] std::vector<std::byte> SatzbytesLesen(const std::filesystem::path& datei,
                                                    std::size_t satzlaenge);

/// Number of whole records; otherwise as `SatzbytesLesen`.
[[nodiscard]] std::size_t SaetzeZaehlen(const std::filesystem::path& datei, std::size_t satzlaenge);

/// Throws `Dateifehler` if a file of so many records would exceed `HoechstzahlSaetze`.
void SatzzahlPruefen(const std::filesystem::path& datei, std::size_t anzahl);

/// A file of records of one kind, without a header: record k stands at (k - 1) * `Satzlaenge`. Reads and
/// writes the file as a whole and keeps nothing open. Faults of single records carry their number.
template <Satz T>
class Satzdatei {
  public:
    /// `name` is UTF-8. Touches nothing yet.
    Satzdatei(std::filesystem::path arbeitsordner, std::string_view name)
        : ordner(std::move(arbeitsordner)), pfad(ordner / name) {}

    /// All rows in file order; none for an empty or missing file, which exists afterwards. Throws
    /// `Dateifehler`.
    [[nodiscard]] std::vector<T> Lesen() const {
        const std::vector<std::byte> bytes = SatzbytesLesen(pfad, T::Satzlaenge);
        const std::size_t anzahl = bytes.size() / T::Satzlaenge;
        std::vector<T> saetze;
        saetze.reserve(anzahl);
        MitSatznummer(anzahl,
                      [&](std::size_t i) { saetze.push_back(T::Lesen(Ausschnitt(std::span(bytes), i))); });
        return saetze;
    }

    /// Replaces the file, all or nothing. Throws `Dateifehler`, also for more than `HoechstzahlSaetze` rows;
    /// the old file is untouched then.
    void Schreiben(std::span<const T> saetze, Sicherung sicherung = Sicherung::Fluechtig) const {
        SatzzahlPruefen(pfad, saetze.size());
        std::vector<std::byte> bytes(saetze.size() * T::Satzlaenge);
        MitSatznummer(saetze.size(),
                      [&](std::size_t i) { saetze[i].Schreiben(Ausschnitt(std::span(bytes), i)); });
        AtomarSchreiben(pfad, bytes, sicherung);
    }

    /// Number of whole records. Creates a missing file, as reading does. Throws `Dateifehler`.
    [[nodiscard]] std::size_t Anzahl() const { return SaetzeZaehlen(pfad, T::Satzlaenge); }

    /// Deletes the file; any failure is ignored.
    void Loeschen() const { LoescheDatei(ordner, pfad.filename().native()); }

    [[nodiscard]] const std::filesystem::path& Pfad() const { return pfad; }

  private:
    template <typename B>
    static auto Ausschnitt(std::span<B> bytes, std::size_t i) {
        return bytes.subspan(i * T::Satzlaenge).template first<T::Satzlaenge>();
    }

    template <typename Arbeit>
    void MitSatznummer(std::size_t anzahl, Arbeit arbeit) const {
        std::size_t i = 0;
        try {
            for (; i < anzahl; ++i)
                arbeit(i);
        } catch (const Satzfehler& fehler) {
            throw Dateifehler({pfad, i + 1}, fehler.what());
        }
    }

    std::filesystem::path ordner;
    std::filesystem::path pfad;
};

}  // namespace zinfolio
