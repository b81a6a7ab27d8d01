#pragma once

#include <QString>
#include <functional>

#include "kern/tabellen/finanzfaktor.h"

class QComboBox;
class QLabel;
class QWidget;

namespace zinfolio {

class Feldraster;

/// The fixed names of the controls that choose a factor.
struct Faktorauswahlnamen {
    const char* faktor;
    const char* erklaerung;
    const char* rhythmus;
    const char* faelligkeit;
};

/// The lists that choose a factor with the rhythm of its payments, and the factor's explanation below them.
class Faktorauswahl {
  public:
    /// `geaendert` is called when the user chooses.
    Faktorauswahl(const Faktorauswahlnamen& namen, QWidget* form, const std::function<void()>& geaendert);

    void FaktorInRaster(Feldraster& raster);
    void RhythmusInRaster(Feldraster& raster);

    [[nodiscard]] Faktorwahl Lesen() const;
    void Zeigen(const Faktorwahl& wahl);

  private:
    QComboBox* faktor_;
    QLabel* erklaerung_;
    QComboBox* rhythmus_;
    QComboBox* faelligkeit_;
};

/// A text of several lines that keeps its room, whatever its length, so that nothing below it jumps.
[[nodiscard]] QLabel* NeuerErklaerungstext(const char* name, int zeilen, QWidget* eltern);

}  // namespace zinfolio
