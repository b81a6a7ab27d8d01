#include "kern/dateien/dateigruppe.h"

#include <cassert>
#include <cerrno>
#include <chrono>
#include <sys/stat.h>
#include <thread>
#include <utility>

#include "kern/dateien/aufraeumen.h"
#include "kern/dateien/dateischritte.h"
#include "kern/dateien/ganzedatei.h"
#include "kern/dateien/sicherungsjournal.h"

namespace zinfolio {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr int lesversuche = 2000;
constexpr auto lespause = 1ms;

/// A file as it was opened, to be told from another one that takes its place meanwhile.
class Gelesene {
  public:
    explicit Gelesene(fs::path datei)
        : datei_(std::move(datei)), offen_(datei_, O_RDONLY | O_NONBLOCK), fehlernummer_(errno) {
        if (!offen_.Offen()) return;
        struct stat zustand {};
        if (::fstat(offen_.Nummer(), &zustand) != 0) throw Systemfehler(datei_, "gelesen", errno);
        besitzer_ = zustand.st_uid;
        if (S_ISDIR(zustand.st_mode)) throw Systemfehler(datei_, "gelesen", EISDIR);
        if (!S_ISREG(zustand.st_mode)) throw Dateifehler({datei_}, "Das ist keine gewöhnliche Datei.");
        if (RestLesen(offen_.Nummer(), hoechsteDateilaenge, inhalt_)) return;
        if (errno == EFBIG) throw Dateifehler({datei_}, "Die Datei ist zu groß.");
        throw Systemfehler(datei_, "gelesen", errno);
    }

    [[nodiscard]] bool Vorhanden() const { return offen_.Offen(); }
    [[nodiscard]] uid_t Besitzer() const { return besitzer_; }
    [[nodiscard]] std::string& Inhalt() { return inhalt_; }

    /// True where the path means what was read, or still nothing that can be read.
    [[nodiscard]] bool GiltNoch() const {
        struct stat jetzt {};
        struct stat damals {};
        if (!Vorhanden()) return ::stat(datei_.c_str(), &jetzt) != 0 || fehlernummer_ != ENOENT;
        return ::stat(datei_.c_str(), &jetzt) == 0 && ::fstat(offen_.Nummer(), &damals) == 0 &&
               jetzt.st_dev == damals.st_dev && jetzt.st_ino == damals.st_ino;
    }

    /// Throws where the file could not be opened, unless it is missing and may be.
    void Pruefen(bool darfFehlen) const {
        if (Vorhanden() || (darfFehlen && fehlernummer_ == ENOENT)) return;
        throw Systemfehler(datei_, "gelesen", fehlernummer_);
    }

  private:
    fs::path datei_;
    Deskriptor offen_;
    int fehlernummer_;
    uid_t besitzer_ = 0;
    std::string inhalt_;
};

/// The content that counts while the journal does: the old one of a file that the save has replaced. Nothing
/// where there was none.
std::optional<std::string> AltesDahinter(const Journal& journal, Gelesene& jetzige, std::size_t stelle) {
    if (!journal.HatErsetzt(stelle, jetzige.Besitzer(), jetzige.Inhalt())) return std::move(jetzige.Inhalt());
    if (!journal.eintraege[stelle].vorher) return std::nullopt;
    Gelesene alte(journal.Altpfad(stelle));
    return std::move(alte.Vorhanden() ? alte.Inhalt() : jetzige.Inhalt());
}

/// Sets back what a dead save left, where nobody saves and the folder can be written.
void AbschliessenVersuchen(const fs::path& journalpfad, const fs::path& datei) {
    struct stat zustand {};
    if (::lstat(journalpfad.c_str(), &zustand) != 0) return;
    const fs::path ordner = datei.parent_path();
    const Sperre sperre(ordner.empty() ? fs::path(".") : ordner);
    if (!sperre.Gehalten()) return;
    try {
        if (const auto journal = JournalLesen(journalpfad)) Zuruecksetzen(*journal);
    } catch (const Dateifehler&) {
        // Whoever may not write reads through the journal.
    }
}

/// The old files of a save, kept beside their targets until its end.
class Altbestand {
  public:
    Altbestand(std::string kennung, Sicherung sicherung)
        : kennung_(std::move(kennung)), sicherung_(sicherung) {}
    Altbestand(const Altbestand&) = delete;
    Altbestand& operator=(const Altbestand&) = delete;
    ~Altbestand() {
        for (const fs::path& datei : gehalten_)
            ::unlink(datei.c_str());
    }

    /// Keeps the file at `ziel` under the name that entry `stelle` of the journal gives it; false where there
    /// is none.
    bool Halten(const fs::path& ziel, std::size_t stelle) {
        struct stat zustand {};
        if (::stat(ziel.c_str(), &zustand) != 0) {
            if (errno == ENOENT) return false;
            throw Schreibfehler(ziel, errno);
        }
        const fs::path name = ziel.parent_path() / (kennung_ + '-' + std::to_string(stelle) + ".alt");
        gehalten_.push_back(name);
        // A link to another user's file could not be removed again where only owners may remove.
        const bool eigene = zustand.st_uid == ::geteuid();
        if (!eigene || !Verknuepfen(ziel, name)) Kopieren(ziel, name, zustand.st_mode & 0777U);
        return true;
    }

    /// The journal needs the files beyond this save.
    void Behalten() { gehalten_.clear(); }

  private:
    /// False where the file system has no links.
    static bool Verknuepfen(const fs::path& ziel, const fs::path& name) {
        if (::link(ziel.c_str(), name.c_str()) == 0) return true;
        if (errno == EPERM || errno == ENOTSUP || errno == ENOSYS || errno == EMLINK) return false;
        throw Schreibfehler(ziel, errno);
    }

    void Kopieren(const fs::path& ziel, const fs::path& name, mode_t rechte) const {
        const std::string inhalt = GanzeDateiLesen(ziel, hoechsteDateilaenge);
        Deskriptor datei(name, O_WRONLY | O_CREAT | O_EXCL, 0600);
        if (!datei.Offen()) throw Schreibfehler(ziel, errno);
        NeueDateiFuellen(std::move(datei), AlsBytes(inhalt), rechte, sicherung_ == Sicherung::Dauerhaft,
                         ziel);
    }

    std::string kennung_;
    Sicherung sicherung_;
    std::vector<fs::path> gehalten_;
};

/// After a fault: all is old again, or stays so by the journal.
void Zuruecknehmen(const fs::path& journalpfad, Altbestand& alte) noexcept {
    try {
        if (const auto journal = JournalLesen(journalpfad)) Zuruecksetzen(*journal);
    } catch (const std::exception&) {
        alte.Behalten();
    }
}

}  // namespace

Dateigruppe::Dateigruppe(std::vector<Teil> teile) : teile_(std::move(teile)) {
    assert(!teile_.empty());
}

fs::path Dateigruppe::Journalort() const {
    // Projects that share their side files share the journal, too.
    return Journalpfad(teile_[teile_.size() > 1 ? 1 : 0].datei);
}

std::vector<std::string> Dateigruppe::Lesen() const {
    AbschliessenVersuchen(Journalort(), Datei(0));
    for (int versuch = 0; versuch < lesversuche; ++versuch) {
        if (auto inhalte = LesenVersuchen()) return std::move(*inhalte);
        std::this_thread::sleep_for(lespause);
    }
    throw Dateifehler({Datei(0)}, "Die Datei wird gerade gespeichert.");
}

// A save lies between the appearance and the removal of its journal. No journal before and after, and no file
// replaced in between: all files are from one save. The same journal before and after: what it keeps is
// complete.
std::optional<std::vector<std::string>> Dateigruppe::LesenVersuchen() const {
    const auto journal = JournalLesen(Journalort());
    std::vector<Gelesene> dateien;
    dateien.reserve(teile_.size());
    std::vector<std::optional<std::string>> inhalte;
    for (const Teil& teil : teile_) {
        Gelesene& datei = dateien.emplace_back(teil.datei);
        const auto stelle = journal ? journal->Stelle(teil.datei.filename().native()) : std::nullopt;
        const bool ersetzt = stelle && datei.Vorhanden();
        inhalte.push_back(ersetzt ? AltesDahinter(*journal, datei, *stelle) : std::move(datei.Inhalt()));
    }
    const bool gleich = journal ? GiltNoch(*journal) : !JournalLesen(Journalort());
    if (!gleich) return std::nullopt;
    for (const Gelesene& datei : dateien)
        if (!datei.GiltNoch()) return std::nullopt;
    std::vector<std::string> ergebnis;
    for (std::size_t i = 0; i < teile_.size(); ++i) {
        dateien[i].Pruefen(teile_[i].darfFehlen);
        if (!inhalte[i] && !teile_[i].darfFehlen) throw Systemfehler(Datei(i), "gelesen", ENOENT);
        ergebnis.push_back(std::move(inhalte[i]).value_or(std::string()));
    }
    return ergebnis;
}

void Dateigruppe::InhaltePruefen(std::span<const std::string_view> inhalte) const {
    assert(inhalte.size() == teile_.size());
    for (std::size_t i = 0; i < inhalte.size(); ++i)
        if (inhalte[i].size() > hoechsteDateilaenge) throw Schreibfehler(Datei(i), EFBIG);
}

void Dateigruppe::Speichern(std::span<const std::string_view> inhalte, Sicherung sicherung) const {
    InhaltePruefen(inhalte);
    const Sperre sperre = OrdnerHalten(Datei(0));
    ResteBeseitigen(Datei(0).parent_path(), Journalort());
    Ersetzen(inhalte, sicherung);
}

void Dateigruppe::Ersetzen(std::span<const std::string_view> inhalte, Sicherung sicherung) const {
    std::vector<AtomareDatei> neue;
    std::vector<fs::path> ziele;
    neue.reserve(inhalte.size());
    for (std::size_t i = 0; i < inhalte.size(); ++i) {
        neue.emplace_back(Datei(i), AlsBytes(inhalte[i]), sicherung);
        ziele.push_back(neue.back().Ziel());
    }
    const std::string kennung = VorlaeufigeKennung();
    Altbestand alte(kennung, sicherung);
    std::vector<Journaleintrag> eintraege;
    for (std::size_t i = 0; i < inhalte.size(); ++i)
        eintraege.push_back({Datei(i).filename(), Inhaltskennung(inhalte[i]), alte.Halten(ziele[i], i)});
    const bool dauerhaft = sicherung == Sicherung::Dauerhaft;
    try {
        AtomarSchreiben(Journalort(), Journalbytes(kennung, eintraege), sicherung);
        for (std::size_t i = neue.size(); i-- > 0;)
            neue[i].Einsetzen();
        if (dauerhaft) OrdnerSichern(ziele);
        if (::unlink(Journalort().c_str()) != 0) throw Schreibfehler(Datei(0), errno);
    } catch (const Dateifehler&) {
        Zuruecknehmen(Journalort(), alte);
        throw;
    }
    if (dauerhaft) OrdnerSichern(Datei(0));
}

}  // namespace zinfolio
