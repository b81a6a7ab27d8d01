#pragma once

#include <QObject>

namespace zinfolio {

/// Makes Enter work on the controls that have no key filter: it presses a button, and moves on from lists and
/// boxes. Installed once on the application.
class Entertaste : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;
};

}  // namespace zinfolio
