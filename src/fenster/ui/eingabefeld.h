#pragma once

#include <QLineEdit>

#include "kern/dates/tastenfilter.h"

namespace zinfolio {

/// An entry field with its key filter. Gaining the focus selects the whole text, so that the first key
/// replaces it; Enter moves on to the next field. Cursor keys are no keys for the filter; the decimal key of
/// the numeric keypad counts as the comma. What is pasted or dropped into a number is read as one, however it
/// is written ("1,234.56 €"), or refused as a whole. A key or text that is refused is told beside the field.
class Eingabefeld : public QLineEdit {
    Q_OBJECT

  public:
    Eingabefeld(const QString& name, Tastenfilter filter, QWidget* eltern = nullptr);

    /// Text as the core takes it (UTF-8).
    [[nodiscard]] std::string Wert() const { return text().toStdString(); }
    void Setze(const std::string& wert) { setText(QString::fromStdString(wert)); }

  public slots:
    /// Takes the focus with the whole text selected, whatever had it: the next key replaces the text.
    void Anspringen();

  protected:
    void keyPressEvent(QKeyEvent* ereignis) override;
    void focusInEvent(QFocusEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void contextMenuEvent(QContextMenuEvent* ereignis) override;
    void dropEvent(QDropEvent* ereignis) override;

    /// Moves the focus on, as Enter does.
    virtual void Weiter();

  private:
    /// Puts a text in the place of what is selected, as far as the field may hold it.
    void Einfuegen(const QString& text);
    void HinweisZeigen();
    void Anwenden(const Tastenantwort& antwort, QKeyEvent* ereignis);

    Tastenfilter filter_;
    ErsteTaste ersteTaste_ = false;
    bool durchMausBetreten_ = false;
};

/// Puts the focus on a control of a form; a text field has its whole text selected then.
void ElementAnspringen(QWidget& element);

}  // namespace zinfolio
