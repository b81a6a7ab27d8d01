#pragma once

#include <QTextBrowser>

namespace zinfolio {

/// A page of the handbook: shows its chapters as they stand in the program, follows links and keeps the way
/// back.
class Handbuchseite : public QTextBrowser {
    Q_OBJECT

  public:
    explicit Handbuchseite(QWidget* eltern = nullptr);

    /// Shows a chapter, scrolled to a heading by its anchor (may be empty).
    void Zeige(const QString& kapitel, const QString& sprungziel);

    /// Scrolls to the first place behind the current heading where a field is explained; stays where there is
    /// none.
    void ZumFeld(const QString& feld);

    /// The address of a chapter, and its text as it stands, comments left out.
    [[nodiscard]] static QUrl Adresse(const QString& kapitel);
    [[nodiscard]] static QString Quelltext(const QString& kapitel);

    [[nodiscard]] QVariant loadResource(int art, const QUrl& adresse) override;

  private:
    void Springen(const QUrl& adresse);
    void Hinrollen(const QTextCursor& stelle);
};

}  // namespace zinfolio
