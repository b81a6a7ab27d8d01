#include "fenster/ausgabe/schriftdialog.h"

#include <QFontDialog>
#include <utility>

#include "fenster/ui/zeuge.h"

namespace zinfolio {
std::optional<QFont> SchriftFragen(QWidget* fenster, const QFont& anfang) {
    if (auto& zeuge = Zeugenplatz<Schriftzeuge>()) return zeuge(anfang);
    bool gewaehlt = false;
    const QFont schrift = QFontDialog::getFont(&gewaehlt, anfang, fenster, "Schriften");
    return gewaehlt ? std::optional(schrift) : std::nullopt;
}

Schriftzeuge SchriftfragenUmleiten(Schriftzeuge zeuge) {
    return std::exchange(Zeugenplatz<Schriftzeuge>(), std::move(zeuge));
}

}  // namespace zinfolio
