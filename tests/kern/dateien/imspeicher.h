#pragma once

#include <cstdlib>
#include <optional>
#include <string>
#include <unistd.h>

namespace zinfolio {

/// While it lives, temporary folders lie where files need no disk, for tests that save thousands of times.
class ImSpeicher {
  public:
    ImSpeicher() {
        if (const char* wert = std::getenv("TMPDIR")) vorher = wert;
        if (::access("/dev/shm", W_OK | X_OK) == 0) ::setenv("TMPDIR", "/dev/shm", 1);
    }
    ImSpeicher(const ImSpeicher&) = delete;
    ImSpeicher& operator=(const ImSpeicher&) = delete;
    ~ImSpeicher() {
        if (vorher)
            ::setenv("TMPDIR", vorher->c_str(), 1);
        else
            ::unsetenv("TMPDIR");
    }

  private:
    std::optional<std::string> vorher;
};

}  // namespace zinfolio
