#pragma once

#include <QWidget>

#include "fenster/rechner/formsatzliste.h"
#include "fenster/rechner/zahlungseinleser.h"
#include "fenster/ui/feldtafel.h"
#include "kern/dates/zahlformat.h"
#include "kern/staffel/zahlungseingabe.h"

class QLabel;
class QShortcut;
class QStackedWidget;

namespace zinfolio {

/// What differs between the calculators that take payments.
struct Zahlungsregisterart {
    enum Form : unsigned { konto = 1, reihe = 2 };

    /// Which of the rows of fields it has.
    Form form = konto;
    Nullbetrag nullbetrag = Nullbetrag::abgelehnt;
    /// The header of the running number in the preview of a series, and the pattern of the amounts that do
    /// not begin a stage.
    std::string_view nummernkopf = "Nr.";
    Zahlmuster folgemuster = vorschaumuster;
    /// A change that ends empties the payment's own fields only, not those of the series.
    bool serieBleibt = false;
    /// Each time that the list is built anew from its rows, all fields are emptied.
    bool neuSchreibenLeert = false;
};

/// The tab "Zahlungen": single payments, series with stages and their preview, and the list of all payments.
class RegisterZahlungen : public QWidget {
    Q_OBJECT

  public:
    RegisterZahlungen(const Zahlungsregisterart& art, const Satzdatei<Staffelsatz>& datei, QWidget* eltern);

    /// Shows what the file holds; what the user has typed, marked and begun stays.
    void Auffrischen();

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
    void EinlesenAnlegen();
    void Einlesen(Einleser einleser);
    void Verdrahten();

    void Zeigen(const Zahlungseingabe& eingabe);
    [[nodiscard]] bool Pruefen(Zahlungseingabe& eingabe);

    void EingabeUebernehmen();
    void VorschauZeigen(const Zahlungseingabe& eingabe);
    void VorschauUebernehmen();
    void VorschauVerwerfen();
    /// The preview in the place of the list; Escape discards it then.
    void RechtsZeigen(QWidget* seite);
    void Schreiben(const Zahlungseingabe& eingabe);
    void Sortieren();
    /// What the fields show when a change begins or ends: no payment.
    [[nodiscard]] Zahlungseingabe Grundeingabe() const;
    void AenderungBeginnen();
    void AenderungUebernehmen();
    void AenderungBeenden();
    void AenderungsmodusSetzen(bool an);
    void DatumrechZeigen();
    void MonatsendeAnbieten();

    Zahlungsregisterart art_;
    Feldgruppe<Zahlungseingabe> felder_;
    FormSatzliste liste_;
    QLabel* Label10_ = nullptr;
    QStackedWidget* rechts_ = nullptr;
    QWidget* listenseite_ = nullptr;
    QWidget* vorschauseite_ = nullptr;
    QShortcut* escape_ = nullptr;
    Tabelle* Grid2_ = nullptr;
    /// The entry of the series in the preview.
    Zahlungseingabe vorgesehen_;
};

}  // namespace zinfolio
