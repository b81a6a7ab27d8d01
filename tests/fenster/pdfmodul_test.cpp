// The module that programs without windows load for PDF files: loaded as they load it, without a display.

#include <chrono>
#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <gmock/gmock.h>
#include <stdexcept>
#include <string>

#include "kern/bericht/probebericht.h"
#include "kern/dateien/testordner.h"

namespace zinfolio {
namespace {

using Schreiber = int(const Bericht*, const char*, std::string*);

Schreiber* Modul() {
    static void* const modul = ::dlopen(ZINFOLIO_PDFMODUL, RTLD_NOW | RTLD_LOCAL);
    if (!modul) throw std::runtime_error(::dlerror());
    // The way of POSIX from an object's address to a function's.
    return reinterpret_cast<Schreiber*>(::dlsym(modul, "ZinfolioBerichtAlsPdf"));
}

class Pdfmodul : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        ::unsetenv("DISPLAY");
        ::unsetenv("WAYLAND_DISPLAY");
        ::unsetenv("QT_QPA_PLATFORM");
    }

    [[nodiscard]] std::string Pfad(const std::string& name) const { return (ordner_.Pfad() / name).string(); }

    Testordner ordner_;
    std::string fehler_;
};

TEST_F(Pdfmodul, SchreibtOhneBildschirm) {
    const Bericht bericht = Probekontobericht(Kontoansicht::kurzform, 50);
    ASSERT_EQ(Modul()(&bericht, Pfad("a.pdf").c_str(), &fehler_), 0) << fehler_;
    EXPECT_THAT(ordner_.Inhalt("a.pdf"), testing::StartsWith("%PDF-"));
    EXPECT_EQ(fehler_, "");
}

TEST_F(Pdfmodul, SchreibtAuchZweiHintereinander) {
    const Bericht bericht = Probekontobericht(Kontoansicht::detailansicht3, 1000);
    const auto anfang = std::chrono::steady_clock::now();
    ASSERT_EQ(Modul()(&bericht, Pfad("a.pdf").c_str(), &fehler_), 0) << fehler_;
    ASSERT_EQ(Modul()(&bericht, Pfad("b.pdf").c_str(), &fehler_), 0) << fehler_;
    EXPECT_LT(std::chrono::steady_clock::now() - anfang, std::chrono::seconds(2));
    EXPECT_EQ(ordner_.Inhalt("a.pdf").size(), ordner_.Inhalt("b.pdf").size());
}

TEST_F(Pdfmodul, EinFehlerIstEineMeldung) {
    const Bericht bericht = Probekontobericht(Kontoansicht::kurzform, 5);
    EXPECT_EQ(Modul()(&bericht, Pfad("fehlt/a.pdf").c_str(), &fehler_), 1);
    EXPECT_THAT(fehler_, testing::HasSubstr("fehlt/a.pdf\" kann nicht geschrieben werden"));
}

TEST_F(Pdfmodul, EinFehlerDesBerichtsIstEineMeldung) {
    Bericht bericht = Probekontobericht(Kontoansicht::kurzform, 5);
    bericht.tabelle.zelle = [](std::size_t, std::size_t) -> std::string {
        throw std::runtime_error("Zelle");
    };
    EXPECT_EQ(Modul()(&bericht, Pfad("a.pdf").c_str(), &fehler_), 1);
    EXPECT_EQ(fehler_, "Zelle");
    EXPECT_FALSE(std::filesystem::exists(ordner_.Pfad() / "a.pdf"));
}

}  // namespace
}  // namespace zinfolio
