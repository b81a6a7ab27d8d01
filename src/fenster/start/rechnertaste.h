#pragma once

#include <QPushButton>

namespace zinfolio {

/// A large button of the start screen: icon, name, and half a sentence on what the calculator is for.
class Rechnertaste : public QPushButton {
    Q_OBJECT

  public:
    Rechnertaste(const QIcon& symbol, const QString& titel, const QString& erklaerung);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int breite) const override;
};

}  // namespace zinfolio
