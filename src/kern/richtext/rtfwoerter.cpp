#include "kern/richtext/rtfwoerter.h"

#include <algorithm>
#include <array>

#include "kern/richtext/rtfwirkung.h"

namespace zinfolio {
namespace {

using namespace rtfwirkung;

constexpr bool gruppenwort = true;

// In the order of their bytes, for the search.
constexpr auto woerter = std::to_array<Steuerwort>({
    {"annotation", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"ansicpg", Ansicodepage},
    {"b", Schalter<&Zeichenformat::fett>},
    {"bin", Binaerdaten},
    {"blue", Farbanteil<&Farbtabelle::Blau>},
    {"bullet", Zeichenwort<0x2022>},
    {"caps", Setzt<&Zeichenformat::schreibung, Schreibung::versalien>},
    {"cb", Hintergrund},
    {"cell", Zeichenwort<U'\t'>},
    {"cf", Farbwort<&Zeichenformat::farbe>},
    {"colortbl", Gruppe<Rtfziel::farben>, gruppenwort},
    {"datastore", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"deff", Standardschrift},
    {"emdash", Zeichenwort<0x2014>},
    {"endash", Zeichenwort<0x2013>},
    {"f", Schriftwahl},
    {"falt", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"fcharset", Zeichensatz},
    {"fi", Laenge<&Absatzformat::ersteZeile>},
    {"fldinst", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"fonttbl", Gruppe<Rtfziel::schriften>, gruppenwort},
    {"footer", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"footerf", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"footerl", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"footerr", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"footnote", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"fs", Schriftgroesse},
    {"generator", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"green", Farbanteil<&Farbtabelle::Gruen>},
    {"header", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"headerf", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"headerl", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"headerr", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"highlight", Hintergrund},
    {"hyph", KeineTrennung},
    {"i", Schalter<&Zeichenformat::kursiv>},
    {"info", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"keep", Absatzschalter<&Absatzformat::zusammenhalten>},
    {"keepn", Absatzschalter<&Absatzformat::beimNaechstenHalten>},
    {"ldblquote", Zeichenwort<0x201C>},
    {"li", Laenge<&Absatzformat::links>},
    {"line", Zeichenwort<U'\n'>},
    {"listoverridetable", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"listtable", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"lquote", Zeichenwort<0x2018>},
    {"nestcell", Zeichenwort<U'\t'>},
    {"nestrow", VerschachtelteZeileEnde},
    {"nesttableprops", Gruppe<Rtfziel::verschachtelteZeile>, gruppenwort},
    {"nonesttables", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"nonshppict", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"nosupersub", Setzt<&Zeichenformat::lage, Zeichenlage::normal>},
    {"objdata", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"object", Gruppe<Rtfziel::objekt>, gruppenwort},
    {"page", Seitenwechsel},
    {"pagebb", Absatzschalter<&Absatzformat::seitenwechselDavor>},
    {"par", Absatzende},
    {"pard", Standardabsatz},
    {"pict", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"plain", Standardzeichen},
    {"pn", Listenangabe, gruppenwort},
    {"pndec", Listenwort<Listenart::dezimal>},
    {"pnlcltr", Listenwort<Listenart::kleinbuchstaben>},
    {"pnlcrm", Listenwort<Listenart::kleinroemisch>},
    {"pnlvlblt", Listenwort<Listenart::punkte>},
    {"pnlvlbody", Listenwort<Listenart::dezimal>},
    {"pnlvlcont", Listenwort<Listenart::keine>},
    {"pnstart", Listenbeginn},
    {"pntext", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"pntxta", Gruppe<Rtfziel::listennachtext, Rtfziel::listenangabe>, gruppenwort},
    {"pntxtb", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"pnucltr", Listenwort<Listenart::grossbuchstaben>},
    {"pnucrm", Listenwort<Listenart::grossroemisch>},
    {"qc", SetztAbsatz<&Absatzformat::ausrichtung, Ausrichtung::mitte>},
    {"qj", SetztAbsatz<&Absatzformat::ausrichtung, Ausrichtung::blocksatz>},
    {"ql", SetztAbsatz<&Absatzformat::ausrichtung, Ausrichtung::links>},
    {"qr", SetztAbsatz<&Absatzformat::ausrichtung, Ausrichtung::rechts>},
    {"rdblquote", Zeichenwort<0x201D>},
    {"red", Farbanteil<&Farbtabelle::Rot>},
    {"result", Gruppe<Rtfziel::text, Rtfziel::objekt>, gruppenwort},
    {"revtbl", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"ri", Laenge<&Absatzformat::rechts>},
    {"row", Absatzende},
    {"rquote", Zeichenwort<0x2019>},
    {"sa", Laenge<&Absatzformat::danach>},
    {"sb", Laenge<&Absatzformat::davor>},
    {"scaps", Setzt<&Zeichenformat::schreibung, Schreibung::kapitaelchen>},
    {"shppict", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"sl", Laenge<&Absatzformat::zeilenabstand>},
    {"slmult", Absatzschalter<&Absatzformat::vielfach>},
    {"strike", Schalter<&Zeichenformat::durchgestrichen>},
    {"stylesheet", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"sub", Setzt<&Zeichenformat::lage, Zeichenlage::tief>},
    {"super", Setzt<&Zeichenformat::lage, Zeichenlage::hoch>},
    {"tab", Zeichenwort<U'\t'>},
    {"themedata", Gruppe<Rtfziel::verwerfen>, gruppenwort},
    {"tqc", Tabulatorart<Tabart::mitte>},
    {"tqdec", Tabulatorart<Tabart::dezimal>},
    {"tqr", Tabulatorart<Tabart::rechts>},
    {"tx", Tabulatorstelle},
    {"u", Unicode},
    {"uc", Ersatzlaenge},
    {"ul", Setzt<&Zeichenformat::unterstreichung, Unterstreichung::einfach>},
    {"uld", Setzt<&Zeichenformat::unterstreichung, Unterstreichung::gepunktet>},
    {"uldb", Setzt<&Zeichenformat::unterstreichung, Unterstreichung::doppelt>},
    {"ulnone", Setzt<&Zeichenformat::unterstreichung, Unterstreichung::keine>},
    {"ulw", Setzt<&Zeichenformat::unterstreichung, Unterstreichung::wortweise>},
    {"v", Schalter<&Zeichenformat::verborgen>},
    {"xmlnstbl", Gruppe<Rtfziel::verwerfen>, gruppenwort},
});

constexpr bool Davor(const Steuerwort& a, const Steuerwort& b) {
    return a.wort < b.wort;
}

static_assert(std::is_sorted(woerter.begin(), woerter.end(), Davor));

}  // namespace

const Steuerwort* SteuerwortSuchen(std::string_view wort) {
    const auto davor = [](const Steuerwort& eintrag, std::string_view gesucht) {
        return eintrag.wort < gesucht;
    };
    const auto* const fund = std::lower_bound(woerter.begin(), woerter.end(), wort, davor);
    return fund != woerter.end() && fund->wort == wort ? fund : nullptr;
}

}  // namespace zinfolio
