#include "kern/sparen/plandateien.h"

#include <exception>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <iterator>

#include "kern/dateien/dateifehler.h"
#include "kern/sparen/spardateien.h"
#include "plaene.h"

namespace zinfolio {
namespace plandateien_test {

namespace fs = std::filesystem;

class Plandateien_ : public testing::Test {
  protected:
    Plandateien_() : ordner_(fs::temp_directory_path() / ("sparen_" + Name())) {
        fs::remove_all(ordner_);
        fs::create_directories(ordner_);
    }
    ~Plandateien_() override { fs::remove_all(ordner_); }
    Plandateien_(const Plandateien_&) = delete;
    Plandateien_& operator=(const Plandateien_&) = delete;

    static std::string Name() { return testing::UnitTest::GetInstance()->current_test_info()->name(); }

    [[nodiscard]] std::string Bytes(const std::string& name) const {
        std::ifstream datei(ordner_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(datei), {}};
    }
    void Schreibe(const std::string& name, const std::string& bytes) const {
        std::ofstream(ordner_ / name, std::ios::binary) << bytes;
    }
    [[nodiscard]] Plandateien Dateien(Sparziel ziel = Sparziel::endkapital) const {
        return {Form(ziel), ordner_};
    }
    /// Calculates and leaves the working files, whatever comes of it; a fault goes on.
    void RechneUndLege(Sparziel ziel, Sparplan plan) const {
        Sparstand stand;
        Sparergebnis ergebnis;
        std::exception_ptr fehler;
        try {
            EXPECT_EQ(SparplanRechnen(Form(ziel), plan, stand, ergebnis), std::nullopt);
        } catch (...) {
            fehler = std::current_exception();
        }
        SparergebnisAblegen(ordner_, Form(ziel), ergebnis);
        if (fehler) std::rethrow_exception(fehler);
    }

    fs::path ordner_;
};

/// A record of 500 bytes that begins with these.
std::string Satz(std::string anfang) {
    anfang.resize(500, '\0');
    return anfang;
}
std::string Text(const std::string& text) {
    return Satz(std::string("\x08\x00", 2) + static_cast<char>(text.size()) + '\0' + text);
}
std::string Zahl2(char zahl) {
    return Satz(std::string("\x02\x00", 2) + zahl + '\0');
}

TEST_F(Plandateien_, NamenTragenLeerzeichenUndNummer) {
    EXPECT_EQ(Dateien().Planpfad(0).filename(), "VEWertneu 1");
    EXPECT_EQ(Dateien().Notizpfad(0).filename(), "VEWertDatenneuR 0");
    EXPECT_EQ(Dateien().Indexpfad().filename(), "VEWertDatenneu");
    EXPECT_EQ(Dateien(Sparziel::sparrate).Planpfad(99).filename(), "RatendatenACB 100");
    EXPECT_EQ(Dateien(Sparziel::sparrate).Notizpfad(99).filename(), "RatenhöheAR 99");
    EXPECT_EQ(Dateien(Sparziel::rendite).Planpfad(1).filename(), "Effzinsneu 2");
    EXPECT_EQ(Dateien(Sparziel::anspardauer).Planpfad(1).filename(), "Anspdauerneu 2");
    EXPECT_EQ(Dateien(Sparziel::anfangskapital).Indexpfad().filename(), "AnfKapRaspa");
    EXPECT_EQ(Dateien(Sparziel::anfangskapital).Planpfad(1).filename(), "AnfKapRaspaDaten 2");
}

TEST_F(Plandateien_, ErsterStart) {
    const Planindex index = Dateien().IndexLesen();
    EXPECT_EQ(index.aktuell, 0);
    EXPECT_THAT(index.namen, testing::Each("Neu / unbenannt"));
    EXPECT_EQ(Bytes("VEWertDatenneu"), "");
    EXPECT_TRUE(fs::exists(ordner_ / "VEWertDatenneu"));
    const Sparplan plan = Dateien().Laden(0);
    EXPECT_EQ(plan, Sparplan());
    EXPECT_EQ(plan.Combo4, 5);
    EXPECT_EQ(plan.Combo5, 3);
    EXPECT_TRUE(fs::exists(ordner_ / "VEWertneu 1"));
    EXPECT_EQ(Dateien().Notizen(0), "");
}

TEST_F(Plandateien_, IndexHatHundertNamenUndDieWahl) {
    Planindex index = Dateien().IndexLesen();
    index.namen[1] = "Häuschen";
    index.aktuell = 1;
    Dateien().IndexSchreiben(index);
    const std::string bytes = Bytes("VEWertDatenneu");
    EXPECT_EQ(bytes.size(), 101U * 500);
    EXPECT_EQ(bytes.substr(0, 500), Satz(std::string("\x0F\x00", 2) + "Neu / unbenannt"));
    EXPECT_EQ(bytes.substr(500, 500), Satz(std::string("\x08\x00", 2) + "H\xE4uschen"));
    EXPECT_EQ(bytes.substr(50000, 500), Satz(std::string("\x01\x00", 2)));
    EXPECT_EQ(Dateien().IndexLesen().namen[1], "Häuschen");
    EXPECT_EQ(Dateien().IndexLesen().aktuell, 1);
}

TEST_F(Plandateien_, UmbenennenLaesstDieWahlStehen) {
    Planindex index = Dateien().IndexLesen();
    index.aktuell = 7;
    Dateien().IndexSchreiben(index);
    index.aktuell = 3;
    index.namen[3] = "Rente";
    Dateien().NamenSchreiben(index);
    EXPECT_EQ(Dateien().IndexLesen().aktuell, 7);
    EXPECT_EQ(Dateien().IndexLesen().namen[3], "Rente");
}

TEST_F(Plandateien_, UmbenennenVorDerErstenWahlSchreibtNurNamen) {
    Dateien().NamenSchreiben(Dateien().IndexLesen());
    EXPECT_EQ(Bytes("VEWertDatenneu").size(), 50000U);
}

TEST_F(Plandateien_, PlanDesEndkapitals) {
    Sparplan plan = Plan2007();
    plan.Combo1 = 2;
    plan.Check2 = 1;
    plan.Delta = "1,5";
    plan.ZinsWDAt[39] = "01.01.2010";
    plan.Zinsbetrag[39] = "4";
    Dateien().Speichern(0, plan, "Notiz");
    const std::string bytes = Bytes("VEWertneu 1");
    ASSERT_EQ(bytes.size(), 101U * 500);
    const auto satz = [&](std::size_t k) { return bytes.substr((k - 1) * 500, 500); };
    EXPECT_EQ(satz(1), Text("1000"));
    EXPECT_EQ(satz(2), Text("01.01.2007"));
    EXPECT_EQ(satz(3), Text("01.02.2007"));
    EXPECT_EQ(satz(4), Text("100"));
    EXPECT_EQ(satz(5), Zahl2(2));
    EXPECT_EQ(satz(6), Text("3"));
    EXPECT_EQ(satz(7), Zahl2(0));
    EXPECT_EQ(satz(8), Zahl2(5));
    EXPECT_EQ(satz(9), Text("31.12.2007"));
    EXPECT_EQ(satz(10), Zahl2(3));
    EXPECT_EQ(satz(11), Zahl2(0));
    EXPECT_EQ(satz(12), Zahl2(1));
    EXPECT_EQ(satz(13), Text(""));
    EXPECT_EQ(satz(14), Text("1,5"));
    EXPECT_EQ(satz(21), Zahl2(0));
    EXPECT_EQ(satz(61), Text("01.01.2010"));
    EXPECT_EQ(satz(101), Text("4"));
    EXPECT_EQ(Bytes("VEWertDatenneuR 0"), "Notiz");
}

/// What stands in record `k` of the first plan of a form.
std::string Feldsatz(const std::string& bytes, std::size_t k) {
    return bytes.substr((k - 1) * 500, 500);
}

TEST_F(Plandateien_, JedesFormularHatSeineEigenenSaetze) {
    Dateien(Sparziel::sparrate).Speichern(0, Plan2007(), "");
    EXPECT_EQ(Feldsatz(Bytes("RatendatenACB 1"), 4), Text("5000"));
    Dateien(Sparziel::rendite).Speichern(0, Plan2007(), "");
    EXPECT_EQ(Feldsatz(Bytes("Effzinsneu 1"), 6), Text("2200"));
    EXPECT_EQ(Bytes("Effzinsneu 1").size(), 21U * 500);
    Dateien(Sparziel::anspardauer).Speichern(0, Plan2007(), "");
    EXPECT_EQ(Feldsatz(Bytes("Anspdauerneu 1"), 9), Text("5000"));
    EXPECT_EQ(Feldsatz(Bytes("Anspdauerneu 1"), 15), Text("%"));
    EXPECT_EQ(Bytes("Anspdauerneu 1").size(), 15U * 500);
    Dateien(Sparziel::anfangskapital).Speichern(0, Plan2007(), "");
    EXPECT_EQ(Feldsatz(Bytes("AnfKapRaspaDaten 1"), 1), Text("100"));
    EXPECT_EQ(Feldsatz(Bytes("AnfKapRaspaDaten 1"), 4), Text("5000"));
}

TEST_F(Plandateien_, AlleFormulareLesenWasSieSchreiben) {
    for (const Sparform& form : Sparformen()) {
        Sparplan plan;
        for (const Formzeile& zeile : form.felder) {
            if (zeile.feld->text != nullptr) plan.*zeile.feld->text = std::string(zeile.feld->name);
            if (zeile.feld->zahl != nullptr) plan.*zeile.feld->zahl = 1;
        }
        if (form.zinstabelle) plan.Zinsbetrag[7] = "7";
        if (form.dynamik == Dynamik::mitGrenzen) plan.Command6 = einheitProzent;
        const Plandateien dateien(form, ordner_);
        dateien.Speichern(12, plan, "");
        EXPECT_EQ(dateien.Laden(12), plan) << form.name;
    }
}

TEST_F(Plandateien_, AeltereDateiOhneGrenzen) {
    Schreibe("VEWertneu 1", Text("500") + Text("01.01.2001"));
    const Sparplan plan = Dateien().Laden(0);
    EXPECT_EQ(plan.AnfVermögen, "500");
    EXPECT_EQ(plan.Check3 + plan.Check4 + plan.Check5, 0);
    EXPECT_EQ(plan.Combo4, 5);
}

TEST_F(Plandateien_, EinheitAnDerStelleDesBetragsWirdNull) {
    for (const std::string& einheit : {std::string(" % "), std::string("\x80")}) {
        std::string bytes(14 * 500, '\0');
        Schreibe("VEWertneu 1", bytes + Text(einheit));
        EXPECT_EQ(Dateien().Laden(0).Delta2, "0");
    }
}

TEST_F(Plandateien_, BeschaedigteDateiIstEinFehler) {
    Schreibe("VEWertneu 1", Satz(std::string("\x07\x00", 2)));
    EXPECT_THROW(static_cast<void>(Dateien().Laden(0)), Dateifehler);
    Schreibe("VEWertneu 1", std::string(4 * 500, '\0') + Zahl2(9));
    EXPECT_THROW(static_cast<void>(Dateien().Laden(0)), Dateifehler);
}

TEST_F(Plandateien_, AusEinemBeschaedigtenVerzeichnisBleibenDieLesbarenNamen) {
    const std::string bytes = Satz(std::string("\x03\x00", 2) + "Uwe") + Satz("\xFF\xFF") +
                              Satz(std::string("\x02\x00", 2) + "\xDC" + "b") +
                              Satz(std::string("\x02\x00\x07\x07", 4));
    Schreibe("VEWertDatenneu", bytes);
    EXPECT_THROW(static_cast<void>(Dateien().IndexLesen()), Dateifehler);
    const Planindex index = Dateien().IndexRetten();
    EXPECT_EQ(index.namen[0], "Uwe");
    EXPECT_EQ(index.namen[1], "Neu / unbenannt");
    EXPECT_EQ(index.namen[2], "Üb");
    EXPECT_EQ(index.namen[3], "Neu / unbenannt");
    EXPECT_EQ(index.namen[99], "Neu / unbenannt");
    EXPECT_EQ(index.aktuell, 0);
    EXPECT_EQ(Bytes("VEWertDatenneu beschädigt"), bytes);
}

TEST_F(Plandateien_, RechnungHinterlaesstIhreDateien) {
    RechneUndLege(Sparziel::endkapital, Plan2007());
    EXPECT_EQ(Bytes("Zinsstaffel1").size(), 12U * 129);
    EXPECT_EQ(Bytes("ZinsstaffelZins").size(), 129U);
    EXPECT_EQ(Bytes("Zinsverrechnungstermine").size(), 2U * 129);
    EXPECT_EQ(Bytes("Lösungsdatei").size(), 15U * 129);
    EXPECT_EQ(Bytes("Lösungszahlungsreihe").size(), 13U * 34);
}

TEST_F(Plandateien_, RenditeHatEigeneDateien) {
    RechneUndLege(Sparziel::rendite, Plan2007());
    EXPECT_EQ(Bytes("Vermendzahlungen1").size(), 12U * 129);
    EXPECT_EQ(Bytes("Vermendzins").size(), 129U);
    EXPECT_EQ(Bytes("Vermendzinsverrechnungstermine").size(), 2U * 129);
    EXPECT_FALSE(fs::exists(ordner_ / "Zinsstaffel1"));
}

TEST_F(Plandateien_, FehlerHinterlaesstDieTabellenBisDahin) {
    Sparplan plan = Plan2007();
    plan.Zins = "abc";
    Schreibe("Lösungsdatei", "alt");
    EXPECT_THROW(RechneUndLege(Sparziel::endkapital, plan), std::runtime_error);
    EXPECT_EQ(Bytes("Zinsstaffel1").size(), 12U * 129);
    EXPECT_EQ(Bytes("ZinsstaffelZins"), "");
    EXPECT_EQ(Bytes("Lösungsdatei"), "alt");
}

}  // namespace plandateien_test
}  // namespace zinfolio
