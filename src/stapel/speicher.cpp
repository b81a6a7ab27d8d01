#include "stapel/speicher.h"

#include <cstdint>
#include <cstdlib>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

namespace zinfolio {

void GrosseSeitenErbitten() {
    constexpr int vorrat = 32 << 20;  // the most that M_MMAP_THRESHOLD takes
    constexpr std::uintptr_t grosseSeite = std::uintptr_t{2} << 20U;
    // All memory comes from one growing range, and stays in it when it is given back.
    mallopt(M_MMAP_THRESHOLD, vorrat);
    mallopt(M_TRIM_THRESHOLD, 4 * vorrat);
    mallopt(M_TOP_PAD, 2 * vorrat);
    const auto anfang = reinterpret_cast<std::uintptr_t>(sbrk(0));
    void* volatile probe = std::malloc(grosseSeite);  // volatile, or the compiler drops the pair
    std::free(probe);
    const auto ende = reinterpret_cast<std::uintptr_t>(sbrk(0));
    const std::uintptr_t erste = (anfang + grosseSeite - 1) / grosseSeite * grosseSeite;
    if (erste < ende) madvise(reinterpret_cast<void*>(erste), ende - erste, MADV_HUGEPAGE);
}

}  // namespace zinfolio
