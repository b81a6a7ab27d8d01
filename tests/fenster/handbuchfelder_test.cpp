// The handbook explains the fields by the words that stand beside them in the windows.

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QRadioButton>

#include "fenster/allefenster.h"
#include "fenster/formhelfer.h"
#include "fenster/hilfe/hilfethema.h"

namespace handbuchfelder_test {

using namespace zinfolio;

bool IstFeld(const QWidget& element) {
    if (qobject_cast<const QComboBox*>(element.parentWidget()) ||
        element.parentWidget()->inherits("QAbstractSpinBox"))
        return false;
    if (element.parentWidget()->objectName() == "Tabellensuche") return false;
    return qobject_cast<const QLineEdit*>(&element) || qobject_cast<const QComboBox*>(&element) ||
           qobject_cast<const QCheckBox*>(&element) || qobject_cast<const QRadioButton*>(&element);
}

/// A chapter as it is read: without marks, with one blank for any white space.
QString Kapitel(const QString& name) {
    QFile datei(":/handbuch/" + name + ".md");
    if (!datei.open(QIODevice::ReadOnly)) qFatal("Kein Kapitel %s", qPrintable(name));
    return QString::fromUtf8(datei.readAll()).remove('*').simplified();
}

class HandbuchfelderTest : public QObject {
    Q_OBJECT

  private slots:
    void jedesFeldStehtInSeinemKapitel_data() {
        QTest::addColumn<int>("nummer");
        const auto alle = AlleFenster();
        // The handbook does not explain its own search.
        for (std::size_t i = 0; i < alle.size(); ++i)
            if (std::string_view(alle[i].name) != "Hilfe") QTest::newRow(alle[i].name) << static_cast<int>(i);
    }
    void jedesFeldStehtInSeinemKapitel() {
        QFETCH(int, nummer);
        const Testordner ordner;
        const Zeuge zeuge;
        const Fenster fenster = AlleFenster()[static_cast<std::size_t>(nummer)].neu(ordner.Pfad());
        QStringList fehlende;
        for (const QWidget* element : fenster->findChildren<QWidget*>()) {
            if (!IstFeld(*element)) continue;
            const Hilfethema thema = ThemaVon(element);
            if (thema.feld.isEmpty() || !Kapitel(thema.kapitel).contains(thema.feld, Qt::CaseInsensitive))
                fehlende << thema.kapitel + ": " + thema.feld;
        }
        fehlende.removeDuplicates();
        QVERIFY2(fehlende.isEmpty(), qPrintable(fehlende.join("; ")));
    }
};

ZINFOLIO_FENSTERTEST(HandbuchfelderTest)

}  // namespace handbuchfelder_test

#include "handbuchfelder_test.moc"
