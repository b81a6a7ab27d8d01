#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

namespace zinfolio {

/// The superuser may write anything; while this lives he is somebody else.
class OhneVorrechte {
  public:
    OhneVorrechte() : benutzer(::geteuid()) {
        constexpr uid_t niemand = 65534;
        EXPECT_EQ(::seteuid(benutzer == 0 ? niemand : benutzer), 0);
    }
    OhneVorrechte(const OhneVorrechte&) = delete;
    OhneVorrechte& operator=(const OhneVorrechte&) = delete;
    ~OhneVorrechte() { EXPECT_EQ(::seteuid(benutzer), 0); }

  private:
    uid_t benutzer;
};

}  // namespace zinfolio
