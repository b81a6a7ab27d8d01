#pragma once

#include <QByteArray>
#include <QUrl>
#include <chrono>

namespace zinfolio {

/// How long a request may take, and how much of an answer is read: the version file is a few bytes.
struct Abrufgrenzen {
    std::chrono::milliseconds frist{5000};
    qint64 hoechstlaenge = 64 * 1024;
};

/// The beginning of what a plain request gives, redirects to other pages of the web followed; empty where
/// there is no answer in time. The program stays painted meanwhile, but takes no input.
[[nodiscard]] QByteArray Abrufen(const QUrl& adresse, const Abrufgrenzen& grenzen = {});

}  // namespace zinfolio
