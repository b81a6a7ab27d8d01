#pragma once
// The slow sort that is the rule: a selection sort with swaps, row by row through two functions.

#include <cstddef>

namespace zinfolio {

/// Sorts records 1 to n in place. `lesen(k)` gives record k, `schreiben(k, satz)` writes it,
/// `schluessel(satz)` is the number that decides.
template <typename Lesen, typename Schreiben, typename Schluessel>
void LiteraleAuswahlsortierung(std::size_t n, Lesen lesen, Schreiben schreiben, Schluessel schluessel) {
    for (std::size_t i = 1; i <= n; ++i) {
        const auto a = lesen(i);
        double m = schluessel(a);
        auto b = a;
        std::size_t p = i;
        for (std::size_t j = i; j <= n; ++j) {
            const auto satz = lesen(j);
            if (schluessel(satz) < m) {
                m = schluessel(satz);
                b = satz;
                p = j;
            }
        }
        schreiben(i, b);
        schreiben(p, a);
    }
}

}  // namespace zinfolio
