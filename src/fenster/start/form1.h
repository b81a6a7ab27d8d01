#pragma once

#include <QMainWindow>
#include <filesystem>
#include <functional>
#include <map>
#include <span>
#include <string_view>

class QBoxLayout;

namespace zinfolio {

class Rechner;
struct Rechnereintrag;

/// The start screen: the menu of the calculators, and the same calculators as large buttons. Opening one
/// hides the screen, leaving it brings the screen back. Closing the screen ends the program at once.
class Form1 : public QMainWindow {
    Q_OBJECT

  public:
    explicit Form1(std::filesystem::path arbeitsordner);

    /// Opens a project in its calculator, which takes the place of this screen; false where the file's ending
    /// is none of a project.
    bool ProjektOeffnen(const QString& datei);

  protected:
    void closeEvent(QCloseEvent* ereignis) override;

  private:
    void MenueAnlegen();
    void TafelAnlegen();
    void Gruppe(QBoxLayout& tafel, const QString& titel, std::span<const Rechnereintrag> rechner);
    QAction* Eintrag(QWidget& menue, const char* name, const QString& text);
    void Oeffnen(std::string_view name);
    void RechnerAnbieten(std::span<const Rechnereintrag> gruppe);
    /// The window of a calculator, shown; none where it could not be opened, which the user has been told.
    Rechner* RechnerOeffnen(const Rechnereintrag& eintrag);
    void RechnerVerlassen();
    /// Goes a way into the web; a second one waits until the first has ended.
    void ImNetz(const std::function<void()>& weg);

    std::filesystem::path arbeitsordner_;
    bool imNetz_ = false;
    /// What the entries of the menu do, by name; an entry without one is shown, but not offered.
    std::map<std::string_view, std::function<void()>> wirkungen_;
};

}  // namespace zinfolio
