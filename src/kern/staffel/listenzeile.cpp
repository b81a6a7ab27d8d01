#include "kern/staffel/listenzeile.h"

#include "kern/dates/zahlformat.h"
#include "kern/grund/windows1252.h"

namespace zinfolio {
namespace {

std::string Linksbuendig(std::string text, std::size_t breite) {
    if (text.size() < breite) text.resize(breite, ' ');
    return text;
}

std::string Satzspalte(float satz) {
    return Linksbuendig(Format(satz, konditionsmuster), 8);
}

std::string Linienspalte(double linie) {
    return Linksbuendig(Format(linie, betragsmuster), 18);
}

std::string Anfang(const Staffelsatz& satz) {
    return "   " + NachUtf8(satz.Satzdatum.Roh());
}

}  // namespace

std::string Zahlungszeile(const Staffelsatz& zahlung) {
    return Anfang(zahlung) + Linksbuendig(Format(zahlung.Zahlbetrag, betragsmuster), 20) + "    " +
           NachUtf8(zahlung.Zahlungstext.Roh());
}

std::string Konditionszeile(const Staffelsatz& kondition) {
    const Konditionen& k = kondition.kondition;
    return Anfang(kondition) + Satzspalte(k.Gutzins1) + " %   " + Satzspalte(k.Gutzins2) + " %  " +
           Linienspalte(k.Guthabenlinie) + "    " + Satzspalte(k.Kreditzins1) + " %    " +
           Satzspalte(k.Kreditzins2) + " %    " + Linienspalte(k.Kreditlinie) + "    ";
}

}  // namespace zinfolio
