#include "fenster/ui/tabelle.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "fenster/ui/festspalten.h"
#include "fenster/ui/tabellenbefehle.h"

namespace zinfolio {
namespace {

/// Colours by which a marked row stays readable while the list around it is locked.
QPalette AuchGesperrtLesbar(QPalette farben) {
    for (const auto rolle : {QPalette::Highlight, QPalette::HighlightedText})
        farben.setColor(QPalette::Disabled, rolle, farben.color(QPalette::Active, rolle));
    return farben;
}

}  // namespace

Tabelle::Tabelle(const QString& name, QWidget* eltern)
    : QTableView(eltern),
      modell_(new Tabellenmodell(this)),
      feste_(nullptr),
      normalepunkte_(font().pointSizeF()) {
    setObjectName(name);
    setModel(modell_);
    setPalette(AuchGesperrtLesbar(palette()));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    feste_ = new Festspalten(*this);
    TabellenbefehleAnlegen(*this);
    setAlternatingRowColors(true);
    setEditTriggers(NoEditTriggers);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    ZeilenhoeheSetzen();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
}

void Tabelle::Zeige(Tabelleninhalt inhalt) {
    modell_->Setze(std::move(inhalt));
    SpaltenMessen();
    SpaltenVerteilen();
    feste_->Zeigen(static_cast<int>(Inhalt().festeSpalten));
}

std::vector<std::size_t> Tabelle::MarkierteZeilen() const {
    std::vector<std::size_t> zeilen;
    for (const QModelIndex& index : selectionModel()->selectedRows()) {
        zeilen.push_back(static_cast<std::size_t>(index.row()));
    }
    std::sort(zeilen.begin(), zeilen.end());
    return zeilen;
}

void Tabelle::Markiere(int zeile) {
    clearSelection();
    if (zeile < 0 || zeile >= modell_->rowCount()) return;
    selectRow(zeile);
    scrollTo(modell_->index(zeile, 0));
}

void Tabelle::Markiere(const std::vector<std::size_t>& zeilen) {
    QItemSelection auswahl;
    for (const std::size_t zeile : zeilen) {
        const QModelIndex index = modell_->index(static_cast<int>(zeile), 0);
        auswahl.select(index, index);
    }
    Markiere(zeilen.empty() ? -1 : static_cast<int>(zeilen.front()));
    selectionModel()->select(auswahl, QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

QString Tabelle::AuswahlAlsText(Kopfzeile kopfzeile) const {
    QString text;
    const auto zeile = [&](const auto& zelle) {
        for (int spalte = 0; spalte < modell_->columnCount(); ++spalte) {
            if (spalte > 0) text += '\t';
            text += zelle(spalte);
        }
        text += '\n';
    };
    if (kopfzeile == Kopfzeile::mit)
        zeile(
            [&](int spalte) { return modell_->headerData(spalte, Qt::Horizontal).toString().simplified(); });
    for (const std::size_t nummer : MarkierteZeilen())
        zeile([&](int spalte) { return modell_->index(static_cast<int>(nummer), spalte).data().toString(); });
    return text;
}

void Tabelle::AuswahlKopieren(Kopfzeile kopfzeile) const {
    QApplication::clipboard()->setText(AuswahlAlsText(kopfzeile));
}

void Tabelle::Vergroessern(int stufen) {
    constexpr int kleinste = -4;
    constexpr int groesste = 10;
    stufe_ = std::clamp(stufe_ + stufen, kleinste, groesste);
    GroesseZeigen();
}

void Tabelle::NormaleGroesse() {
    stufe_ = 0;
    GroesseZeigen();
}

void Tabelle::GroesseZeigen() {
    constexpr double zuwachs = 1.1;
    QFont schrift = font();
    schrift.setPointSizeF(normalepunkte_ * std::pow(zuwachs, stufe_));
    setFont(schrift);
    ZeilenhoeheSetzen();
    SpaltenMessen();
    SpaltenVerteilen();
    feste_->Anpassen();
}

void Tabelle::ZeilenhoeheSetzen() {
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + fontMetrics().height() / 2);
}

void Tabelle::wheelEvent(QWheelEvent* ereignis) {
    if ((ereignis->modifiers() & Qt::ControlModifier) == 0) return QTableView::wheelEvent(ereignis);
    if (const int weite = ereignis->angleDelta().y(); weite != 0) Vergroessern(weite > 0 ? 1 : -1);
    ereignis->accept();
}

int Tabelle::Spaltenbreite(int spalte) const {
    // Not all cells are measured: a few of each column, and fewer where there are thousands of columns.
    const int stichprobe = std::clamp(20000 / modell_->columnCount(), 1, 200);
    const QFontMetrics schrift(font());
    const int zeilen = modell_->rowCount();
    const int schritt = std::max(1, zeilen / stichprobe);
    int breite = 0;
    const auto messen = [&](int zeile) {
        breite = std::max(breite, schrift.horizontalAdvance(modell_->index(zeile, spalte).data().toString()));
    };
    for (int zeile = 0; zeile < zeilen; zeile += schritt)
        messen(zeile);
    // Balances grow to the end: the last row is never left out.
    if (zeilen > 0) messen(zeilen - 1);
    return breite + 2 * schrift.horizontalAdvance('0');
}

void Tabelle::SpaltenMessen() {
    breiten_.clear();
    for (int spalte = 0; spalte < modell_->columnCount(); ++spalte) {
        breiten_.push_back(std::max(horizontalHeader()->sectionSizeHint(spalte), Spaltenbreite(spalte)));
    }
}

void Tabelle::SpaltenVerteilen() {
    const int gebraucht = std::accumulate(breiten_.begin(), breiten_.end(), 0);
    const int frei = std::max(0, viewport()->width() - gebraucht);
    for (int spalte = 0; spalte < static_cast<int>(breiten_.size()); ++spalte) {
        const int breite = breiten_[static_cast<std::size_t>(spalte)];
        setColumnWidth(spalte, breite + frei * breite / std::max(1, gebraucht));
    }
}

void Tabelle::resizeEvent(QResizeEvent* ereignis) {
    QTableView::resizeEvent(ereignis);
    SpaltenVerteilen();
    feste_->Anpassen();
}

void Tabelle::scrollTo(const QModelIndex& index, ScrollHint art) {
    QTableView::scrollTo(index, art);
    const int verdeckt = feste_->Verdeckt() - visualRect(index).left();
    const bool beweglich = index.column() >= static_cast<int>(Inhalt().festeSpalten);
    if (beweglich && !feste_->isHidden() && verdeckt > 0)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - verdeckt);
}

QModelIndex Tabelle::moveCursor(CursorAction schritt, Qt::KeyboardModifiers zusatz) {
    const bool ende = schritt == MoveEnd;
    if (!ende && schritt != MoveHome) return QTableView::moveCursor(schritt, zusatz);
    const int spalte = std::max(0, currentIndex().column());
    return modell_->index(ende ? modell_->rowCount() - 1 : 0, spalte);
}

void Tabelle::keyPressEvent(QKeyEvent* ereignis) {
    QTableView::keyPressEvent(ereignis);
    // At the first or last row already, the key would scroll the page around the list.
    if (ereignis->key() == Qt::Key_Home || ereignis->key() == Qt::Key_End) ereignis->accept();
}

}  // namespace zinfolio
