#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <functional>
#include <vector>

namespace zinfolio {

/// A column of a table: its header and how its cells are aligned.
struct Tabellenspalte {
    QString kopf;
    Qt::Alignment ausrichtung = Qt::AlignRight;
};

/// What a table shows. Cells are asked for when they become visible, so that thirty thousand rows cost
/// nothing.
struct Tabelleninhalt {
    std::vector<Tabellenspalte> spalten;
    int zeilen = 0;
    std::function<QString(int zeile, int spalte)> zelle;
    /// The whole row as one line, for screen readers; may be empty.
    std::function<QString(int zeile)> zeilentext;
};

/// A read-only table over a `Tabelleninhalt`.
class Tabellenmodell : public QAbstractTableModel {
    Q_OBJECT

  public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows another content.
    void Setze(Tabelleninhalt inhalt);

    [[nodiscard]] int rowCount(const QModelIndex& eltern = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& eltern = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int rolle = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int abschnitt, Qt::Orientation richtung,
                                      int rolle = Qt::DisplayRole) const override;

  private:
    Tabelleninhalt inhalt_;
};

}  // namespace zinfolio
