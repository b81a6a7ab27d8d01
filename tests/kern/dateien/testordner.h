#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace zinfolio {

/// A fresh empty folder that goes with the test.
class Testordner {
  public:
    Testordner() {
        std::string muster = std::filesystem::temp_directory_path() / "zinfolio-test-XXXXXX";
        if (::mkdtemp(muster.data()) == nullptr) throw std::runtime_error("mkdtemp: " + muster);
        pfad = muster;
    }
    Testordner(const Testordner&) = delete;
    Testordner& operator=(const Testordner&) = delete;
    ~Testordner() {
        std::error_code egal;
        std::filesystem::remove_all(pfad, egal);
    }

    [[nodiscard]] const std::filesystem::path& Pfad() const { return pfad; }

    std::filesystem::path Ablegen(std::string_view name, std::string_view inhalt) const {
        std::ofstream(pfad / name, std::ios::binary) << inhalt;
        return pfad / name;
    }
    [[nodiscard]] std::string Inhalt(std::string_view name) const {
        std::ifstream datei(pfad / name, std::ios::binary);
        EXPECT_TRUE(datei.is_open()) << pfad / name;
        return {std::istreambuf_iterator<char>(datei), std::istreambuf_iterator<char>()};
    }
    /// What lies in the folder, hidden files included, sorted.
    [[nodiscard]] std::vector<std::string> Namen() const {
        std::vector<std::string> namen;
        for (const auto& eintrag : std::filesystem::directory_iterator(pfad))
            namen.push_back(eintrag.path().filename());
        std::sort(namen.begin(), namen.end());
        return namen;
    }

  private:
    std::filesystem::path pfad;
};

}  // namespace zinfolio
