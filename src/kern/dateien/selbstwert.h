#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <variant>

namespace zinfolio {

/// The value of a record that says itself what it holds: nothing, a 2-byte integer or a text (UTF-8).
using Selbstwert = std::variant<std::monostate, std::int16_t, std::string>;

/// How a record holds its value, little-endian. `MitKennung`: 2 bytes of type tag (0 empty, 2 integer, 8
/// text), then the integer, or the text in Windows-1252 behind its 2-byte length. `NurText`, `NurZahl`: the
/// same without the tag; all records of such a kind hold a value, zero bytes are an empty text and 0.
enum class Selbstform { MitKennung, NurText, NurZahl };

/// Fills the whole record; zero bytes from the value to the end. Throws `Satzfehler` when the value does not
/// fit; the record is undefined then. REQUIRES: a value of the form's kind.
void SelbstwertSchreiben(const Selbstwert& wert, std::span<std::byte> satz,
                         Selbstform form = Selbstform::MitKennung);

/// Reads such a record; a record of zero bytes, never written, is empty. Throws `Satzfehler` for an unknown
/// tag and for a value that runs over the record's end.
[[nodiscard]] Selbstwert SelbstwertLesen(std::span<const std::byte> satz,
                                         Selbstform form = Selbstform::MitKennung);

/// True for bytes at the end of a file that begin a value and do not hold it wholly.
[[nodiscard]] bool SelbstwertIstAbgeschnitten(std::span<const std::byte> rest, Selbstform form);

/// Record `satz` (from 1) of a file's bytes. Empty where the file has no such record. The last record may be
/// shorter than `satzlaenge`: a file may end with its last value's own bytes. It counts where it holds tag
/// and value wholly, and is empty where it is cut. Throws as `SelbstwertLesen`.
[[nodiscard]] Selbstwert SelbstwertAus(std::span<const std::byte> dateibytes, std::size_t satzlaenge,
                                       std::size_t satz, Selbstform form = Selbstform::MitKennung);

}  // namespace zinfolio
