#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "stapel/json/jsonwert.h"
#include "stapel/json/rueckruf.h"

namespace zinfolio {

/// So many bytes behind a job's text must be readable; the parser looks ahead. The first of them is a line
/// end or a zero byte, at which a job that is cut off stops; the others may hold anything.
inline constexpr std::size_t nachlauf = 64;

/// Deeper nesting in an `id` is refused: nobody needs it, and the walk uses the stack.
inline constexpr int hoechsttiefe = 64;

/// What is known of a job before its fields are read.
struct Auftragskopf {
    /// The field as minified JSON, "null" where there is none (or none could be read yet).
    std::string id = "null";
    /// The kind of the calculation; nothing where the field is missing.
    std::optional<std::string> rechnung;
};

/// Reads jobs, one after the other. All operations throw `Auftragsfehler`.
class JsonLeser {
  public:
    JsonLeser();
    JsonLeser(const JsonLeser&) = delete;
    JsonLeser& operator=(const JsonLeser&) = delete;
    ~JsonLeser();

    /// Makes `text` the current job; it must stay until the next one. REQUIRES: `nachlauf` bytes behind it.
    void Oeffnen(std::string_view text);

    /// Looks through the whole job for `id` and `rechnung`. Where the job is damaged behind its `id`, `kopf`
    /// holds it nevertheless.
    void KopfLesen(Auftragskopf& kopf);

    /// Hands over the job as one value, from its start.
    void AuftragLesen(Rueckruf<void(JsonWert&)> rueckruf);

  private:
    struct Kern;
    std::unique_ptr<Kern> kern;
};

}  // namespace zinfolio
