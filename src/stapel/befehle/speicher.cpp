#include "stapel/befehle/speicher.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

namespace zinfolio {

void GrosseSeitenErbitten() {
    constexpr int vorrat = 32 << 20;  // the most that M_MMAP_THRESHOLD takes
    constexpr std::size_t grosseSeite = std::size_t{2} << 20U;
    // All memory comes from one growing range, and stays in it when it is given back.
    mallopt(M_MMAP_THRESHOLD, vorrat);
    mallopt(M_TRIM_THRESHOLD, 4 * vorrat);
    mallopt(M_TOP_PAD, 2 * vorrat);
    const auto* const anfang = static_cast<char*>(sbrk(0));
    // NOLINTBEGIN(cppcoreguidelines-no-malloc): it is the allocator itself that shall grow
    void* volatile probe = std::malloc(grosseSeite);  // volatile, or the compiler drops the pair
    std::free(probe);
    // NOLINTEND(cppcoreguidelines-no-malloc)
    auto* const ende = static_cast<char*>(sbrk(0));
    const std::size_t rand = reinterpret_cast<std::uintptr_t>(ende) % grosseSeite;
    const auto gewachsen = static_cast<std::size_t>(ende - anfang);
    if (gewachsen < grosseSeite + rand) return;
    const std::size_t laenge = (gewachsen - rand) / grosseSeite * grosseSeite;
    madvise(ende - rand - laenge, laenge, MADV_HUGEPAGE);
}

}  // namespace zinfolio
