#pragma once

#include <QGridLayout>

class QLabel;

namespace zinfolio {

/// A grid of captions and fields that line up: one row a field, its unit or a companion behind it. Rows are
/// counted from 0.
class Feldraster : public QGridLayout {
    Q_OBJECT

  public:
    explicit Feldraster(QWidget* eltern = nullptr);

    /// Adds a row. An `&` in the caption makes the mnemonic that brings the focus to the field. Gives the
    /// caption.
    QLabel* Zeile(const QString& beschriftung, QWidget* feld);

    /// Adds a row that takes the whole width.
    void GanzeZeile(QWidget* element);

    /// Adds a row whose caption is an element of its own, with the field still to come.
    void Titelzeile(QWidget* titel);

    /// The row that was added last.
    [[nodiscard]] int LetzteZeile() const { return naechste_ - 1; }

    /// Puts an element into a row: where its field belongs if there is none yet, else behind all that is
    /// there.
    void Dahinter(int zeile, QWidget* element);

    /// Leaves a little room before the next row.
    void Absatz();

  private:
    int naechste_ = 0;
};

}  // namespace zinfolio
