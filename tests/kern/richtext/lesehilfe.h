#pragma once
// Short ways to look at what the reader gives.

#include <string>
#include <vector>

#include "kern/richtext/rtflesen.h"

namespace zinfolio {

/// The text of each paragraph.
inline std::vector<std::string> Absaetze(const Richtext& text) {
    std::vector<std::string> ergebnis;
    for (const Absatz& absatz : text.absaetze) {
        std::string zeile;
        for (const Lauf& lauf : absatz.laeufe)
            zeile += lauf.text;
        ergebnis.push_back(zeile);
    }
    return ergebnis;
}

/// A body as the file of which it is the body, with the fonts 0 Courier New, 1 Symbol, 2 Arial CE (1250),
/// 3 Wingdings and 4 Arial, and the colours 1 red and 2 dark green.
inline std::string Datei(std::string_view rumpf) {
    std::string datei =
        R"({\rtf1\ansi\ansicpg1252\deff0\deflang1031{\fonttbl{\f0\fnil\fcharset0 Courier New;})"
        R"({\f1\fnil\fcharset2 Symbol;}{\f2\fswiss\fcharset238 Arial CE;}{\f3\fnil\fcharset2 Wingdings;})"
        R"({\f4\fswiss\fcharset0 Arial;}})"
        "\r\n"
        R"({\colortbl ;\red255\green0\blue0;\red0\green128\blue0;})"
        "\r\n"
        R"(\viewkind4\uc1\pard\f0\fs24 )";
    datei += rumpf;
    return datei + "}\r\n";
}

/// The paragraphs of a body.
inline std::vector<std::string> Rumpf(std::string_view rumpf) {
    return Absaetze(RtfLesen(Datei(rumpf)));
}

/// The format of the last run of a body's first paragraph.
inline Zeichenformat ZeichenformatVon(std::string_view rumpf) {
    return RtfLesen(Datei(rumpf)).absaetze.at(0).laeufe.back().format;
}

/// The format of the first paragraph of a body.
inline Absatzformat AbsatzformatVon(std::string_view rumpf) {
    return RtfLesen(Datei(rumpf)).absaetze.at(0).format;
}

}  // namespace zinfolio
