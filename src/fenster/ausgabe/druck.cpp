#include "fenster/ausgabe/druck.h"

#include <QPageRanges>
#include <QPainter>
#include <QPrinter>
#include <algorithm>

namespace zinfolio {
namespace {

/// Paper sizes are rounded to points; a difference of that size is none.
constexpr double gleich = 0.998;

double PixelJeTwip(const Seitenmaler& maler, const QPrinter& drucker) {
    const QRectF papier = drucker.paperRect(QPrinter::DevicePixel);
    const double nenn = static_cast<double>(drucker.resolution()) / twipsJeZoll;
    const double passend =
        std::min(papier.width() / maler.Papier().width(), papier.height() / maler.Papier().height());
    return passend >= gleich * nenn ? nenn : passend;
}

/// All that is to be printed, page by page.
std::vector<int> Druckfolge(const QPrinter& drucker, const std::vector<int>& seiten) {
    const int kopien = drucker.supportsMultipleCopies() ? 1 : std::max(1, drucker.copyCount());
    std::vector<int> folge;
    if (drucker.collateCopies()) {
        for (int kopie = 0; kopie < kopien; ++kopie)
            folge.insert(folge.end(), seiten.begin(), seiten.end());
    } else {
        for (const int seite : seiten)
            folge.insert(folge.end(), static_cast<std::size_t>(kopien), seite);
    }
    return folge;
}

}  // namespace

void DruckEinrichten(QPrinter& drucker, const Bericht& bericht) {
    drucker.setPageSize(QPageSize(QPageSize::A4));
    drucker.setPageOrientation(bericht.querformat ? QPageLayout::Landscape : QPageLayout::Portrait);
    drucker.setFullPage(true);
    drucker.setPageMargins(QMarginsF());
    drucker.setDocName(QString::fromStdString(bericht.titel));
    drucker.setCreator("Zinfolio");
}

std::vector<int> GewaehlteSeiten(const QPrinter& drucker, int seiten) {
    std::vector<int> gewaehlt;
    const QPageRanges bereiche = drucker.pageRanges();
    const bool alle = drucker.printRange() != QPrinter::PageRange || bereiche.isEmpty();
    for (int seite = 0; seite < seiten; ++seite)
        if (alle || bereiche.contains(seite + 1)) gewaehlt.push_back(seite);
    if (drucker.pageOrder() == QPrinter::LastPageFirst) std::reverse(gewaehlt.begin(), gewaehlt.end());
    return gewaehlt;
}

bool Drucken(const Seitenmaler& maler, QPrinter& drucker, const Fortschritt& fortschritt) {
    const std::vector<int> folge = Druckfolge(drucker, GewaehlteSeiten(drucker, maler.Seiten()));
    if (folge.empty()) return true;
    const double pixelJeTwip = PixelJeTwip(maler, drucker);
    QPainter stift;
    if (!stift.begin(&drucker)) return false;
    for (std::size_t i = 0; i < folge.size(); ++i) {
        if (fortschritt) (void)fortschritt(i, folge.size());
        if (i > 0 && !drucker.newPage()) return false;
        maler.Malen(stift, folge[i], pixelJeTwip);
    }
    return stift.end() && drucker.printerState() != QPrinter::Error;
}

}  // namespace zinfolio
