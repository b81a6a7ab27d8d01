#include "kern/dateien/dateifehler.h"

#include <cerrno>
#include <system_error>

namespace zinfolio {
namespace {

std::string InAnfuehrung(const std::filesystem::path& datei) {
    return '"' + datei.string() + '"';
}

std::string MeldungMitStelle(const Fundstelle& stelle, std::string_view grund) {
    std::string meldung = "Datei " + InAnfuehrung(stelle.datei);
    if (stelle.satznummer > 0) meldung += ", Satz " + std::to_string(stelle.satznummer);
    return meldung.append(": ").append(grund);
}

}  // namespace

Dateifehler::Dateifehler(const Fundstelle& stelle, std::string_view grund)
    : std::runtime_error(MeldungMitStelle(stelle, grund)) {}

std::string Systemgrund(int fehlernummer) {
    switch (fehlernummer) {
        case ENOENT:
            return "Datei oder Ordner nicht vorhanden.";
        case EACCES:
        case EPERM:
            return "Keine Berechtigung.";
        case ENOSPC:
            return "Kein Platz auf dem Datenträger.";
        case EDQUOT:
            return "Der zugeteilte Speicherplatz ist erschöpft.";
        case EFBIG:
            return "Die Datei wird zu groß.";
        case EIO:
            return "Fehler bei der Ein- oder Ausgabe.";
        case EROFS:
            return "Der Datenträger ist schreibgeschützt.";
        case EISDIR:
            return "Das ist ein Ordner.";
        case ENOTDIR:
            return "Ein Teil des Pfades ist kein Ordner.";
        case EEXIST:
            return "Der Name ist schon vergeben.";
        case ENAMETOOLONG:
            return "Der Name ist zu lang.";
        case ELOOP:
            return "Die Verweise führen im Kreis.";
        default:
            return std::generic_category().message(fehlernummer);
    }
}

Dateifehler Systemfehler(const std::filesystem::path& datei, std::string_view vorgang, int fehlernummer) {
    std::string meldung = "Die Datei " + InAnfuehrung(datei) + " kann nicht ";
    meldung.append(vorgang).append(" werden: ").append(Systemgrund(fehlernummer));
    return Dateifehler(meldung);
}

}  // namespace zinfolio
