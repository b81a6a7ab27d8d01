#include "fenster/start/programmstart.h"

#include <QLockFile>

namespace zinfolio {

Ordnersperre::Ordnersperre(const std::filesystem::path& ordner)
    : sperre_(std::make_unique<QLockFile>(QString::fromStdString((ordner / "zinfolio.lock").string()))) {
    sperre_->setStaleLockTime(0);
    sperre_->tryLock();
}

Ordnersperre::~Ordnersperre() = default;

bool Ordnersperre::Gehalten() const {
    return sperre_->isLocked();
}

bool Ordnersperre::Besetzt() const {
    return sperre_->error() == QLockFile::LockFailedError;
}

bool KehrtZumStartZurueck(const QString& kommandozeile) {
    return kommandozeile.isEmpty() || kommandozeile == "Zinfolio.exe";
}

}  // namespace zinfolio
