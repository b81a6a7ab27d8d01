#pragma once

#include <QAbstractTableModel>

#include "kern/bericht/tabelle.h"

namespace zinfolio {

/// A read-only table over a `Tabelleninhalt`.
class Tabellenmodell : public QAbstractTableModel {
    Q_OBJECT

  public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows another content.
    void Setze(Tabelleninhalt inhalt);
    [[nodiscard]] const Tabelleninhalt& Inhalt() const { return inhalt_; }

    [[nodiscard]] int rowCount(const QModelIndex& eltern = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& eltern = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int rolle = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int abschnitt, Qt::Orientation richtung,
                                      int rolle = Qt::DisplayRole) const override;

  private:
    [[nodiscard]] QVariant Zellwert(std::size_t zeile, std::size_t spalte, int rolle) const;

    Tabelleninhalt inhalt_;
};

}  // namespace zinfolio
