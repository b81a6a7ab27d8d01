#include "fenster/rechner/registernotizen.h"

#include <utility>

#include "kern/richtext/rtflesen.h"
#include "kern/richtext/rtfschreiben.h"

namespace zinfolio {

RegisterNotizen::RegisterNotizen(const char* name, QWidget* eltern)
    : Notizfeld(QString::fromUtf8(name), eltern) {
    connect(this, &Notizfeld::geaendert, this, [this] { datei_.reset(); });
}

void RegisterNotizen::Oeffnen(std::string datei) {
    Zeigen(RtfLesen(datei));
    GrundschriftSetzen();
    Merken(std::move(datei));
}

void RegisterNotizen::Wiederladen(std::string datei) {
    if (datei_ == datei) return;
    Zeigen(RtfLesen(datei));
    Merken(std::move(datei));
}

std::string RegisterNotizen::AlsDatei() {
    if (!datei_) datei_ = RtfSchreiben(Lesen());
    return *datei_;
}

void RegisterNotizen::Merken(std::string datei) {
    // Plain text is shown too, but written as rich text.
    datei_.reset();
    if (datei.starts_with("{\\rtf")) datei_ = std::move(datei);
}

}  // namespace zinfolio
