#include "kern/dateien/dateifehler.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <string>
#include <system_error>

namespace zinfolio {
namespace dateifehler_test {

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

TEST(Systemgrund, JederFehlerHatEinenDeutschenSatz) {
    constexpr int letzter = EHWPOISON;
    for (int fehler = 1; fehler <= letzter; ++fehler) {
        const std::string grund = Systemgrund(fehler);
        EXPECT_NE(grund, std::generic_category().message(fehler));
        EXPECT_TRUE(grund.ends_with('.')) << grund;
    }
}

TEST(Systemgrund, WasDateienTrifftHatSeinenEigenen) {
    for (const int fehler :
         {EPERM,     ENOENT,    EINTR,     EIO,       ENXIO,      EAGAIN,   ENOMEM,       EACCES,    EBUSY,
          EEXIST,    EXDEV,     ENODEV,    ENOTDIR,   EISDIR,     EINVAL,   ENFILE,       EMFILE,    ETXTBSY,
          EFBIG,     ENOSPC,    ESPIPE,    EROFS,     EMLINK,     EPIPE,    ENAMETOOLONG, ENOLCK,    ENOSYS,
          ENOTEMPTY, ELOOP,     EOVERFLOW, EILSEQ,    EOPNOTSUPP, ENETDOWN, EHOSTDOWN,    ETIMEDOUT, ESTALE,
          EUCLEAN,   EREMOTEIO, EDQUOT,    ENOMEDIUM, ENOTCONN,   ENOKEY})
        EXPECT_EQ(Systemgrund(fehler).find("den Fehler"), std::string::npos) << fehler;
    EXPECT_EQ(Systemgrund(EMFILE), "Im Programm sind zu viele Dateien offen.");
}

TEST(Systemgrund, UnbekannterFehlerHatSeineNummer) {
    EXPECT_EQ(Systemgrund(4711), "Das System meldet den Fehler 4711.");
}

}  // namespace dateifehler_test
}  // namespace zinfolio
