#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>

#include "kern/bericht/fortschritt.h"

namespace zinfolio {

/// Shows how far a long export is, as soon as it takes longer than 150 ms. The windows of the program take
/// no keys and clicks meanwhile.
class Fortschrittsfenster {
  public:
    enum class Abbruch { moeglich, unmoeglich };

    Fortschrittsfenster(QWidget* fenster, const QString& text, Abbruch abbruch);
    Fortschrittsfenster(const Fortschrittsfenster&) = delete;
    Fortschrittsfenster& operator=(const Fortschrittsfenster&) = delete;
    ~Fortschrittsfenster() = default;

    /// What the operation tells its progress to; false once the user has pressed "Abbrechen". It lives no
    /// longer than this object.
    [[nodiscard]] Fortschritt Zuhoerer();

  private:
    bool Melden(std::size_t erledigt, std::size_t von);

    [[nodiscard]] bool Abgebrochen() const;

    Abbruch abbruch_;
    QProgressDialog dialog_;
    QElapsedTimer uhr_;
    qint64 zuletzt_ = 0;
};

}  // namespace zinfolio
