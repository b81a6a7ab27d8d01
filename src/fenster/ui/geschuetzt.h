#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace zinfolio {

/// The trap of one operation of a form: runs it, and after a run-time fault shows the one general text, with
/// the cause behind the box's details button. False after a fault. An unreadable date inside a day count
/// shows its own message and ends the program at once.
bool Geschuetzt(QWidget* fenster, const std::function<void()>& operation);

/// The trap of what writes a file that the user named: where it cannot be written, the user is told why,
/// behind `vorspann`. False then. Other faults come through.
bool MitSchreibmeldung(QWidget* fenster, const std::function<void()>& operation,
                       const QString& vorspann = {});

/// The trap of what reads files that the user named: as `Geschuetzt`, behind a wait pointer, but the cause
/// stands in the message itself.
bool MitLesemeldung(QWidget* fenster, const std::function<void()>& operation);

/// The same as `Geschuetzt`, and a wait pointer while it runs.
bool GeschuetztMitWartezeiger(QWidget* fenster, const std::function<void()>& operation);

}  // namespace zinfolio
