#pragma once
// The ways into the web: pages of the maker, and the check for a newer version. Each first makes sure of a
// connection.

#include <QUrl>
#include <functional>

#include "fenster/hilfe/abruf.h"

class QWidget;

namespace zinfolio {

/// Where the maker is found, and how a page is opened.
struct Netzziel {
    QUrl server{ZINFOLIO_SERVER};
    Abrufgrenzen grenzen = {};
    /// Shows a page in the user's browser.
    std::function<void(const QUrl&)> zeigen;
};

/// The maker's server with the browser of the desktop.
[[nodiscard]] Netzziel Herstellerserver();

/// Opens a page of the maker ("" is the home page), after the test of the connection.
void SeiteZeigen(QWidget* fenster, const Netzziel& ziel, const QString& pfad);

/// Looks for a newer version, and opens its download after a question.
void NachNeuererVersionSehen(QWidget* fenster, const Netzziel& ziel);

}  // namespace zinfolio
