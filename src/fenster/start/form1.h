#pragma once

#include <QMainWindow>
#include <QPointer>
#include <filesystem>
#include <functional>
#include <map>
#include <span>
#include <string_view>

namespace zinfolio {

class Letztetafel;
class Rechner;
struct Rechnereintrag;

/// The start screen: the menu of the calculators, the same calculators as large buttons, and the projects
/// opened last. Opening one hides the screen, leaving it brings the screen back. Closing the screen ends the
/// program at once. One calculator is open at a time, since they share their working files.
class Form1 : public QMainWindow {
    Q_OBJECT

  public:
    explicit Form1(std::filesystem::path arbeitsordner);

    /// Opens a project in its calculator, which takes the place of this screen; false where the file's ending
    /// is none of a project, or its window could not be opened. A calculator that is open asks before it
    /// gives up what it shows, and another one is left for it.
    bool ProjektOeffnen(const QString& datei);

    /// The same as soon as nothing else is going on: no box is open, nothing is calculated.
    void ProjektOeffnenSobaldFrei(const QString& datei);

    /// Brings the window that the user works with before all others.
    void NachVorn();

  protected:
    void showEvent(QShowEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;

  private:
    void MenueAnlegen();
    void TafelAnlegen();
    [[nodiscard]] QWidget* NeueGruppe(const QString& titel, std::span<const Rechnereintrag> rechner);
    QAction* Eintrag(QWidget& menue, const char* name, const QString& text);
    void Oeffnen(std::string_view name);
    void RechnerAnbieten(std::span<const Rechnereintrag> gruppe);
    /// Shows the window of a calculator; false where it could not be opened, which the user has been told.
    bool RechnerOeffnen(const Rechnereintrag& eintrag);
    void RechnerVerlassen();
    /// Leaves the calculator that is open, for another one; false where the user stays.
    [[nodiscard]] bool RechnerSchliessen();
    [[nodiscard]] bool Beschaeftigt() const;
    /// Goes a way into the web; a second one waits until the first has ended.
    void ImNetz(const std::function<void()>& weg);

    std::filesystem::path arbeitsordner_;
    bool imNetz_ = false;
    /// The calculator that is open, and its row.
    QPointer<Rechner> rechner_;
    const Rechnereintrag* offener_ = nullptr;
    /// A calculator is left for another one.
    bool wechselt_ = false;
    Letztetafel* letzte_ = nullptr;
    /// What the entries of the menu do, by name; an entry without one is shown, but not offered.
    std::map<std::string_view, std::function<void()>> wirkungen_;
};

}  // namespace zinfolio
