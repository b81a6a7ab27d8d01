#include "fenster/start/projektuebergabe.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QTimer>

namespace zinfolio {
namespace {

constexpr auto angenommen = "1";
constexpr qint64 groessteNachricht = 64 * 1024;
constexpr std::chrono::seconds redezeit{5};

/// What a window needs to be allowed to the front: the token that the desktop gave the second start.
constexpr auto vortritt = "XDG_ACTIVATION_TOKEN";

}  // namespace

QString Uebergabeadresse(const std::filesystem::path& arbeitsordner) {
    const QString ordner = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (ordner.isEmpty()) return {};
    const QByteArray ort = QByteArray::fromStdString(arbeitsordner.string()) + '\n' + qgetenv("DISPLAY") +
                           '\n' + qgetenv("WAYLAND_DISPLAY");
    const QByteArray kennung = QCryptographicHash::hash(ort, QCryptographicHash::Sha256).toHex().left(16);
    return QDir(ordner).filePath("zinfolio-" + QString::fromLatin1(kennung));
}

bool ProjektUebergeben(const QString& adresse, const QString& datei, std::chrono::milliseconds frist) {
    if (adresse.isEmpty()) return false;
    QElapsedTimer uhr;
    uhr.start();
    const auto rest = [&] { return static_cast<int>(std::max<qint64>(frist.count() - uhr.elapsed(), 1)); };
    QLocalSocket verbindung;
    verbindung.connectToServer(adresse);
    if (!verbindung.waitForConnected(rest())) return false;
    QDataStream strom(&verbindung);
    strom.setVersion(QDataStream::Qt_6_0);
    strom << qgetenv(vortritt) << datei;
    while (verbindung.bytesToWrite() > 0)
        if (!verbindung.waitForBytesWritten(rest())) return false;
    return verbindung.waitForReadyRead(rest()) && verbindung.readAll() == angenommen;
}

bool Uebergabestelle::Eroeffnen(const QString& adresse) {
    if (adresse.isEmpty()) return false;
    horcher_ = new QLocalServer(this);
    horcher_->setSocketOptions(QLocalServer::UserAccessOption);
    connect(horcher_, &QLocalServer::newConnection, this, &Uebergabestelle::Annehmen);
    QLocalServer::removeServer(adresse);
    return horcher_->listen(adresse);
}

void Uebergabestelle::Annehmen() {
    while (QLocalSocket* gast = horcher_->nextPendingConnection()) {
        connect(gast, &QLocalSocket::disconnected, gast, &QObject::deleteLater);
        connect(gast, &QLocalSocket::readyRead, this, [this, gast] { Lesen(*gast); });
        QTimer::singleShot(redezeit, gast, &QLocalSocket::abort);
        Lesen(*gast);
    }
}

void Uebergabestelle::Lesen(QLocalSocket& gast) {
    QDataStream strom(&gast);
    strom.setVersion(QDataStream::Qt_6_0);
    strom.startTransaction();
    QByteArray zeichen;
    QString datei;
    strom >> zeichen >> datei;
    if (!strom.commitTransaction()) {
        // Not all of it is there yet, or it is nonsense.
        if (strom.status() == QDataStream::ReadCorruptData || gast.bytesAvailable() > groessteNachricht)
            gast.abort();
        return;
    }
    gast.write(angenommen);
    gast.flush();
    gast.disconnectFromServer();
    if (!zeichen.isEmpty()) qputenv(vortritt, zeichen);
    emit uebergeben(datei);
}

}  // namespace zinfolio
