#pragma once
// The one door for font dialogs: forms ask through it, tests answer through it.

#include <QFont>
#include <functional>
#include <optional>

class QWidget;

namespace zinfolio {

/// The font that the user chose in a dialog which begins with `anfang`; nothing where it was cancelled.
[[nodiscard]] std::optional<QFont> SchriftFragen(QWidget* fenster, const QFont& anfang);

/// What stands in for the user: is given the font that the dialog begins with and answers.
using Schriftzeuge = std::function<std::optional<QFont>(const QFont&)>;

/// Lets `zeuge` answer every question instead of showing a dialog, for tests; an empty one shows them again.
/// Gives who answered so far.
Schriftzeuge SchriftfragenUmleiten(Schriftzeuge zeuge);

}  // namespace zinfolio
