#pragma once

#include <QGridLayout>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "fenster/ui/eingabefeld.h"
#include "kern/dates/tastenfilter.h"

class QLabel;

namespace zinfolio {

/// A grid of captions and fields that line up: one row a field, its unit or a companion behind it.
class Feldraster : public QGridLayout {
    Q_OBJECT

  public:
    explicit Feldraster(QWidget* eltern = nullptr);

    /// Adds a row. An `&` in the caption makes the mnemonic that brings the focus to the field.
    QLabel* Zeile(const QString& beschriftung, QWidget* feld, QWidget* dahinter = nullptr);

    /// The same with a unit as text behind the field.
    QLabel* Zeile(const QString& beschriftung, QWidget* feld, const QString& einheit);

    /// Adds a row that takes the whole width.
    void GanzeZeile(QWidget* element);

    /// Leaves a little room before the next row.
    void Absatz();

  private:
    int naechste_ = 0;
};

/// An entry field told as data: fixed name, caption with mnemonic, filter, unit behind the field, and where
/// its text stands in the entry of the core.
template <class Eingabe>
struct Felddeskriptor {
    const char* name;
    const char* beschriftung;
    Tastenfilter filter;
    const char* einheit;
    std::string Eingabe::*wert;
};

/// The fields of a form that belong to one entry of the core: they are read and shown together.
template <class Eingabe>
class Feldgruppe {
  public:
    void Aufnehmen(Eingabefeld* feld, std::string Eingabe::*wert) { felder_.emplace_back(feld, wert); }

    void Lesen(Eingabe& eingabe) const {
        for (const auto& [feld, wert] : felder_)
            eingabe.*wert = feld->Wert();
    }

    void Zeigen(const Eingabe& eingabe) const {
        for (const auto& [feld, wert] : felder_)
            feld->Setze(eingabe.*wert);
    }

    [[nodiscard]] Eingabefeld* Feld(std::string_view name) const {
        for (const auto& [feld, wert] : felder_) {
            if (feld->objectName().toStdString() == name) return feld;
        }
        return nullptr;
    }

  private:
    std::vector<std::pair<Eingabefeld*, std::string Eingabe::*>> felder_;
};

/// The field that a filter calls for: dates have a class of their own.
[[nodiscard]] Eingabefeld* NeuesFeld(const char* name, Tastenfilter filter, QWidget* eltern);

/// Makes a field by its descriptor, puts it into the grid and into the group.
template <class Eingabe>
Eingabefeld* FeldAnlegen(const Felddeskriptor<Eingabe>& d, QWidget* eltern, Feldraster& raster,
                         Feldgruppe<Eingabe>& gruppe) {
    Eingabefeld* feld = NeuesFeld(d.name, d.filter, eltern);
    raster.Zeile(QString::fromUtf8(d.beschriftung), feld, QString::fromUtf8(d.einheit));
    gruppe.Aufnehmen(feld, d.wert);
    return feld;
}

}  // namespace zinfolio
