#include "kern/dates/datumpruefen.h"

#include <algorithm>
#include <cmath>

#include "kern/dates/textteile.h"
#include "kern/dates/zahl.h"
#include "kern/grund/utf8.h"

namespace zinfolio {
namespace {

bool PunktAn(const std::string& text, std::size_t position) {
    return text.size() >= position && text[position - 1] == '.';
}

/// Points into a text typed without any; other lengths stay and fail the calendar test.
std::string OhnePunkteErgaenzt(const std::string& text, int laenge) {
    std::string tagUndMonat = text.substr(0, 2) + "." + (text.size() > 2 ? text.substr(2, 2) : "") + ".";
    if (laenge == 10 && text.size() == 6) return tagUndMonat + "20" + text.substr(4);
    if (laenge == 10 && text.size() == 8) return tagUndMonat + text.substr(4);
    if (laenge != 10 && text.size() == 4) return tagUndMonat;
    return text;
}

/// A year of one to three digits behind tt.mm. gets its missing leading digits of "2000".
std::string JahrErgaenzt(const std::string& text) {
    const std::string ohneRand(Getrimmt(text));
    if (ohneRand.size() < 7 || ohneRand.size() > 9) return text;
    const std::size_t jahresziffern = ohneRand.size() - 6;
    return text.substr(0, 6) + std::string("2000").substr(0, 4 - jahresziffern) + ohneRand.substr(6);
}

/// Completes a text with two points; false where a point is out of its place.
bool ZweiPunkteErgaenzt(std::string& text, int laenge) {
    if (PunktAn(text, 2)) {
        text.insert(0, "0");
    } else if (!PunktAn(text, 3)) {
        return false;
    }
    if (static_cast<int>(text.size()) < laenge) {
        if (PunktAn(text, 5)) {
            text.insert(3, "0");
        } else if (!PunktAn(text, 6)) {
            return false;
        }
    }
    if (laenge == 10) text = JahrErgaenzt(text);
    return true;
}

/// The month together with the first digits of the year, read as one decimal number and rounded to the even
/// neighbour: that refuses December from the year 5100 on (wanted).
bool MonatZuGross(const std::string& text) {
    const std::string_view ausschnitt = text.size() > 3 ? std::string_view(text).substr(3, 5) : "";
    return std::nearbyint(Punktwert(ausschnitt)) > 12;
}

bool IstFehlerhaft(std::string& text, int laenge) {
    const auto punkte = std::count(text.begin(), text.end(), '.');
    bool fehlerhaft = punkte != 0 && punkte != 2;
    if (punkte == 0) text = OhnePunkteErgaenzt(text, laenge);
    if (punkte == 2 && !ZweiPunkteErgaenzt(text, laenge)) return true;
    fehlerhaft |= MonatZuGross(text);
    return fehlerhaft || !Datum::Versuche(laenge == 10 ? text : text + "2000");
}

}  // namespace

bool IstNochKeinDatum(std::string_view feld) {
    return Zeichenzahl(feld) <= 1;
}

bool DatumFehlt(std::string_view feld) {
    return IstNochKeinDatum(feld) || Zahlwert(feld) == 0;
}

Datumspruefung DatumPruefen(std::string_view feld, Datum heute, int laenge) {
    std::string text(feld);
    if (IstNochKeinDatum(feld)) return {text, false, {}};
    if (!IstFehlerhaft(text, laenge)) return {text, false, {}};
    if (laenge == 10) return {heute.Text(), true, meldungUngueltigesDatum};
    return {"", true, meldungUngueltigesDatumOhneJahr};
}

}  // namespace zinfolio
