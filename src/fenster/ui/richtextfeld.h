#pragma once

#include <QTextEdit>

#include "kern/richtext/notiz.h"

namespace zinfolio {

/// An entry field for rich text of many lines. Enter makes a paragraph and Tab a tab; Ctrl+Tab and Shift+Tab
/// leave the field. What comes from other programs, by the clipboard or by dragging, comes as far as the
/// program's rich text has a place for it; pictures and whatever lies elsewhere are never loaded. It takes as
/// much as a note may hold
/// (`hoechsteNotiz`); what would be more is refused with a message, and the text stays as it was.
class Richtextfeld : public QTextEdit {
    Q_OBJECT

  public:
    using QTextEdit::QTextEdit;

    QVariant loadResource(int art, const QUrl& name) override;

  protected:
    void keyPressEvent(QKeyEvent* ereignis) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
    [[nodiscard]] bool canInsertFromMimeData(const QMimeData* quelle) const override;
    void insertFromMimeData(const QMimeData* quelle) override;

  private:
    bool Verlassen(bool weiter);
    /// Whether so much more text fits; says so where it does not.
    [[nodiscard]] bool HatPlatz(const Richtextmass& dazu);
    /// Enter, with the formats going on. The toolkit would take the formats of an empty paragraph away
    /// instead of beginning another; that is kept for an empty item of a list, which ends the list.
    void AbsatzBeginnen();
};

}  // namespace zinfolio
