#include "staffel/registerberechnung.h"

#include <QComboBox>
#include <QLabel>
#include <QRegularExpression>
#include <QVBoxLayout>

#include "dates/zahlformat.h"
#include "ui/formbausteine.h"
#include "ui/meldungsfenster.h"
#include "ui/tabelle.h"

namespace zinfolio {
namespace {

/// The header as the grid shows it: the run of blanks, or the one before "bis", is where its second line
/// begins.
QString Kopftext(std::string_view kopf) {
    static const QRegularExpression bruch("(  +| (?=bis))");
    QString text = Anzeigetext(kopf);
    const auto stelle = bruch.match(text);
    if (stelle.hasMatch()) text.replace(stelle.capturedStart(), stelle.capturedLength(), "\n");
    return text;
}

std::vector<Tabellenspalte> Tabellenspalten(std::span<const Ansichtsspalte> spalten) {
    std::vector<Tabellenspalte> ergebnis;
    for (const Ansichtsspalte& spalte : spalten)
        ergebnis.push_back({Kopftext(spalte.kopf)});
    return ergebnis;
}

QString Betragstext(double betrag) {
    return QString::fromStdString(Format(betrag, betragsmuster));
}

}  // namespace

RegisterBerechnung::RegisterBerechnung(QWidget* eltern)
    : QWidget(eltern),
      Combo4_(NeueAuswahl("Combo4", kontoansichten, this)),
      Gesamtzahlungssumme_(Summe("Gesamtzahlungssumme")),
      Geszins_(Summe("Geszins")),
      EV_(Summe("EV")),
      Grid_(new Tabelle("Grid", this)) {
    setObjectName("Frame4");
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addWidget(Kopfzeile());
    anordnung->addWidget(Grid_, 1);
    connect(Combo4_, &QComboBox::currentIndexChanged, this, &RegisterBerechnung::AnsichtZeigen);
}

QLabel* RegisterBerechnung::Summe(const char* name) {
    auto* wert = new QLabel(this);
    wert->setObjectName(name);
    wert->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont schrift = wert->font();
    schrift.setPointSizeF(schrift.pointSizeF() * 1.5);
    schrift.setBold(true);
    wert->setFont(schrift);
    return wert;
}

QWidget* RegisterBerechnung::Kopfzeile() {
    auto* kopf = new QWidget;
    auto* zeile = new QHBoxLayout(kopf);
    zeile->setContentsMargins(0, 0, 0, 0);
    auto* ansicht = new QLabel("&Ansicht");
    ansicht->setBuddy(Combo4_);
    zeile->addWidget(ansicht);
    zeile->addWidget(Combo4_);
    zeile->addStretch();
    const std::initializer_list<std::pair<const char*, QLabel*>> summen{
        {"Gesamtzahlungssumme", Gesamtzahlungssumme_}, {"Gesamtzinsen", Geszins_}, {"Endvermögen", EV_}};
    for (const auto& [titel, wert] : summen) {
        auto* spalte = new QVBoxLayout;
        spalte->setSpacing(0);
        spalte->addWidget(new QLabel(QString::fromUtf8(titel)), 0, Qt::AlignRight);
        spalte->addWidget(wert, 0, Qt::AlignRight);
        zeile->addSpacing(24);
        zeile->addLayout(spalte);
    }
    return kopf;
}

void RegisterBerechnung::Zeigen(std::vector<Staffelsatz> loesung) {
    loesung_ = std::move(loesung);
    const Kontosummen summen = KontosummenBilden(loesung_);
    Gesamtzahlungssumme_->setText(Betragstext(summen.Gesamtzahlungssumme));
    EV_->setText(Betragstext(summen.Endvermögen));
    Geszins_->setText(Betragstext(summen.Gesamtzinsen));
    AnsichtZeigen();
}

void RegisterBerechnung::Leeren() {
    loesung_.clear();
    for (QLabel* summe : {Gesamtzahlungssumme_, EV_, Geszins_})
        summe->clear();
    AnsichtZeigen();
}

void RegisterBerechnung::KurzformWaehlen() {
    Combo4_->setCurrentIndex(static_cast<int>(Kontoansicht::kurzform));
}

void RegisterBerechnung::AnsichtZeigen() {
    const auto ansicht = static_cast<Kontoansicht>(Combo4_->currentIndex());
    const auto spalten = Ansichtsspalten(ansicht);
    zeilen_ = Ansichtszeilen(ansicht, loesung_);
    Grid_->Zeige({
        .spalten = Tabellenspalten(spalten),
        .zeilen = static_cast<int>(zeilen_.size()),
        .zelle =
            [this, spalten](int zeile, int spalte) {
                const Staffelsatz& satz = loesung_[zeilen_[static_cast<std::size_t>(zeile)]];
                return QString::fromStdString(spalten[static_cast<std::size_t>(spalte)].zelle(satz));
            },
        .zeilentext = {},
    });
}

}  // namespace zinfolio
