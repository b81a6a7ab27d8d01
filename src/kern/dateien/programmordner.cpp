#include "kern/dateien/programmordner.h"

#include <system_error>

namespace zinfolio {

std::filesystem::path Programmordner() {
    std::error_code fehler;
    return std::filesystem::read_symlink("/proc/self/exe", fehler).parent_path();
}

}  // namespace zinfolio
