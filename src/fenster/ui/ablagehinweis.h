#pragma once

#include <QFrame>
#include <filesystem>

class QLabel;

namespace zinfolio {

/// The quiet line at the foot of a window that says where a file went, with buttons that open it or its
/// folder. It goes by itself after a minute, or when its cross is pressed; the next file takes its place.
class Ablagehinweis : public QFrame {
    Q_OBJECT

  public:
    /// Tells where a file went, at the foot of the window that holds `element`. A window of neither frame nor
    /// column has no room for it and shows nothing.
    static void Zeigen(QWidget& element, const std::filesystem::path& datei);

  private:
    explicit Ablagehinweis(QWidget& fenster);

    [[nodiscard]] bool Einsetzen(QWidget& fenster);
    void Setzen(const std::filesystem::path& datei);
    void Oeffnen(const QString& pfad);
    void Verschwinden();

    QLabel* text_;
    QString datei_;
};

}  // namespace zinfolio
