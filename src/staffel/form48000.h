#pragma once

#include <QMainWindow>

#include "staffel/kontodateien.h"

class QTabWidget;

namespace zinfolio {

class RegisterBerechnung;
class RegisterEffektivzins;
class RegisterZahlungen;
class RegisterZinssaetze;
class RegisterZinsverrechnung;

/// The window "Zinsstaffelrechner": payments, conditions and settings of an account on tabs, and its
/// statement. Selecting the tab "Zinsstaffel berechnen" calculates; nothing else does.
class Form48000 : public QMainWindow {
    Q_OBJECT

  public:
    /// Opens with an empty account in the working folder. A `Dateifehler` where that cannot be written.
    explicit Form48000(const std::filesystem::path& arbeitsordner);

    /// The indexes of the tabs, from 0.
    enum Register { zahlungen, zinssaetze, zinsverrechnung, berechnung, notizen, effektivzinssatz };

  signals:
    /// The form has been left.
    void verlassen();

  protected:
    void closeEvent(QCloseEvent* ereignis) override;

  private:
    void LeisteAnlegen();
    void MenueAnlegen();
    void Neu();
    void RegisterGewaehlt(int register_);
    void Rechnen();
    void EffektivzinsRechnen();
    void Ablehnen(const Ablehnung& ablehnung);

    Kontodateien dateien_;
    QTabWidget* TabStrip1_;
    RegisterZahlungen* zahlungen_;
    RegisterZinssaetze* zinssaetze_;
    RegisterZinsverrechnung* zinsverrechnung_;
    RegisterBerechnung* berechnung_;
    QWidget* notizen_;
    /// Its tab exists only while there is a result.
    RegisterEffektivzins* effektivzins_;
};

}  // namespace zinfolio
