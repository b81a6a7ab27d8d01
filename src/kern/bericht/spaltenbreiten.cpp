#include "kern/bericht/spaltenbreiten.h"

#include <algorithm>
#include <numeric>

namespace zinfolio {
namespace {

double Summe(const std::vector<double>& breiten) {
    return std::accumulate(breiten.begin(), breiten.end(), 0.0);
}

/// One round of sharing `platz`: columns that would get less than they need are given that for good. False:
/// there was none.
bool MindestensGeben(const std::vector<double>& wunsch, const std::vector<double>& mindest, double platz,
                     std::vector<bool>& vergeben, double& faktor) {
    double wuensche = 0;
    for (std::size_t i = 0; i < wunsch.size(); ++i) {
        if (vergeben[i])
            platz -= mindest[i];
        else
            wuensche += wunsch[i];
    }
    faktor = wuensche > 0 ? std::max(0.0, platz) / wuensche : 0;
    bool gefunden = false;
    for (std::size_t i = 0; i < wunsch.size(); ++i) {
        if (vergeben[i] || wunsch[i] * faktor >= mindest[i]) continue;
        vergeben[i] = true;
        gefunden = true;
    }
    return gefunden;
}

}  // namespace

std::vector<double> Spaltenbreiten(const std::vector<double>& wunsch, const std::vector<double>& mindest,
                                   double platz) {
    std::vector<double> breiten(wunsch.size());
    std::transform(wunsch.begin(), wunsch.end(), mindest.begin(), breiten.begin(),
                   [](double w, double m) { return std::max(w, m); });
    if (Summe(breiten) <= platz) return breiten;
    std::vector<bool> vergeben(wunsch.size(), false);
    double faktor = 0;
    while (MindestensGeben(wunsch, mindest, platz, vergeben, faktor)) {
    }
    for (std::size_t i = 0; i < breiten.size(); ++i)
        breiten[i] = vergeben[i] ? mindest[i] : wunsch[i] * faktor;
    return breiten;
}

}  // namespace zinfolio
