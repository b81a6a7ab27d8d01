#pragma once

#include <QGroupBox>
#include <functional>

namespace zinfolio {

/// The projects opened last, as a list of buttons on the start screen; hidden while there is none.
class Letztetafel : public QGroupBox {
    Q_OBJECT

  public:
    /// `symbol` gives the icon for a project's file; a file without one is not offered.
    explicit Letztetafel(std::function<QIcon(const QString&)> symbol, QWidget* eltern = nullptr);

    /// Shows the projects that are there now.
    void Auffrischen();

  signals:
    /// The user wants to open a project.
    void projektGewaehlt(const QString& datei);

  private:
    std::function<QIcon(const QString&)> symbol_;
};

}  // namespace zinfolio
