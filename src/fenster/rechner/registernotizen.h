#pragma once

#include <optional>
#include <string>

#include "fenster/ui/notizfeld.h"

namespace zinfolio {

/// The tab "Notizen": a notes field that knows the file it shows. As long as the user changes nothing, the
/// file is given back byte for byte, since our document does not hold everything that other programs write.
class RegisterNotizen : public Notizfeld {
    Q_OBJECT

  public:
    /// `name` is the fixed name of the text field.
    explicit RegisterNotizen(const char* name, QWidget* eltern = nullptr);

    /// Shows the notes of a file that is opened, in the basic font; an empty one empties the field.
    void Oeffnen(std::string datei);

    /// Shows the notes of a file that was saved just now, as they are.
    void Wiederladen(std::string datei);

    /// The notes as a file. Asked again without a change between, it is the same.
    [[nodiscard]] std::string AlsDatei();

  signals:
    /// The user has changed the notes. The first change of a note with parts that it would lose is asked
    /// about, and taken back where the user does not want it.
    void inhaltGeaendert();

  private:
    void Merken(std::string datei);
    void Aendern();
    [[nodiscard]] bool VerlustGewollt();

    /// The file that the field shows, until the user changes something.
    std::optional<std::string> datei_;
    /// Whether a change would lose parts of the file, and nobody has asked yet.
    bool fremdeTeile_ = false;
};

}  // namespace zinfolio
