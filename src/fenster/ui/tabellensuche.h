#pragma once

#include <QFrame>
#include <QModelIndex>
#include <vector>

class QLabel;
class QLineEdit;
class QTableView;

namespace zinfolio {

/// The search of a table: a small bar in its upper corner, shown by Ctrl+F and left by Escape. It finds the
/// cells whose text holds what is typed, in upper or lower case.
class Tabellensuche : public QFrame {
    Q_OBJECT

  public:
    explicit Tabellensuche(QTableView& tabelle);

    /// Shows the bar, with its text selected.
    void Oeffnen();
    /// Goes to the next hit, or back to the one before; round at the ends.
    void Weiter(int schritt);

  protected:
    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override;

  private:
    void Suchen();
    void Schliessen();
    void Platzieren();
    void StandZeigen();
    [[nodiscard]] QModelIndex Zelle(std::size_t treffer) const;

    QTableView& tabelle_;
    QLineEdit* Suchtext_;
    QLabel* Treffer_;
    /// Numbers of cells, row by row.
    std::vector<std::size_t> treffer_;
    std::size_t stelle_ = 0;
    bool abgebrochen_ = false;
};

}  // namespace zinfolio
