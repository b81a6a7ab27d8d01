#pragma once

#include <QObject>

namespace zinfolio {

/// Keeps the placeholders of all fields readable, whatever colours the desktop has: not every theme says one
/// for them, and black on dark is left then. Lives as long as the program's windows.
class Platzhalterfarbe : public QObject {
    Q_OBJECT

  public:
    Platzhalterfarbe();

    bool eventFilter(QObject* ziel, QEvent* ereignis) override;
};

}  // namespace zinfolio
