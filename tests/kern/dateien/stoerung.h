#pragma once

#include <cstddef>

namespace zinfolio {

/// While it lives, every `read` and `write` of this test program (but not of the standard streams) goes wrong
/// as told: the calls move at most `stueck` bytes, every other one is interrupted by a signal first if
/// `unterbrechen`, and after `gute` successful calls each one fails with `fehlernummer`. One at a time.
class Stoerung {
  public:
    struct Art {
        std::size_t stueck;
        bool unterbrechen;
        int gute;
        int fehlernummer;
    };

    explicit Stoerung(Art art);
    Stoerung(const Stoerung&) = delete;
    Stoerung& operator=(const Stoerung&) = delete;
    ~Stoerung();

    /// Calls seen so far, the interrupted and failed ones included.
    [[nodiscard]] static int Aufrufe();
};

/// While it lives, this test program gets `fehlernummer` for every lock that it asks for, as on a file system
/// that knows none.
class OhneSperren {
  public:
    explicit OhneSperren(int fehlernummer);
    OhneSperren(const OhneSperren&) = delete;
    OhneSperren& operator=(const OhneSperren&) = delete;
    ~OhneSperren();
};

}  // namespace zinfolio
