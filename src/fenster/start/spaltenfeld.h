#pragma once

#include <QWidget>

class QBoxLayout;

namespace zinfolio {

/// Columns of one width side by side; one below the other where the window is too narrow for them.
class Spaltenfeld : public QWidget {
    Q_OBJECT

  public:
    explicit Spaltenfeld(QWidget* eltern = nullptr);

    void Anfuegen(QWidget* spalte);

    /// That of a single column.
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* ereignis) override;

  private:
    [[nodiscard]] int Spaltenbreite() const;

    QBoxLayout* anordnung_;
};

}  // namespace zinfolio
