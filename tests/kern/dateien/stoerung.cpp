#include "kern/dateien/stoerung.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <sys/syscall.h>
#include <unistd.h>

namespace zinfolio {
namespace {

std::optional<Stoerung::Art> stoerung;
int aufrufe = 0;
int gelungene = 0;
/// What a lock fails with; 0: it does not.
int sperrfehler = 0;

// Number of bytes that the call may move; nothing where it fails, with `errno` set.
std::optional<std::size_t> Erlaubt(int datei, std::size_t anzahl) {
    if (!stoerung || datei <= STDERR_FILENO) return anzahl;
    ++aufrufe;
    if (stoerung->unterbrechen && aufrufe % 2 == 1) {
        errno = EINTR;
        return std::nullopt;
    }
    if (gelungene >= stoerung->gute) {
        errno = stoerung->fehlernummer;
        return std::nullopt;
    }
    ++gelungene;
    return std::min(anzahl, stoerung->stueck);
}

}  // namespace

Stoerung::Stoerung(Art art) {
    stoerung = art;
    aufrufe = 0;
    gelungene = 0;
}

Stoerung::~Stoerung() {
    stoerung.reset();
}

int Stoerung::Aufrufe() {
    return aufrufe;
}

OhneSperren::OhneSperren(int fehlernummer) {
    sperrfehler = fehlernummer;
}

OhneSperren::~OhneSperren() {
    sperrfehler = 0;
}

}  // namespace zinfolio

// These take the place of the C library's functions in the whole program.
extern "C" ssize_t write(int datei, const void* quelle, std::size_t anzahl) {
    const auto erlaubt = zinfolio::Erlaubt(datei, anzahl);
    return erlaubt ? ::syscall(SYS_write, datei, quelle, *erlaubt) : -1;
}

extern "C" ssize_t read(int datei, void* ziel, std::size_t anzahl) {
    const auto erlaubt = zinfolio::Erlaubt(datei, anzahl);
    return erlaubt ? ::syscall(SYS_read, datei, ziel, *erlaubt) : -1;
}

// By another name in the source, since the C library has a struct of the same.
extern "C" int FlockErsatz(int datei, int art) __asm__("flock");
extern "C" int FlockErsatz(int datei, int art) {
    if (zinfolio::sperrfehler == 0) return static_cast<int>(::syscall(SYS_flock, datei, art));
    errno = zinfolio::sperrfehler;
    return -1;
}
