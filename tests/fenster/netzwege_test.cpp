// The ways into the web, against a real server on this machine: what each answer leads to.

#include "fenster/hilfe/netzwege.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>

#include "fenster/formhelfer.h"
#include "fenster/hilfe/versionsdatei.h"
#include "fenster/ui/deutsch.h"
#include "fenster/ui/entertaste.h"

namespace netzwege_test {

using namespace zinfolio;

/// A small web server: answers each path with bytes of its own, and counts who asks.
class Probeserver : public QTcpServer {
  public:
    Probeserver() {
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* kunde = nextPendingConnection();
            connect(kunde, &QTcpSocket::readyRead, this, [this, kunde] { Antworten(*kunde); });
            connect(kunde, &QTcpSocket::disconnected, kunde, &QObject::deleteLater);
        });
        listen(QHostAddress::LocalHost);
    }

    void Seite(const QByteArray& pfad, const QByteArray& inhalt) {
        antworten_[pfad] =
            "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(inhalt.size()) + "\r\n\r\n" + inhalt;
    }
    void Umleitung(const QByteArray& pfad, const QByteArray& ziel) {
        antworten_[pfad] = "HTTP/1.1 302 Found\r\nLocation: " + ziel + "\r\nContent-Length: 0\r\n\r\n";
    }

    [[nodiscard]] QUrl Adresse() const { return QUrl("http://127.0.0.1:" + QString::number(serverPort())); }

    int anfragen = 0;
    /// Takes requests, but never answers.
    bool stumm = false;

  private:
    void Antworten(QTcpSocket& kunde) {
        const QByteArray anfrage = kunde.readAll();
        if (!anfrage.startsWith("GET ")) return;
        ++anfragen;
        if (stumm) return;
        kunde.write(antworten_.value(anfrage.split(' ').at(1),
                                     "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n"));
        kunde.disconnectFromHost();
    }

    QHash<QByteArray, QByteArray> antworten_;
};

constexpr const char* verbindung =
    "Stellen Sie bitte eine Verbindung zum Internet her und drücken danach den OK- Button.";
constexpr const char* abgebrochen =
    "Keine Internetverbindung geöffnet - Der Downloadversuch wird abgebrochen !";
constexpr const char* aktuell = "Sie haben die aktuellste Version. Es gibt kein neueres Update.";

class NetzwegeTest : public QObject {
    Q_OBJECT

  private:
    /// The pages that a browser was sent to.
    QStringList gezeigt_;

    Netzziel Ziel(const Probeserver& server) {
        return {.server = server.Adresse(),
                .grenzen = {.frist = std::chrono::milliseconds(400)},
                .zeigen = [this](const QUrl& adresse) { gezeigt_ << adresse.path(); }};
    }

  private slots:
    void init() { gezeigt_.clear(); }

    void textDerVersionsdateiWirdAlsZahlGelesen_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("neuer");
        QTest::newRow("dieselbe") << QByteArray("2010") << false;
        QTest::newRow("neuer") << QByteArray("2011") << true;
        QTest::newRow("aelter") << QByteArray("1999") << false;
        QTest::newRow("haelfte zum geraden Nachbarn") << QByteArray("2010.5") << false;
        QTest::newRow("ueber der Haelfte") << QByteArray("2010.51") << true;
        QTest::newRow("Text dahinter") << QByteArray("2011 vom 1. Mai") << true;
        QTest::newRow("zweiter Punkt") << QByteArray("2011.1.9") << true;
        QTest::newRow("Text davor") << QByteArray("Version 2011") << false;
        QTest::newRow("leer") << QByteArray() << false;
    }
    void textDerVersionsdateiWirdAlsZahlGelesen() {
        QFETCH(QByteArray, text);
        QFETCH(bool, neuer);
        QCOMPARE(NenntNeuereVersion(text.toStdString()), neuer);
    }

    void aktuelleVersionWirdGesagt() {
        Probeserver server;
        server.Seite("/zinfolio.txt", "2010\n");
        const Zeuge zeuge;
        NachNeuererVersionSehen(nullptr, Ziel(server));
        QCOMPARE(zeuge.texte, QStringList{aktuell});
        QCOMPARE(zeuge.titel, QStringList{"OK"});
        QCOMPARE(gezeigt_, QStringList());
        QCOMPARE(server.anfragen, 1);
    }

    void neuereVersionWirdNachOkImBrowserGeladen() {
        Probeserver server;
        server.Seite("/zinfolio.txt", "2011");
        Zeuge zeuge;
        zeuge.antwort = Antwort::ja;
        NachNeuererVersionSehen(nullptr, Ziel(server));
        QCOMPARE(zeuge.texte.size(), 1);
        QCOMPARE(gezeigt_, QStringList{"/download/zinfolio.exe"});
    }

    void neuereVersionWirdNachAbbrechenNichtGeladen() {
        Probeserver server;
        server.Seite("/zinfolio.txt", "2011");
        Zeuge zeuge;
        zeuge.antwort = Antwort::abbrechen;
        NachNeuererVersionSehen(nullptr, Ziel(server));
        QCOMPARE(gezeigt_, QStringList());
    }

    void umleitungWirdGefolgt() {
        Probeserver server;
        server.Umleitung("/zinfolio.txt", "/anderswo.txt");
        server.Seite("/anderswo.txt", "2010");
        const Zeuge zeuge;
        NachNeuererVersionSehen(nullptr, Ziel(server));
        QCOMPARE(zeuge.texte, QStringList{aktuell});
    }

    void leereAntwortIstKeineVerbindungUndFragtEinmal() {
        Probeserver server;
        server.Seite("/zinfolio.txt", "2");
        Zeuge zeuge;
        zeuge.antwort = Antwort::ja;
        NachNeuererVersionSehen(nullptr, Ziel(server));
        QCOMPARE(zeuge.texte, (QStringList{verbindung, abgebrochen}));
        QCOMPARE(server.anfragen, 2);
    }

    void abbrechenDerFrageEndetOhneWeiteresWort() {
        Probeserver server;
        server.Seite("/zinfolio.txt", "");
        Zeuge zeuge;
        zeuge.antwort = Antwort::abbrechen;
        NachNeuererVersionSehen(nullptr, Ziel(server));
        QCOMPARE(zeuge.texte, QStringList{verbindung});
        QCOMPARE(server.anfragen, 1);
    }

    void keinServerEndetBeiEinerSeiteOhneZweiteMeldung() {
        Netzziel ziel;
        {
            const Probeserver server;
            ziel = Ziel(server);
        }
        Zeuge zeuge;
        zeuge.antwort = Antwort::ja;
        SeiteZeigen(nullptr, ziel, "/");
        QCOMPARE(zeuge.texte, QStringList{verbindung});
        QCOMPARE(gezeigt_, QStringList());
    }

    void stummerServerHaeltNurDieFristAuf() {
        Probeserver server;
        server.stumm = true;
        QElapsedTimer uhr;
        uhr.start();
        QCOMPARE(Abrufen(server.Adresse(), {.frist = std::chrono::milliseconds(200)}), QByteArray());
        QVERIFY(uhr.elapsed() < 2000);
    }

    void vonZehnMegabyteWirdNurDerAnfangGelesen() {
        Probeserver server;
        server.Seite("/zinfolio.txt", QByteArray(10 << 20, 'x'));
        QCOMPARE(Abrufen(QUrl(server.Adresse().toString() + "/zinfolio.txt"), {.hoechstlaenge = 1000}).size(),
                 1000);
        const Zeuge zeuge;
        NachNeuererVersionSehen(nullptr, Ziel(server));
        QCOMPARE(zeuge.texte, QStringList{aktuell});
    }

    void seitenOeffnenSichNachDerProbe() {
        Probeserver server;
        server.Seite("/zinfolio.txt", "2010");
        const Zeuge zeuge;
        SeiteZeigen(nullptr, Ziel(server), "/Seminare/Seminare.html");
        SeiteZeigen(nullptr, Ziel(server), "/");
        QCOMPARE(gezeigt_, (QStringList{"/Seminare/Seminare.html", "/"}));
        QCOMPARE(zeuge.texte, QStringList());
    }
};

ZINFOLIO_FENSTERTEST(NetzwegeTest)

}  // namespace netzwege_test

#include "netzwege_test.moc"
