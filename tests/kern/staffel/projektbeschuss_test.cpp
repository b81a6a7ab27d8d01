// The save of a project, killed and failed at every single system call: opened afterwards it is wholly old or
// wholly new.

#include <array>
#include <cerrno>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <vector>

#include "kern/dateien/beschuss.h"
#include "kern/dateien/dateifehler.h"
#include "kern/dateien/dateigruppe.h"
#include "kern/dateien/imspeicher.h"
#include "kern/dateien/ohnevorrechte.h"
#include "kern/dateien/testordner.h"
#include "kern/staffel/beispielkonto.h"
#include "kern/staffel/kontodateien.h"
#include "kern/staffel/kontoprojekt.h"

namespace zinfolio {
namespace projektbeschuss_test {

namespace fs = std::filesystem;

constexpr int getoetet = 0;
constexpr std::array fehlerarten{ENOSPC, EIO, EDQUOT, EROFS, EACCES};

/// What the folder of the project holds before the save. In the last two a fault may leave more behind for
/// the next save.
enum class Vorher { altes, nichts, resteEinesGetoeteten, klebrigMitFremder };

/// Calls that are repeated when a signal interrupts them.
bool Unterbrechbar(const Systemruf& ruf) {
    switch (ruf.nummer) {
        case SYS_read:
        case SYS_write:
        case SYS_fsync:
        case SYS_flock:
            return true;
        case SYS_openat:
            return !ruf.ordner;
        default:
            return false;
    }
}

class ProjektbeschussTest : public testing::Test {
  protected:
    const ImSpeicher imSpeicher;
    Testordner arbeit;
    Testordner ablage;
    const fs::path projekt = ablage.Pfad() / "Übung v1.2.ZiS";
    std::string alt;
    std::string neu;
    std::vector<std::pair<std::string, std::string>> altesProjekt;
    bool niemand = false;

    void SetUp() override {
        if (!BeschussMoeglich()) GTEST_SKIP() << "system calls cannot be watched here";
        ASSERT_EQ(::chmod(arbeit.Pfad().c_str(), 0755), 0);
        ASSERT_EQ(::chmod(ablage.Pfad().c_str(), 0755), 0);
        ArbeitAblegen(20, "31.12.2007");
        KontoprojektSpeichern(arbeit.Pfad(), projekt, "alte Notizen");
        alt = Inhalt();
        for (const std::string& name : ablage.Namen())
            altesProjekt.emplace_back(name, ablage.Inhalt(name));
        ArbeitAblegen(70, "30.06.2008");
        KontoprojektSpeichern(arbeit.Pfad(), projekt, NeueNotizen());
        neu = Inhalt();
        ASSERT_TRUE(alt != neu);
    }

    void ArbeitAblegen(int zahlungen, const std::string& datum) const {
        const Kontodateien dateien(arbeit.Pfad());
        dateien.Zahlungen().Schreiben(
            std::vector(static_cast<std::size_t>(zahlungen), Zahlung("01.01.2007", zahlungen)));
        dateien.Konditionen().Schreiben(std::vector(static_cast<std::size_t>(zahlungen / 2),
                                                    Kondition("01.01.2007", beispielkonditionen)));
        KontoeinstellungenSchreiben(arbeit.Pfad(), {Zinsverrechnungsart::monatsende, datum, {}});
    }

    static std::string NeueNotizen() { return std::string(9000, 'n'); }

    /// All that the project holds.
    [[nodiscard]] std::string Inhalt() const {
        const Kontoprojekt gelesen = KontoprojektLesen(projekt);
        std::string inhalt = gelesen.notizen;
        for (const std::string& beidatei : gelesen.beidateien)
            inhalt += "|" + beidatei;
        return inhalt;
    }

    /// What an opened project shows: "alt", "neu", a mixture, or the message where it cannot be opened.
    [[nodiscard]] std::string Bild() const {
        try {
            const std::string inhalt = Inhalt();
            return inhalt == alt ? "alt" : inhalt == neu ? "neu" : "ein Gemisch";
        } catch (const Dateifehler& fehler) {
            return fehler.what();
        }
    }

    [[nodiscard]] std::vector<std::string> Reste() const {
        std::vector<std::string> reste;
        for (const std::string& name : ablage.Namen())
            if (name.starts_with(".zinfolio-")) reste.push_back(name);
        return reste;
    }

    void Herrichten(Vorher vorher) {
        for (const std::string& name : ablage.Namen())
            fs::remove(ablage.Pfad() / name);
        if (vorher == Vorher::nichts) return;
        for (const auto& [name, inhalt] : altesProjekt)
            ablage.Ablegen(name, inhalt);
        if (vorher == Vorher::resteEinesGetoeteten)
            (void)Beschiessen(Arbeit(), Schuss{mitteDerNamen_, getoetet});
        if (vorher == Vorher::klebrigMitFremder) FremdeAblegen();
    }

    /// The payments belong to another user, all else to the one that saves.
    void FremdeAblegen() const {
        constexpr uid_t nutzer = 65534;
        constexpr uid_t anderer = 1;
        for (const auto& [name, inhalt] : altesProjekt) {
            const fs::path datei = ablage.Pfad() / name;
            ASSERT_EQ(::chown(datei.c_str(), name.starts_with("Zinsstaffel1") ? anderer : nutzer, 0), 0);
            ASSERT_EQ(::chmod(datei.c_str(), 0666), 0);
        }
    }

    [[nodiscard]] std::function<int()> Arbeit() const {
        return [this] {
            if (niemand && ::seteuid(65534) != 0) return 3;
            try {
                KontoprojektSpeichern(arbeit.Pfad(), projekt, NeueNotizen());
                return 0;
            } catch (const Dateifehler&) {
                return 1;
            }
        };
    }

    /// Kinds of faults for a call: every call is killed, and fails by errors in turn.
    [[nodiscard]] static std::vector<int> Arten(const Systemruf& ruf, std::size_t k) {
        std::vector<int> arten{getoetet, fehlerarten.at(k % fehlerarten.size())};
        if (Unterbrechbar(ruf)) arten.push_back(EINTR);
        return arten;
    }

    void Durchgehen(Vorher vorher) {
        Herrichten(vorher);
        const auto ohne = Beschiessen(Arbeit());
        const bool verboten = vorher == Vorher::klebrigMitFremder;
        EXPECT_EQ(ohne.status, verboten ? 1 : 0);
        EXPECT_EQ(Bild(), verboten ? "alt" : "neu");
        ASSERT_GT(ohne.rufe.size(), 50U);
        for (std::size_t k = 0; k < ohne.rufe.size(); ++k) {
            for (const int art : Arten(ohne.rufe[k], k)) {
                SCOPED_TRACE(Rufname(ohne.rufe[k]) + ", call " + std::to_string(k) + ", fault " +
                             std::to_string(art));
                Herrichten(vorher);
                const auto ergebnis = Beschiessen(Arbeit(), Schuss{k, art});
                ASSERT_TRUE(ergebnis.getroffen);
                StatusPruefen(ergebnis, ohne.rufe[k], art, verboten, vorher >= Vorher::resteEinesGetoeteten);
                StandPruefen(vorher, ergebnis);
                if (HasFailure()) return;
            }
        }
    }

    void StatusPruefen(const Beschussergebnis& ergebnis, const Systemruf& ruf, int art, bool verboten,
                       bool restlich) {
        EXPECT_EQ(ergebnis.getoetet, art == getoetet);
        if (ergebnis.getoetet) return;
        // A closed folder and a temporary file that stays behind harm nobody; all else must be told.
        const bool gleichgueltig = ruf.nummer == SYS_close || ruf.nummer == SYS_unlink;
        const bool gelungen = ergebnis.status == 0;
        if (art == EINTR) {
            EXPECT_EQ(gelungen, !verboten);
        } else {
            EXPECT_TRUE(!gelungen || gleichgueltig);
        }
        EXPECT_TRUE(!gelungen || Bild() == "neu");
        EXPECT_TRUE(Reste().empty() || restlich || ruf.nummer == SYS_unlink);
    }

    void StandPruefen(Vorher vorher, const Beschussergebnis& ergebnis) {
        if (::geteuid() == 0 && ergebnis.getoetet) {
            const OhneVorrechte leser;
            GanzOderGarNicht(vorher);
        }
        GanzOderGarNicht(vorher);
        OrdnerAufraeumen(ablage.Pfad());
        GanzOderGarNicht(vorher);
        EXPECT_EQ(Reste(), std::vector<std::string>());
    }

    void GanzOderGarNicht(Vorher vorher) const {
        const std::string bild = Bild();
        if (bild == "neu") return;
        if (vorher == Vorher::nichts) {
            EXPECT_EQ(bild, "Die Datei \"" + projekt.string() +
                                "\" kann nicht gelesen werden: Datei oder Ordner nicht vorhanden.");
        } else {
            EXPECT_EQ(bild, "alt");
        }
    }

    /// The call between two of the renames of a save over the old project.
    void MitteDerNamenSuchen() {
        Herrichten(Vorher::altes);
        const auto ergebnis = Beschiessen(Arbeit());
        int umbenannt = 0;
        for (std::size_t k = 0; k < ergebnis.rufe.size(); ++k)
            if (ergebnis.rufe[k].nummer == SYS_rename && ++umbenannt == 4) mitteDerNamen_ = k;
        // The journal's and those of four files.
        ASSERT_EQ(umbenannt, 5);
    }

  private:
    std::size_t mitteDerNamen_ = 0;
};

TEST_F(ProjektbeschussTest, UeberEinAltesProjekt) {
    Durchgehen(Vorher::altes);
}

TEST_F(ProjektbeschussTest, UnterNeuemNamenInEinenLeerenOrdner) {
    Durchgehen(Vorher::nichts);
}

TEST_F(ProjektbeschussTest, UeberDieResteEinesGetoetetenSpeicherns) {
    MitteDerNamenSuchen();
    Durchgehen(Vorher::resteEinesGetoeteten);
}

TEST_F(ProjektbeschussTest, MitEinerFremdenBeidateiImKlebrigenOrdner) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can make files of others";
    ASSERT_EQ(::chmod(ablage.Pfad().c_str(), 01777), 0);
    niemand = true;
    Durchgehen(Vorher::klebrigMitFremder);
}

}  // namespace projektbeschuss_test
}  // namespace zinfolio
