#pragma once
// The one door for message boxes: forms tell and ask through it, tests answer through it.

#include <QString>
#include <functional>
#include <string_view>

class QWidget;

namespace zinfolio {

/// What a box says. Titles and texts are part of what the program promises.
struct Meldungsinhalt {
    QString text = {};
    QString titel = "OK";
    /// What an expert finds behind the box's details button; mostly empty.
    QString einzelheiten = {};
};

/// The icon of a box.
enum class Meldungsart { hinweis, warnung, frage };

/// The buttons of a box.
enum class Meldungstasten { ok, okAbbrechen, jaNein, jaNeinAbbrechen };

/// A box as a whole.
struct Meldung {
    Meldungsinhalt inhalt;
    Meldungsart art = Meldungsart::warnung;
    Meldungstasten tasten = Meldungstasten::ok;
};

enum class Antwort { ja, nein, abbrechen };

/// Shows a message with an OK button and waits for it.
void MeldungZeigen(QWidget* fenster, const Meldungsinhalt& inhalt, Meldungsart art = Meldungsart::warnung);

/// Asks a question with Yes and No; closing the box is No.
[[nodiscard]] bool Fragen(QWidget* fenster, const Meldungsinhalt& inhalt);

/// Tells something that the user may still stop, with OK and Cancel; closing the box is Cancel. True for OK.
[[nodiscard]] bool Bestaetigen(QWidget* fenster, const Meldungsinhalt& inhalt);

/// Asks a question with Yes, No and Cancel; closing the box is Cancel.
[[nodiscard]] Antwort FragenMitAbbruch(QWidget* fenster, const Meldungsinhalt& inhalt);

/// What stands in for the user: is given each box and answers it.
using Meldungszeuge = std::function<Antwort(const Meldung&)>;

/// Lets `zeuge` answer every box instead of showing it, for tests; an empty one shows them again. Gives who
/// answered so far.
Meldungszeuge MeldungenUmleiten(Meldungszeuge zeuge);

/// A `std::string_view` of the core (UTF-8) as toolkit text.
[[nodiscard]] QString Anzeigetext(std::string_view text);

}  // namespace zinfolio
