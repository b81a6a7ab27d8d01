#pragma once

#include <QWidget>
#include <filesystem>
#include <functional>
#include <memory>

#include "kern/bericht/bericht.h"

class QComboBox;
class QHBoxLayout;
class QSpinBox;
class QToolButton;

namespace zinfolio {

class Seitenansicht;
class Seitenmaler;

/// What differs between the previews of the calculators: the fixed names of their controls, and the filter of
/// the save dialogs, in which %1 stands for the ending.
struct Vorschauart {
    const char* rahmen = "Frame7";
    const char* exportieren = "Command12";
    const char* zurueck = "Command11";
    const char* filter = "Ratenspardateien (*.%1) |*.%1";
};

/// The frame in which every calculator shows its report, page by page, and from which it goes to the printer,
/// to a file or to the clipboard.
class FormVorschau : public QWidget {
    Q_OBJECT

  public:
    /// `arbeitsordner` is where the fixed files `Zwispei.rtf` and `Zwispei.htm` lie.
    explicit FormVorschau(std::filesystem::path arbeitsordner, const Vorschauart& art = {},
                          QWidget* eltern = nullptr);

    /// Composes a report and shows its first page. `bilden` is called again for the targets that compose the
    /// report anew, and must stay callable until the next report; what it throws here comes through, and the
    /// report before stays.
    void Zeigen(std::function<Bericht()> bilden);

  signals:
    /// The user wants to go back to where the report came from.
    void zurueck();

  protected:
    void showEvent(QShowEvent* ereignis) override;

  private:
    [[nodiscard]] QHBoxLayout* Seitenleiste();
    [[nodiscard]] QHBoxLayout* Exportzeile();
    QToolButton* Blaettertaste(const char* name, const char* symbol, const char* hinweis, int taste,
                               const std::function<int()>& ziel);
    void Zoomliste();
    void ZoomZeigen(int prozent);
    void ZoomAnwenden();
    void Zoomen(int schritt);
    void SeiteZeigen();
    void Exportieren();

    std::filesystem::path arbeitsordner_;
    Vorschauart art_;
    std::function<Bericht()> bilden_;
    std::shared_ptr<const Seitenmaler> maler_;
    Seitenansicht* VP_;
    QSpinBox* seitenzahl_;
    QComboBox* zoom_;
    QComboBox* Combo18_;
    QToolButton* erste_ = nullptr;
    QToolButton* vorige_ = nullptr;
    QToolButton* naechste_ = nullptr;
    QToolButton* letzte_ = nullptr;
};

}  // namespace zinfolio
