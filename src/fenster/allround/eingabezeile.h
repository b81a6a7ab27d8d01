#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace zinfolio {

/// The row of inputs at the top of a result: captions and controls side by side, and what the result comes to
/// at the right.
class Eingabezeile : public QWidget {
    Q_OBJECT

  public:
    explicit Eingabezeile(QWidget* eltern = nullptr);

    /// Adds a control behind its caption, in which an `&` makes the mnemonic, and its unit behind it. What is
    /// given back holds all three, so that they can be hidden together.
    QWidget* Feld(const char* beschriftung, QWidget* feld, const char* einheit = "");

    /// What follows stands at the right.
    void Abstand();

    /// Adds a large figure with a caption above it.
    void Kennzahl(const char* beschriftung, QLabel* wert);

  private:
    QHBoxLayout* zeile_;
};

/// Puts the last row of a long table in sight: it is what the user sees first.
class Tabelle;
void AnsEndeRollen(Tabelle& tabelle, std::size_t zeilen);

}  // namespace zinfolio
