#pragma once

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "stapel/json/jsonzahl.h"

namespace zinfolio {

/// A short piece of JSON under way: fixed room on the stack, no checks but assertions. For the rows of a
/// statement, of which there are many; all else is written by `JsonSchreiber`. REQUIRES: all parts together
/// fit.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): what is read has been written before
class Zeilenpuffer {
  public:
    static constexpr std::size_t platz = 2048;

    /// A literal. Its length is known while compiling, which makes it a few plain stores.
    template <std::size_t N>
    void Fest(const char (&text)[N]) {
        static_assert(N >= 1);
        assert(Rest() >= N - 1);
        std::memcpy(ende, text, N - 1);
        ende += N - 1;
    }

    void Text(std::string_view text) {
        assert(Rest() >= text.size());
        std::copy_n(text.data(), text.size(), ende);
        ende += text.size();
    }

    void Zahl(double zahl) {
        assert(Rest() >= zahlbreite);
        ende = ZahlSchreiben(ende, zahl);
    }

    void Ganzzahl(std::int64_t zahl) {
        assert(Rest() >= zahlbreite);
        ende = GanzzahlSchreiben(ende, zahl);
    }

    /// What `schreiben` writes to the place that it is given; it gives the end.
    template <typename Schreiben>
    void Geschrieben([[maybe_unused]] std::size_t hoechstens, Schreiben schreiben) {
        assert(Rest() >= hoechstens);
        ende = schreiben(ende);
    }

    void Leeren() { ende = zeichen.data(); }

    [[nodiscard]] std::string_view Inhalt() const { return {zeichen.data(), ende}; }

  private:
    [[nodiscard]] std::size_t Rest() const {
        return static_cast<std::size_t>(zeichen.data() + zeichen.size() - ende);
    }

    std::array<char, platz> zeichen;
    char* ende = zeichen.data();
};

}  // namespace zinfolio
