#pragma once

#include <QMainWindow>
#include <vector>

#include "fenster/hilfe/hilfethema.h"

class QLabel;
class QLineEdit;
class QListWidget;

namespace zinfolio {

class Handbuchseite;

/// The handbook in a window of its own: chapters on the left, the page on the right, the way back, and a
/// search through all chapters.
class Hilfefenster : public QMainWindow {
    Q_OBJECT

  public:
    explicit Hilfefenster(QWidget* eltern = nullptr);

    /// Shows a place of the handbook and comes to the front.
    void Zeigen(const Hilfethema& thema);

    /// Shows the handbook at the place that explains what has the focus. There is one window, whoever asks.
    static void ZumFokus();

  private:
    struct Fundstelle {
        QString kapitel;
        int nummer;  // of the finds in its chapter, from 0
    };

    void KapitelAnlegen();
    void LeisteAnlegen();
    void KapitelGewaehlt(int zeile);
    void SeiteGewechselt(const QUrl& adresse);
    void Suchen();
    void Weitersuchen(int schritt);

    QListWidget* kapitel_;
    Handbuchseite* seite_;
    QLineEdit* suche_;
    QLabel* treffer_;
    std::vector<Fundstelle> fundstellen_;
    std::size_t fundstelle_ = 0;
};

}  // namespace zinfolio
