#pragma once
// A second start of the program hands its project to the one that runs.

#include <QObject>
#include <chrono>
#include <filesystem>

class QLocalServer;
class QLocalSocket;

namespace zinfolio {

/// Where the program of this working folder is met: a socket in the user's own run-time folder. Another
/// display has another one, so that a project never opens where nobody looks. Empty where the user has no
/// such folder: nobody is met then.
[[nodiscard]] QString Uebergabeadresse(const std::filesystem::path& arbeitsordner);

/// Hands a project, or nothing but the wish to see the program, to the one that listens there, and waits
/// until it has taken it. False where nobody takes it within `frist`.
[[nodiscard]] bool ProjektUebergeben(const QString& adresse, const QString& datei,
                                     std::chrono::milliseconds frist);

/// The place where the running program is handed projects. A peer that says nothing, or nonsense, is shown
/// out.
class Uebergabestelle : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    /// Listens there. REQUIRES: no other program does; a socket that lies there is a dead one and goes.
    /// False where that is not possible: nothing is handed over then.
    bool Eroeffnen(const QString& adresse);

  signals:
    /// Somebody started the program again, with this project; empty: without one.
    void uebergeben(const QString& datei);

  private:
    void Annehmen();
    void Lesen(QLocalSocket& gast);

    QLocalServer* horcher_ = nullptr;
};

}  // namespace zinfolio
