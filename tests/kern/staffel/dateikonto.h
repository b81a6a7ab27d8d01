#pragma once
// The slow account: every step goes from file to file, row by row, in the words of the rules.

#include <array>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "kern/staffel/auswahlsortierung.h"
#include "kern/staffel/langsamrechnung.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio::langsam {

/// An open file of rows. Each access reads or writes the 129 bytes of one record, counted from 1.
class Satzkanal {
  public:
    Satzkanal(const std::filesystem::path& pfad, bool neu) {
        if (neu) std::filesystem::remove(pfad);
        std::ofstream(pfad, std::ios::binary | std::ios::app).flush();
        anzahl_ = std::filesystem::file_size(pfad) / 129;
        strom_.open(pfad, std::ios::in | std::ios::out | std::ios::binary);
        if (!strom_) throw std::runtime_error("cannot open " + pfad.string());
    }

    [[nodiscard]] std::size_t Anzahl() const { return anzahl_; }

    [[nodiscard]] Staffelsatz Lesen(std::size_t k) {
        std::array<char, 129> bytes{};
        strom_.seekg(static_cast<std::streamoff>((k - 1) * 129));
        if (!strom_.read(bytes.data(), 129)) throw std::runtime_error("no record " + std::to_string(k));
        return Staffelsatz::Lesen(std::as_bytes(std::span(bytes)));
    }

    void Schreiben(std::size_t k, const Staffelsatz& satz) {
        std::array<char, 129> bytes{};
        satz.Schreiben(std::as_writable_bytes(std::span(bytes)));
        strom_.seekp(static_cast<std::streamoff>((k - 1) * 129));
        if (!strom_.write(bytes.data(), 129).flush()) throw std::runtime_error("cannot write");
        anzahl_ = std::max(anzahl_, k);
    }

    void Anhaengen(const Staffelsatz& satz) { Schreiben(anzahl_ + 1, satz); }

  private:
    std::fstream strom_;
    std::size_t anzahl_ = 0;
};

inline std::string Datumstext(const Staffelsatz& satz) {
    return std::string(satz.Satzdatum.Roh());
}

/// The folder of one account, with the settings that a user chooses.
struct Dateikonto {
    std::filesystem::path ordner;
    std::string kontodatum;
    int zinsverrechnungsart = 5;
    int verzinsungsmethode = 0;

    [[nodiscard]] Satzkanal Oeffnen(std::string_view name, bool neu = false) const {
        return {ordner / name, neu};
    }

    void Sortieren(std::string_view name) const {
        Satzkanal datei = Oeffnen(name);
        LiteraleAuswahlsortierung(
            datei.Anzahl(), [&](std::size_t k) { return datei.Lesen(k); },
            [&](std::size_t k, const Staffelsatz& satz) { datei.Schreiben(k, satz); },
            [](const Staffelsatz& satz) { return std::stod(std::string(satz.Sortierschluessel.Roh())); });
    }

    void TermineBilden() const;
    void Mischen() const;
    /// Calculates the merged file in place, row for row.
    void Berechnen() const;

    /// The whole road. False where the merged file cannot be calculated.
    [[nodiscard]] bool Rechnen() const {
        Sortieren("Zinsstaffel1");
        Sortieren("ZinsstaffelZins");
        TermineBilden();
        Mischen();
        Satzkanal loesung = Oeffnen("Lösungsdatei");
        if (loesung.Anzahl() <= 1 || loesung.Lesen(1).Zahlungsart != 2) return false;
        Berechnen();
        return true;
    }

  private:
    [[nodiscard]] static Staffelsatz Zeile(Satzkanal& datei, std::size_t i, int methode);
};

}  // namespace zinfolio::langsam
