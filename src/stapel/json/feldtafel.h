#pragma once
// The fields of an object as a table: one row a field, read by the type of the member that it fills. Reading
// checks the whole object at this one place.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "kern/dates/datum.h"
#include "stapel/json/jsonwert.h"

namespace zinfolio {

/// A real date that stays text on its way into a record. The view lives as long as the job's text.
struct Datumstext {
    std::string_view text;
};

/// The date of a text that `wert` has given; throws where it is none.
Datum DatumVerlangen(const JsonWert& wert, std::string_view text);

/// Each `FeldLesen` throws an `Auftragsfehler` where the value is of another kind or out of range.
void FeldLesen(JsonWert& wert, double& ziel);
/// A number that is rounded to a 4-byte float; one beyond that type's range is refused.
void FeldLesen(JsonWert& wert, float& ziel);
/// The range of the 2-byte type.
void FeldLesen(JsonWert& wert, std::int16_t& ziel);
/// 0 or 1, as check boxes are told.
void FeldLesen(JsonWert& wert, bool& ziel);
void FeldLesen(JsonWert& wert, std::string& ziel);
/// The view lives as long as the job's text.
void FeldLesen(JsonWert& wert, std::string_view& ziel);
void FeldLesen(JsonWert& wert, Datum& ziel);
void FeldLesen(JsonWert& wert, Datumstext& ziel);

enum class Vorkommen : bool { darfFehlen, pflicht };

/// A field: its name, whether it must be there, and how its value gets into the object `ziel`.
struct Feldzeile {
    std::string_view name;
    Vorkommen vorkommen = Vorkommen::pflicht;
    void (*lesen)(JsonWert& wert, void* ziel) = nullptr;
};

/// A row for objects of type T, made by `Pflichtfeld` or `Kannfeld`.
template <typename T>
struct Typzeile {
    Feldzeile zeile;
};

template <typename T, std::size_t N>
struct Feldtafel {
    std::array<Feldzeile, N> zeilen;
};

namespace detail {

template <typename T>
struct Glied;
template <typename Klasse_, typename Wert_>
struct Glied<Wert_ Klasse_::*> {
    using Klasse = Klasse_;
};
template <auto glied>
using KlasseVon = typename Glied<decltype(glied)>::Klasse;

// static: two kinds of jobs may give their types in unnamed namespaces the same name, and GCC 12 would take
// the functions for one and the same.
template <auto glied>
static void GliedLesen(JsonWert& wert, void* ziel) {
    FeldLesen(wert, static_cast<KlasseVon<glied>*>(ziel)->*glied);
}

void ObjektLesen(JsonWert& wert, std::span<const Feldzeile> zeilen, void* ziel);

}  // namespace detail

/// A field that must be there; read by the `FeldLesen` of the member's type.
template <auto glied>
[[nodiscard]] constexpr Typzeile<detail::KlasseVon<glied>> Pflichtfeld(std::string_view name) {
    return {{name, Vorkommen::pflicht, detail::GliedLesen<glied>}};
}

/// A field that may be missing: its member then keeps its value.
template <auto glied>
[[nodiscard]] constexpr Typzeile<detail::KlasseVon<glied>> Kannfeld(std::string_view name) {
    return {{name, Vorkommen::darfFehlen, detail::GliedLesen<glied>}};
}

/// The fields of a nested object.
template <typename T, typename... Weitere>
[[nodiscard]] constexpr auto Objektfelder(Typzeile<T> erste, Weitere... weitere) {
    return Feldtafel<T, 1 + sizeof...(weitere)>{{erste.zeile, weitere.zeile...}};
}

/// The fields of a job: its own, and the two of its head, which have been read by then.
template <typename T, typename... Weitere>
[[nodiscard]] constexpr auto Auftragsfelder(Typzeile<T> erste, Weitere... weitere) {
    constexpr auto gelesen = [](JsonWert&, void*) {};
    return Feldtafel<T, 3 + sizeof...(weitere)>{{Feldzeile{"rechnung", Vorkommen::pflicht, gelesen},
                                                 erste.zeile, weitere.zeile...,
                                                 Feldzeile{"id", Vorkommen::darfFehlen, gelesen}}};
}

/// Reads an object field by field. A field that is unknown, comes twice or is missing, and a value that its
/// row refuses, is an `Auftragsfehler` that names it with its path.
template <typename T, std::size_t N>
void ObjektLesen(JsonWert& wert, const Feldtafel<T, N>& tafel, T& ziel) {
    static_assert(N <= 64, "the fields met are kept in 64 bits");
    detail::ObjektLesen(wert, tafel.zeilen, &ziel);
}

/// A job of type T by its table.
template <typename T, std::size_t N>
[[nodiscard]] T AuftragLesen(JsonWert& wert, const Feldtafel<T, N>& tafel) {
    T auftrag;
    ObjektLesen(wert, tafel, auftrag);
    return auftrag;
}

/// A list, element by element, by the `FeldLesen` of its elements' type.
template <typename T>
void FeldLesen(JsonWert& wert, std::vector<T>& ziel) {
    wert.Elemente([&](JsonWert& element) { FeldLesen(element, ziel.emplace_back()); });
}

}  // namespace zinfolio
