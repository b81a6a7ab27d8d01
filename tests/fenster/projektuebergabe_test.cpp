// A second start of the program hands over its project: between two objects, and between two processes.

#include "fenster/start/projektuebergabe.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <thread>

#include "fenster/formhelfer.h"

namespace projektuebergabe_test {

using namespace zinfolio;
using namespace std::chrono_literals;

/// Runs a hand-over beside the event loop of the one that listens; whether it was taken.
bool Uebergeben(const QString& adresse, const QString& datei, std::chrono::milliseconds frist = 3000ms) {
    std::atomic<int> ergebnis = -1;
    std::thread zweiter([&] { ergebnis = ProjektUebergeben(adresse, datei, frist) ? 1 : 0; });
    while (ergebnis < 0)
        QTest::qWait(5);
    zweiter.join();
    return ergebnis == 1;
}

/// The program itself, with a configuration and a run-time folder of its own.
class Programm {
  public:
    explicit Programm(const Testordner& ordner) {
        QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
        const QString pfad = QString::fromStdString(ordner.Pfad().string());
        umgebung.insert("XDG_CONFIG_HOME", pfad);
        umgebung.insert("XDG_RUNTIME_DIR", pfad);
        umgebung.insert("QT_QPA_PLATFORM", "offscreen");
        prozess.setProcessEnvironment(umgebung);
        prozess.setWorkingDirectory(ZINFOLIO_BEISPIELE);
    }
    ~Programm() {
        prozess.kill();
        prozess.waitForFinished();
    }
    Programm(const Programm&) = delete;
    Programm& operator=(const Programm&) = delete;

    void Starten(const QStringList& argumente) { prozess.start(ZINFOLIO_PROGRAMM, argumente); }

    QProcess prozess;
};

class ProjektuebergabeTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> ordner_;

    QString Adresse() { return QString::fromStdString((ordner_->Pfad() / "stelle").string()); }

  private slots:
    void init() { ordner_ = std::make_unique<Testordner>(); }
    void cleanup() { ordner_.reset(); }

    void derPfadKommtAnWieErIst() {
        Uebergabestelle stelle;
        QVERIFY(stelle.Eroeffnen(Adresse()));
        QSignalSpy bote(&stelle, &Uebergabestelle::uebergeben);
        QVERIFY(Uebergeben(Adresse(), "/tmp/Köln & Söhne\nGmbH.ZiS"));
        QVERIFY(Uebergeben(Adresse(), ""));
        QCOMPARE(bote.size(), 2);
        QCOMPARE(bote[0][0].toString(), "/tmp/Köln & Söhne\nGmbH.ZiS");
        QCOMPARE(bote[1][0].toString(), "");
    }

    void woNiemandHoertWirdSofortAufgegeben() {
        QElapsedTimer uhr;
        uhr.start();
        QVERIFY(!ProjektUebergeben(Adresse(), "a.ZiS", 3000ms));
        QVERIFY(uhr.elapsed() < 1000);
    }

    void einToterSocketStehtNiemandemImWeg() {
        // A server that ends without a word leaves its socket behind.
        { QFile(Adresse()).open(QIODevice::WriteOnly); }
        QVERIFY(!ProjektUebergeben(Adresse(), "a.ZiS", 500ms));
        Uebergabestelle stelle;
        QVERIFY(stelle.Eroeffnen(Adresse()));
        QVERIFY(Uebergeben(Adresse(), "a.ZiS"));
    }

    void einHaengendesProgrammHaeltNiemandenAuf() {
        QLocalServer stumm;
        QVERIFY(stumm.listen(Adresse()));
        QElapsedTimer uhr;
        uhr.start();
        QVERIFY(!ProjektUebergeben(Adresse(), "a.ZiS", 300ms));
        QVERIFY(uhr.elapsed() >= 250);
        QVERIFY(uhr.elapsed() < 2000);
    }

    void unsinnUndHalbeWorteStoerenNicht() {
        Uebergabestelle stelle;
        QVERIFY(stelle.Eroeffnen(Adresse()));
        QSignalSpy bote(&stelle, &Uebergabestelle::uebergeben);
        QLocalSocket schwaetzer;
        schwaetzer.connectToServer(Adresse());
        QVERIFY(schwaetzer.waitForConnected());
        schwaetzer.write(QByteArray("\x7f\xff\xff\xff", 4) + QByteArray(200'000, 'x'));
        QLocalSocket schweiger;
        schweiger.connectToServer(Adresse());
        QVERIFY(schweiger.waitForConnected());
        schweiger.write("\x00\x00", 2);
        QTRY_COMPARE(schwaetzer.state(), QLocalSocket::UnconnectedState);
        QVERIFY(Uebergeben(Adresse(), "a.ZiS"));
        QCOMPARE(bote.size(), 1);
    }

    void ohneOrdnerFuerSocketsWirdNichtsUebergeben() {
        Uebergabestelle stelle;
        QVERIFY(!stelle.Eroeffnen(""));
        QVERIFY(!ProjektUebergeben("", "a.ZiS", 100ms));
    }

    void jederArbeitsordnerUndJederBildschirmHatSeineStelle() {
        const QString adresse = Uebergabeadresse("/home/a/.config/Fiskaris");
        QCOMPARE(Uebergabeadresse("/home/a/.config/Fiskaris"), adresse);
        QVERIFY(Uebergabeadresse("/home/b/.config/Fiskaris") != adresse);
        const QByteArray bildschirm = qgetenv("DISPLAY");
        qputenv("DISPLAY", ":77");
        QVERIFY(Uebergabeadresse("/home/a/.config/Fiskaris") != adresse);
        qputenv("DISPLAY", bildschirm);
    }

    void derZweiteStartGibtSeinProjektAbUndEndet() {
        Programm erstes(*ordner_);
        erstes.Starten({});
        const auto zahlungen = ordner_->Pfad() / "Fiskaris" / "Zinsstaffel1";
        QTRY_VERIFY(std::filesystem::exists(ordner_->Pfad() / "Fiskaris" / "zinfolio.lock"));
        QVERIFY(Inhalt(zahlungen).empty());
        Programm zweites(*ordner_);
        // A path of its own folder, which the first one does not share.
        zweites.Starten({"konto.ZiS"});
        QVERIFY(zweites.prozess.waitForFinished(20'000));
        QCOMPARE(zweites.prozess.exitCode(), 0);
        // The first one has opened it: the payments are in its working folder.
        QTRY_COMPARE_WITH_TIMEOUT(Inhalt(zahlungen), Inhalt(ZINFOLIO_BEISPIELE "/Zinsstaffel1konto"), 10'000);
        QCOMPARE(erstes.prozess.state(), QProcess::Running);
    }

    void nachEinemAbsturzStartetDasNaechsteSelbst() {
        {
            Programm erstes(*ordner_);
            erstes.Starten({});
            QTRY_VERIFY(!QDir(QString::fromStdString(ordner_->Pfad().string()))
                             .entryList({"zinfolio-*"}, QDir::System)
                             .isEmpty());
        }
        Programm naechstes(*ordner_);
        naechstes.Starten({"konto.ZiS"});
        QTRY_COMPARE_WITH_TIMEOUT(Inhalt(ordner_->Pfad() / "Fiskaris" / "Zinsstaffel1"),
                                  Inhalt(ZINFOLIO_BEISPIELE "/Zinsstaffel1konto"), 10'000);
        QCOMPARE(naechstes.prozess.state(), QProcess::Running);
    }
};

ZINFOLIO_FENSTERTEST(ProjektuebergabeTest)

}  // namespace projektuebergabe_test

#include "projektuebergabe_test.moc"
