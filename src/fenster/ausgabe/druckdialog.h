#pragma once
// The one door for print dialogs: forms ask through it, tests answer through it.

#include <functional>

class QPrinter;
class QWidget;

namespace zinfolio {

/// Lets the user choose printer, pages and copies; they are set on `drucker` then. False where the dialog was
/// cancelled.
[[nodiscard]] bool DruckerFragen(QWidget* fenster, QPrinter& drucker);

/// What stands in for the user: is given the printer, may set it, and says whether to print.
using Druckzeuge = std::function<bool(QPrinter&)>;

/// Lets `zeuge` answer every question instead of showing a dialog, for tests; an empty one shows them again.
/// Gives who answered so far.
Druckzeuge DruckfragenUmleiten(Druckzeuge zeuge);

}  // namespace zinfolio
