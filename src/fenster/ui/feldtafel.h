#pragma once

#include <QObject>
#include <initializer_list>
#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "fenster/ui/eingabefeld.h"
#include "fenster/ui/feldzeile.h"

namespace zinfolio {

class Feldraster;

/// The controls of a form by their descriptions. It makes and places them, keeps what is hidden and locked in
/// step with the check boxes, and leads Tab through them in the order in which they were made.
class Feldtafel : public QObject {
    Q_OBJECT

  public:
    /// `eltern` holds the controls.
    explicit Feldtafel(QWidget* eltern);

    /// Makes a control and places it: in a row of its own, behind another one, or in a frame made before.
    /// `mitBegleiter`: the next control stands behind this one.
    void Anlegen(const Feldbeschreibung& beschreibung, Feldraster& raster, bool mitBegleiter);

    [[nodiscard]] Feldinhalt Inhalt(std::string_view name) const;
    void Setze(std::string_view name, const Feldinhalt& inhalt);

    /// The control of that name; nothing where there is none.
    [[nodiscard]] QWidget* Element(std::string_view name) const;
    /// The same for a text field.
    [[nodiscard]] Eingabefeld* Textfeld(std::string_view name) const;

    /// Puts the focus on a control, with its whole text selected. False where there is no such control.
    bool Fokussieren(std::string_view name) const;

    /// Shows or hides a control with all that belongs to it.
    void Zeigen(std::string_view name, bool sichtbar);

    /// Keeps controls from being used, whatever their check box says; lifts that again.
    void Sperren(std::initializer_list<std::string_view> namen, bool gesperrt);

  signals:
    /// A control shows something else, whoever changed it.
    void gewechselt();
    /// The user has changed a control.
    void bearbeitet();

  private:
    struct Eintrag {
        Feldbeschreibung beschreibung;
        QWidget* element = nullptr;
        /// What is shown, hidden and locked together with it: caption, unit, calendar button.
        std::vector<QWidget*> dabei;
    };

    struct Reihe {
        Feldraster* raster;
        int nummer;
    };

    [[nodiscard]] const Eintrag* Suchen(std::string_view name) const;
    /// The caption of the row that a control without one stands in, as it is spoken.
    [[nodiscard]] QString Zeilentitel(const Feldbeschreibung& beschreibung) const;
    [[nodiscard]] QWidget* Bauen(const Feldbeschreibung& beschreibung);
    /// What Tab stops at, in its order.
    [[nodiscard]] static std::vector<QWidget*> Fokuselemente(const Eintrag& element);
    void Platzieren(Eintrag& neu, Feldraster& raster, bool mitBegleiter);
    void Verbinden(const Eintrag& neu);
    void Abhaengen(const Eintrag& neu);
    void FreigabeZeigen(const Eintrag& element) const;
    [[nodiscard]] bool Angekreuzt(std::string_view kaestchen) const;

    QWidget* eltern_;
    std::vector<Eintrag> elemente_;
    std::map<std::string_view, Feldraster*> rahmen_;
    std::map<std::string_view, Reihe> reihen_;
    std::set<std::string_view> gesperrt_;
    QWidget* letztes_ = nullptr;
};

/// The fields of a form that show a value: they are made, read and shown together.
template <class Wert>
class Feldgruppe {
  public:
    explicit Feldgruppe(QWidget* eltern) : tafel_(new Feldtafel(eltern)) {}

    /// Makes the controls of the rows that `form` (a bit) has, from top to bottom.
    void Anlegen(std::span<const Feldzeile<Wert>> zeilen, Feldraster& raster, unsigned form = inAllenFormen) {
        std::vector<const Feldzeile<Wert>*> dabei;
        for (const Feldzeile<Wert>& zeile : zeilen)
            if ((zeile.beschreibung.formen & form) != 0) dabei.push_back(&zeile);
        for (std::size_t i = 0; i < dabei.size(); ++i) {
            const Feldbeschreibung& diese = dabei[i]->beschreibung;
            const bool mitBegleiter = i + 1 < dabei.size() && dabei[i + 1]->beschreibung.hinter == diese.name;
            tafel_->Anlegen(diese, raster, mitBegleiter);
            if (dabei[i]->gib) zeilen_.push_back(*dabei[i]);
        }
    }

    /// What the controls hold; members without a control keep what they have in `grund`.
    [[nodiscard]] Wert Lesen(Wert grund = {}) const {
        for (const Feldzeile<Wert>& zeile : zeilen_)
            zeile.nimm(grund, tafel_->Inhalt(zeile.beschreibung.name));
        return grund;
    }

    void Zeigen(const Wert& wert) {
        for (const Feldzeile<Wert>& zeile : zeilen_)
            tafel_->Setze(zeile.beschreibung.name, zeile.gib(wert));
    }

    [[nodiscard]] Eingabefeld* Feld(std::string_view name) const { return tafel_->Textfeld(name); }
    bool Fokussieren(std::string_view name) const { return tafel_->Fokussieren(name); }

    /// The controls, and what tells that they change.
    [[nodiscard]] Feldtafel& Tafel() const { return *tafel_; }

  private:
    /// Lives as long as the form.
    Feldtafel* tafel_;
    std::vector<Feldzeile<Wert>> zeilen_;
};

}  // namespace zinfolio
