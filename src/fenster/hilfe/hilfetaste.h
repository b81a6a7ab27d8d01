#pragma once

#include <QObject>

namespace zinfolio {

/// F1 in any window opens the handbook where it explains what has the focus. An event filter of the whole
/// program.
class Hilfetaste : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    bool eventFilter(QObject* ziel, QEvent* ereignis) override;
};

}  // namespace zinfolio
