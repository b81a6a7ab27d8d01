#include "fenster/ui/umschalttaste.h"

#include "fenster/ui/meldungsfenster.h"

namespace zinfolio {

Umschalttaste::Umschalttaste(const QString& name, std::span<const std::string_view> texte, QWidget* eltern)
    : QPushButton(eltern), texte_(texte) {
    setObjectName(name);
    Setze(0);
    connect(this, &QPushButton::clicked, this,
            [this] { Setze((stelle_ + 1) % static_cast<int>(texte_.size())); });
}

void Umschalttaste::Setze(int stelle) {
    stelle_ = stelle;
    setText(Anzeigetext(texte_[static_cast<std::size_t>(stelle)]));
    setAccessibleDescription(text());
    emit umgeschaltet();
}

}  // namespace zinfolio
