// The toolkit's own file dialog behind the one door for file questions.

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "fenster/formhelfer.h"

namespace dateidialog_test {

using namespace zinfolio;
namespace fs = std::filesystem;

/// Does something with the first open modal window of a kind, as soon as there is one.
template <class Fenster>
class Besuch {
  public:
    explicit Besuch(std::function<void(Fenster&)> handlung) : handlung_(std::move(handlung)) {
        QObject::connect(&uhr_, &QTimer::timeout, &uhr_, [this] {
            auto* fenster = qobject_cast<Fenster*>(QApplication::activeModalWidget());
            if (!fenster) return;
            uhr_.stop();
            ++besuche;
            handlung_(*fenster);
        });
        uhr_.start(5);
    }

    int besuche = 0;

  private:
    std::function<void(Fenster&)> handlung_;
    QTimer uhr_;
};

QLineEdit* Namensfeld(QFileDialog& dialog) {
    return Finde<QLineEdit>(&dialog, "fileNameEdit");
}

QPushButton* Knopf(QFileDialog& dialog, QDialogButtonBox::StandardButton art) {
    return Finde<QDialogButtonBox>(&dialog, "buttonBox")->button(art);
}

void NamenTippen(QFileDialog& dialog, const QString& name) {
    QLineEdit* feld = Namensfeld(dialog);
    // Its list of proposals would take the keys.
    feld->setCompleter(nullptr);
    feld->setFocus();
    feld->selectAll();
    QTest::keyClicks(feld, name);
}

void Speichern(QFileDialog& dialog, const QString& name) {
    NamenTippen(dialog, name);
    QPushButton* knopf = Knopf(dialog, QDialogButtonBox::Save);
    QVERIFY(QTest::qWaitFor([&] { return knopf->isEnabled(); }, 1000));
    knopf->click();
}

void Abbrechen(QFileDialog& dialog) {
    Knopf(dialog, QDialogButtonBox::Cancel)->click();
}

const Dateifrage speicherfrage{.zweck = Dateifrage::Zweck::speichern,
                               .titel = "Konto speichern",
                               .filter = "Zahlungsdateien (*.ZiS) |*.ZiS",
                               .endung = "ZiS"};
const Dateifrage oeffnungsfrage{.zweck = Dateifrage::Zweck::oeffnen,
                                .titel = "Konto öffnen",
                                .filter = "Zahlungsdateien (*.ZiS) |*.ZiS",
                                .endung = "ZiS"};

class DateidialogTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> ablage_;

    fs::path Datei(const QString& name) { return ablage_->Pfad() / name.toStdString(); }
    void Anlegen(const QString& name) { std::ofstream(Datei(name)) << "alt"; }

    /// Asks in the folder of the test, and does something with the dialog. One that is still open afterwards
    /// is cancelled.
    std::optional<fs::path> Frage(Dateifrage frage, const std::function<void(QFileDialog&)>& handlung) {
        const Besuch<QFileDialog> besuch([&](QFileDialog& dialog) {
            handlung(dialog);
            offengeblieben_ = dialog.isVisible();
            if (offengeblieben_) Abbrechen(dialog);
        });
        if (frage.vorgabe.isEmpty()) frage.vorgabe = QString::fromStdString(Datei("Alt.ZiS").string());
        auto antwort = DateiFragen(nullptr, frage);
        if (besuch.besuche != 1) qFatal("Kein Dateidialog");
        return antwort;
    }
    bool offengeblieben_ = false;

  private slots:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init() { ablage_ = std::make_unique<Testordner>(); }
    void cleanup() { ablage_.reset(); }

    void derFiltertextEndetVorDemStrich() {
        QStringList filter;
        Frage(speicherfrage, [&](QFileDialog& dialog) { filter = dialog.nameFilters(); });
        QCOMPARE(filter, QStringList("Zahlungsdateien (*.ZiS)"));
    }

    void namenBekommenIhreEndung_data() {
        QTest::addColumn<QString>("getippt");
        QTest::addColumn<QString>("erwartet");
        QTest::newRow("ohne Endung") << "Konto"
                                     << "Konto.ZiS";
        QTest::newRow("mit Punkt") << "Konto v1.2"
                                   << "Konto v1.2.ZiS";
        QTest::newRow("mit Endung") << "Konto.ZiS"
                                    << "Konto.ZiS";
        QTest::newRow("Endung klein") << "Konto.zis"
                                      << "Konto.zis";
        QTest::newRow("Endung groß") << "Konto.ZIS"
                                     << "Konto.ZIS";
    }
    void namenBekommenIhreEndung() {
        QFETCH(QString, getippt);
        QFETCH(QString, erwartet);
        const Zeuge zeuge;
        const auto antwort = Frage(speicherfrage, [&](QFileDialog& dialog) { Speichern(dialog, getippt); });
        QVERIFY(antwort.has_value());
        QCOMPARE(QString::fromStdString(antwort->string()), QString::fromStdString(Datei(erwartet).string()));
        QVERIFY(zeuge.texte.isEmpty());
        QVERIFY(fs::is_empty(ablage_->Pfad()));
    }

    void abbrechenGibtNichts() {
        const auto antwort = Frage(speicherfrage, [&](QFileDialog& dialog) {
            NamenTippen(dialog, "Konto.ZiS");
            Abbrechen(dialog);
        });
        QVERIFY(!antwort.has_value());
        QVERIFY(!offengeblieben_);
    }

    void derLaufendeOrdnerBleibt() {
        const fs::path vorher = fs::current_path();
        QVERIFY(vorher != ablage_->Pfad());
        const auto antwort =
            Frage(speicherfrage, [&](QFileDialog& dialog) { Speichern(dialog, "Konto.ZiS"); });
        QVERIFY(antwort == Datei("Konto.ZiS"));
        QCOMPARE(fs::current_path(), vorher);
    }

    void eineVorhandeneDateiFragtUndNeinLaesstDenDialogOffen() {
        Anlegen("Konto.ZiS");
        QString text;
        const Besuch<QMessageBox> nein([&](QMessageBox& box) {
            text = box.text();
            box.button(QMessageBox::No)->click();
        });
        const auto antwort =
            Frage(speicherfrage, [&](QFileDialog& dialog) { Speichern(dialog, "Konto.ZiS"); });
        QCOMPARE(nein.besuche, 1);
        QVERIFY2(text.contains("Konto.ZiS"), qPrintable(text));
        QVERIFY(offengeblieben_);
        QVERIFY(!antwort.has_value());
    }

    void eineVorhandeneDateiFragtUndJaGibtSie() {
        Anlegen("Konto.ZiS");
        const Besuch<QMessageBox> ja([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
        const Zeuge zeuge;
        const auto antwort =
            Frage(speicherfrage, [&](QFileDialog& dialog) { Speichern(dialog, "Konto.ZiS"); });
        QCOMPARE(ja.besuche, 1);
        QVERIFY(zeuge.texte.isEmpty());
        QVERIFY(antwort == Datei("Konto.ZiS"));
    }

    void einErgaenzterNameFragtDasProgramm() {
        Anlegen("Konto v1.2.ZiS");
        const auto tippen = [&](QFileDialog& dialog) { Speichern(dialog, "Konto v1.2"); };
        const QString frage = "Die Datei \"" + QString::fromStdString(Datei("Konto v1.2.ZiS").string()) +
                              "\" gibt es schon.\nSoll sie überschrieben werden?";
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        QVERIFY(!Frage(speicherfrage, tippen).has_value());
        QCOMPARE(zeuge.texte, QStringList(frage));
        zeuge.antwort = Antwort::ja;
        QVERIFY(Frage(speicherfrage, tippen) == Datei("Konto v1.2.ZiS"));
        QCOMPARE(zeuge.texte, QStringList({frage, frage}));
    }

    void dieVorgabeStehtImNamensfeld() {
        Dateifrage frage = speicherfrage;
        frage.vorgabe = QString::fromStdString(Datei("Konto v1.2.ZiS").string());
        QString name;
        QString ordner;
        Frage(frage, [&](QFileDialog& dialog) {
            name = Namensfeld(dialog)->text();
            ordner = dialog.directory().path();
        });
        QCOMPARE(name, "Konto v1.2.ZiS");
        QCOMPARE(ordner, QString::fromStdString(ablage_->Pfad().string()));
    }

    void eineVorhandeneDateiLaesstSichOeffnen() {
        Anlegen("Konto.ZiS");
        const auto antwort = Frage(oeffnungsfrage, [&](QFileDialog& dialog) {
            NamenTippen(dialog, "Konto.ZiS");
            Knopf(dialog, QDialogButtonBox::Open)->click();
        });
        QVERIFY(antwort == Datei("Konto.ZiS"));
    }

    void eineFehlendeDateiLaesstSichNichtOeffnen() {
        Anlegen("Konto.ZiS");
        // The dialog may say what is missing.
        const Besuch<QMessageBox> hinweis([](QMessageBox& box) { box.button(QMessageBox::Ok)->click(); });
        const auto antwort = Frage(oeffnungsfrage, [&](QFileDialog& dialog) {
            NamenTippen(dialog, "Fehlt.ZiS");
            Knopf(dialog, QDialogButtonBox::Open)->click();
        });
        QVERIFY(offengeblieben_);
        QVERIFY(!antwort.has_value());
    }
};

ZINFOLIO_FENSTERTEST(DateidialogTest)

}  // namespace dateidialog_test

#include "dateidialog_test.moc"
