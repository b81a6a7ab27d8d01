#pragma once

namespace zinfolio {

/// Where the stand-in for a box of one kind is kept: empty while the program runs, set by a test that answers
/// in the box's place. Each kind has a type of its own.
template <typename Zeuge>
Zeuge& Zeugenplatz() {
    static Zeuge zeuge;
    return zeuge;
}

}  // namespace zinfolio
