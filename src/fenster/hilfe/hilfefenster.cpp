#include "fenster/hilfe/hilfefenster.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QRegularExpression>
#include <QSplitter>
#include <QToolBar>

#include "fenster/hilfe/handbuchseite.h"
#include "fenster/ui/fenstergroesse.h"

namespace zinfolio {
namespace {

constexpr QSize anfangsgroesse(980, 680);
constexpr int kapitelbreite = 250;
constexpr int kapitelrolle = Qt::UserRole;

}  // namespace

Hilfefenster::Hilfefenster(QWidget* eltern)
    : QMainWindow(eltern),
      kapitel_(new QListWidget),
      seite_(new Handbuchseite),
      suche_(new QLineEdit),
      treffer_(new QLabel) {
    setObjectName("Hilfefenster");
    setWindowTitle("Handbuch");
    auto* teiler = new QSplitter;
    teiler->addWidget(kapitel_);
    teiler->addWidget(seite_);
    teiler->setStretchFactor(1, 1);
    teiler->setSizes({kapitelbreite, anfangsgroesse.width() - kapitelbreite});
    setCentralWidget(teiler);
    KapitelAnlegen();
    LeisteAnlegen();
    connect(kapitel_, &QListWidget::currentRowChanged, this, &Hilfefenster::KapitelGewaehlt);
    connect(seite_, &QTextBrowser::sourceChanged, this, &Hilfefenster::SeiteGewechselt);
    connect(suche_, &QLineEdit::textChanged, this, &Hilfefenster::Suchen);
    connect(suche_, &QLineEdit::returnPressed, this, [this] { Weitersuchen(+1); });
    FenstergroesseHolen(*this, anfangsgroesse);
}

void Hilfefenster::KapitelAnlegen() {
    kapitel_->setObjectName("Kapitel");
    kapitel_->setAccessibleName("Kapitel des Handbuchs");
    static const QRegularExpression eintrag(R"(\[([^\]]+)\]\(([\w-]+)\.md\))");
    auto treffer = eintrag.globalMatch(Handbuchseite::Quelltext("inhalt"));
    while (treffer.hasNext()) {
        const auto gefunden = treffer.next();
        auto* zeile = new QListWidgetItem(gefunden.captured(1), kapitel_);
        zeile->setData(kapitelrolle, gefunden.captured(2));
    }
}

void Hilfefenster::LeisteAnlegen() {
    auto* leiste = addToolBar("Handbuch");
    leiste->setMovable(false);
    const auto befehl = [this, leiste](const char* name, const QString& text, const QKeySequence& taste,
                                       auto wirkung) {
        QAction* neu = leiste->addAction(text, this, wirkung);
        neu->setObjectName(QString::fromUtf8(name));
        neu->setShortcut(taste);
        neu->setToolTip(text + " (" + taste.toString(QKeySequence::NativeText) + ")");
        return neu;
    };
    QAction* zurueck = befehl("Zurueck", "Zurück", QKeySequence::Back, [this] { seite_->backward(); });
    QAction* vor = befehl("Vor", "Vor", QKeySequence::Forward, [this] { seite_->forward(); });
    zurueck->setEnabled(false);
    vor->setEnabled(false);
    connect(seite_, &QTextBrowser::backwardAvailable, zurueck, &QAction::setEnabled);
    connect(seite_, &QTextBrowser::forwardAvailable, vor, &QAction::setEnabled);
    leiste->addSeparator();
    suche_->setObjectName("Suche");
    suche_->setPlaceholderText("Im Handbuch suchen");
    suche_->setAccessibleName("Im Handbuch suchen");
    suche_->setClearButtonEnabled(true);
    leiste->addWidget(suche_);
    befehl("Weiter", "Nächste Stelle", QKeySequence::FindNext, [this] { Weitersuchen(+1); });
    befehl("Davor", "Vorige Stelle", QKeySequence::FindPrevious, [this] { Weitersuchen(-1); });
    treffer_->setObjectName("Treffer");
    leiste->addWidget(treffer_);
    auto* suchen = new QAction(this);
    suchen->setShortcut(QKeySequence::Find);
    connect(suchen, &QAction::triggered, this, [this] {
        suche_->setFocus();
        suche_->selectAll();
    });
    addAction(suchen);
    auto* schliessen = new QAction(this);
    schliessen->setShortcut(Qt::Key_Escape);
    connect(schliessen, &QAction::triggered, this, &QWidget::close);
    addAction(schliessen);
}

void Hilfefenster::Zeigen(const Hilfethema& thema) {
    const QString ziel = Sprungziel(thema.ueberschrift);
    seite_->Zeige(thema.kapitel, ziel);
    show();
    raise();
    activateWindow();
    seite_->setFocus();
    seite_->Zeige(thema.kapitel, ziel);  // once more: only a shown page has its lines
    seite_->ZumFeld(thema.feld);
}

void Hilfefenster::ZumFokus() {
    static QPointer<Hilfefenster> fenster;
    const QWidget* fokus = QApplication::focusWidget();
    const Hilfethema thema = ThemaVon(fokus ? fokus : QApplication::activeWindow());
    if (!fenster) {
        fenster = new Hilfefenster;
        fenster->setAttribute(Qt::WA_DeleteOnClose);
        fenster->setWindowIcon(QApplication::windowIcon());
    }
    if (fokus && fokus->window() == fenster) return;
    fenster->Zeigen(thema);
}

void Hilfefenster::KapitelGewaehlt(int zeile) {
    const QString kapitel = kapitel_->item(zeile)->data(kapitelrolle).toString();
    if (seite_->source().fileName() != kapitel + ".md") seite_->Zeige(kapitel, {});
}

void Hilfefenster::SeiteGewechselt(const QUrl& adresse) {
    for (int zeile = 0; zeile < kapitel_->count(); ++zeile) {
        if (kapitel_->item(zeile)->data(kapitelrolle).toString() + ".md" == adresse.fileName())
            kapitel_->setCurrentRow(zeile);
    }
}

void Hilfefenster::Suchen() {
    fundstellen_.clear();
    fundstelle_ = 0;
    const QString text = suche_->text();
    if (text.isEmpty()) return treffer_->clear();
    for (int zeile = 0; zeile < kapitel_->count(); ++zeile) {
        const QString kapitel = kapitel_->item(zeile)->data(kapitelrolle).toString();
        QTextDocument dokument;
        dokument.setMarkdown(Handbuchseite::Quelltext(kapitel));
        QTextCursor stelle(&dokument);
        for (int nummer = 0; !(stelle = dokument.find(text, stelle)).isNull(); ++nummer)
            fundstellen_.push_back({kapitel, nummer});
    }
    const auto anzahl = fundstellen_.size();
    treffer_->setText(anzahl == 0 ? " Keine Stelle"
                                  : QString(anzahl == 1 ? " %1 Stelle" : " %1 Stellen").arg(anzahl));
}

void Hilfefenster::Weitersuchen(int schritt) {
    const std::size_t anzahl = fundstellen_.size();
    if (anzahl == 0) return;
    const bool begonnen = treffer_->text().contains(" von ");
    if (begonnen)
        fundstelle_ =
            (fundstelle_ + anzahl + static_cast<std::size_t>(schritt + static_cast<int>(anzahl))) % anzahl;
    const Fundstelle& stelle = fundstellen_[fundstelle_];
    seite_->Zeige(stelle.kapitel, {});
    seite_->moveCursor(QTextCursor::Start);
    for (int nummer = 0; nummer <= stelle.nummer; ++nummer)
        seite_->find(suche_->text());
    treffer_->setText(QString(" %1 von %2").arg(fundstelle_ + 1).arg(anzahl));
}

}  // namespace zinfolio
