#include "fenster/ausgabe/pdf.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <string_view>

#include "fenster/ausgabe/pdfangaben.h"
#include "kern/dateien/atomar.h"

namespace zinfolio {
namespace {

bool Gemeldet(const Fortschritt& fortschritt, int erledigt, int von) {
    return !fortschritt || fortschritt(static_cast<std::size_t>(erledigt), static_cast<std::size_t>(von));
}

/// One twip is one unit of the device.
void Einrichten(QPdfWriter& blatt, const Bericht& bericht) {
    blatt.setResolution(twipsJeZoll);
    blatt.setPageLayout(QPageLayout(QPageSize(QPageSize::A4),
                                    bericht.querformat ? QPageLayout::Landscape : QPageLayout::Portrait,
                                    QMarginsF()));
    blatt.setCreator("Zinfolio " ZINFOLIO_VERSION);
}

bool SeitenMalen(const Seitenmaler& maler, QPdfWriter& blatt, const Fortschritt& fortschritt) {
    const int seiten = maler.Seiten();
    if (!Gemeldet(fortschritt, 0, seiten)) return false;
    QPainter stift(&blatt);
    for (int seite = 0; seite < seiten; ++seite) {
        if (seite > 0) blatt.newPage();
        maler.Malen(stift, seite, 1);
        if (!Gemeldet(fortschritt, seite + 1, seiten)) return false;
    }
    return true;
}

}  // namespace

std::optional<QByteArray> PdfBilden(const Seitenmaler& maler, const Fortschritt& fortschritt) {
    QBuffer puffer;
    puffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter blatt(&puffer);
        Einrichten(blatt, maler.Inhalt());
        if (!SeitenMalen(maler, blatt, fortschritt)) return std::nullopt;
    }
    return MitDokumentangaben(
        puffer.data(), {.titel = QString::fromStdString(maler.Inhalt().titel), .verfasser = "Zinfolio"});
}

bool PdfSchreiben(const Seitenmaler& maler, const std::filesystem::path& datei,
                  const Fortschritt& fortschritt) {
    const std::optional<QByteArray> pdf = PdfBilden(maler, fortschritt);
    if (!pdf) return false;
    AtomarSchreiben(datei, std::string_view(pdf->constData(), static_cast<std::size_t>(pdf->size())),
                    Sicherung::Dauerhaft);
    return true;
}

}  // namespace zinfolio
