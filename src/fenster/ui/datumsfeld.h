#pragma once

#include "fenster/ui/eingabefeld.h"

class QAbstractButton;

namespace zinfolio {

/// A date field: what was typed is completed to tt.mm.jjjj when the field is left. A text that is no date
/// shows its message, becomes today's date and keeps the focus; the click or key that would have left the
/// field is swallowed then, so that nothing is calculated with a date that the user has not seen.
class Datumsfeld : public Eingabefeld {
    Q_OBJECT

  public:
    explicit Datumsfeld(const QString& name, QWidget* eltern = nullptr);

    /// The button that opens the month view for this field: a click on it comes without the check, F4 presses
    /// it, and Enter passes it over.
    void MitKalender(QAbstractButton* taste) { kalender_ = taste; }

    /// Checks the text as leaving the field does; true where the field may be left.
    bool DarfVerlassenWerden();

  protected:
    void keyPressEvent(QKeyEvent* ereignis) override;
    void focusInEvent(QFocusEvent* ereignis) override;
    void focusOutEvent(QFocusEvent* ereignis) override;
    bool focusNextPrevChild(bool vorwaerts) override;
    void Weiter() override;
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

  private:
    [[nodiscard]] bool WuerdeVerlassen(QObject* ziel, const QEvent& ereignis) const;

    QAbstractButton* kalender_ = nullptr;
    bool pruefungLaeuft_ = false;
    bool klickSchlucken_ = false;
};

/// Whether the date field with the focus, if the window has one, may be left.
[[nodiscard]] bool DatumSteht(const QWidget& fenster);

}  // namespace zinfolio
