// libFuzzer target: whatever bytes come, the reader gives a document in normal form, and what the writer
// makes of it reads back as the same document.

#include <cstdint>
#include <cstdlib>

#include "kern/richtext/rundreise.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    const std::string_view datei(reinterpret_cast<const char*>(daten), laenge);
    if (!zinfolio::UeberstehtRundreise(datei)) std::abort();
    return 0;
}
