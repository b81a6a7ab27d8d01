// Everything that a user operates says what it is and is reached by keys, in every window; colours of our own
// hold.

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTextEdit>
#include <QToolBar>
#include <cmath>
#include <qcustomplot.h>
#include <set>

#include "fenster/allefenster.h"
#include "fenster/ausgabe/diagrammgestalt.h"
#include "fenster/formhelfer.h"
#include "fenster/ui/tabelle.h"

namespace barrierefrei_test {

using namespace zinfolio;

/// What a user types into, chooses from, presses or reads row by row; not the parts that the toolkit makes of
/// it by itself.
bool WirdBedient(const QWidget& element) {
    const QWidget* eltern = element.parentWidget();
    if (qobject_cast<const QAbstractSpinBox*>(eltern) || qobject_cast<const QComboBox*>(eltern)) return false;
    for (const char* art :
         {"QTableCornerButton", "QToolBarExtension", "QMenuBarExtension", "QLineEditIconButton"})
        if (element.inherits(art)) return false;
    if (element.objectName() == "qt_menubar_ext_button" || qobject_cast<const QTabBar*>(eltern)) return false;
    return qobject_cast<const QLineEdit*>(&element) || qobject_cast<const QComboBox*>(&element) ||
           qobject_cast<const QAbstractButton*>(&element) || qobject_cast<const QTextEdit*>(&element) ||
           qobject_cast<const QPlainTextEdit*>(&element) || qobject_cast<const QAbstractSpinBox*>(&element) ||
           qobject_cast<const QTableView*>(&element) || qobject_cast<const QListWidget*>(&element) ||
           qobject_cast<const QCustomPlot*>(&element);
}

/// What a screen reader says of it: its own name, its caption, the text on it.
QString Name(const QWidget& element, const QWidget& fenster) {
    if (!element.accessibleName().isEmpty()) return element.accessibleName();
    for (const QLabel* text : fenster.findChildren<QLabel*>())
        if (text->buddy() == &element && !text->text().isEmpty()) return text->text();
    const auto* taste = qobject_cast<const QAbstractButton*>(&element);
    return taste ? taste->text() : QString();
}

bool HatBuchstaben(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar zeichen) { return zeichen.isLetter(); });
}

QString Beschreibung(const QWidget& element) {
    return QString(element.metaObject()->className()) + ' ' + element.objectName();
}

/// The pages of a window, each in front in turn, without what choosing one does. A window without tabs has
/// one.
void JedeSeite(QWidget& fenster, const std::function<void(const QString&)>& schritt) {
    auto* register_ = fenster.findChild<QTabWidget*>("TabStrip1");
    if (!register_) return schritt("einzige");
    for (int i = 0; i < register_->count(); ++i) {
        const QSignalBlocker ohneWirkung(register_);
        register_->setCurrentIndex(i);
        schritt(register_->tabText(i));
    }
    auto* mitte = qobject_cast<QStackedWidget*>(dynamic_cast<QMainWindow&>(fenster).centralWidget());
    for (int i = 0; i < mitte->count(); ++i) {
        if (mitte->widget(i) == register_) continue;
        mitte->setCurrentIndex(i);
        schritt("Seite " + mitte->widget(i)->objectName());
    }
    mitte->setCurrentWidget(register_);
}

/// What Tab and Shift+Tab stop at, from wherever the focus is, each until it comes round. A text in which Tab
/// makes a tab is left backwards.
std::set<const QWidget*> MitTabErreicht(QWidget& fenster) {
    std::set<const QWidget*> alle;
    if (!QApplication::focusWidget()) fenster.setFocus();
    for (const Qt::Key taste : {Qt::Key_Tab, Qt::Key_Backtab}) {
        std::set<const QWidget*> erreicht;
        for (int i = 0; i < 400; ++i) {
            QWidget* hier = QApplication::focusWidget() ? QApplication::focusWidget() : &fenster;
            if (!erreicht.insert(hier).second) break;
            const auto* text = qobject_cast<QTextEdit*>(hier);
            if (taste == Qt::Key_Tab && text && !text->isReadOnly() && !text->tabChangesFocus()) break;
            QTest::keyClick(hier, taste, taste == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        }
        alle.merge(erreicht);
    }
    return alle;
}

/// Whether something else than the tab key leads there: the arrow keys of a group, the menu and the keys of a
/// command, the keys of a search.
bool HatAndereTaste(const QWidget& element) {
    const auto* option = qobject_cast<const QRadioButton*>(&element);
    if (option && !option->isChecked()) return true;
    const auto* eltern = element.parentWidget();
    return qobject_cast<const QToolBar*>(eltern) || (eltern && eltern->objectName() == "Tabellensuche");
}

double Helligkeit(const QColor& farbe) {
    const auto linear = [](double anteil) {
        return anteil <= 0.03928 ? anteil / 12.92 : std::pow((anteil + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(farbe.redF()) + 0.7152 * linear(farbe.greenF()) + 0.0722 * linear(farbe.blueF());
}

/// The contrast ratio of the Web Content Accessibility Guidelines, from 1 to 21.
double Kontrast(const QColor& eine, const QColor& andere) {
    const auto [dunkel, hell] = std::minmax(Helligkeit(eine), Helligkeit(andere));
    return (hell + 0.05) / (dunkel + 0.05);
}

QPalette Dunkel() {
    QPalette palette;
    const QColor schrift(225, 225, 225);
    for (const auto& [rolle, farbe] :
         {std::pair(QPalette::Window, QColor(45, 45, 45)), std::pair(QPalette::Base, QColor(30, 30, 30)),
          std::pair(QPalette::AlternateBase, QColor(38, 38, 38)),
          std::pair(QPalette::Button, QColor(60, 60, 60)),
          std::pair(QPalette::ToolTipBase, QColor(60, 60, 60)), std::pair(QPalette::WindowText, schrift),
          std::pair(QPalette::Text, schrift), std::pair(QPalette::ButtonText, schrift),
          std::pair(QPalette::ToolTipText, schrift)})
        palette.setColor(rolle, farbe);
    return palette;
}

constexpr double lesbar = 4.5;
/// For lines and marks.
constexpr double erkennbar = 3.0;

class BarrierefreiTest : public QObject {
    Q_OBJECT

  private:
    static void JedesFenster() {
        QTest::addColumn<int>("nummer");
        const auto alle = AlleFenster();
        for (std::size_t i = 0; i < alle.size(); ++i)
            QTest::newRow(alle[i].name) << static_cast<int>(i);
    }
    static Fenster Oeffne(const Testordner& ordner) {
        QFETCH(int, nummer);
        return AlleFenster()[static_cast<std::size_t>(nummer)].neu(ordner.Pfad());
    }

  private slots:
    void jedesElementHatEinenNamen_data() { JedesFenster(); }
    void jedesElementHatEinenNamen() {
        const Testordner ordner;
        const Zeuge zeuge;
        const Fenster fenster = Oeffne(ordner);
        QStringList namenlose;
        int geprueft = 0;
        for (const QWidget* element : fenster->findChildren<QWidget*>()) {
            if (!WirdBedient(*element)) continue;
            ++geprueft;
            if (!HatBuchstaben(Name(*element, *fenster))) namenlose << Beschreibung(*element);
        }
        QVERIFY(geprueft > 1);
        QVERIFY2(namenlose.isEmpty(), qPrintable(namenlose.join("; ")));
    }

    void allesIstMitTasteErreichbar_data() { JedesFenster(); }
    void allesIstMitTasteErreichbar() {
        const Testordner ordner;
        const Zeuge zeuge;
        const Fenster fenster = Oeffne(ordner);
        Zeige(*fenster);
        QStringList unerreichte;
        JedeSeite(*fenster, [&](const QString& seite) {
            const auto erreicht = MitTabErreicht(*fenster);
            for (const QWidget* element : fenster->findChildren<QWidget*>()) {
                const bool gefragt = WirdBedient(*element) && element->isVisible() && element->isEnabled();
                if (gefragt && !HatAndereTaste(*element) && !erreicht.contains(element))
                    unerreichte << seite + ": " + Beschreibung(*element);
            }
        });
        QVERIFY2(unerreichte.isEmpty(), qPrintable(unerreichte.join("; ")));
    }

    void texteStehenAufIhremGrundHellWieDunkel_data() { JedesFenster(); }
    void texteStehenAufIhremGrundHellWieDunkel() {
        const QPalette hell = QApplication::palette();
        for (const QPalette& palette : {hell, Dunkel()}) {
            QApplication::setPalette(palette);
            const Testordner ordner;
            const Zeuge zeuge;
            const Fenster fenster = Oeffne(ordner);
            QStringList blasse;
            for (const QWidget* element : fenster->findChildren<QWidget*>()) {
                if (!WirdBedient(*element) && !qobject_cast<const QLabel*>(element)) continue;
                const QPalette& eigene = element->palette();
                const double kontrast = Kontrast(eigene.color(QPalette::Active, element->foregroundRole()),
                                                 eigene.color(QPalette::Active, element->backgroundRole()));
                if (kontrast < lesbar) blasse << Beschreibung(*element) + QString(" %1").arg(kontrast);
            }
            QApplication::setPalette(hell);
            QVERIFY2(blasse.isEmpty(), qPrintable(blasse.join("; ")));
        }
    }

    void diagrammeSindHellWieDunkelZuLesen() {
        for (const Diagrammgestalt& gestalt : {Bildschirmgestalt(QPalette(), QFont()),
                                               Bildschirmgestalt(Dunkel(), QFont()), Papiergestalt()}) {
            QVERIFY(Kontrast(gestalt.schriftfarbe, gestalt.grund) >= lesbar);
            for (const QColor& linie : gestalt.linien)
                QVERIFY2(Kontrast(linie, gestalt.grund) >= erkennbar, qPrintable(linie.name()));
        }
    }

    void dieHervorgehobeneZeileIstZuLesen() {
        Tabelle tabelle("Grid");
        Tabelleninhalt inhalt = TexttabelleBilden({{.kopf = "Jahr"}}, {{"1"}, {"2"}});
        inhalt.hervorgehoben = 1;
        tabelle.Zeige(std::move(inhalt));
        const QModelIndex zelle = tabelle.model()->index(1, 0);
        QVERIFY(Kontrast(zelle.data(Qt::ForegroundRole).value<QColor>(),
                         zelle.data(Qt::BackgroundRole).value<QColor>()) >= lesbar);
    }

    void derKontrastRechnetWieDerStandard() {
        QCOMPARE(Kontrast(Qt::white, Qt::black), 21.0);
        QCOMPARE(Kontrast(Qt::red, Qt::red), 1.0);
        // #767676 on white is the lightest grey that text may have.
        QVERIFY(Kontrast(QColor(0x76, 0x76, 0x76), Qt::white) >= lesbar);
        QVERIFY(Kontrast(QColor(0x77, 0x77, 0x77), Qt::white) < lesbar);
    }
};

ZINFOLIO_FENSTERTEST(BarrierefreiTest)

}  // namespace barrierefrei_test

#include "barrierefrei_test.moc"
