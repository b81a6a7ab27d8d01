#include "fenster/start/programmstart.h"

namespace zinfolio {

Ordnersperre::Ordnersperre(const std::filesystem::path& ordner)
    : sperre_(Sperre::AnDatei(ordner / "zinfolio.lock")) {}

bool Ordnersperre::Gehalten() const {
    return sperre_.Gehalten() || sperre_.Stand() == Sperre::Zustand::unmoeglich;
}

bool Ordnersperre::Besetzt() const {
    return sperre_.Stand() == Sperre::Zustand::besetzt;
}

bool KehrtZumStartZurueck(const QString& kommandozeile) {
    return kommandozeile.isEmpty() || kommandozeile == "Zinfolio.exe";
}

}  // namespace zinfolio
