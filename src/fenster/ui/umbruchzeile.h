#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace zinfolio {

/// Elements side by side that go on in a further line where the room ends. What is last in a line stands at
/// its right edge, so that two elements lie at both edges.
class Umbruchzeile : public QLayout {
    Q_OBJECT

  public:
    explicit Umbruchzeile(QWidget* eltern = nullptr);

    void addItem(QLayoutItem* element) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem* itemAt(int stelle) const override;
    QLayoutItem* takeAt(int stelle) override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int breite) const override;
    void setGeometry(const QRect& flaeche) override;

  private:
    using Zeile = std::vector<QLayoutItem*>;
    /// What is shown, line by line.
    [[nodiscard]] std::vector<Zeile> Zeilen(int breite) const;
    [[nodiscard]] int Abstand() const;

    std::vector<std::unique_ptr<QLayoutItem>> elemente_;
};

}  // namespace zinfolio
