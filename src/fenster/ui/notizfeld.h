#pragma once

#include <QWidget>

#include "kern/richtext/richtext.h"

class QAction;
class QComboBox;
class QLabel;
class QTextCharFormat;

namespace zinfolio {

class Richtextfeld;

/// Notes as rich text: a text field with a row of tools for bold, italic, underlined, size, undo and redo,
/// which show the format at the cursor. The text field has the name and takes the focus.
class Notizfeld : public QWidget {
    Q_OBJECT

  public:
    explicit Notizfeld(const QString& name, QWidget* eltern = nullptr);

    /// Shows a document. What was there is gone, and cannot be undone back. One that is larger than a note
    /// may be is shown in part, cannot be changed, and a line above it says so.
    void Zeigen(const Richtext& text);

    /// Whether the field shows less than it was given.
    [[nodiscard]] bool Gekuerzt() const { return gekuerzt_; }

    [[nodiscard]] Richtext Lesen() const;
    void Leeren() { Zeigen({}); }

  signals:
    /// The user has changed text or format. What the program shows is no change.
    void geaendert();

  private:
    QAction* NeueAktion(const char* symbol, const QString& name, const QString& taste);
    void AktionenAnlegen();
    void WerkzeugeAnordnen();
    void Verbinden();
    void GroesseSetzen();
    void Anwenden(const QTextCharFormat& aenderung);
    void AenderbarSetzen(bool aenderbar);
    void WerkzeugeZeigen(const QTextCharFormat& format);
    void GroesseZeigen(double punkte);

    Richtextfeld* text_;
    QComboBox* groesse_;
    QAction* fett_ = nullptr;
    QAction* kursiv_ = nullptr;
    QAction* unterstrichen_ = nullptr;
    QAction* rueckgaengig_ = nullptr;
    QAction* wiederholen_ = nullptr;
    QLabel* kuerzung_;
    bool gekuerzt_ = false;
};

}  // namespace zinfolio
