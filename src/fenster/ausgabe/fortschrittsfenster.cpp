#include "fenster/ausgabe/fortschrittsfenster.h"

#include <QCoreApplication>
#include <limits>

namespace zinfolio {
namespace {

constexpr qint64 anlaufzeit = 150;
/// Between two looks at the keys and the mouse, in milliseconds.
constexpr qint64 takt = 40;

}  // namespace

Fortschrittsfenster::Fortschrittsfenster(QWidget* fenster, const QString& text, Abbruch abbruch)
    : abbruch_(abbruch),
      dialog_(text, abbruch == Abbruch::moeglich ? "Abbrechen" : QString(), 0, 1, fenster) {
    dialog_.setObjectName("Fortschritt");
    dialog_.setWindowTitle("Export");
    dialog_.setWindowModality(Qt::ApplicationModal);
    dialog_.setAutoReset(false);
    dialog_.setAutoClose(false);
    // It is shown here, not by a timer of its own: the operation does not run the event loop.
    dialog_.setMinimumDuration(std::numeric_limits<int>::max());
    uhr_.start();
}

Fortschritt Fortschrittsfenster::Zuhoerer() {
    return [this](std::size_t erledigt, std::size_t von) { return Melden(erledigt, von); };
}

bool Fortschrittsfenster::Melden(std::size_t erledigt, std::size_t von) {
    const qint64 jetzt = uhr_.elapsed();
    if (jetzt < anlaufzeit || jetzt - zuletzt_ < takt) return !Abgebrochen();
    zuletzt_ = jetzt;
    // Closed by its frame it would be gone, and the windows behind it open for keys in the middle of it all.
    if (dialog_.wasCanceled() && abbruch_ == Abbruch::unmoeglich) dialog_.reset();
    if (!dialog_.isVisible() && !dialog_.wasCanceled()) dialog_.show();
    dialog_.setMaximum(static_cast<int>(von));
    dialog_.setValue(static_cast<int>(erledigt));
    QCoreApplication::processEvents();
    return !Abgebrochen();
}

bool Fortschrittsfenster::Abgebrochen() const {
    return abbruch_ == Abbruch::moeglich && dialog_.wasCanceled();
}

}  // namespace zinfolio
