#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace zinfolio {

/// Fills a piece of memory from the input and gives the number of bytes; 0 is the end. Waits only while there
/// is nothing at all. Throws where the input cannot be read.
using Quelle = std::function<std::size_t(char* ziel, std::size_t platz)>;

/// Longer lines are no jobs. They are cut on the way, so that no input can fill the memory.
inline constexpr std::size_t hoechsteZeilenlaenge = std::size_t{32} << 20;

/// Complete lines as they came, with room for the parser's look behind them.
struct Zeilenblock {
    std::string puffer{};
    /// Bytes of the lines at the start of `puffer`.
    std::size_t laenge = 0;

    [[nodiscard]] std::string_view Zeilen() const { return std::string_view(puffer).substr(0, laenge); }
};

/// Cuts the input into blocks of complete lines. A line goes on as soon as its end has come.
class Zeilenleser {
  public:
    explicit Zeilenleser(Quelle eingabe) : quelle(std::move(eingabe)) {}

    /// Puts the next lines into `block`; false at the end of the input. The last line needs no line end.
    bool Naechster(Zeilenblock& block);

  private:
    Quelle quelle;
    std::string rest;
    bool zuEnde = false;
};

/// Takes the first line from the front of `zeilen`, without its line end.
[[nodiscard]] std::string_view ZeileNehmen(std::string_view& zeilen);

}  // namespace zinfolio
