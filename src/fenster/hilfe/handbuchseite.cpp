#include "fenster/hilfe/handbuchseite.h"

#include <QAbstractTextDocumentLayout>
#include <QDesktopServices>
#include <QFile>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>

#include "fenster/hilfe/hilfethema.h"

namespace zinfolio {
namespace {

constexpr int seitenrand = 18;
constexpr int zellenrand = 4;

/// Gives the tables of a page room and single lines.
void TabellenGestalten(const QTextDocument& dokument) {
    for (QTextFrame* rahmen : dokument.rootFrame()->childFrames()) {
        auto* tabelle = qobject_cast<QTextTable*>(rahmen);
        if (!tabelle) continue;
        QTextTableFormat format = tabelle->format();
        format.setCellPadding(zellenrand);
        format.setCellSpacing(0);
        format.setBorderCollapse(true);
        tabelle->setFormat(format);
    }
}

/// The block of the heading with an anchor; invalid where there is none.
QTextBlock Ueberschrift(const QTextDocument& dokument, const QString& sprungziel) {
    for (QTextBlock block = dokument.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0 && Sprungziel(block.text()) == sprungziel) return block;
    }
    return {};
}

}  // namespace

Handbuchseite::Handbuchseite(QWidget* eltern) : QTextBrowser(eltern) {
    setObjectName("Handbuchseite");
    setAccessibleName("Seite des Handbuchs");
    setOpenExternalLinks(true);
    document()->setDocumentMargin(seitenrand);
    connect(this, &QTextBrowser::sourceChanged, this, &Handbuchseite::Springen);
}

QUrl Handbuchseite::Adresse(const QString& kapitel) {
    return QUrl("qrc:/handbuch/" + kapitel + ".md");
}

QString Handbuchseite::Quelltext(const QString& kapitel) {
    QFile datei(":/handbuch/" + kapitel + ".md");
    if (!datei.open(QIODevice::ReadOnly)) return {};
    static const QRegularExpression kommentar(R"(<!--.*?-->\n?)",
                                              QRegularExpression::DotMatchesEverythingOption);
    return QString::fromUtf8(datei.readAll()).remove(kommentar);
}

QVariant Handbuchseite::loadResource(int art, const QUrl& adresse) {
    const QString name = adresse.fileName();
    if (adresse.scheme() == "qrc" && name.endsWith(".md")) return Quelltext(name.chopped(3)).toUtf8();
    return QTextBrowser::loadResource(art, adresse);
}

void Handbuchseite::Zeige(const QString& kapitel, const QString& sprungziel) {
    QUrl adresse = Adresse(kapitel);
    if (!sprungziel.isEmpty()) adresse.setFragment(sprungziel);
    setSource(adresse);
    Springen(adresse);
}

void Handbuchseite::Springen(const QUrl& adresse) {
    TabellenGestalten(*document());
    if (!adresse.hasFragment()) return;
    const QTextBlock block = Ueberschrift(*document(), adresse.fragment());
    if (block.isValid()) Hinrollen(QTextCursor(block));
}

void Handbuchseite::ZumFeld(const QString& feld) {
    if (feld.isEmpty()) return;
    QTextCursor stelle = textCursor();
    while (!(stelle = document()->find(feld, stelle, QTextDocument::FindCaseSensitively)).isNull()) {
        if (stelle.charFormat().fontWeight() > QFont::Normal) return Hinrollen(stelle);
    }
}

void Handbuchseite::Hinrollen(const QTextCursor& stelle) {
    setTextCursor(QTextCursor(stelle.block()));
    const QRectF lage = document()->documentLayout()->blockBoundingRect(stelle.block());
    verticalScrollBar()->setValue(static_cast<int>(lage.top()));
}

}  // namespace zinfolio
