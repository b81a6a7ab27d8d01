#pragma once
// What a save of several files leaves on the disk while their renames are under way. As long as a journal
// exists, the old files count: whoever meets one whose save has died puts them back, and whoever may not
// write reads through it. Removing the journal is the moment at which the new files count.

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

#include "kern/dateien/deskriptor.h"

namespace zinfolio {

/// Length and check number of a content; tells a file that a save put in its place from any other.
[[nodiscard]] std::string Inhaltskennung(std::string_view inhalt);

/// A file that the save replaces.
struct Journaleintrag {
    std::string name;     ///< in the journal's folder
    std::string neu;      ///< `Inhaltskennung` of the new content
    bool vorher = false;  ///< there was an old file; it is kept under `Altpfad`
};

/// A journal on the disk, open so that another one of the same name can be told from it.
struct Journal {
    Deskriptor offen;
    std::filesystem::path pfad;
    /// Beginning of the names of the old files, unique to the save.
    std::string kennung;
    std::vector<Journaleintrag> eintraege;
    /// Whose save it was.
    uid_t benutzer = 0;

    /// True where this content, owned by this user, is what the save put in place of the entry's file.
    /// Another user's file is not: nobody can leave a journal about the files of others.
    [[nodiscard]] bool HatErsetzt(std::size_t stelle, uid_t besitzer, std::string_view inhalt) const;
    /// Number of the entry of this name; nothing where the save did not touch it.
    [[nodiscard]] std::optional<std::size_t> Stelle(std::string_view name) const;
    [[nodiscard]] std::filesystem::path Ziel(std::size_t stelle) const;
    /// Where the old file of an entry is kept.
    [[nodiscard]] std::filesystem::path Altpfad(std::size_t stelle) const;
};

/// The journal that a group with this first file uses.
[[nodiscard]] std::filesystem::path Journalpfad(const std::filesystem::path& ersteDatei);

/// The bytes of a journal.
[[nodiscard]] std::string Journalbytes(std::string_view kennung, std::span<const Journaleintrag> eintraege);

/// Nothing where there is none, and for a file that is no journal. Throws `Dateifehler` where it cannot be
/// read.
[[nodiscard]] std::optional<Journal> JournalLesen(const std::filesystem::path& pfad);

/// True where the path still means this journal.
[[nodiscard]] bool GiltNoch(const Journal& journal);

/// Puts the old files back and removes the journal, and what it kept. Throws `Dateifehler`; the journal stays
/// then, and counts. May be repeated. REQUIRES: no save is under way in the folder.
void Zuruecksetzen(const Journal& journal);

}  // namespace zinfolio
