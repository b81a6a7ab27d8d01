#pragma once

#include <QKeySequence>
#include <QMainWindow>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "kern/bericht/bericht.h"
#include "kern/staffel/kontodateien.h"

class QAction;
class QLabel;
class QStackedWidget;
class QTabWidget;

namespace zinfolio {

class FormDiagramm;
class FormVorschau;
class Notizfeld;
class RegisterBerechnung;
class RegisterEffektivzins;
class RegisterZahlungen;
class RegisterZinssaetze;
class RegisterZinsverrechnung;

/// The window "Zinsstaffelrechner": payments, conditions and settings of an account on tabs, its statement,
/// its notes, and the project that holds all this. Selecting the tab "Zinsstaffel berechnen" calculates;
/// nothing else does.
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
    /// A command of menu and toolbar.
    struct Befehlsangaben {
        const char* name;
        QString symbol;
        const char* text;
        const char* hinweis;
        QKeySequence taste;
        std::function<void()> wirkung;
    };

    // form48000.cpp: the window, its tabs, the calculation
    void RegisterAnlegen();
    QAction* Befehl(const Befehlsangaben& angaben);
    void MenueUndLeisteAnlegen();
    void Verdrahten();
    void BerechnungWaehlen();
    void RegisterGewaehlt(int register_);
    void Rechnen();
    void EffektivzinsRechnen();
    void Ablehnen(const Ablehnung& ablehnung);
    /// Whether the date field with the focus, if there is one, may be left.
    [[nodiscard]] bool DatumSteht();

    // form48000projekt.cpp: the account as a project
    enum class Anlass { oeffnen, wiederladen };
    void Neu();
    void NeuBeginnen();
    void Oeffnen();
    void Laden(const std::filesystem::path& datei, Anlass anlass);
    /// True where the account is saved afterwards.
    bool Speichern();
    bool SpeichernUnter();
    bool EinstellungenSchreiben();
    bool ProjektSchreiben(const std::filesystem::path& datei);
    [[nodiscard]] std::string NotizenAlsDatei() const;
    void NotizenZeigen(std::string datei, Anlass anlass);
    /// Whether another account may take the place of this one: asks where there is something to lose.
    [[nodiscard]] bool AufgebenGewollt();
    /// Whether the form may be left: always asks.
    [[nodiscard]] bool VerlassenGewollt();
    void ProjektBenennen(std::optional<std::filesystem::path> datei);
    [[nodiscard]] QString Projektname() const;
    void EffektivregisterEntfernen();

    // form48000ausgabe.cpp: report and chart
    void KontoDrucken();
    void EffektivzinsDrucken();
    void GrafikZeigen();
    void Vorschau(const std::function<Bericht()>& bilden);

    Kontodateien dateien_;
    /// The project's file; none for an account without a name.
    std::optional<std::filesystem::path> projekt_;
    /// The notes as the project's file holds them, as long as the user has not changed them.
    std::optional<std::string> notizdatei_;
    QStackedWidget* mitte_;
    QTabWidget* TabStrip1_;
    QLabel* Projekt_;
    RegisterZahlungen* zahlungen_;
    RegisterZinssaetze* zinssaetze_;
    RegisterZinsverrechnung* zinsverrechnung_;
    RegisterBerechnung* berechnung_;
    Notizfeld* notizen_;
    /// Its tab exists only while there is a result.
    RegisterEffektivzins* effektivzins_;
    FormVorschau* vorschau_;
    FormDiagramm* diagramm_;
};

}  // namespace zinfolio
