#pragma once

#include <QByteArray>
#include <QString>

namespace zinfolio {

/// What a PDF document says of itself.
struct Dokumentangaben {
    QString titel;
    QString verfasser;
};

/// Appends an incremental update to a PDF document that gives its information dictionary these entries and
/// keeps the others (ISO 32000-1, 7.5.6 and 14.3.3); Qt's writer cannot name an author. REQUIRES: the
/// document has a plain cross-reference table and an information dictionary, as Qt writes them; else a
/// std::invalid_argument.
[[nodiscard]] QByteArray MitDokumentangaben(QByteArray pdf, const Dokumentangaben& angaben);

}  // namespace zinfolio
