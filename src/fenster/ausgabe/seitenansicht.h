#pragma once

#include <QAbstractScrollArea>
#include <memory>

#include "fenster/ausgabe/seitenmaler.h"

namespace zinfolio {

/// How large a page is shown: in percent of its size on paper, or fitted into the window.
struct Seitenzoom {
    enum class Art { prozent, seitenbreite, ganzeSeite };

    Art art = Art::prozent;
    int prozent = 100;
};

/// Shows one page of a report on light paper, in the middle of what room there is. Where the page is larger,
/// it scrolls; the wheel turns the page at its edges.
class Seitenansicht : public QAbstractScrollArea {
    Q_OBJECT

  public:
    explicit Seitenansicht(const QString& name, QWidget* eltern = nullptr);

    /// Shows a report from its first page on.
    void Zeigen(std::shared_ptr<const Seitenmaler> maler);

    /// The page that is shown, from 0, and how many there are; 0 before there is a report.
    [[nodiscard]] int Seite() const { return seite_; }
    [[nodiscard]] int Seiten() const { return maler_ ? maler_->Seiten() : 0; }

    /// Shows the top of a page; one beyond the ends is the first or last.
    void SeiteWaehlen(int seite);

    void ZoomWaehlen(Seitenzoom zoom);

    /// The size that the zoom in force comes to, in percent.
    [[nodiscard]] double Prozent() const;

  signals:
    void seiteGewechselt(int seite);
    /// Ctrl and the wheel, one step to larger or smaller.
    void zoomVerlangt(int schritt);

  protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void wheelEvent(QWheelEvent* ereignis) override;

  private:
    [[nodiscard]] double PixelJeTwip() const;
    [[nodiscard]] double Eingepasst() const;
    [[nodiscard]] QRect Blatt() const;
    void RollenEinrichten();
    void SeiteMitRad(int schritt);

    std::shared_ptr<const Seitenmaler> maler_;
    int seite_ = 0;
    Seitenzoom zoom_;
    /// What the wheel has turned since the last whole step.
    int rad_ = 0;
};

}  // namespace zinfolio
