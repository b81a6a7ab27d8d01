#include "fenster/ausgabe/schriftdialog.h"

#include <QFontDialog>
#include <utility>

namespace zinfolio {
namespace {

Schriftzeuge& Zeuge() {
    static Schriftzeuge zeuge;
    return zeuge;
}

}  // namespace

std::optional<QFont> SchriftFragen(QWidget* fenster, const QFont& anfang) {
    if (Zeuge()) return Zeuge()(anfang);
    bool gewaehlt = false;
    const QFont schrift = QFontDialog::getFont(&gewaehlt, anfang, fenster, "Schriften");
    return gewaehlt ? std::optional(schrift) : std::nullopt;
}

Schriftzeuge SchriftfragenUmleiten(Schriftzeuge zeuge) {
    return std::exchange(Zeuge(), std::move(zeuge));
}

}  // namespace zinfolio
