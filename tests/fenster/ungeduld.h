#pragma once

#include "fenster/rechner/nebenrechnung.h"

namespace zinfolio {

/// While it lives each calculation counts as one that takes long.
class Ungeduld {
  public:
    Ungeduld() : vorher_(GeduldSetzen(std::chrono::milliseconds(0))) {}
    ~Ungeduld() { GeduldSetzen(vorher_); }
    Ungeduld(const Ungeduld&) = delete;
    Ungeduld& operator=(const Ungeduld&) = delete;

  private:
    std::chrono::milliseconds vorher_;
};

}  // namespace zinfolio
