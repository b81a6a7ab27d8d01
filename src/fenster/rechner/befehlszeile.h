#pragma once

#include <QKeySequence>
#include <functional>

namespace zinfolio {

/// A command of a calculator: one row stands for its entry in the menu, its button in the toolbar and its
/// key.
struct Befehlszeile {
    enum class Ort { menue, leiste, beide };

    /// the fixed name of the action, and of its button
    const char* name = "";
    /// the picture in `ui`; empty: none
    const char* symbol = "";
    /// the caption; an `&` makes the mnemonic in the menu
    const char* text = "";
    const char* hinweis = "";
    QKeySequence taste = {};
    std::function<void()> wirkung = {};
    Ort ort = Ort::beide;
};

}  // namespace zinfolio
