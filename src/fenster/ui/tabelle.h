#pragma once

#include <QTableView>

#include "fenster/ui/tabellenmodell.h"

namespace zinfolio {

class Festspalten;

/// Whether a text of rows begins with the headers of their columns.
enum class Kopfzeile : bool { ohne, mit };

/// The program's table: whole rows are selected, rows alternate, columns fit their content and share what
/// room is left; those that the content wants to stay in sight do so while the others scroll. Its commands
/// (`tabellenbefehle.h`) stand in its context menu; Ctrl and the wheel change its size.
class Tabelle : public QTableView {
    Q_OBJECT

  public:
    explicit Tabelle(const QString& name, QWidget* eltern = nullptr);

    /// Shows a content and fits the columns to it. The selection is gone.
    void Zeige(Tabelleninhalt inhalt);

    /// Selected rows (from 0) in order.
    [[nodiscard]] std::vector<std::size_t> MarkierteZeilen() const;

    /// Selects one row and scrolls to it; a row that does not exist selects nothing.
    void Markiere(int zeile);

    /// Selects these rows, and scrolls to the first of them.
    void Markiere(const std::vector<std::size_t>& zeilen);

    [[nodiscard]] const Tabelleninhalt& Inhalt() const { return modell_->Inhalt(); }

    /// The selected rows as text: cells separated by tabs, rows by line ends. A header of several lines is
    /// one.
    [[nodiscard]] QString AuswahlAlsText(Kopfzeile kopfzeile = Kopfzeile::ohne) const;

    /// Puts `AuswahlAlsText` on the clipboard.
    void AuswahlKopieren(Kopfzeile kopfzeile = Kopfzeile::ohne) const;

    /// Shows all larger by so many steps, or smaller by negative ones; there is a smallest and a largest
    /// size.
    void Vergroessern(int stufen);
    void NormaleGroesse();

  protected:
    void wheelEvent(QWheelEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    /// Shows a cell beside the columns that stay in sight, not below them.
    void scrollTo(const QModelIndex& index, ScrollHint art = EnsureVisible) override;
    /// Home and End go to the first and the last row.
    QModelIndex moveCursor(CursorAction schritt, Qt::KeyboardModifiers zusatz) override;

  private:
    void ZeilenhoeheSetzen();
    void GroesseZeigen();
    void SpaltenMessen();
    void SpaltenVerteilen();
    [[nodiscard]] int Spaltenbreite(int spalte) const;

    Tabellenmodell* modell_;
    Festspalten* feste_;
    /// What each column needs.
    std::vector<int> breiten_;
    /// The size of the font without any steps, in points.
    double normalepunkte_;
    int stufe_ = 0;
};

}  // namespace zinfolio
