#pragma once
// Who answers to which key in what a window shows now: shortcuts of menu and toolbar, and the letters behind
// Alt.

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QShortcut>
#include <QTabBar>
#include <map>
#include <set>

namespace zinfolio {

/// The keys of a window by their owners. Hidden pages own none.
class Tastenplan {
  public:
    explicit Tastenplan(QWidget& fenster) {
        if (const auto* leiste = fenster.findChild<QMenuBar*>())
            for (const QAction* aktion : leiste->actions())
                Ueberall(QKeySequence::mnemonic(aktion->text()), aktion->text());
        Aktionen(fenster.actions());
        for (QWidget* element : fenster.findChildren<QWidget*>()) {
            if (!element->isVisible()) continue;
            Aktionen(element->actions());
            Beschriftung(*element);
        }
        for (const QShortcut* taste : fenster.findChildren<QShortcut*>()) {
            const auto* element = qobject_cast<QWidget*>(taste->parent());
            if (element->isVisible()) Eintragen(taste->key(), taste->context(), element->objectName());
        }
    }

    /// Keys with more than one owner, with their owners: "Alt+D: &Datei, &Drucken". A key of a part of the
    /// window has another owner only where the window has one, or the same part.
    [[nodiscard]] QStringList Doppelte() const {
        QStringList doppelte;
        for (const auto& [taste, namen] : ueberall_) {
            const QStringList alle = namen + oertlich_.value(taste);
            if (alle.size() > 1) doppelte << taste + ": " + alle.join(", ");
        }
        return doppelte;
    }

  private:
    void Ueberall(const QKeySequence& taste, const QString& name) {
        if (!taste.isEmpty()) ueberall_[taste.toString()] << name;
    }

    void Eintragen(const QKeySequence& taste, Qt::ShortcutContext bereich, const QString& name) {
        const bool oertlich = bereich == Qt::WidgetShortcut || bereich == Qt::WidgetWithChildrenShortcut;
        if (!oertlich) return Ueberall(taste, name);
        if (!taste.isEmpty()) oertlich_[taste.toString()] << name;
    }

    void Aktionen(const QList<QAction*>& aktionen) {
        for (QAction* aktion : aktionen) {
            if (!gesehen_.insert(aktion).second) continue;
            for (const QKeySequence& taste : aktion->shortcuts())
                Eintragen(taste, aktion->shortcutContext(), aktion->objectName());
        }
    }

    void Beschriftung(const QWidget& element) {
        if (const auto* text = qobject_cast<const QLabel*>(&element); text && text->buddy())
            Ueberall(QKeySequence::mnemonic(text->text()), text->text());
        if (const auto* taste = qobject_cast<const QAbstractButton*>(&element))
            Ueberall(taste->shortcut(), taste->text());
        if (const auto* leiste = qobject_cast<const QTabBar*>(&element)) {
            for (int i = 0; i < leiste->count(); ++i)
                Ueberall(QKeySequence::mnemonic(leiste->tabText(i)), leiste->tabText(i));
        }
    }

    std::map<QString, QStringList> ueberall_;
    QMap<QString, QStringList> oertlich_;
    std::set<const QAction*> gesehen_;
};

}  // namespace zinfolio
