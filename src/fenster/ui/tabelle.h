#pragma once

#include <QTableView>

#include "fenster/ui/tabellenmodell.h"

namespace zinfolio {

/// The program's table: whole rows are selected, rows alternate, columns fit their content and share
/// what room is left, Ctrl+C copies the
/// selection as tab-separated text.
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

    /// The selected rows as text: cells separated by tabs, rows by line ends.
    [[nodiscard]] QString AuswahlAlsText() const;

    /// Puts `AuswahlAlsText` on the clipboard.
    void AuswahlKopieren() const;

  protected:
    void resizeEvent(QResizeEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    /// Home and End go to the first and the last row.
    QModelIndex moveCursor(CursorAction schritt, Qt::KeyboardModifiers zusatz) override;

  private:
    void SpaltenMessen();
    void SpaltenVerteilen();
    [[nodiscard]] int Spaltenbreite(int spalte) const;

    Tabellenmodell* modell_;
    /// What each column needs.
    std::vector<int> breiten_;
};

}  // namespace zinfolio
