#include "kern/staffel/bankspalten.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "kern/dates/datum.h"
#include "kern/dates/fremdzahl.h"
#include "kern/dates/textteile.h"

namespace zinfolio {
namespace {

enum class Rolle { datum, betrag, soll, haben, kennzeichen, text, waehrung };

/// A header that names a column; of several for one purpose the one that stands first here counts.
struct Kopfwort {
    std::string_view wort;
    Rolle rolle;
};

// In lower case, with ae for ä, without the currency behind it.
constexpr std::array kopfwoerter{
    Kopfwort{"wertstellung", Rolle::datum},
    Kopfwort{"wertstellungstag", Rolle::datum},
    Kopfwort{"wertstellungsdatum", Rolle::datum},
    Kopfwort{"valuta", Rolle::datum},
    Kopfwort{"valutadatum", Rolle::datum},
    Kopfwort{"valuta-datum", Rolle::datum},
    Kopfwort{"wert", Rolle::datum},
    Kopfwort{"datum", Rolle::datum},
    Kopfwort{"buchungstag", Rolle::datum},
    Kopfwort{"buchungsdatum", Rolle::datum},
    Kopfwort{"buchung", Rolle::datum},
    Kopfwort{"betrag", Rolle::betrag},
    Kopfwort{"umsatz", Rolle::betrag},
    Kopfwort{"zahlungsbetrag", Rolle::betrag},
    Kopfwort{"soll", Rolle::soll},
    Kopfwort{"belastung", Rolle::soll},
    Kopfwort{"lastschrift", Rolle::soll},
    Kopfwort{"ausgang", Rolle::soll},
    Kopfwort{"haben", Rolle::haben},
    Kopfwort{"gutschrift", Rolle::haben},
    Kopfwort{"eingang", Rolle::haben},
    Kopfwort{"soll/haben", Rolle::kennzeichen},
    Kopfwort{"s/h", Rolle::kennzeichen},
    Kopfwort{"beschreibung", Rolle::text},
    Kopfwort{"verwendungszweck", Rolle::text},
    Kopfwort{"vorgang/verwendungszweck", Rolle::text},
    Kopfwort{"buchungstext", Rolle::text},
    Kopfwort{"text", Rolle::text},
    Kopfwort{"vorgang", Rolle::text},
    Kopfwort{"empfaenger", Rolle::text},
    Kopfwort{"auftraggeber/empfaenger", Rolle::text},
    Kopfwort{"waehrung", Rolle::waehrung},
};

void Ersetzen(std::string& text, std::string_view altes, std::string_view neues) {
    for (auto stelle = text.find(altes); stelle != std::string::npos; stelle = text.find(altes, stelle))
        text.replace(stelle, altes.size(), neues);
}

std::string Kopfform(std::string_view kopf) {
    std::string form(Getrimmt(kopf));
    std::ranges::transform(form, form.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    Ersetzen(form, "ä", "ae");
    Ersetzen(form, "Ä", "ae");
    for (const std::string_view waehrung : {"(eur)", "(€)", " in eur", " in €", " eur", " €"})
        if (form.ends_with(waehrung)) form.resize(form.size() - waehrung.size());
    return std::string(Getrimmt(form));
}

/// The rank of a header among the words, smallest first; nothing where it says nothing to us.
std::optional<std::size_t> Rang(std::string_view kopf) {
    const auto wort = std::ranges::find(kopfwoerter, Kopfform(kopf), &Kopfwort::wort);
    if (wort == kopfwoerter.end()) return std::nullopt;
    return static_cast<std::size_t>(wort - kopfwoerter.begin());
}

/// The column of the best header for a purpose.
std::optional<std::size_t> Suchen(std::span<const std::optional<std::size_t>> raenge, Rolle rolle) {
    std::optional<std::size_t> beste;
    for (std::size_t spalte = 0; spalte < raenge.size(); ++spalte) {
        const auto rang = raenge[spalte];
        if (rang && kopfwoerter[*rang].rolle == rolle && (!beste || *rang < *raenge[*beste])) beste = spalte;
    }
    return beste;
}

/// Takes a whole number from the front.
std::optional<int> NimmZahl(std::string_view& text, std::size_t hoechstens) {
    int zahl = 0;
    const char* const ende = text.data() + std::min(text.size(), hoechstens);
    const auto [stelle, fehler] = std::from_chars(text.data(), ende, zahl);
    if (fehler != std::errc() || text.empty() || !IstZiffer(text.front())) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(stelle - text.data()));
    return zahl;
}

bool Nimm(std::string_view& text, char zeichen) {
    if (!text.starts_with(zeichen)) return false;
    text.remove_prefix(1);
    return true;
}

std::optional<std::string> AlsDatumstext(int jahr, int monat, int tag) {
    const auto datum = Datum::Aus(jahr, monat, tag);
    return datum ? std::optional(std::string(datum->Text())) : std::nullopt;
}

std::optional<std::string> Isodatum(std::string_view text) {
    const auto jahr = NimmZahl(text, 4);
    if (!jahr || *jahr < 1000 || !Nimm(text, '-')) return std::nullopt;
    const auto monat = NimmZahl(text, 2);
    if (!monat || !Nimm(text, '-')) return std::nullopt;
    const auto tag = NimmZahl(text, 2);
    return tag && text.empty() ? AlsDatumstext(*jahr, *monat, *tag) : std::nullopt;
}

std::optional<std::string> DeutschesDatum(std::string_view text) {
    const auto tag = NimmZahl(text, 2);
    if (!tag || !Nimm(text, '.')) return std::nullopt;
    const auto monat = NimmZahl(text, 2);
    if (!monat || !Nimm(text, '.')) return std::nullopt;
    const std::size_t stellen = text.size();
    const auto jahr = NimmZahl(text, 4);
    if (!jahr || !text.empty() || (stellen != 2 && stellen != 4)) return std::nullopt;
    return AlsDatumstext(stellen == 2 ? 2000 + *jahr : *jahr, *monat, *tag);
}

}  // namespace

std::optional<Bankspalten> BankspaltenLesen(std::span<const std::string> kopf) {
    std::vector<std::optional<std::size_t>> raenge(kopf.size());
    std::ranges::transform(kopf, raenge.begin(), Rang);
    const auto datum = Suchen(raenge, Rolle::datum);
    Bankspalten spalten{.betrag = Suchen(raenge, Rolle::betrag),
                        .soll = Suchen(raenge, Rolle::soll),
                        .haben = Suchen(raenge, Rolle::haben),
                        .kennzeichen = Suchen(raenge, Rolle::kennzeichen),
                        .text = Suchen(raenge, Rolle::text),
                        .waehrung = Suchen(raenge, Rolle::waehrung)};
    if (spalten.betrag) spalten.soll = spalten.haben = std::nullopt;
    if (!datum || (!spalten.betrag && !(spalten.soll && spalten.haben))) return std::nullopt;
    spalten.datum = *datum;
    return spalten;
}

std::optional<Bankspalten> BankspaltenRaten(std::span<const std::string> felder) {
    Bankspalten spalten;
    const auto datum =
        std::ranges::find_if(felder, [](const auto& feld) { return Bankdatum(feld).has_value(); });
    const auto betrag =
        std::find_if(datum, felder.end(), [](const auto& feld) { return Fremdzahl(feld).has_value(); });
    if (datum == felder.end() || betrag == felder.end()) return std::nullopt;
    spalten.datum = static_cast<std::size_t>(datum - felder.begin());
    spalten.betrag = static_cast<std::size_t>(betrag - felder.begin());
    for (std::size_t i = 0; i < felder.size() && !spalten.text; ++i)
        if (i != spalten.datum && i != spalten.betrag && !Bankdatum(felder[i]) &&
            !Getrimmt(felder[i]).empty())
            spalten.text = i;
    return spalten;
}

std::optional<std::string> Bankdatum(std::string_view text) {
    text = Getrimmt(text);
    const auto iso = Isodatum(text);
    return iso ? iso : DeutschesDatum(text);
}

}  // namespace zinfolio
