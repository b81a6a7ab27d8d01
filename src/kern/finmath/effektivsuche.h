#pragma once

#include <functional>

namespace zinfolio {

/// Where a search for the effective rate stopped.
struct Effektivsuche {
    /// The last rate tried, percent per year.
    double Zinssatz = 0;
    /// The present value at it, with 15 significant digits.
    double Barwert = 0;
    int Schritte = 0;
    /// True where the two start points enclose a root.
    bool Klammer = false;

    /// True where the rate counts as a solution: the present value is no further from 0 than 1.
    [[nodiscard]] bool Eindeutig() const;
};

/// Searches a zero of `barwert` (present value by rate in percent) by secant steps from the rates 10 and 1,
/// in this order. Where these enclose a root, a step out of the bracket becomes a bisection. Every value is
/// taken with 15 significant digits. Stops at a value below 0.00001, or after 50 steps: 52 calls at most.
///
/// The bracket's lower end moves by an asymmetric rule (wanted): unless the new value belongs to the upper
/// end, the lower end takes it if both are negative, or if it is positive and the lower end's value rounded
/// to a whole number is not 0. So a lower end with a value of 0.5 or less stays where it is.
///
/// Fails with a `Rechenfehler` where two values in a row are equal, a number overflows, or a value of
/// 2147483648 or more at the lower end is to be rounded; and with whatever `barwert` throws.
[[nodiscard]] Effektivsuche EffektivzinsSuchen(const std::function<double(double)>& barwert);

}  // namespace zinfolio
