#pragma once

#include <QDialog>

#include "kern/bericht/tabelle.h"
#include "kern/staffel/zahlungsimport.h"

namespace zinfolio {

/// Shows what would be taken from a file or the clipboard, and which lines would not and why. Nothing is
/// taken before the user accepts it; where there is nothing to take, he cannot.
class Importvorschau : public QDialog {
    Q_OBJECT

  public:
    /// `herkunft` says where it comes from: "umsaetze.csv". `zahlungen` are the payments as their list shows
    /// them.
    Importvorschau(const Zahlungsimport& ergebnis, const QString& herkunft, Tabelleninhalt zahlungen,
                   QWidget* eltern);
};

}  // namespace zinfolio
