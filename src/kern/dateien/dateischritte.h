#pragma once
// The single steps of which every save is made. Each throws a `Dateifehler` that names the file being saved.

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string_view>
#include <sys/types.h>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/deskriptor.h"

namespace zinfolio {

[[nodiscard]] Dateifehler Schreibfehler(const std::filesystem::path& datei, int fehlernummer);

/// The absolute path that a save of this file replaces: the end of its symbolic links. Absolute, since the
/// current folder may change on the way.
[[nodiscard]] std::filesystem::path Zielpfad(const std::filesystem::path& datei);

/// Permissions of the target, nothing where it does not exist. A file that may not be written is refused,
/// although a rename would not mind; so is what is no regular file.
[[nodiscard]] std::optional<mode_t> VorhandeneRechte(const std::filesystem::path& ziel);

/// Fills a new file, with these permissions where there are any; `dauerhaft` down to the disk.
void NeueDateiFuellen(Deskriptor datei, std::span<const std::byte> inhalt, std::optional<mode_t> rechte,
                      bool dauerhaft, const std::filesystem::path& ziel);

/// What was renamed or removed in a file's folder lasts only when the folder is on the disk too.
void OrdnerSichern(const std::filesystem::path& ziel);
/// The same for the folders of several files, each folder once.
void OrdnerSichern(std::span<const std::filesystem::path> ziele);

/// A name for a temporary file: ".zinfolio-PROCESS-NUMBER", unused by this process.
[[nodiscard]] std::string VorlaeufigeKennung();

inline constexpr std::string_view vorlaeufigerAnfang = ".zinfolio-";

/// True for the name of a temporary file whose process is dead, a former one of this process's own number
/// included.
[[nodiscard]] bool IstVerwaist(std::string_view name);

}  // namespace zinfolio
