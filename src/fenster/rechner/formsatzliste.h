#pragma once

#include <QObject>
#include <functional>
#include <optional>
#include <variant>
#include <vector>

#include "fenster/ui/tabelle.h"
#include "kern/dateien/satzdatei.h"
#include "kern/staffel/satzliste.h"

namespace zinfolio {

/// What tells one list of rows from another.
struct Satzlistenart {
    QString name;
    /// what a screen reader calls it
    QString ansage;
    std::vector<Spalte<Staffelsatz>> spalten;
    /// A whole row as one line, for screen readers.
    std::string (*zeile)(const Staffelsatz&);
    std::string_view loeschfrage;
};

/// The list of the rows of one working file: the number of a list row is the number of its record. Deletes
/// marked rows after a question and takes rows in by the dozen; both can be taken back, the last one first,
/// as long as the account is open. Enter and a double click edit the marked row, Delete deletes, Ctrl+Z takes
/// back; the context menu has all of it.
class FormSatzliste : public QObject {
    Q_OBJECT

  public:
    FormSatzliste(const Satzlistenart& art, const Satzdatei<Staffelsatz>& datei, QWidget* eltern);

    [[nodiscard]] Tabelle* Ansicht() const { return tabelle_; }
    [[nodiscard]] const std::vector<Staffelsatz>& Saetze() const { return saetze_; }

    /// Reads the file and shows it, where the user did nothing to the list: selected rows, and the one under
    /// change, follow their records.
    void Auffrischen();

    /// Another account stands in the file: reads it, and nothing deleted before comes back.
    void KontoWechseln();

    /// Makes these rows the file's content and shows them, with `marke` selected, else the last row.
    void Ersetzen(const std::vector<Staffelsatz>& saetze, std::optional<std::size_t> marke = std::nullopt);

    /// Puts rows behind all others.
    void Aufnehmen(std::vector<Staffelsatz> neue);

    /// Adds a command to the context menu, with its keys while the list has the focus.
    QAction* NeuerBefehl(const QString& beschriftung, std::initializer_list<QKeySequence> tasten,
                         const std::function<void()>& wirkung);

    /// Draws a line in the context menu before the next command.
    void Trennen();

    /// Puts the marked row under change; a message, and false, where there is none.
    bool AenderungBeginnen();
    void AenderungBeenden() { geaendert_.reset(); }

    /// The row under change, if there is one.
    [[nodiscard]] std::optional<std::size_t> Geaendert() const { return geaendert_; }

    /// Deletes the marked rows, or all, after the question that belongs to it.
    void MarkierteLoeschen();

    /// Called when the user wants to edit the marked row.
    std::function<void()> bearbeiten = [] {};

    /// Called each time the list has been built from the file, but by `Auffrischen`.
    std::function<void()> nachLesen = [] {};

    /// Called when the user has made other rows the file's content.
    std::function<void()> nachAendern = [] {};

    /// Brings the rows into the order that the file keeps, after a step was taken back.
    std::function<void(std::vector<Staffelsatz>&)> ordnen = [](auto&) {};

  private:
    /// Rows that were added.
    struct Zugang {
        std::vector<Staffelsatz> saetze;
    };
    using Schritt = std::variant<Loeschung, Zugang>;

    [[nodiscard]] std::optional<std::size_t> Stelle(const Staffelsatz& satz) const;
    void Lesen();
    /// Reads the file and shows it, with its last row selected.
    void NeuLesen();
    void Zeigen();
    void Loeschen(const std::vector<std::size_t>& zeilen);
    void SchrittMerken(Schritt schritt);
    void SchrittRueckgaengig();
    void RueckgaengigZeigen();

    Satzlistenart art_;
    Satzdatei<Staffelsatz> datei_;
    Tabelle* tabelle_;
    QAction* rueckgaengig_;
    std::vector<Staffelsatz> saetze_;
    /// What can be taken back, the last step last.
    std::vector<Schritt> schritte_;
    std::optional<std::size_t> geaendert_;
};

}  // namespace zinfolio
