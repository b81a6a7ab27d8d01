#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "kern/dateien/festtext.h"
#include "kern/dateien/satzbytes.h"

namespace zinfolio {

/// A record with one field of each kind.
struct Probesatz {
    static constexpr std::size_t Satzlaenge = 2 + 10 + 8 + 4 + 4;

    std::int16_t art = 0;
    Festtext<10> name;
    double betrag = 0;
    float zins = 0;
    std::int32_t tage = 0;

    void Schreiben(std::span<std::byte, Satzlaenge> ziel) const {
        Satzschreiber schreiber(ziel);
        schreiber.Ganz16(art);
        schreiber.Text(name);
        schreiber.Gleit8(betrag);
        schreiber.Gleit4(zins);
        schreiber.Ganz32(tage);
    }
    [[nodiscard]] static Probesatz Lesen(std::span<const std::byte, Satzlaenge> quelle) {
        Satzleser leser(quelle);
        Probesatz satz;
        satz.art = leser.Ganz16();
        satz.name = leser.Text<10>();
        satz.betrag = leser.Gleit8();
        satz.zins = leser.Gleit4();
        satz.tage = leser.Ganz32();
        return satz;
    }

    friend bool operator==(const Probesatz&, const Probesatz&) = default;
};

}  // namespace zinfolio
