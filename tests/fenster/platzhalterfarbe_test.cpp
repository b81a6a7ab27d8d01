// Placeholders under light and dark colours.

#include "fenster/ui/platzhalterfarbe.h"

#include <QApplication>
#include <QLineEdit>
#include <QPalette>

#include "fenster/formhelfer.h"

namespace platzhalterfarbe_test {

using namespace zinfolio;

class PlatzhalterfarbeTest : public QObject {
    Q_OBJECT

  private:
    /// Colours of a theme that says none for placeholders.
    static QPalette Thema(const QColor& grund, const QColor& schrift) {
        QPalette palette;
        palette.setColor(QPalette::Base, grund);
        palette.setColor(QPalette::Text, schrift);
        palette.setColor(QPalette::PlaceholderText, Qt::black);
        return palette;
    }

    static QColor Gezeigte() { return QLineEdit().palette().color(QPalette::PlaceholderText); }

  private slots:
    void aufDunklemGrundSindSieHell() {
        QApplication::setPalette(Thema(QColor(30, 30, 32), QColor(225, 225, 225)));
        const Platzhalterfarbe farbe;
        QVERIFY(Gezeigte().lightness() > 200);
        QVERIFY(Gezeigte().alpha() > 100);
    }

    void wechselndeFarbenNehmenSieMit() {
        const Platzhalterfarbe farbe;
        QApplication::setPalette(Thema(Qt::white, Qt::black));
        QTRY_VERIFY(Gezeigte().lightness() < 60);
        QApplication::setPalette(Thema(Qt::black, Qt::white));
        QTRY_VERIFY(Gezeigte().lightness() > 200);
    }
};

ZINFOLIO_FENSTERTEST(PlatzhalterfarbeTest)

}  // namespace platzhalterfarbe_test

#include "platzhalterfarbe_test.moc"
