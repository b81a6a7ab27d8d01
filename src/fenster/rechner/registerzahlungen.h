#pragma once

#include <QWidget>

#include "fenster/rechner/formsatzliste.h"
#include "fenster/ui/feldtafel.h"
#include "kern/staffel/zahlungseingabe.h"

class QLabel;
class QStackedWidget;

namespace zinfolio {

/// The tab "Zahlungen": single payments, series with stages and their preview, and the list of all payments.
class RegisterZahlungen : public QWidget {
    Q_OBJECT

  public:
    RegisterZahlungen(const Satzdatei<Staffelsatz>& datei, QWidget* eltern);

    /// `NeuSchreiben`: shows what the file holds and sets the series fields to their start values.
    void NeuSchreiben();

    /// Empties all fields.
    void Leeren();

    /// Another account stands in the file: shows it, and neither a change nor a preview goes on.
    void KontoWechseln();

  signals:
    /// The user has changed the payments.
    void geaendert();

  private:
    QWidget* Eingabeseite();
    QWidget* Listenseite();
    QWidget* Vorschauseite();
    void Verdrahten();

    void Zeigen(const Zahlungseingabe& eingabe);
    [[nodiscard]] bool Pruefen(Zahlungseingabe& eingabe);

    void EingabeUebernehmen();
    void VorschauZeigen(const Zahlungseingabe& eingabe);
    void VorschauUebernehmen();
    void VorschauVerwerfen();
    void Schreiben(const Zahlungseingabe& eingabe);
    void Sortieren();
    void AenderungBeginnen();
    void AenderungUebernehmen();
    void AenderungBeenden();
    void AenderungsmodusSetzen(bool an);
    void DatumrechZeigen();
    void MonatsendeAnbieten();

    Feldgruppe<Zahlungseingabe> felder_;
    FormSatzliste liste_;
    QLabel* Label10_ = nullptr;
    QStackedWidget* rechts_ = nullptr;
    Tabelle* Grid2_ = nullptr;
    /// The series in the preview, and the entry that it comes from.
    std::vector<Staffelsatz> vorschau_;
    Zahlungseingabe vorgesehen_;
};

}  // namespace zinfolio
