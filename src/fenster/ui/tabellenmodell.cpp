#include "fenster/ui/tabellenmodell.h"

namespace zinfolio {

void Tabellenmodell::Setze(Tabelleninhalt inhalt) {
    beginResetModel();
    inhalt_ = std::move(inhalt);
    endResetModel();
}

int Tabellenmodell::rowCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : inhalt_.zeilen;
}

int Tabellenmodell::columnCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(inhalt_.spalten.size());
}

QVariant Tabellenmodell::data(const QModelIndex& index, int rolle) const {
    if (!index.isValid()) return {};
    switch (rolle) {
        case Qt::DisplayRole:
            return inhalt_.zelle(index.row(), index.column());
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(inhalt_.spalten[static_cast<std::size_t>(index.column())].ausrichtung |
                                       Qt::AlignVCenter);
        case Qt::AccessibleTextRole:
            return inhalt_.zeilentext ? inhalt_.zeilentext(index.row()) : QVariant();
        default:
            return {};
    }
}

QVariant Tabellenmodell::headerData(int abschnitt, Qt::Orientation richtung, int rolle) const {
    if (rolle != Qt::DisplayRole) return {};
    if (richtung == Qt::Vertical) return abschnitt + 1;
    return inhalt_.spalten[static_cast<std::size_t>(abschnitt)].kopf;
}

}  // namespace zinfolio
