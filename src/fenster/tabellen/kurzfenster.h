#pragma once

#include <QPointer>
#include <QWidget>
#include <filesystem>

#include "kern/tabellen/kurzrechner.h"

class QButtonGroup;
class QGroupBox;
class QLabel;
class QPushButton;

namespace zinfolio {

class Eingabefeld;
class Feldraster;

/// Opens a quick calculator from its big form, which is hidden until the quick one is left.
void KurzrechnerZeigen(Kurzform form, QWidget& grosses, const std::filesystem::path& arbeitsordner);

/// The window of the quick calculators: what differs between them is the descriptor. It keeps its input in
/// its file.
class Kurzfenster : public QWidget {
    Q_OBJECT

  public:
    Kurzfenster(const Kurzrechner& rechner, std::filesystem::path arbeitsordner);

  signals:
    /// The window has been left.
    void verlassen();

  protected:
    void closeEvent(QCloseEvent* ereignis) override;

  private:
    void FelderAnlegen(Feldraster& raster);
    QGroupBox* Wahlgruppe(const char* titel, const char* name, std::span<const Kurzwahl> liste, int spalten,
                          QButtonGroup*& gruppe);
    QWidget* Ergebnistafel();
    [[nodiscard]] Kurzeingabe Lesen() const;
    void Zeigen(const Kurzeingabe& eingabe);
    void ErgebnisLeeren();
    void Berechnen();
    void Drucken();

    const Kurzrechner& rechner_;
    std::filesystem::path arbeitsordner_;
    /// By figure; a figure that is searched for has a label, the others a field.
    std::array<Eingabefeld*, kurzgroessen> felder_{};
    std::array<QLabel*, kurzgroessen> ergebnisse_{};
    QButtonGroup* zahlweise_ = nullptr;
    QButtonGroup* Zahlungsmodus_ = nullptr;
    QPushButton* Command1_;
    QPushButton* Command3_;
    QPushButton* Command2_;
};

}  // namespace zinfolio
