#pragma once

#include <QObject>
#include <QTimer>
#include <chrono>
#include <exception>
#include <functional>
#include <memory>
#include <thread>

#include "kern/grund/suchbeobachter.h"

namespace zinfolio {

/// A calculation beside the window, which answers meanwhile: it runs in a thread of its own. A quick one is
/// over before `Starten` comes back, as if it had run in the window.
class Nebenrechnung : public QObject {
    Q_OBJECT

  public:
    struct Auftrag {
        /// Runs in the thread, on values that nobody else knows. What it throws comes to `abschluss`. Told to
        /// stop, it throws `RechnungAbgebrochen` soon.
        std::function<void(const Suchbeobachter&)> arbeit;
        /// Runs in the window's thread when the work is done, with what it threw.
        std::function<void(const std::exception_ptr&)> abschluss;
        /// Whether the window takes the result now; until then it waits. Asked only where the work took long.
        std::function<bool()> willkommen = [] { return true; };
    };

    explicit Nebenrechnung(QObject* eltern = nullptr);
    ~Nebenrechnung() override;
    Nebenrechnung(const Nebenrechnung&) = delete;
    Nebenrechnung& operator=(const Nebenrechnung&) = delete;

    /// Starts a calculation in the place of one that is under way.
    void Starten(Auftrag auftrag);

    /// Gives up what is under way: its result never comes.
    void Aufgeben();

    /// Whether one is under way, or its result waits.
    [[nodiscard]] bool Laeuft() const { return lauf_ != nullptr; }

  signals:
    /// It takes longer than one waits for without a word.
    void dauertAn();
    /// It has made so many rounds by now.
    void fortgeschritten(std::size_t runden);
    /// It is over or given up, after it took long.
    void beendet();

  private:
    struct Lauf;

    void Nachsehen();
    void Abschliessen();

    Auftrag auftrag_;
    std::shared_ptr<Lauf> lauf_;
    QTimer takt_;
    std::jthread faden_;
};

/// How long a window waits for a calculation before it goes on beside it. Sets it, for tests; gives what held
/// before.
std::chrono::milliseconds GeduldSetzen(std::chrono::milliseconds geduld);

}  // namespace zinfolio
