#pragma once

#include <QWidget>
#include <optional>

#include "fenster/rechner/formsatzliste.h"
#include "fenster/ui/feldtafel.h"
#include "kern/staffel/konditionseingabe.h"

class QLabel;

namespace zinfolio {

/// The tab "Zinssätze": one condition at a time, and the list of all, kept in order of date.
class RegisterZinssaetze : public QWidget {
    Q_OBJECT

  public:
    RegisterZinssaetze(const Satzdatei<Staffelsatz>& datei, QWidget* eltern);

    /// `NeuSchreiben2`: shows what the file holds; the next entry counts as accepted until a refusal.
    void NeuSchreiben2();

    /// Empties all fields.
    void Leeren();

    /// Another account stands in the file: shows it, and no change goes on.
    void KontoWechseln();

    /// What selecting the tab does: the second rate applies to the whole balance, the date has the focus.
    void Betreten();

  signals:
    /// The user has changed the conditions.
    void geaendert();

  private:
    QWidget* Eingabeseite();
    QWidget* Listenseite();
    [[nodiscard]] bool Pruefen(Konditionseingabe& eingabe, Doppelpruefung doppelt);
    void ZinssatzBegrenzen(Eingabefeld& feld);
    void EingabeUebernehmen();
    void AenderungBeginnen();
    void AenderungUebernehmen();
    void AenderungBeenden();
    void AenderungsmodusSetzen(bool an);
    /// Says beside the button what goes on: which condition is under change, and whether a warning has kept
    /// one from being stored.
    void HinweisZeigen(bool nichtGespeichert);
    void Schreiben(std::vector<Staffelsatz> saetze);

    Feldgruppe<Konditionseingabe> felder_;
    FormSatzliste liste_;
    QLabel* hinweis_ = nullptr;
    QWidget* listenseite_ = nullptr;
    bool angenommen_ = true;
};

}  // namespace zinfolio
