#include "kern/sparen/plandateien.h"

#include <algorithm>
#include <utility>

#include "kern/dateien/ganzedatei.h"
#include "kern/dateien/satzdatei.h"
#include "kern/dates/textteile.h"
#include "kern/grund/windows1252.h"
#include "kern/sparen/meldungen.h"

namespace zinfolio {
namespace {

constexpr std::size_t satzlaenge = 500;
constexpr std::size_t groessteNotiz = std::size_t{64} << 20;

constexpr std::array namenzeilen{Barfeld<&Planindex::namen>(1)};
constexpr std::array indexzeilen{
    Barfeld<&Planindex::namen>(1),
    Barfeld<&Planindex::aktuell>(plaenejeForm + 1, {.eintraege = plaenejeForm}),
};
constexpr Selbstwertaufbau<Planindex> namenaufbau{satzlaenge, namenzeilen};
constexpr Selbstwertaufbau<Planindex> indexaufbau{satzlaenge, indexzeilen};

/// A file that is opened for reading and writing exists afterwards.
void Anlegen(const std::filesystem::path& datei) {
    static_cast<void>(SaetzeZaehlen(datei, satzlaenge));
}

/// A number in a file's name takes a blank in the place of its sign.
std::string MitNummer(std::string_view name, std::size_t nummer) {
    return std::string(name) + " " + std::to_string(nummer);
}

/// The name at the head of a record, as far as it is one.
std::string LesbarerName(std::string_view satz) {
    constexpr std::size_t kopf = 2;
    if (satz.size() < kopf) return std::string(meldung::unbenannt);
    const auto laenge = static_cast<std::size_t>(static_cast<unsigned char>(satz[0]) +
                                                 256 * static_cast<unsigned char>(satz[1]));
    const std::string_view name = satz.substr(kopf, laenge);
    const bool lesbar = laenge > 0 && kopf + laenge <= satzlaenge && name.size() == laenge &&
                        std::ranges::none_of(name, [](char c) { return c >= 0 && c < ' '; });
    return lesbar ? NachUtf8(name) : std::string(meldung::unbenannt);
}

}  // namespace

Sparplan SparplanLesen(const Sparform& form, const std::filesystem::path& datei) {
    Sparplan plan = form.plandatei.Lesen(datei);
    const std::string_view delta2 = Getrimmt(plan.Delta2);
    if (delta2 == einheitProzent || delta2 == einheitBetrag) plan.Delta2 = "0";
    return plan;
}

Plandateien::Plandateien(const Sparform& sparform, std::filesystem::path arbeitsordner)
    : form(&sparform), ordner(std::move(arbeitsordner)) {}

std::filesystem::path Plandateien::Indexpfad() const {
    return ordner / form->ablage.planindex;
}

std::filesystem::path Plandateien::Planpfad(std::size_t k) const {
    return ordner / MitNummer(form->ablage.plandatei, k + 1);
}

std::filesystem::path Plandateien::Notizpfad(std::size_t k) const {
    return ordner / MitNummer(form->ablage.notizendatei, k);
}

Planindex Plandateien::IndexLesen() const {
    Anlegen(Indexpfad());
    Planindex index = indexaufbau.Lesen(Indexpfad());
    for (std::string& name : index.namen) {
        if (name.empty()) name = meldung::unbenannt;
    }
    return index;
}

Planindex Plandateien::IndexRetten() const {
    const std::string bytes = GanzeDateiLesen(Indexpfad(), groessteNotiz);
    AtomarSchreiben(Indexpfad() += " beschädigt", bytes, Sicherung::Dauerhaft);
    Planindex index;
    for (std::size_t k = 0; k < plaenejeForm; ++k)
        index.namen[k] = LesbarerName(std::string_view(bytes).substr(std::min(bytes.size(), k * satzlaenge)));
    return index;
}

void Plandateien::IndexSchreiben(const Planindex& index) const {
    indexaufbau.Schreiben(Indexpfad(), index);
}

void Plandateien::NamenSchreiben(const Planindex& index) const {
    std::vector<std::byte> bytes = namenaufbau.Bytes(index, Indexpfad());
    const std::string bisher = DateiLesenFallsDa(Indexpfad(), groessteNotiz).value_or("");
    if (bisher.size() > bytes.size()) {
        const auto rest = AlsBytes(std::string_view(bisher)).subspan(bytes.size());
        bytes.insert(bytes.end(), rest.begin(), rest.end());
    }
    AtomarSchreiben(Indexpfad(), bytes, Sicherung::Fluechtig);
}

Sparplan Plandateien::Laden(std::size_t k) const {
    Anlegen(Planpfad(k));
    return SparplanLesen(*form, Planpfad(k));
}

std::string Plandateien::Notizen(std::size_t k) const {
    return DateiLesenFallsDa(Notizpfad(k), groessteNotiz).value_or("");
}

void Plandateien::Speichern(std::size_t k, const Sparplan& plan, std::string_view notizen) const {
    AtomareDatei plandatei(Planpfad(k), form->plandatei.Bytes(plan, Planpfad(k)), Sicherung::Dauerhaft);
    AtomareDatei notizendatei(Notizpfad(k), AlsBytes(notizen), Sicherung::Dauerhaft);
    notizendatei.Vollenden();
    plandatei.Vollenden();
}

}  // namespace zinfolio
