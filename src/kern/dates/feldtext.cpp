#include "kern/dates/feldtext.h"

#include <charconv>

namespace zinfolio {
namespace {

/// The digits of a number whose decimal sign stands behind the first `vorKomma` of them.
std::string MitKomma(std::string ziffern, int vorKomma) {
    if (vorKomma <= 0) return "0," + std::string(static_cast<std::size_t>(-vorKomma), '0') + ziffern;
    const auto stelle = static_cast<std::size_t>(vorKomma);
    if (ziffern.size() <= stelle) return ziffern.append(stelle - ziffern.size(), '0');
    return ziffern.insert(stelle, ",");
}

}  // namespace

std::string Feldtext(std::string_view zahltext) {
    if (zahltext.find_first_of("0123456789") == std::string_view::npos) return {};
    const auto trenner = zahltext.find('E');
    if (trenner == std::string_view::npos) return std::string(zahltext);
    std::string_view exponententext = zahltext.substr(trenner + 1);
    if (exponententext.starts_with('+')) exponententext.remove_prefix(1);
    int exponent = 0;
    std::from_chars(exponententext.data(), exponententext.data() + exponententext.size(), exponent);
    const bool negativ = zahltext.starts_with('-');
    std::string ziffern(zahltext.substr(0, trenner).substr(negativ ? 1 : 0));
    std::erase(ziffern, ',');
    return (negativ ? "-" : "") + MitKomma(std::move(ziffern), exponent + 1);
}

}  // namespace zinfolio
