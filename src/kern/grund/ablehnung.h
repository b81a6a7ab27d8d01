#pragma once

#include <string>

namespace zinfolio {

/// A refusal: what the user is told, the control that gets the focus and the tab that is selected ("" for
/// neither).
struct Ablehnung {
    std::string Meldung;
    std::string Feld;
    std::string Register;

    friend bool operator==(const Ablehnung&, const Ablehnung&) = default;
};

}  // namespace zinfolio
