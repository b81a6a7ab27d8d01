#pragma once

#include <QTableView>

namespace zinfolio {

/// The first columns of a table, laid over it while it is scrolled sideways, so that the rest moves below
/// them. It shows the same rows and the same selection; what the mouse does to it, it does to the table.
class Festspalten : public QTableView {
    Q_OBJECT

  public:
    explicit Festspalten(QTableView& tabelle);

    /// Keeps so many columns in sight; they give way where they would take more than half of the table.
    void Zeigen(int anzahl);

    /// Takes place, widths, heights and font from the table, after these or its content have changed.
    void Anpassen();

    /// What of the table's width they cover.
    [[nodiscard]] int Verdeckt() const { return isHidden() ? 0 : width(); }

  protected:
    void wheelEvent(QWheelEvent* ereignis) override;
    void contextMenuEvent(QContextMenuEvent* ereignis) override;

  private:
    void Verbinden();
    [[nodiscard]] int Breite() const;

    QTableView& tabelle_;
    int anzahl_ = 0;
};

}  // namespace zinfolio
