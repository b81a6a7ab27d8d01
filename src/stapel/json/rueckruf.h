#pragma once

#include <concepts>
#include <memory>
#include <type_traits>
#include <utility>

namespace zinfolio {

template <typename Signatur>
class Rueckruf;

/// A reference to something callable, for parameters alone: it owns nothing and must not outlive the call.
template <typename Ergebnis, typename... Argumente>
class Rueckruf<Ergebnis(Argumente...)> {
  public:
    template <typename F>
    requires(!std::same_as<std::remove_cvref_t<F>, Rueckruf> &&
             std::is_invocable_r_v<Ergebnis, F&, Argumente...>)
        // NOLINTNEXTLINE(bugprone-forwarding-reference-overload): the constraint keeps copies out
        Rueckruf(F&& funktion)
    noexcept
        : ziel(const_cast<void*>(static_cast<const void*>(std::addressof(funktion)))),
          aufruf([](void* f, Argumente... argumente) -> Ergebnis {
              return (*static_cast<std::remove_reference_t<F>*>(f))(std::forward<Argumente>(argumente)...);
          }) {}

    Ergebnis operator()(Argumente... argumente) const {
        return aufruf(ziel, std::forward<Argumente>(argumente)...);
    }

  private:
    void* ziel;
    Ergebnis (*aufruf)(void*, Argumente...);
};

}  // namespace zinfolio
