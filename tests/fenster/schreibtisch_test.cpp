// Which word processor a desktop offers, asked of tools that stand in for the desktop's own.

#include "fenster/ausgabe/schreibtisch.h"

#include <QApplication>
#include <fstream>

#include "fenster/formhelfer.h"

namespace schreibtisch_test {

using namespace zinfolio;

class SchreibtischTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> ordner_;
    QByteArray pfadliste_;

    QString Programm(const char* name, const std::string& zeilen) {
        const auto datei = ordner_->Pfad() / name;
        std::ofstream(datei) << "#!/bin/sh\n" + zeilen;
        std::filesystem::permissions(datei, std::filesystem::perms::owner_all);
        return QString::fromStdString(datei.string());
    }

    /// Knows an application for one kind of file.
    void Auskunft(const std::string& typ) {
        Programm("xdg-mime", "[ \"$*\" = \"query default " + typ + "\" ] && echo schreiber.desktop\n");
    }

  private slots:
    void init() {
        ordner_ = std::make_unique<Testordner>();
        pfadliste_ = qgetenv("PATH");
        qputenv("PATH", QByteArray::fromStdString(ordner_->Pfad().string()));
    }
    void cleanup() { qputenv("PATH", pfadliste_); }

    void ohneWerkzeugeGibtEsKeine() {
        QCOMPARE(Textverarbeitung(), "");
        Auskunft("application/rtf");
        QCOMPARE(Textverarbeitung(), "");
    }

    void werNichtGefragtWerdenKannWeissKeine() {
        Programm("xdg-open", "");
        QCOMPARE(Textverarbeitung(), "");
    }

    void ohneAnwendungGibtEsKeine() {
        Programm("xdg-open", "");
        Auskunft("text/plain");
        QCOMPARE(Textverarbeitung(), "");
    }

    void beideNamenDesFormatsZaehlen() {
        const QString oeffner = Programm("xdg-open", "");
        for (const char* typ : {"application/rtf", "text/rtf"}) {
            Auskunft(typ);
            QCOMPARE(Textverarbeitung(), oeffner);
        }
    }

    void bekommtDieDatei() {
        const QString ziel = QString::fromStdString((ordner_->Pfad() / "bekommen").string());
        const QString oeffner = Programm("xdg-open", "printf '%s' \"$1\" > '" + ziel.toStdString() + "'\n");
        QVERIFY(TextverarbeitungStarten(oeffner, "/tmp/Ein Brief.rtf"));
        QFile bekommen(ziel);
        QTRY_VERIFY(bekommen.exists() && bekommen.size() > 0);
        QVERIFY(bekommen.open(QIODevice::ReadOnly));
        QCOMPARE(bekommen.readAll(), QByteArray("/tmp/Ein Brief.rtf"));
    }

    void fehlendesProgrammStartetNicht() { QVERIFY(!TextverarbeitungStarten("/gibt/es/nicht", "a.rtf")); }
};

ZINFOLIO_FENSTERTEST(SchreibtischTest)

}  // namespace schreibtisch_test

#include "schreibtisch_test.moc"
