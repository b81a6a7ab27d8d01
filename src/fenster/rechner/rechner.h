#pragma once
// The frame of a calculator: what all of them have, to be filled with what one of them is.

#include <QMainWindow>
#include <QSize>
#include <filesystem>
#include <functional>
#include <optional>
#include <variant>
#include <vector>

#include "fenster/ausgabe/formdiagramm.h"
#include "fenster/ausgabe/formvorschau.h"
#include "fenster/rechner/befehlszeile.h"
#include "kern/grund/ablehnung.h"

class QMenu;
class QStackedWidget;
class QTabWidget;
class QToolBar;

namespace zinfolio {

class Ablage;

/// What differs between the frames of the calculators.
struct Rechnerart {
    /// the fixed name of the window, under which its size is kept
    const char* name;
    const char* titel;
    QSize groesse = {1180, 720};
    /// the fixed name of the button "Ende"
    const char* ende = "Command2";
    Vorschauart vorschau = {};
    std::vector<Diagrammart> diagramme = {Diagrammart{}};
};

/// A tab of a calculator.
struct Registerzeile {
    QWidget* seite;
    const char* titel;
    /// what selecting the tab does beside showing it
    std::function<void()> betreten = {};
    /// selecting the tab that is selected already does the same again
    bool erneut = false;
    /// what the user changes in the fields of the page is unsaved; a notes tab is watched without it
    bool eingabe = false;
};

/// What a calculator is made of.
struct Rechnerinhalt {
    std::vector<Registerzeile> register_;
    /// What keeps the user's entries, a child of the calculator.
    Ablage* ablage;
    /// The calculator's own commands, behind those of `ablage`.
    std::vector<Befehlszeile> befehle = {};
};

/// The window of a calculator: tabs, and behind them its preview, its charts and pages of its own; menu,
/// toolbar and keys; the title with the project's name and the mark of unsaved changes; the question on
/// leaving. Nothing that is handed over here lets an exception out: each runs in the trap of `Geschuetzt`.
class Rechner : public QMainWindow {
    Q_OBJECT

  public:
    /// `arbeitsordner` is where the fixed files of the exports lie.
    Rechner(const Rechnerart& art, const std::filesystem::path& arbeitsordner);

  signals:
    /// The form has been left.
    void verlassen();
    /// The user asks who made the program.
    void impressumVerlangt();

  protected:
    using Rechenschritt = std::function<std::optional<Ablehnung>()>;
    using Zeichenschritt = std::function<std::variant<Diagramm, Ablehnung>()>;

    /// Fills the frame and begins; called once, at the end of the calculator's constructor. What beginning
    /// throws comes through.
    void Einrichten(Rechnerinhalt inhalt);

    /// There are unsaved changes.
    void Geaendert() { setWindowModified(true); }

    /// Runs a step behind the wait pointer. A refusal is told, its tab selected, its field focused; a fault
    /// is told. True where neither came.
    bool Ausfuehren(const Rechenschritt& schritt);

    /// The same for a calculation: after a fault the first tab is selected.
    bool Rechnen(const Rechenschritt& schritt);

    /// Tells a refusal, selects its tab and focuses its field.
    void Ablehnen(const Ablehnung& ablehnung);

    /// Shows a report in the preview. `bilden` is called again for the exports that compose it anew.
    void Drucken(const std::function<Bericht()>& bilden);

    /// Shows a chart in the frame of that number. True where it was drawn.
    bool Zeichnen(const Zeichenschritt& bilden, std::size_t nummer = 0);

    /// Brings the tab of a page to the front as a click does.
    void RegisterWaehlen(QWidget* seite);
    /// The same without what selecting it does.
    void RegisterZeigen(QWidget* seite);

    /// Whether the tab of a page is the one in front.
    [[nodiscard]] bool RegisterGewaehlt(QWidget* seite) const;

    /// Adds a tab that is there only for a while, and shows it; Escape does `zurueck`.
    void RegisterAnhaengen(QWidget* seite, const char* titel, const std::function<void()>& zurueck);
    void RegisterEntfernen(QWidget* seite);
    [[nodiscard]] bool RegisterVorhanden(QWidget* seite) const;

    /// Adds a page that takes the place of the tabs while it is shown; Escape leaves it.
    void SeiteAnlegen(QWidget* seite);
    void SeiteZeigen(QWidget* seite);
    /// Leaves preview, chart or page for what was shown before.
    void Zurueck();

    /// The name of the project, as a report shows it.
    [[nodiscard]] QString Projektname() const;

    void closeEvent(QCloseEvent* ereignis) override;

  private:
    void AusgabenAnlegen(const Rechnerart& art, const std::filesystem::path& arbeitsordner);
    void RegisterAnlegen();
    void Beobachten(const Registerzeile& zeile);
    void LeisteAnlegen();
    void FesteBefehleAnlegen(QMenu& datei, QToolBar& leiste);
    void RegistertastenAnlegen();
    QAction* NeuerBefehl(const Befehlszeile& zeile);
    static void InLeiste(QToolBar& leiste, QAction* befehl, const char* name);
    void Betreten(int stelle);
    void RegisterWechseln(int richtung);
    void TitelZeigen();
    [[nodiscard]] int Stelle(QWidget* seite) const;

    const char* titel_;
    const char* ende_;
    QStackedWidget* mitte_;
    QTabWidget* TabStrip1_;
    FormVorschau* vorschau_ = nullptr;
    std::vector<FormDiagramm*> diagramme_;
    Rechnerinhalt inhalt_;
    /// What is shown again when preview, chart or page is left.
    QWidget* herkunft_;
};

}  // namespace zinfolio
