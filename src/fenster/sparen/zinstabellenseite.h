#pragma once

#include <QWidget>
#include <array>

#include "kern/sparen/zinstabelle.h"

namespace zinfolio {

class Datumsfeld;
class Eingabefeld;

/// The page `Frame(6)`: the table of rate changes. It orders itself whenever the user moves on, so that a row
/// may jump under the cursor; a key in a row is refused while rows above it are empty.
class Zinstabellenseite : public QWidget {
    Q_OBJECT

  public:
    explicit Zinstabellenseite(QWidget* eltern);

    /// Fills the table of a plan; shows it.
    void Lesen(Sparplan& plan) const;
    void Zeigen(const Sparplan& plan);

    /// Brings the focus to a field by its name, "Zinsbetrag(3)".
    void Fokussieren(const std::string& name);

  signals:
    /// The user has changed something.
    void geaendert();
    /// The table was ordered or typed into; whether it holds rate changes.
    void markiert(bool hatAenderungen);
    void zurueck();

  protected:
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

  private:
    [[nodiscard]] QWidget* Zeilenblock(std::size_t von, std::size_t bis);
    [[nodiscard]] QWidget* Tasten();
    void Sortieren();
    void Markieren();
    /// True where a key into this field is refused, which is told.
    [[nodiscard]] bool Abgewiesen(QObject* feld);

    std::array<Datumsfeld*, zinstabellenzeilen> ZinsWDAt_{};
    std::array<Eingabefeld*, zinstabellenzeilen> Zinsbetrag_{};
};

}  // namespace zinfolio
