#include "fenster/ausgabe/schreibtisch.h"

#include <QProcess>
#include <QUrl>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>
#include <string_view>

#include "fenster/ausgabe/schreibtischbefehl.h"

namespace zinfolio {
namespace {

using std::filesystem::path;

constexpr std::array rtfTypen{"application/rtf", "text/rtf"};

std::vector<std::string> Zerlegt(std::string_view text, char trenner) {
    std::vector<std::string> teile;
    std::istringstream strom{std::string(text)};
    for (std::string teil; std::getline(strom, teil, trenner);) {
        if (!teil.empty()) teile.push_back(teil);
    }
    return teile;
}

/// The keys of one group of a desktop file, none where the file is missing.
std::map<std::string, std::string> Gruppe(const path& datei, std::string_view name) {
    std::map<std::string, std::string> werte;
    const std::string kopf = std::string("[").append(name).append("]");
    std::ifstream strom(datei);
    bool drin = false;
    for (std::string zeile; std::getline(strom, zeile);) {
        if (zeile.starts_with('[')) drin = zeile == kopf;
        const auto gleich = zeile.find('=');
        if (drin && gleich != std::string::npos)
            werte.emplace(zeile.substr(0, gleich), zeile.substr(gleich + 1));
    }
    return werte;
}

bool Ausfuehrbar(const path& datei) {
    using std::filesystem::perms;
    std::error_code egal;
    const auto status = std::filesystem::status(datei, egal);
    const auto rechte = perms::owner_exec | perms::group_exec | perms::others_exec;
    return is_regular_file(status) && (status.permissions() & rechte) != perms::none;
}

/// A program by its name in $PATH, or by its whole path.
std::optional<path> Programm(const Schreibtischangaben& angaben, const path& name) {
    if (name.is_absolute()) return Ausfuehrbar(name) ? std::optional(name) : std::nullopt;
    for (const path& ordner : angaben.programmordner) {
        if (Ausfuehrbar(ordner / name)) return ordner / name;
    }
    return std::nullopt;
}

bool Enthaelt(const std::string& liste, std::string_view eintrag) {
    const auto eintraege = Zerlegt(liste, ';');
    return std::ranges::find(eintraege, eintrag) != eintraege.end();
}

std::optional<Textverarbeitung> AusEintrag(const Schreibtischangaben& angaben, const path& datei) {
    auto eintrag = Gruppe(datei, "Desktop Entry");
    const auto rtf = [&](const char* typ) { return Enthaelt(eintrag["MimeType"], typ); };
    if (!Enthaelt(eintrag["Categories"], "WordProcessor") || std::ranges::none_of(rtfTypen, rtf) ||
        eintrag["Hidden"] == "true" || eintrag["Terminal"] == "true")
        return std::nullopt;
    auto argumente = BefehlZerlegen(eintrag["Exec"]);
    if (argumente.empty()) return std::nullopt;
    const auto programm = Programm(angaben, argumente.front());
    if (!programm) return std::nullopt;
    argumente.erase(argumente.begin());
    return Textverarbeitung{*programm, argumente};
}

/// The entry with that name, such as "writer.desktop", in the first folder that has it.
std::optional<path> Eintrag(const Schreibtischangaben& angaben, const std::string& name) {
    std::error_code egal;
    for (const path& ordner : angaben.datenordner) {
        if (exists(ordner / "applications" / name, egal)) return ordner / "applications" / name;
    }
    return std::nullopt;
}

/// The names of the entries that the user, or the desktop, chose for rich text.
std::vector<std::string> Gewaehlte(const Schreibtischangaben& angaben) {
    std::vector<path> listen;
    for (const path& ordner : angaben.einstellungsordner)
        listen.push_back(ordner / "mimeapps.list");
    for (const path& ordner : angaben.datenordner)
        listen.push_back(ordner / "applications" / "mimeapps.list");
    std::vector<std::string> namen;
    for (const path& liste : listen) {
        auto vorgaben = Gruppe(liste, "Default Applications");
        for (const char* typ : rtfTypen) {
            const auto weitere = Zerlegt(vorgaben[typ], ';');
            namen.insert(namen.end(), weitere.begin(), weitere.end());
        }
    }
    return namen;
}

/// The names of all entries, those of a folder in the order of the alphabet.
std::vector<std::string> Installierte(const Schreibtischangaben& angaben) {
    std::vector<std::string> namen;
    for (const path& ordner : angaben.datenordner) {
        std::error_code fehler;
        std::vector<std::string> hier;
        for (const auto& datei : std::filesystem::directory_iterator(ordner / "applications", fehler))
            if (datei.path().extension() == ".desktop") hier.push_back(datei.path().filename().string());
        std::ranges::sort(hier);
        namen.insert(namen.end(), hier.begin(), hier.end());
    }
    return namen;
}

std::optional<Textverarbeitung> InProgrammordnern(const Schreibtischangaben& angaben) {
    const std::array<Textverarbeitung, 3> bekannte{
        {{"libreoffice", {"--writer", "%f"}}, {"soffice", {"--writer", "%f"}}, {"abiword", {"%f"}}}};
    for (const Textverarbeitung& bekannt : bekannte) {
        if (const auto programm = Programm(angaben, bekannt.programm))
            return Textverarbeitung{*programm, bekannt.argumente};
    }
    return std::nullopt;
}

std::string Umgebung(const char* name, const std::string& vorgabe) {
    const char* wert = std::getenv(name);
    return wert && *wert ? wert : vorgabe;
}

std::vector<path> Ordner(const std::string& liste) {
    const auto teile = Zerlegt(liste, ':');
    return {teile.begin(), teile.end()};
}

}  // namespace

Schreibtischangaben Schreibtisch() {
    const std::string heim = Umgebung("HOME", "/");
    return {
        .programmordner = Ordner(Umgebung("PATH", "/usr/local/bin:/usr/bin:/bin")),
        .datenordner = Ordner(Umgebung("XDG_DATA_HOME", heim + "/.local/share") + ":" +
                              Umgebung("XDG_DATA_DIRS", "/usr/local/share:/usr/share")),
        .einstellungsordner = Ordner(Umgebung("XDG_CONFIG_HOME", heim + "/.config") + ":" +
                                     Umgebung("XDG_CONFIG_DIRS", "/etc/xdg")),
    };
}

std::optional<Textverarbeitung> TextverarbeitungFinden(const Schreibtischangaben& angaben) {
    std::vector<std::string> namen = Gewaehlte(angaben);
    const auto installierte = Installierte(angaben);
    namen.insert(namen.end(), installierte.begin(), installierte.end());
    for (const std::string& name : namen) {
        const auto eintrag = Eintrag(angaben, name);
        if (!eintrag) continue;
        if (auto gefunden = AusEintrag(angaben, *eintrag)) return gefunden;
    }
    return InProgrammordnern(angaben);
}

bool TextverarbeitungStarten(const Textverarbeitung& textverarbeitung, const path& datei) {
    const QString name = QString::fromStdString(datei.string());
    QStringList argumente;
    for (const std::string& argument : textverarbeitung.argumente) {
        if (argument == "%f")
            argumente << name;
        else if (argument == "%u")
            argumente << QUrl::fromLocalFile(name).toString(QUrl::FullyEncoded);
        else
            argumente << QString::fromStdString(argument);
    }
    return QProcess::startDetached(QString::fromStdString(textverarbeitung.programm.string()), argumente);
}

}  // namespace zinfolio
