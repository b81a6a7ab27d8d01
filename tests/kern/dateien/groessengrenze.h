#pragma once

#include <signal.h>
#include <sys/resource.h>

namespace zinfolio {

/// While it lives, no file of this test program grows beyond so many bytes: writes meet the limit in their
/// middle, as on a disk that fills up.
class Groessengrenze {
  public:
    explicit Groessengrenze(rlim_t grenze) : alterUmgang(::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &alte);
        const rlimit neue{grenze, alte.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &neue);
    }
    Groessengrenze(const Groessengrenze&) = delete;
    Groessengrenze& operator=(const Groessengrenze&) = delete;
    ~Groessengrenze() {
        ::setrlimit(RLIMIT_FSIZE, &alte);
        ::signal(SIGXFSZ, alterUmgang);
    }

  private:
    rlimit alte{};
    sighandler_t alterUmgang;
};

}  // namespace zinfolio
