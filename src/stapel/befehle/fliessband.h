#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "stapel/befehle/zeilenleser.h"

namespace zinfolio {

/// Takes finished results, piece by piece in the order of the jobs. Throws where they cannot be written.
using Senke = std::function<void(std::string_view text)>;

/// A block of jobs on its way, with the results so far.
struct Werkstueck {
    Zeilenblock block{};
    std::string ergebnis{};
    std::size_t nummer = 0;
    bool fertig = false;
};

/// A belt with a fixed number of places. One thread lays blocks on it, any number of threads work on them,
/// and the results leave it in order: whoever finishes the foremost block writes it, and all finished ones
/// behind it. No thread has to stand by for writing, and nothing on the belt is copied.
class Fliessband {
  public:
    Fliessband(std::size_t plaetze, Senke ausgabe) : ring(plaetze), senke(std::move(ausgabe)) {}

    /// Lays the block on the belt (and gives an old buffer back in it); waits while the belt is full. False
    /// when the work has been broken off.
    bool Auflegen(Zeilenblock& block);

    /// No more blocks will come.
    void Schliessen();

    /// The next block to work on; null when there is none any more.
    [[nodiscard]] Werkstueck* Nehmen();

    /// Writes the results that a block has so far, as soon as it is the foremost, and empties them.
    void Zwischenausgabe(Werkstueck& stueck);

    /// The block is worked off.
    void Fertig(Werkstueck& stueck);

    /// Breaks the work off: everybody who waits is let go.
    void Abbrechen(std::exception_ptr grund);

    /// Throws what the work was broken off with, if it was.
    void FehlerWerfen() const;

  private:
    using Sperre = std::unique_lock<std::mutex>;

    Werkstueck& Platz(std::size_t nummer) { return ring[nummer % ring.size()]; }
    void Schreiben(Werkstueck& stueck, Sperre& sperre);

    std::vector<Werkstueck> ring;
    Senke senke;
    mutable std::mutex schloss;
    std::condition_variable bewegung;
    // Blocks are numbered as they come: geschrieben <= genommen <= aufgelegt <= geschrieben + places.
    std::size_t aufgelegt = 0;
    std::size_t genommen = 0;
    std::size_t geschrieben = 0;
    bool schreibend = false;
    bool geschlossen = false;
    std::exception_ptr fehler;
};

}  // namespace zinfolio
