#include "kern/dateien/sperre.h"

#include <cerrno>
#include <sys/file.h>
#include <utility>

namespace zinfolio {
namespace {

/// What opening says about a file that can never be held, unlike one that cannot be opened just now.
bool IstUnbrauchbar(int fehlernummer) {
    return fehlernummer == EACCES || fehlernummer == ENXIO || fehlernummer == ELOOP || fehlernummer == ENOENT;
}

}  // namespace

// O_NONBLOCK: a named pipe in the place of the file must not make us wait.
Sperre::Sperre(const std::filesystem::path& pfad) : Sperre(Deskriptor(pfad, O_RDONLY | O_NONBLOCK)) {}

Sperre::Sperre(Deskriptor offene) : deskriptor_(std::move(offene)), fehlernummer_(errno) {
    Nochmals();
}

Sperre Sperre::AnDatei(const std::filesystem::path& datei) {
    constexpr int schalter = O_RDONLY | O_NONBLOCK | O_CREAT;
    constexpr mode_t rechte = 0600;
    Deskriptor offene(datei, schalter, rechte);
    // What exists as a folder is not opened with O_CREAT, but can be held.
    if (!offene.Offen() && errno == EISDIR) return Sperre(datei);
    if (!offene.Offen() && IstUnbrauchbar(errno) && ::unlink(datei.c_str()) == 0)
        return Sperre(Deskriptor(datei, schalter, rechte));
    return Sperre(std::move(offene));
}

void Sperre::Nochmals() {
    if (!deskriptor_.Offen() || Gehalten()) return;
    if (OhneUnterbrechung([&] { return ::flock(deskriptor_.Nummer(), LOCK_EX | LOCK_NB); }) == 0) {
        zustand_ = Zustand::gehalten;
        return;
    }
    fehlernummer_ = errno;
    switch (fehlernummer_) {
        case EWOULDBLOCK:
            zustand_ = Zustand::besetzt;
            break;
        case EBADF:  // a network file system that wants the file open for writing
        case EINVAL:
        case ENOLCK:
        case ENOSYS:
        case EOPNOTSUPP:
            zustand_ = Zustand::unmoeglich;
            break;
        default:
            zustand_ = Zustand::gescheitert;
    }
}

}  // namespace zinfolio
