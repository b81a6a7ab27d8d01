#pragma once

#include <QWidget>

#include "fenster/rechner/nebenrechnung.h"

class QLabel;
class QProgressBar;

namespace zinfolio {

/// The line of a result page that shows how far a long calculation beside the window is, with "Abbrechen".
/// The result comes when the page is in front and no box is open: nobody is torn from what he does on another
/// page.
class Suchzeile : public QWidget {
    Q_OBJECT

  public:
    /// `text` says what goes on; a calculation makes `hoechstens` rounds at the most. Hidden while nothing
    /// runs.
    Suchzeile(const QString& text, std::size_t hoechstens, QWidget* seite);

    /// Runs `arbeit` and then `abschluss`, as `Nebenrechnung` has it, in the place of what runs.
    void Rechnen(std::function<void(const Suchbeobachter&)> arbeit,
                 std::function<void(const std::exception_ptr&)> abschluss);

    [[nodiscard]] bool Laeuft() const { return rechnung_.Laeuft(); }

  public slots:
    /// What it was asked for does not hold any more: its result never comes.
    void Aufgeben() { rechnung_.Aufgeben(); }

  signals:
    /// The user has stopped it.
    void abgebrochen();

  private:
    void Zeigen();
    void Fortschreiten(std::size_t runden);

    Nebenrechnung rechnung_;
    QString text_;
    QLabel* stand_;
    QProgressBar* balken_;
    QWidget* abbrechen_;
};

}  // namespace zinfolio
