#include "fenster/ui/tabellenmodell.h"

#include <QColor>
#include <QRegularExpression>
#include <utility>

#include "fenster/ui/meldungsfenster.h"

namespace zinfolio {
namespace {

/// The header as a grid shows it: a run of blanks, or the one before "bis", is where its second line
/// begins.
QString Kopftext(const std::string& kopf) {
    static const QRegularExpression bruch("(   +| (?=bis))");
    QString text = Anzeigetext(kopf);
    const auto stelle = bruch.match(text);
    if (stelle.hasMatch()) text.replace(stelle.capturedStart(), stelle.capturedLength(), "\n");
    return text;
}

Qt::Alignment QtAusrichtung(Zellausrichtung ausrichtung) {
    return (ausrichtung == Zellausrichtung::links ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter;
}

}  // namespace

void Tabellenmodell::Setze(Tabelleninhalt inhalt) {
    beginResetModel();
    inhalt_ = std::move(inhalt);
    endResetModel();
}

int Tabellenmodell::rowCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(inhalt_.zeilen);
}

int Tabellenmodell::columnCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(inhalt_.spalten.size());
}

QVariant Tabellenmodell::data(const QModelIndex& index, int rolle) const {
    if (!index.isValid()) return {};
    try {
        return Zellwert(static_cast<std::size_t>(index.row()), static_cast<std::size_t>(index.column()),
                        rolle);
    } catch (const std::exception&) {
        // The toolkit asks while it paints: nothing may leave.
        return rolle == Qt::DisplayRole ? Anzeigetext(keineZahl) : QVariant();
    }
}

QVariant Tabellenmodell::Zellwert(std::size_t zeile, std::size_t spalte, int rolle) const {
    const bool hervorgehoben = inhalt_.hervorgehoben == zeile;
    switch (rolle) {
        case Qt::DisplayRole:
            return QString::fromStdString(inhalt_.zelle(zeile, spalte));
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(QtAusrichtung(inhalt_.spalten[spalte].ausrichtung));
        case Qt::AccessibleTextRole:
            return inhalt_.zeilentext ? QString::fromStdString(inhalt_.zeilentext(zeile)) : QVariant();
        case Qt::BackgroundRole:
            return hervorgehoben ? QColor(255, 255, 192) : QVariant();
        case Qt::ForegroundRole:
            return hervorgehoben ? QColor(Qt::black) : QVariant();
        default:
            return {};
    }
}

QVariant Tabellenmodell::headerData(int abschnitt, Qt::Orientation richtung, int rolle) const {
    if (rolle != Qt::DisplayRole) return {};
    if (richtung == Qt::Vertical) return abschnitt + 1;
    return Kopftext(inhalt_.spalten[static_cast<std::size_t>(abschnitt)].kopf);
}

}  // namespace zinfolio
