#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "kern/richtext/rtflesen.h"
#include "kern/richtext/rtfschreiben.h"

namespace zinfolio {

inline bool NurAscii(std::string_view datei) {
    return std::all_of(datei.begin(), datei.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

/// What holds for every file: what is read from it is in normal form, is written as ASCII, reads back equal,
/// and is written the same again.
inline bool UeberstehtRundreise(std::string_view datei) {
    const Richtext text = RtfLesen(datei);
    const std::string geschrieben = RtfSchreiben(text);
    const Richtext zurueck = RtfLesen(geschrieben);
    return Normalform(text) == text && NurAscii(geschrieben) && zurueck == text &&
           RtfSchreiben(zurueck) == geschrieben;
}

}  // namespace zinfolio
