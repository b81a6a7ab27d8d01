#pragma once
// The small pieces that the tabs of a calculator are put together from.

#include <functional>
#include <initializer_list>
#include <span>
#include <string_view>
#include <vector>

class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QShortcut;
class QString;
class QWidget;

namespace zinfolio {

/// A button with its fixed name, bound once to what it does, which runs in the trap of `Geschuetzt`.
[[nodiscard]] QPushButton* NeueTaste(const char* name, const QString& beschriftung, QWidget* eltern,
                                     const std::function<void()>& wirkung);

/// A list to choose from, with the texts of the core. The wheel changes it only where it has the focus.
[[nodiscard]] QComboBox* NeueAuswahl(std::string_view name, std::span<const std::string_view> texte,
                                     QWidget* eltern);

/// A figure shown large, which the user can select and copy.
[[nodiscard]] QLabel* NeueKennzahl(const char* name, QWidget* eltern);

/// Elements side by side as one, without room around them.
[[nodiscard]] QWidget* Nebeneinander(const std::vector<QWidget*>& elemente);

/// Buttons side by side, at their natural width.
[[nodiscard]] QHBoxLayout* Tastenzeile(const std::vector<QPushButton*>& tasten);

/// A page of one large element with a row of buttons below it.
[[nodiscard]] QWidget* Seite(QWidget* element, const std::vector<QPushButton*>& tasten);

/// A page that scrolls where the window is too small for it; what gets the focus scrolls into sight.
[[nodiscard]] QWidget* Rollbar(QWidget* seite);

/// A column of its content's width that scrolls up and down where the window is too low for it.
[[nodiscard]] QWidget* Rollspalte(QWidget* inhalt);

/// Lets Escape, pressed anywhere in a page, do something. Gives the shortcut, to be switched off and on.
QShortcut* BeiEscape(QWidget* seite, const std::function<void()>& wirkung);

/// Makes Tab go through the children of `form` with these names, in this order.
void TabfolgeSetzen(const QWidget& form, std::initializer_list<const char*> namen);

}  // namespace zinfolio
