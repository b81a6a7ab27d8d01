#include "fenster/ausgabe/pdf.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <string_view>

#include "kern/dateien/atomar.h"

namespace zinfolio {
namespace {

bool Gemeldet(const Fortschritt& fortschritt, int erledigt, int von) {
    return !fortschritt || fortschritt(static_cast<std::size_t>(erledigt), static_cast<std::size_t>(von));
}

constexpr const char* verfasser = "Zinfolio";

/// What the document says of itself (XMP, ISO 16684-1); the toolkit's writer has no other place for an
/// author.
QByteArray Dokumentangaben(const QString& titel) {
    return QString(R"(<?xpacket begin="" id="W5M0MpCehiHzreSzNTczkc9d"?>
<x:xmpmeta xmlns:x="adobe:ns:meta/">
 <rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">
  <rdf:Description rdf:about="" xmlns:dc="http://purl.org/dc/elements/1.1/">
   <dc:title><rdf:Alt><rdf:li xml:lang="x-default">%1</rdf:li></rdf:Alt></dc:title>
   <dc:creator><rdf:Seq><rdf:li>%2</rdf:li></rdf:Seq></dc:creator>
  </rdf:Description>
 </rdf:RDF>
</x:xmpmeta>
<?xpacket end="w"?>)")
        .arg(titel.toHtmlEscaped(), verfasser)
        .toUtf8();
}

/// One twip is one unit of the device.
void Einrichten(QPdfWriter& blatt, const Bericht& bericht) {
    blatt.setResolution(twipsJeZoll);
    blatt.setPageLayout(QPageLayout(QPageSize(QPageSize::A4),
                                    bericht.querformat ? QPageLayout::Landscape : QPageLayout::Portrait,
                                    QMarginsF()));
    const QString titel = QString::fromStdString(bericht.titel);
    blatt.setTitle(titel);
    blatt.setCreator("Zinfolio " ZINFOLIO_VERSION);
    blatt.setDocumentXmpMetadata(Dokumentangaben(titel));
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
    return puffer.data();
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
