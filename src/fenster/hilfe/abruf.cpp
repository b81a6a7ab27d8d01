#include "fenster/hilfe/abruf.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

namespace zinfolio {

QByteArray Abrufen(const QUrl& adresse, const Abrufgrenzen& grenzen) {
    QNetworkAccessManager netz;
    QNetworkRequest anfrage(adresse);
    anfrage.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    QNetworkReply* antwort = netz.get(anfrage);
    QByteArray gelesen;
    QEventLoop schleife;
    QTimer frist;
    frist.setSingleShot(true);
    QObject::connect(&frist, &QTimer::timeout, &schleife, &QEventLoop::quit);
    QObject::connect(antwort, &QNetworkReply::finished, &schleife, &QEventLoop::quit);
    QObject::connect(antwort, &QNetworkReply::readyRead, &schleife, [&] {
        gelesen += antwort->read(grenzen.hoechstlaenge - gelesen.size());
        if (gelesen.size() >= grenzen.hoechstlaenge) schleife.quit();
    });
    frist.start(grenzen.frist);
    schleife.exec(QEventLoop::ExcludeUserInputEvents);
    const bool gelungen = antwort->isFinished() ? antwort->error() == QNetworkReply::NoError
                                                : gelesen.size() >= grenzen.hoechstlaenge;
    antwort->abort();
    return gelungen ? gelesen : QByteArray();
}

}  // namespace zinfolio
