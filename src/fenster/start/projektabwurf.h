#pragma once

#include <QObject>
#include <functional>

class QMimeData;

namespace zinfolio {

/// Takes project files that are dropped anywhere on a window that accepts drops, also on its fields and
/// lists, which would take them as text. Installed on the application. A drop that is no project, or several,
/// goes its usual way.
class Projektabwurf : public QObject {
    Q_OBJECT

  public:
    Projektabwurf(std::function<bool(const QString&)> istProjekt, QObject* eltern);

  signals:
    /// A project was dropped; told after the drop has ended, so that its source need not wait for what
    /// follows.
    void projektAbgeworfen(const QString& datei);

  protected:
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

  private:
    [[nodiscard]] QString EinzigesProjekt(const QMimeData& inhalt) const;

    std::function<bool(const QString&)> istProjekt_;
};

}  // namespace zinfolio
