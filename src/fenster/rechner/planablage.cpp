#include "fenster/rechner/planablage.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <utility>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/datumsfeld.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"

namespace zinfolio {
namespace {

constexpr const char* ersetzungsfrage =
    "Der gespeicherte Plan konnte nicht gelesen werden. Soll er durch die Angaben im Fenster ersetzt werden "
    "?";

}  // namespace

Planablage::Planablage(QWidget& fenster, Planart art) : Ablage(fenster), art_(std::move(art)) {}

std::vector<Befehlszeile> Planablage::Befehle() {
    return {
        {"Speichern", "speichern", "&Speichern", "Speichern", QKeySequence::Save, [this] { Speichern(); }}};
}

QWidget* Planablage::NeueAnzeige() {
    auto* anzeige = new QWidget;
    auto* zeile = new QHBoxLayout(anzeige);
    zeile->setContentsMargins(0, 0, 0, 0);
    auto* Label9 = new QLabel("Mandant");
    Label9->setObjectName("Label9");
    Combo3_ = NeueAuswahl("Combo3", {}, anzeige);
    Combo3_->setAccessibleName("Mandant");
    Combo3_->setEditable(true);
    Combo3_->setInsertPolicy(QComboBox::NoInsert);
    Combo3_->setCompleter(nullptr);
    Combo3_->setMinimumContentsLength(24);
    Combo3_->lineEdit()->setMaxLength(art_.namenslaenge);
    zeile->addWidget(Label9);
    zeile->addWidget(Combo3_);
    connect(Combo3_, &QComboBox::activated, this,
            [this](int plan) { Geschuetzt(Fenster(), [&] { Waehlen(plan); }); });
    connect(Combo3_->lineEdit(), &QLineEdit::textEdited, this,
            [this](const QString& name) { Geschuetzt(Fenster(), [&] { Umbenennen(name); }); });
    // Of a name longer than its field the beginning is in sight.
    connect(Combo3_->lineEdit(), &QLineEdit::editingFinished, Combo3_->lineEdit(),
            [zeile = Combo3_->lineEdit()] { zeile->home(false); });
    return anzeige;
}

QString Planablage::Name() const {
    const auto plan = static_cast<std::size_t>(verzeichnis_.aktuell);
    return plan < verzeichnis_.namen.size() ? QString::fromStdString(verzeichnis_.namen[plan]) : QString();
}

void Planablage::Beginnen() {
    verzeichnis_ = art_.verzeichnisLesen();
    const auto plaene = static_cast<int>(verzeichnis_.namen.size());
    if (verzeichnis_.aktuell < 0 || verzeichnis_.aktuell >= plaene) verzeichnis_.aktuell = 0;
    {
        const QSignalBlocker still(Combo3_);
        for (const std::string& name : verzeichnis_.namen)
            Combo3_->addItem(QString::fromStdString(name));
        Combo3_->setCurrentIndex(verzeichnis_.aktuell);
    }
    ungelesen_ = !Geschuetzt(Fenster(), [this] { art_.laden(verzeichnis_.aktuell); });
    emit benannt();
    Fenster()->setWindowModified(false);
}

void Planablage::Waehlen(int plan) {
    if (!Geschuetzt(Fenster(), [&] { art_.laden(plan); })) {
        // The fields still hold the plan before: it must not be saved over one that could not be read.
        Combo3_->setCurrentIndex(verzeichnis_.aktuell);
        return;
    }
    verzeichnis_.aktuell = plan;
    ungelesen_ = false;
    (void)Schreiben(art_.nichtGespeichert, [this] { art_.wahlSchreiben(verzeichnis_); });
    emit benannt();
    emit gewechselt();
    Fenster()->setWindowModified(false);
}

void Planablage::Umbenennen(const QString& name) {
    verzeichnis_.namen[static_cast<std::size_t>(verzeichnis_.aktuell)] = name.toStdString();
    // The list puts the new text into its field, which moves the cursor to the end.
    const int stelle = Combo3_->lineEdit()->cursorPosition();
    Combo3_->setItemText(verzeichnis_.aktuell, name);
    Combo3_->lineEdit()->setCursorPosition(stelle);
    emit benannt();
    (void)Schreiben(art_.nichtGespeichert, [this] { art_.namenSchreiben(verzeichnis_); });
}

bool Planablage::Speichern() {
    const auto schreiben = [this] { art_.speichern(verzeichnis_.aktuell); };
    if (!DatumSteht(*Fenster())) return false;
    if (ungelesen_ && !Fragen(Fenster(), {.text = ersetzungsfrage, .titel = "Speichern"})) return false;
    if (!Schreiben(art_.nichtGespeichert, schreiben)) return false;
    ungelesen_ = false;
    Fenster()->setWindowModified(false);
    return true;
}

}  // namespace zinfolio
