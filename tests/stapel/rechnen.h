#pragma once

#include <string>
#include <string_view>

#include "stapel/auftraege/auftragsrechner.h"

namespace zinfolio {

/// The result of one job, as the batch prints it without its line end. The job lies in a buffer of its exact
/// size and the parser's look-ahead, so that a sanitizer sees every step beyond. Behind a line comes its end
/// and then anything.
inline std::string Ergebnis(std::string_view auftrag) {
    std::string puffer(auftrag);
    puffer += '\n';
    puffer.append(nachlauf - 1, '}');
    std::string ergebnis;
    Auftragsrechner().Rechnen(std::string_view(puffer).substr(0, auftrag.size()), ergebnis);
    return ergebnis;
}

/// The result line of a job that has none.
inline std::string OhneErgebnis(std::string_view id, std::string_view meldung) {
    return R"({"id":)" + std::string(id) + R"(,"ok":false,"Meldung":")" + std::string(meldung) +
           R"(","Feld":null,"Register":null})";
}

}  // namespace zinfolio
