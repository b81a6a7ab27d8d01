#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "kern/finmath/effektivmethode.h"
#include "kern/staffel/kontoansicht.h"
#include "kern/staffel/kontobericht.h"
#include "kern/staffel/kontoeinstellungen.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace zinfolio {

class Tabelle;

/// A figure of a calculator's own, shown before the totals.
struct Kennzahlzeile {
    const char* name;
    const char* titel;
};

/// A button of a calculator's own, behind "Drucken" and "Grafik".
struct Auszugtaste {
    const char* name;
    const char* beschriftung;
    std::function<void()> wirkung;
};

/// What differs between the statements of the calculators: fixed names, captions, rules. A button without a
/// name is not there.
struct Auszugsart {
    const char* rahmen = "Frame4";
    const char* ansicht = "Combo4";
    const char* ansichttitel = "&Ansicht";
    const char* methode = "Combo6";
    const char* rechnen = "Command5";
    const char* drucken = "Command13";
    const char* druckentext = "Dru&cken";
    const char* grafik = "Grafik";
    const char* effektivtitel = "Label26";
    Ansichtsregel regel = {};
    std::vector<Kennzahlzeile> kennzahlen = {};
    std::vector<Auszugtaste> tasten = {};
};

/// The statement of a calculated account in one of four views, with its totals and its effective rate.
class RegisterBerechnung : public QWidget {
    Q_OBJECT

  public:
    RegisterBerechnung(Auszugsart art, QWidget* eltern);

    /// Shows a calculated account: totals, the chosen view, and what it was calculated by.
    void Zeigen(std::vector<Staffelsatz> loesung, const Kontoeinstellungen& grundlage);

    /// Shows no account.
    void Leeren();

    /// Goes back to the view "Kurzform".
    void KurzformWaehlen();

    /// Shows a figure of the calculator's own; an empty text hides it.
    void KennzahlZeigen(const char* name, const std::string& text);

    /// Shows a rate beside the totals, which names its method where another one is chosen; hides it again.
    void EffektivzinsZeigen(const std::string& ezins, Effektivmethode methode);
    void EffektivzinsVerbergen();

    [[nodiscard]] const std::vector<Staffelsatz>& Loesung() const { return *loesung_; }
    [[nodiscard]] Kontoansicht Ansicht() const;

    /// What this tab knows of a report: view, rows and rate as they are shown.
    [[nodiscard]] Kontoberichtsdaten Berichtsdaten() const;

    [[nodiscard]] Effektivmethode GewaehlteEffektivmethode() const;
    void EffektivmethodeWaehlen(Effektivmethode methode);

    /// The method of the rate that is shown; another choice counts from the next calculation on.
    [[nodiscard]] Effektivmethode GerechneteEffektivmethode() const { return effektivmethode_; }

  signals:
    /// The user asks for the account's effective rate, its report, its chart.
    void effektivzinsVerlangt();
    void druckenVerlangt();
    void grafikVerlangt();
    /// The user has chosen a method.
    void methodeGewaehlt();

  private:
    using Signal = void (RegisterBerechnung::*)();

    QPushButton* Ergebnistaste(const char* name, const char* beschriftung, Signal signal);
    QWidget* Kopfzeile();
    QWidget* NeueKennzahlspalte(const Kennzahlzeile& kennzahl);
    QWidget* Effektivzeile();
    QWidget* Auszugseite();
    void AnsichtZeigen();
    void EffektivtitelZeigen();
    void TastenFreigeben(bool frei);

    Auszugsart art_;
    /// Shared with the reports made of it.
    std::shared_ptr<const std::vector<Staffelsatz>> loesung_;
    Effektivmethode effektivmethode_ = Effektivmethode::pangv2000;
    QComboBox* ansicht_;
    QComboBox* methode_;
    QLabel* effektivtitel_ = nullptr;
    QLabel* ezins_;
    /// What the account was calculated by, so that a picture of the tab explains itself.
    QLabel* grundlage_;
    std::vector<QLabel*> effektivteile_;
    Tabelle* Grid_;
    /// By their names; each lies in a column with its caption.
    std::map<std::string, QLabel*> kennzahlen_;
    /// What needs an account.
    std::vector<QPushButton*> tasten_;
};

}  // namespace zinfolio
