#pragma once

#include <QPushButton>
#include <span>
#include <string_view>

namespace zinfolio {

/// A button whose caption tells a unit, "%" or "€"; each press shows the next one. Enter moves on as in a
/// field, the space bar presses it.
class Umschalttaste : public QPushButton {
    Q_OBJECT

  public:
    Umschalttaste(const QString& name, std::span<const std::string_view> texte, QWidget* eltern = nullptr);

    /// The number (from 0) of the caption that is shown.
    [[nodiscard]] int Stelle() const { return stelle_; }
    void Setze(int stelle);

  signals:
    /// Another caption is shown.
    void umgeschaltet();

  private:
    std::span<const std::string_view> texte_;
    int stelle_ = 0;
};

}  // namespace zinfolio
