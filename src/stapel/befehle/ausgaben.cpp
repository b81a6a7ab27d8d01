#include "stapel/befehle/ausgaben.h"

#include <new>
#include <set>
#include <system_error>

#include "kern/bericht/htmlbericht.h"
#include "kern/bericht/rtfbericht.h"
#include "kern/bericht/tabellentext.h"
#include "kern/dateien/atomar.h"
#include "kern/dateien/dateifehler.h"
#include "kern/grund/meldungen.h"
#include "stapel/auftraege/ergebnisse.h"
#include "stapel/befehle/aufruf.h"
#include "stapel/befehle/kanal.h"
#include "stapel/befehle/pdfmodul.h"

namespace zinfolio {
namespace {

namespace fs = std::filesystem;

/// What will be written, made as a whole before the first byte leaves.
struct Fertiges {
    std::string ausgabe;
    std::optional<Bericht> bericht;
};

template <typename Schreiben>
std::string Ergebnisobjekt(bool ok, Schreiben schreiben) {
    std::string json;
    JsonSchreiber schreiber(json);
    schreiber.ObjektAuf();
    schreiber.Feld("ok", ok);
    schreiben(schreiber);
    schreiber.ObjektZu();
    return JsonEingezogen(json) + "\n";
}

std::string AlsAusgabe(const Befehlsergebnis& ergebnis, Ausgabeformat format) {
    switch (format) {
        case Ausgabeformat::json:
            return Ergebnisobjekt(true, ergebnis.felder);
        case Ausgabeformat::csv:
            return TabelleAlsCsv(ergebnis.tabelle());
        case Ausgabeformat::text:
            break;
    }
    return TabelleAlsText(ergebnis.tabelle()) + ergebnis.nachsatz;
}

/// The operation's trap: a fault of the calculation becomes the general message.
template <typename Rechnung>
std::optional<Ablehnung> MitFalle(std::string_view fehlerregister, Rechnung rechnung) {
    try {
        return rechnung();
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception&) {
        return Ablehnung{std::string(meldung::angabenFehler), "", std::string(fehlerregister)};
    }
}

/// Throws a `Dateifehler`.
void BerichteSchreiben(const Bericht& bericht, const Ausgabewunsch& wunsch) {
    if (!wunsch.pdf.empty()) {
        const std::string fehler = PdfSchreiben(bericht, wunsch.pdf);
        if (!fehler.empty()) throw Dateifehler(fehler);
    }
    if (!wunsch.rtf.empty()) AtomarSchreiben(wunsch.rtf, RtfBericht(bericht), Sicherung::Dauerhaft);
    if (!wunsch.html.empty()) AtomarSchreiben(wunsch.html, HtmlBericht(bericht), Sicherung::Dauerhaft);
}

void TextAusgeben(const std::string& text, const Ausgabewunsch& wunsch) {
    if (wunsch.ausgabe.empty() || wunsch.ausgabe == "-") return AusgabeSchreiben(text);
    AtomarSchreiben(wunsch.ausgabe, text, Sicherung::Dauerhaft);
}

int Ablehnen(const Ablehnung& ablehnung, const Ausgabewunsch& wunsch) {
    if (wunsch.format == Ausgabeformat::json)
        TextAusgeben(
            Ergebnisobjekt(false, [&](JsonSchreiber& s) { AblehnungsfelderSchreiben(ablehnung, s); }),
            wunsch);
    if (!ablehnung.Meldung.empty()) FehlerMelden(ablehnung.Meldung);
    return status::abgelehnt;
}

}  // namespace

std::string Effektivzeilen(std::string_view ezins, Effektivmethode methode) {
    const std::string satz = ezins.empty() ? "keiner gefunden" : std::string(ezins) + " %";
    return "\nEffektivzinssatzberechnungsmethode: " + std::string(Effektivmethodentext(methode)) +
           "\nEffektivzinssatz: " + satz + "\n";
}

void AusgabenPruefen(const Ausgabewunsch& wunsch, std::span<const fs::path> eingaben) {
    std::set<fs::path> vergeben;
    for (const std::string& ausgabe : {wunsch.ausgabe, wunsch.pdf, wunsch.rtf, wunsch.html}) {
        if (ausgabe.empty()) continue;
        if (!vergeben.insert(fs::absolute(ausgabe).lexically_normal()).second)
            throw Aufruffehler("Die Ausgabe " + Angefuehrt(ausgabe) + " steht zweimal da.");
        for (const fs::path& eingabe : eingaben) {
            std::error_code egal;
            if (fs::equivalent(ausgabe, eingabe, egal))
                throw Aufruffehler("Die Ausgabe " + Angefuehrt(ausgabe) + " nähme einer Eingabe den Platz.");
        }
    }
}

int ErgebnisAusgeben(const Ausgabewunsch& wunsch,
                     const std::function<std::variant<Befehlsergebnis, Ablehnung>()>& rechnen,
                     std::string_view fehlerregister) {
    Fertiges fertiges;
    const auto ablehnung = MitFalle(fehlerregister, [&]() -> std::optional<Ablehnung> {
        const auto ausgang = rechnen();
        if (const auto* abgelehnt = std::get_if<Ablehnung>(&ausgang)) return *abgelehnt;
        const auto& ergebnis = std::get<Befehlsergebnis>(ausgang);
        if (wunsch.format) fertiges.ausgabe = AlsAusgabe(ergebnis, *wunsch.format);
        if (wunsch.Berichte()) fertiges.bericht = ergebnis.bericht();
        return std::nullopt;
    });
    if (ablehnung) return Ablehnen(*ablehnung, wunsch);
    if (fertiges.bericht) BerichteSchreiben(*fertiges.bericht, wunsch);
    if (wunsch.format) TextAusgeben(fertiges.ausgabe, wunsch);
    return status::fertig;
}

}  // namespace zinfolio
