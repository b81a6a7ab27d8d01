#pragma once

#include <QObject>
#include <QString>
#include <vector>

#include "fenster/rechner/befehlszeile.h"

class QMenu;
class QWidget;

namespace zinfolio {

/// How a calculator keeps what the user entered: its commands, its name, and the question before all is given
/// up. The window's mark "modified" says whether there is something to lose.
class Ablage : public QObject {
    Q_OBJECT

  public:
    explicit Ablage(QWidget& fenster);

    /// What the calculator shows as it opens. Faults come through.
    virtual void Beginnen() = 0;

    /// Saves; where that fails the user is told. True where all is saved afterwards.
    virtual bool Speichern() = 0;

    /// The rows of menu and toolbar, valid as long as this lives.
    [[nodiscard]] virtual std::vector<Befehlszeile> Befehle() = 0;

    /// What the toolbar shows at its right, made once for it; none: nothing.
    [[nodiscard]] virtual QWidget* NeueAnzeige() = 0;

    /// A submenu of its own behind its commands, made once for the menu; none: nothing.
    [[nodiscard]] virtual QMenu* NeuesMenue() { return nullptr; }

    /// The name of what is shown, empty where it has none.
    [[nodiscard]] virtual QString Name() const = 0;

    /// What exports of it are named by: a path or a mere name, without an ending; empty where it has none.
    [[nodiscard]] virtual QString Exportstamm() const;

    /// Whether the calculator may be left: always asks.
    [[nodiscard]] bool VerlassenGewollt();

  signals:
    /// It has another name.
    void benannt();
    /// Something else is shown in its place.
    void gewechselt();

  protected:
    /// Whether something else may take the place of what is shown: asks where there is something to lose.
    [[nodiscard]] bool AufgebenGewollt();

    /// What is done before the question on leaving; what is done before saving where it was answered with
    /// yes.
    virtual void VorDerFrage() {}
    [[nodiscard]] virtual bool VorDemAbschied() { return true; }

    /// Runs what writes; where it cannot, tells so behind `vorspann`.
    [[nodiscard]] bool Schreiben(const QString& vorspann, const std::function<void()>& operation);

    [[nodiscard]] QWidget* Fenster() const { return fenster_; }

  private:
    QWidget* fenster_;
};

}  // namespace zinfolio
