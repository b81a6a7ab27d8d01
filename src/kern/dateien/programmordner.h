#pragma once

#include <filesystem>

namespace zinfolio {

/// The folder of the running program; empty where the system does not tell.
[[nodiscard]] std::filesystem::path Programmordner();

}  // namespace zinfolio
