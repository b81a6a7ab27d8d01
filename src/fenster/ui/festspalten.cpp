#include "fenster/ui/festspalten.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QWheelEvent>

namespace zinfolio {

Festspalten::Festspalten(QTableView& tabelle) : QTableView(&tabelle), tabelle_(tabelle) {
    setObjectName("Festspalten");
    setAccessibleName("Feststehende Spalten");
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlternatingRowColors(true);
    setEditTriggers(NoEditTriggers);
    setWordWrap(false);
    setSelectionBehavior(tabelle.selectionBehavior());
    setSelectionMode(tabelle.selectionMode());
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
    hide();
}

void Festspalten::Zeigen(int anzahl) {
    anzahl_ = anzahl;
    if (anzahl == 0) return hide();
    if (!model()) Verbinden();
    for (int spalte = 0; spalte < model()->columnCount(); ++spalte)
        setColumnHidden(spalte, spalte >= anzahl);
    Anpassen();
}

void Festspalten::Verbinden() {
    setModel(tabelle_.model());
    setSelectionModel(tabelle_.selectionModel());
    QScrollBar* unten = tabelle_.verticalScrollBar();
    connect(unten, &QScrollBar::valueChanged, verticalScrollBar(), &QScrollBar::setValue);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, unten, &QScrollBar::setValue);
    connect(tabelle_.horizontalScrollBar(), &QScrollBar::rangeChanged, this, &Festspalten::Anpassen);
    const QHeaderView* kopf = tabelle_.horizontalHeader();
    connect(kopf, &QHeaderView::sectionResized, this, &Festspalten::Anpassen);
    connect(kopf, &QHeaderView::geometriesChanged, this, &Festspalten::Anpassen);
    connect(this, &QTableView::clicked, &tabelle_, &QTableView::clicked);
    connect(this, &QTableView::doubleClicked, &tabelle_, &QTableView::doubleClicked);
    connect(this, &QTableView::pressed, &tabelle_, [this] { tabelle_.setFocus(Qt::MouseFocusReason); });
}

int Festspalten::Breite() const {
    int breite = 0;
    for (int spalte = 0; spalte < anzahl_; ++spalte)
        breite += tabelle_.columnWidth(spalte);
    return breite;
}

void Festspalten::Anpassen() {
    const int breite = Breite();
    const bool rollt = tabelle_.horizontalScrollBar()->maximum() > 0;
    setVisible(rollt && anzahl_ > 0 && 2 * breite <= tabelle_.viewport()->width());
    if (isHidden()) return;
    setFont(tabelle_.font());
    verticalHeader()->setDefaultSectionSize(tabelle_.verticalHeader()->defaultSectionSize());
    horizontalHeader()->setFixedHeight(tabelle_.horizontalHeader()->height());
    for (int spalte = 0; spalte < anzahl_; ++spalte)
        setColumnWidth(spalte, tabelle_.columnWidth(spalte));
    const int rand = tabelle_.frameWidth();
    setGeometry(rand, rand, breite, tabelle_.horizontalHeader()->height() + tabelle_.viewport()->height());
    verticalScrollBar()->setValue(tabelle_.verticalScrollBar()->value());
}

void Festspalten::wheelEvent(QWheelEvent* ereignis) {
    QCoreApplication::sendEvent(tabelle_.viewport(), ereignis);
}

void Festspalten::contextMenuEvent(QContextMenuEvent* ereignis) {
    QMenu::exec(tabelle_.actions(), ereignis->globalPos());
}

}  // namespace zinfolio
