#pragma once
// The closed model of a savings plan: no dates, interest compounded yearly and simple within the year of 360
// days. Four operations, each solving for one of its figures.

#include <cstdint>

namespace zinfolio {

/// The first payment is due at once (1), or after the first payment interval (2).
namespace zahlungsmodus {
inline constexpr std::int16_t sofort = 1;
inline constexpr std::int16_t nachIntervall = 2;
}  // namespace zahlungsmodus

/// The figures of the model. REQUIRES of all operations: `m` is 12, 6, 4, 3, 2 or 1, and `Zahlungsmodus` 1
/// or 2.
struct Ratensparplan {
    /// One payment.
    double R = 0;
    /// The saving period in years and days.
    std::int16_t J = 0;
    std::int16_t T = 0;
    /// Percent per year.
    double i = 0;
    /// Payments a year.
    std::int16_t m = 12;
    /// The initial capital.
    double K = 0;
    std::int16_t Zahlungsmodus = zahlungsmodus::sofort;
    /// The end value.
    double E = 0;

    friend bool operator==(const Ratensparplan&, const Ratensparplan&) = default;
};

/// Sets `E`, at cents; `J` and `T` come back normalised, `T` below 360. At a rate of 0 the payments of full
/// years count for nothing, which is wanted. Throws `Rechenfehler` for a division by zero, a number beyond
/// its type, and whatever is no finite number.
void RatensparenEndwert(Ratensparplan& plan);

/// Sets `R`, at cents, so that the plan reaches `E`; `J` and `T` come back normalised. The search starts from
/// the payment that would reach `E` without capital and part-year, its first step is what that start is off
/// by, spread over all payments, and each later step is half of the one before; it ends when `R` changes by
/// less than 0.0001. A start that lies too low is not guarded against, which is wanted. Throws as
/// `RatensparenEndwert`.
void RatensparenRate(Ratensparplan& plan);

/// Sets `J` and `T` to the smallest period at which the plan reaches `E`: whole years first, then days. A
/// rate of 0 counts as 0.00001. With `R` and `E` both 0 nothing is changed. Throws as `RatensparenEndwert`,
/// also when 32767 years or 100 000 rounds do not suffice.
void RatensparenLaufzeit(Ratensparplan& plan);

/// Sets `i` so that the plan reaches `E`, compared at cents; `J` and `T` come back normalised. From 12
/// percent in steps of 10, which are halved from the first change of the side on; the search ends on a hit,
/// or with a step below 0.01 percent. With `R`, `K` and `E` all 0 the rate is 0. Throws as
/// `RatensparenEndwert`, also when 100 000 rounds do not suffice.
void RatensparenRendite(Ratensparplan& plan);

}  // namespace zinfolio
