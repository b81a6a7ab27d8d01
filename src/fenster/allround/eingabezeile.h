#pragma once

#include <QWidget>

class QLabel;

namespace zinfolio {

class Umbruchzeile;

/// The row of inputs at the top of a result: captions and controls side by side, and what the result comes to
/// at the right; what does not fit goes on below.
class Eingabezeile : public QWidget {
    Q_OBJECT

  public:
    explicit Eingabezeile(QWidget* eltern = nullptr);

    /// Adds a control behind its caption, in which an `&` makes the mnemonic, and its unit behind it; a date
    /// with its calendar button. What is given back holds all of them, so that they can be hidden together.
    QWidget* Feld(const char* beschriftung, QWidget* feld, const char* einheit = "");

    /// The figures that follow stand at the right; what came before keeps to the left.
    void Abstand();

    /// Adds a large figure with a caption above it. REQUIRES: an `Abstand` before.
    void Kennzahl(const char* beschriftung, QLabel* wert);

  private:
    Umbruchzeile* zeile_;
    QWidget* rechts_ = nullptr;
};

/// Puts the last row of a long table in sight: it is what the user sees first.
class Tabelle;
void AnsEndeRollen(Tabelle& tabelle, std::size_t zeilen);

}  // namespace zinfolio
