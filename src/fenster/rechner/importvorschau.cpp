#include "fenster/rechner/importvorschau.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <numeric>

#include "fenster/ui/fenstergroesse.h"
#include "fenster/ui/tabelle.h"
#include "kern/dates/zahlformat.h"

namespace zinfolio {
namespace {

QString Uebersicht(const Zahlungsimport& ergebnis, const QString& herkunft) {
    const auto anzahl = ergebnis.zahlungen.size();
    if (anzahl == 0) return QString("Aus %1 kann keine Zahlung übernommen werden.").arg(herkunft);
    const double summe =
        std::accumulate(ergebnis.zahlungen.begin(), ergebnis.zahlungen.end(), 0.0,
                        [](double bisher, const Staffelsatz& satz) { return bisher + satz.Zahlbetrag; });
    return QString(anzahl == 1 ? "Aus %1 wird %2 Zahlung übernommen. Summe: %3 €"
                               : "Aus %1 werden %2 Zahlungen übernommen. Summe: %3 €")
        .arg(herkunft)
        .arg(anzahl)
        .arg(QString::fromStdString(Format(summe, betragsmuster)));
}

/// From which columns date, amount and text were taken; empty where the text has no header line.
QString Spaltenherkunft(const Zahlungsimport& ergebnis) {
    QStringList teile;
    for (const auto& [feld, kopf] :
         {std::pair("Datum", ergebnis.datumskopf), std::pair("Betrag", ergebnis.betragskopf),
          std::pair("Beschreibung", ergebnis.textkopf)})
        if (!kopf.empty()) teile << QString("%1 aus „%2“").arg(feld, QString::fromStdString(kopf));
    return teile.join(", ");
}

Tabelleninhalt Ausfalltabelle(const std::vector<Importausfall>& ausfaelle) {
    std::vector<std::vector<std::string>> zeilen;
    for (const Importausfall& ausfall : ausfaelle)
        zeilen.push_back({std::to_string(ausfall.zeile), ausfall.inhalt, ausfall.grund});
    const auto links = Zellausrichtung::links;
    return TexttabelleBilden({{.kopf = "Zeile"},
                              {.kopf = "Inhalt", .art = Zellart::text, .ausrichtung = links},
                              {.kopf = "Grund", .art = Zellart::text, .ausrichtung = links}},
                             std::move(zeilen));
}

QLabel* Zeile(const char* name, const QString& text) {
    auto* zeile = new QLabel(text);
    zeile->setObjectName(name);
    zeile->setTextFormat(Qt::PlainText);
    zeile->setWordWrap(true);
    return zeile;
}

}  // namespace

Importvorschau::Importvorschau(const Zahlungsimport& ergebnis, const QString& herkunft,
                               Tabelleninhalt zahlungen, QWidget* eltern)
    : QDialog(eltern) {
    setObjectName("Importvorschau");
    setWindowTitle("Zahlungen einlesen");
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addWidget(Zeile("Übersicht", Uebersicht(ergebnis, herkunft)));
    if (const QString spalten = Spaltenherkunft(ergebnis); !spalten.isEmpty())
        anordnung->addWidget(Zeile("Spalten", spalten));
    auto* liste = new Tabelle("Einzulesende", this);
    liste->setAccessibleName("Zahlungen, die übernommen werden");
    liste->Zeige(std::move(zahlungen));
    anordnung->addWidget(liste, 3);
    if (!ergebnis.ausfaelle.empty()) {
        anordnung->addWidget(
            Zeile("Ausfallzahl", QString("Nicht übernommen (%1):").arg(ergebnis.ausfaelle.size())));
        auto* ausfaelle = new Tabelle("Ausfälle", this);
        ausfaelle->setAccessibleName("Zeilen, die nicht übernommen werden");
        ausfaelle->Zeige(Ausfalltabelle(ergebnis.ausfaelle));
        anordnung->addWidget(ausfaelle, 1);
    }
    auto* tasten = new QDialogButtonBox(this);
    QPushButton* uebernehmen = tasten->addButton("Über&nehmen", QDialogButtonBox::AcceptRole);
    uebernehmen->setObjectName("Einlesen");
    uebernehmen->setEnabled(!ergebnis.zahlungen.empty());
    tasten->addButton("&Abbrechen", QDialogButtonBox::RejectRole)->setObjectName("Abbrechen");
    connect(tasten, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(tasten, &QDialogButtonBox::rejected, this, &QDialog::reject);
    anordnung->addWidget(tasten);
    FenstergroesseHolen(*this, {760, 560});
    connect(this, &QDialog::finished, this, [this] { FenstergroesseMerken(*this); });
}

}  // namespace zinfolio
