#pragma once

#include <functional>

class QWidget;

namespace zinfolio {

/// The trap of one operation of a form: runs it, and after a run-time fault shows the one general text, with
/// the cause behind the box's details button. False after a fault. An unreadable date inside a day count
/// shows its own message and ends the program at once.
bool Geschuetzt(QWidget* fenster, const std::function<void()>& operation);

/// The same, and a wait pointer while it runs.
bool GeschuetztMitWartezeiger(QWidget* fenster, const std::function<void()>& operation);

}  // namespace zinfolio
