#include "kern/dateien/dateifehler.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace zinfolio {
namespace {

TEST(Dateifehler, NenntDateiUndGrund) {
    EXPECT_STREQ(Dateifehler({"/o/rate"}, "Kaputt.").what(), "Datei \"/o/rate\": Kaputt.");
}

TEST(Dateifehler, NenntDenSatzWoEsEinenGibt) {
    EXPECT_STREQ(Dateifehler({"/o/rate", 3}, "Kaputt.").what(), "Datei \"/o/rate\", Satz 3: Kaputt.");
}

TEST(Systemfehler, SagtDenGrundDesSystemsAufDeutsch) {
    EXPECT_STREQ(Systemfehler("/o/Lösungsdatei", "gelesen", EACCES).what(),
                 "Die Datei \"/o/Lösungsdatei\" kann nicht gelesen werden: Keine Berechtigung.");
}

TEST(Systemgrund, SeltenesBekommtDenTextDesSystems) {
    EXPECT_NE(Systemgrund(EMFILE), "");
}

}  // namespace
}  // namespace zinfolio
