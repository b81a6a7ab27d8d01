#include "kern/dateien/dateifehler.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace zinfolio {
namespace {

struct Grund {
    int fehlernummer;
    std::string_view text;
};

/// What files, folders and devices answer. EAGAIN is EWOULDBLOCK, and ENOTSUP is EOPNOTSUPP.
constexpr std::array systemgruende{
    Grund{EPERM, "Keine Berechtigung."},
    Grund{ENOENT, "Datei oder Ordner nicht vorhanden."},
    Grund{EINTR, "Der Vorgang wurde unterbrochen."},
    Grund{EIO, "Fehler bei der Ein- oder Ausgabe."},
    Grund{ENXIO, "Das Gerät ist nicht vorhanden."},
    Grund{E2BIG, "Die Angaben sind zu lang."},
    Grund{EBADF, "Die Datei ist nicht offen."},
    Grund{EAGAIN, "Die Datei ist gerade nicht verfügbar."},
    Grund{ENOMEM, "Der Arbeitsspeicher reicht nicht."},
    Grund{EACCES, "Keine Berechtigung."},
    Grund{EFAULT, "Fehlerhafte Speicheradresse."},
    Grund{EBUSY, "Die Datei oder das Gerät ist belegt."},
    Grund{EEXIST, "Der Name ist schon vergeben."},
    Grund{EXDEV, "Die Datei liegt auf einem anderen Datenträger."},
    Grund{ENODEV, "Das Gerät gibt es nicht."},
    Grund{ENOTDIR, "Ein Teil des Pfades ist kein Ordner."},
    Grund{EISDIR, "Das ist ein Ordner."},
    Grund{EINVAL, "Das System lässt das hier nicht zu."},
    Grund{ENFILE, "Im System sind zu viele Dateien offen."},
    Grund{EMFILE, "Im Programm sind zu viele Dateien offen."},
    Grund{ENOTTY, "Das Gerät kann das nicht."},
    Grund{ETXTBSY, "Die Datei ist ein laufendes Programm."},
    Grund{EFBIG, "Die Datei wird zu groß."},
    Grund{ENOSPC, "Kein Platz auf dem Datenträger."},
    Grund{ESPIPE, "In dieser Datei lässt sich nicht blättern."},
    Grund{EROFS, "Der Datenträger ist schreibgeschützt."},
    Grund{EMLINK, "Die Datei hat zu viele Namen."},
    Grund{EPIPE, "Der Empfänger liest nicht mehr."},
    Grund{EDEADLK, "Die Datei ist gegenseitig gesperrt."},
    Grund{ENAMETOOLONG, "Der Name ist zu lang."},
    Grund{ENOLCK, "Der Datenträger kann keine Dateien sperren."},
    Grund{ENOSYS, "Das System kann das nicht."},
    Grund{ENOTEMPTY, "Der Ordner ist nicht leer."},
    Grund{ELOOP, "Die Verweise führen im Kreis."},
    Grund{ENODATA, "Es sind keine Daten da."},
    Grund{ETIME, "Die Zeit ist abgelaufen."},
    Grund{ENOLINK, "Die Verbindung zum Datenträger ist getrennt."},
    Grund{ECOMM, "Die Verbindung zum Datenträger ist gestört."},
    Grund{EPROTO, "Die Verbindung zum Datenträger ist gestört."},
    Grund{EBADMSG, "Der Datenträger ist beschädigt."},
    Grund{EOVERFLOW, "Die Datei ist zu groß."},
    Grund{EILSEQ, "Der Name enthält unzulässige Zeichen."},
    Grund{EUSERS, "Zu viele Benutzer."},
    Grund{EOPNOTSUPP, "Der Datenträger kann das nicht."},
    Grund{ENETDOWN, "Das Netz ist ausgefallen."},
    Grund{ENETUNREACH, "Das Netz ist nicht erreichbar."},
    Grund{ENETRESET, "Die Verbindung ist abgebrochen."},
    Grund{ECONNABORTED, "Die Verbindung ist abgebrochen."},
    Grund{ECONNRESET, "Die Verbindung ist abgebrochen."},
    Grund{ENOBUFS, "Der Arbeitsspeicher reicht nicht."},
    Grund{ENOTCONN, "Es besteht keine Verbindung zum Datenträger."},
    Grund{ESHUTDOWN, "Die Verbindung ist beendet."},
    Grund{ETIMEDOUT, "Der Datenträger antwortet nicht."},
    Grund{ECONNREFUSED, "Die Verbindung wurde abgelehnt."},
    Grund{EHOSTDOWN, "Der andere Rechner ist ausgefallen."},
    Grund{EHOSTUNREACH, "Der andere Rechner ist nicht erreichbar."},
    Grund{EALREADY, "Der Vorgang läuft schon."},
    Grund{EINPROGRESS, "Der Vorgang läuft noch."},
    Grund{ESTALE, "Die Datei gibt es auf dem anderen Rechner nicht mehr."},
    Grund{EUCLEAN, "Das Dateisystem ist beschädigt."},
    Grund{EREMOTEIO, "Fehler bei der Ein- oder Ausgabe auf dem anderen Rechner."},
    Grund{EDQUOT, "Der zugeteilte Speicherplatz ist erschöpft."},
    Grund{ENOMEDIUM, "Es liegt kein Datenträger ein."},
    Grund{EMEDIUMTYPE, "Der Datenträger ist von der falschen Art."},
    Grund{ECANCELED, "Der Vorgang wurde abgebrochen."},
    Grund{ENOKEY, "Der Schlüssel des Datenträgers fehlt."},
    Grund{EKEYEXPIRED, "Der Schlüssel des Datenträgers ist abgelaufen."},
    Grund{EKEYREVOKED, "Der Schlüssel des Datenträgers gilt nicht mehr."},
    Grund{EKEYREJECTED, "Der Schlüssel des Datenträgers wurde abgelehnt."},
    Grund{EHWPOISON, "Der Arbeitsspeicher ist beschädigt."},
};

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
    const auto grund = std::ranges::find(systemgruende, fehlernummer, &Grund::fehlernummer);
    if (grund != systemgruende.end()) return std::string(grund->text);
    return "Das System meldet den Fehler " + std::to_string(fehlernummer) + ".";
}

Dateifehler Systemfehler(const std::filesystem::path& datei, std::string_view vorgang, int fehlernummer) {
    std::string meldung = "Die Datei " + InAnfuehrung(datei) + " kann nicht ";
    meldung.append(vorgang).append(" werden: ").append(Systemgrund(fehlernummer));
    return Dateifehler(meldung);
}

}  // namespace zinfolio
