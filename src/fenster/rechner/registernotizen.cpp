#include "fenster/rechner/registernotizen.h"

#include <utility>

#include "fenster/ui/meldungsfenster.h"
#include "kern/richtext/notiz.h"
#include "kern/richtext/rtflesen.h"
#include "kern/richtext/rtfschreiben.h"

namespace zinfolio {

RegisterNotizen::RegisterNotizen(const char* name, QWidget* eltern)
    : Notizfeld(QString::fromUtf8(name), eltern) {
    connect(this, &Notizfeld::geaendert, this, &RegisterNotizen::Aendern);
}

void RegisterNotizen::Oeffnen(std::string datei) {
    Zeigen(InGrundschrift(RtfLesen(datei)));
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
    // Plain text is shown too, but written as rich text; what is shown in part stays the bytes it was.
    datei_.reset();
    fremdeTeile_ = HatFremdeTeile(datei);
    if (Gekuerzt() || datei.starts_with("{\\rtf")) datei_ = std::move(datei);
}

void RegisterNotizen::Aendern() {
    if (datei_ && std::exchange(fremdeTeile_, false) && !VerlustGewollt()) {
        Oeffnen(*datei_);
        return;
    }
    datei_.reset();
    emit inhaltGeaendert();
}

bool RegisterNotizen::VerlustGewollt() {
    return Fragen(window(),
                  {.text = "Diese Notiz enthält Bilder oder andere Teile, die hier nicht gezeigt werden. "
                           "Wenn Sie die Notiz "
                           "ändern, gehen diese Teile beim Speichern verloren. Wollen Sie sie ändern ?",
                   .titel = "Notizen"});
}

}  // namespace zinfolio
