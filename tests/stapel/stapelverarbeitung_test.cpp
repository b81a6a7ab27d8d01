#include "stapel/befehle/stapelverarbeitung.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstring>
#include <gtest/gtest.h>
#include <mutex>
#include <random>
#include <stdexcept>
#include <thread>

namespace zinfolio {
namespace stapelverarbeitung_test {

/// A text that comes in pieces of random size.
Quelle Text(std::string text, unsigned saat = 1) {
    return [text = std::move(text), zufall = std::mt19937(saat), stelle = std::size_t{0}](
               char* ziel, std::size_t platz) mutable {
        const std::size_t stueck = std::uniform_int_distribution<std::size_t>(1, platz)(zufall);
        const std::size_t anzahl = std::min(stueck, text.size() - stelle);
        std::memcpy(ziel, text.data() + stelle, anzahl);
        stelle += anzahl;
        return anzahl;
    };
}

struct Lauf {
    std::string ausgabe;
    bool alle = false;
};

Lauf Rechne(const std::string& auftraege, unsigned kerne) {
    Lauf lauf;
    lauf.alle = StapelRechnen(
        Text(auftraege, kerne), [&](std::string_view text) { lauf.ausgabe += text; }, kerne);
    return lauf;
}

std::string Tage(int id) {
    return R"({"id":)" + std::to_string(id) +
           R"(,"rechnung":"tage","Von":"01.01.2007","Bis":"31.03.2007","Verzinsungsmethode":0})";
}

std::string Tageergebnis(int id) {
    return R"({"id":)" + std::to_string(id) + R"(,"ok":true,"Zinstage":89})" + "\n";
}

TEST(Stapel, EinErgebnisJeZeile) {
    const Lauf lauf = Rechne(Tage(1) + "\n" + Tage(2) + "\n", 1);
    EXPECT_EQ(lauf.ausgabe, Tageergebnis(1) + Tageergebnis(2));
    EXPECT_TRUE(lauf.alle);
}

TEST(Stapel, LeereZeilenZaehlenNichtUndDieLetzteBrauchtKeinEnde) {
    for (const unsigned kerne : {1U, 3U})
        EXPECT_EQ(Rechne("\n \t\r\n" + Tage(1) + "\r\n\n" + Tage(2), kerne).ausgabe,
                  Tageergebnis(1) + Tageergebnis(2));
}

TEST(Stapel, OhneAuftraegeIstAllesGerechnet) {
    for (const unsigned kerne : {1U, 4U}) {
        EXPECT_EQ(Rechne("", kerne).ausgabe, "");
        EXPECT_TRUE(Rechne("\n\n", kerne).alle);
    }
}

TEST(Stapel, EinBytefolgezeichenVornStoertNicht) {
    EXPECT_EQ(Rechne("\xEF\xBB\xBF" + Tage(1) + "\n", 1).ausgabe, Tageergebnis(1));
}

TEST(Stapel, EinFehlerHaeltDieAnderenNichtAuf) {
    for (const unsigned kerne : {1U, 4U}) {
        const Lauf lauf = Rechne(Tage(1) + "\nUnsinn\n" + Tage(2) + "\n", kerne);
        EXPECT_EQ(lauf.ausgabe,
                  Tageergebnis(1) +
                      R"({"id":null,"ok":false,"Meldung":"Der Auftrag ist kein JSON-Objekt.","Feld":null,)"
                      R"("Register":null})" +
                      "\n" + Tageergebnis(2));
        EXPECT_FALSE(lauf.alle);
    }
}

TEST(Stapel, UebermaessigeZeileIstEinFehler) {
    EXPECT_EQ(
        Rechne(Tage(1) + "\n" + std::string(hoechsteZeilenlaenge + 1, ' ') + "x\n" + Tage(2) + "\n", 1)
            .ausgabe,
        Tageergebnis(1) +
            R"({"id":null,"ok":false,"Meldung":"Die Zeile ist länger als 32 MB.","Feld":null,"Register":null})" +
            "\n" + Tageergebnis(2));
}

/// Jobs of all sizes, sound and not, some with results of hundreds of kilobytes.
std::string Gemisch() {
    std::mt19937 zufall(42);
    std::string auftraege;
    for (int id = 0; id < 20'000; ++id) {
        switch (zufall() % 8) {
            case 0:
                auftraege += R"({"id":)" + std::to_string(id) + R"(,"rechnung":"tage","Von":"31.02.2007"})";
                break;
            case 1:
                auftraege += R"({"id":)" + std::to_string(id) +
                             R"(,"rechnung":"zinstermine","Erstdatum":"01.01.2000","Zinsverrechnungsart":0,)"
                             R"("Kontodatum":"31.12.)" +
                             std::to_string(2000 + zufall() % (id % 1000 == 0 ? 2000 : 9)) + "\"}";
                break;
            case 2:
                auftraege += std::string(zufall() % 50, ' ') + (zufall() % 2 == 0 ? "" : "}{");
                break;
            default:
                auftraege += Tage(id);
        }
        auftraege += '\n';
    }
    return auftraege;
}

TEST(Stapel, DieselbenBytesFuerJedeZahlVonKernen) {
    const std::string auftraege = Gemisch();
    const Lauf einer = Rechne(auftraege, 1);
    EXPECT_GT(einer.ausgabe.size(), std::size_t{1} << 20);
    for (const unsigned kerne : {2U, 3U, 16U}) {
        const Lauf viele = Rechne(auftraege, kerne);
        EXPECT_TRUE(viele.ausgabe == einer.ausgabe) << kerne;
        EXPECT_FALSE(viele.alle);
    }
}

TEST(Stapel, ErgebnisseKommenAuchWennDieEingabeStockt) {
    for (const unsigned kerne : {1U, 4U}) {
        std::mutex schloss;
        std::condition_variable bewegung;
        std::string ausgabe;
        int geliefert = 0;
        const auto quelle = [&](char* ziel, std::size_t) -> std::size_t {
            std::unique_lock sperre(schloss);
            // Nothing more comes before the result of the line before is there.
            const bool da = bewegung.wait_for(sperre, std::chrono::seconds(20), [&] {
                return std::count(ausgabe.begin(), ausgabe.end(), '\n') == geliefert;
            });
            EXPECT_TRUE(da);
            if (!da || geliefert == 3) return 0;
            const std::string zeile = Tage(++geliefert) + "\n";
            std::memcpy(ziel, zeile.data(), zeile.size());
            return zeile.size();
        };
        const auto senke = [&](std::string_view text) {
            const std::scoped_lock sperre(schloss);
            ausgabe += text;
            bewegung.notify_all();
        };
        EXPECT_TRUE(StapelRechnen(quelle, senke, kerne));
        EXPECT_EQ(ausgabe, Tageergebnis(1) + Tageergebnis(2) + Tageergebnis(3));
    }
}

TEST(Stapel, LiestNurSoWeitVorausWieDasBandReicht) {
    constexpr unsigned kerne = 4;
    std::atomic<std::size_t> bloecke = 0;
    std::atomic<bool> gebremst = true;
    const std::string zeile = Tage(1) + "\n";
    const auto quelle = [&](char* ziel, std::size_t) -> std::size_t {
        if (bloecke == 100) return 0;
        ++bloecke;
        std::memcpy(ziel, zeile.data(), zeile.size());
        return zeile.size();
    };
    const auto senke = [&](std::string_view) {
        if (!gebremst.exchange(false)) return;
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        // All places of the belt, and one block in the hand that lays it on.
        EXPECT_LE(bloecke, 2 * kerne + 2 + 1);
    };
    EXPECT_TRUE(StapelRechnen(quelle, senke, kerne));
    EXPECT_EQ(bloecke, 100U);
}

TEST(Stapel, FehlerDerAusgabeKommtDurch) {
    for (const unsigned kerne : {1U, 4U}) {
        const auto senke = [](std::string_view) { throw std::runtime_error("voll"); };
        EXPECT_THROW(static_cast<void>(StapelRechnen(Text(Gemisch()), senke, kerne)), std::runtime_error);
    }
}

TEST(Stapel, FehlerDerEingabeKommtDurchUndDieErgebnisseDavorSindDa) {
    for (const unsigned kerne : {1U, 4U}) {
        std::string ausgabe;
        bool geliefert = false;
        const auto quelle = [&](char* ziel, std::size_t) -> std::size_t {
            if (geliefert) throw std::runtime_error("kaputt");
            geliefert = true;
            const std::string zeile = Tage(1) + "\n";
            std::memcpy(ziel, zeile.data(), zeile.size());
            return zeile.size();
        };
        const auto senke = [&](std::string_view text) { ausgabe += text; };
        EXPECT_THROW(static_cast<void>(StapelRechnen(quelle, senke, kerne)), std::runtime_error);
        EXPECT_EQ(ausgabe, Tageergebnis(1));
    }
}

}  // namespace stapelverarbeitung_test
}  // namespace zinfolio
