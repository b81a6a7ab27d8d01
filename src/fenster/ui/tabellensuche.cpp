#include "fenster/ui/tabellensuche.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QToolButton>

namespace zinfolio {
namespace {

/// What is searched at the most, which takes less than a second.
constexpr std::size_t meisteZellen = 1'000'000;

}  // namespace

Tabellensuche::Tabellensuche(QTableView& tabelle)
    : QFrame(&tabelle), tabelle_(tabelle), Suchtext_(new QLineEdit(this)), Treffer_(new QLabel(this)) {
    setObjectName("Tabellensuche");
    setFrameShape(StyledPanel);
    setAutoFillBackground(true);
    Suchtext_->setObjectName("Suchtext");
    Suchtext_->setPlaceholderText("Suchen");
    Suchtext_->setAccessibleName("In der Tabelle suchen");
    Suchtext_->installEventFilter(this);
    Treffer_->setObjectName("Treffer");
    auto* zeile = new QHBoxLayout(this);
    zeile->setContentsMargins(6, 4, 6, 4);
    zeile->addWidget(Suchtext_);
    for (const auto& [pfeil, schritt] : {std::pair(Qt::UpArrow, -1), std::pair(Qt::DownArrow, 1)}) {
        auto* taste = new QToolButton(this);
        taste->setArrowType(pfeil);
        taste->setToolTip(schritt > 0 ? "Nächster Treffer (F3)" : "Voriger Treffer (Umschalt+F3)");
        taste->setAccessibleName(schritt > 0 ? "Nächster Treffer" : "Voriger Treffer");
        taste->setFocusPolicy(Qt::NoFocus);
        connect(taste, &QToolButton::clicked, this, [this, weite = schritt] { Weiter(weite); });
        zeile->addWidget(taste);
    }
    zeile->addWidget(Treffer_);
    hide();
    connect(Suchtext_, &QLineEdit::textChanged, this, &Tabellensuche::Suchen);
    connect(tabelle.model(), &QAbstractItemModel::modelReset, this, &Tabellensuche::Suchen);
    tabelle.installEventFilter(this);
}

void Tabellensuche::Oeffnen() {
    show();
    Suchen();
    Suchtext_->setFocus();
    Suchtext_->selectAll();
}

void Tabellensuche::Suchen() {
    treffer_.clear();
    stelle_ = 0;
    const QString gesucht = Suchtext_->text();
    const QAbstractItemModel& modell = *tabelle_.model();
    const auto spalten = static_cast<std::size_t>(modell.columnCount());
    const std::size_t zellen = static_cast<std::size_t>(modell.rowCount()) * spalten;
    abgebrochen_ = zellen > meisteZellen;
    if (isVisible() && !gesucht.isEmpty()) {
        for (std::size_t i = 0; i < std::min(zellen, meisteZellen); ++i)
            if (Zelle(i).data().toString().contains(gesucht, Qt::CaseInsensitive)) treffer_.push_back(i);
        if (!treffer_.empty()) tabelle_.setCurrentIndex(Zelle(treffer_.front()));
    }
    StandZeigen();
}

QModelIndex Tabellensuche::Zelle(std::size_t treffer) const {
    const auto spalten = static_cast<std::size_t>(tabelle_.model()->columnCount());
    return tabelle_.model()->index(static_cast<int>(treffer / spalten), static_cast<int>(treffer % spalten));
}

void Tabellensuche::Weiter(int schritt) {
    if (treffer_.empty()) return;
    stelle_ = (stelle_ + treffer_.size() + static_cast<std::size_t>(schritt + 1) - 1) % treffer_.size();
    tabelle_.setCurrentIndex(Zelle(treffer_[stelle_]));
    StandZeigen();
}

void Tabellensuche::StandZeigen() {
    const QString anzahl = QString::number(treffer_.size()) + (abgebrochen_ ? "+" : "");
    if (Suchtext_->text().isEmpty())
        Treffer_->clear();
    else if (treffer_.empty())
        Treffer_->setText("nicht gefunden");
    else
        Treffer_->setText(QString("%1 von %2").arg(stelle_ + 1).arg(anzahl));
    Platzieren();
}

void Tabellensuche::Platzieren() {
    adjustSize();
    const QRect feld = tabelle_.viewport()->geometry();
    move(std::max(feld.left(), feld.right() - width()), feld.top());
    raise();
}

void Tabellensuche::Schliessen() {
    hide();
    tabelle_.setFocus();
}

bool Tabellensuche::eventFilter(QObject* empfaenger, QEvent* ereignis) {
    if (empfaenger == &tabelle_) {
        if (ereignis->type() == QEvent::Resize && isVisible()) Platzieren();
        return false;
    }
    if (ereignis->type() != QEvent::ShortcutOverride && ereignis->type() != QEvent::KeyPress) return false;
    const auto& taste = static_cast<QKeyEvent&>(*ereignis);
    const bool zurueck = (taste.modifiers() & Qt::ShiftModifier) != 0;
    const bool eigene = taste.key() == Qt::Key_Escape || taste.key() == Qt::Key_Return ||
                        taste.key() == Qt::Key_Enter || taste.key() == Qt::Key_F3;
    if (!eigene) return false;
    ereignis->accept();
    if (ereignis->type() == QEvent::ShortcutOverride) return true;
    if (taste.key() == Qt::Key_Escape)
        Schliessen();
    else
        Weiter(zurueck ? -1 : 1);
    return true;
}

}  // namespace zinfolio
