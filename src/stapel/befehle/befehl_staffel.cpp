#include <filesystem>
#include <memory>
#include <new>
#include <set>
#include <system_error>
#include <vector>

#include "kern/bericht/htmlbericht.h"
#include "kern/bericht/rtfbericht.h"
#include "kern/dateien/atomar.h"
#include "kern/dateien/dateifehler.h"
#include "kern/grund/meldungen.h"
#include "kern/staffel/kontobericht.h"
#include "kern/staffel/kontoprojekt.h"
#include "stapel/auftraege/ergebnisse.h"
#include "stapel/befehle/aufruffehler.h"
#include "stapel/befehle/ausgangsstatus.h"
#include "stapel/befehle/befehle.h"
#include "stapel/befehle/kanal.h"
#include "stapel/befehle/kontocsv.h"
#include "stapel/befehle/pdfmodul.h"
#include "stapel/befehle/tabellentext.h"
#include "stapel/json/jsonschreiber.h"

namespace zinfolio {
namespace {

namespace fs = std::filesystem;

/// Far more than any account.
constexpr std::size_t hoechsteTabellenlaenge = std::size_t{32} << 20;

using Tabellenleser = std::vector<Staffelsatz> (*)(std::string_view text);

/// Throws a `Kanalfehler` that names file, line and reason.
std::vector<Staffelsatz> TabelleLesen(const std::string& datei, Tabellenleser lesen) {
    const std::string name = datei == "-" ? "Standardeingabe" : datei;
    try {
        const Dateitext text = DateiLesen(datei, hoechsteTabellenlaenge);
        return lesen(std::string_view(text.puffer).substr(0, text.laenge));
    } catch (const Kanalfehler& fehler) {
        throw Kanalfehler(name + ": " + fehler.what());
    } catch (const Csvfehler& fehler) {
        throw Kanalfehler(name + ":" + std::to_string(fehler.Zeile()) + ": " + fehler.what());
    }
}

Konto KontoLesen(const Staffelaufruf& aufruf) {
    if (!aufruf.projekt.empty()) return KontoprojektLesen(aufruf.projekt);
    Konto konto;
    konto.zahlungen = TabelleLesen(aufruf.zahlungen, ZahlungenAusCsv);
    konto.konditionen = TabelleLesen(aufruf.zinssaetze, KonditionenAusCsv);
    konto.einstellungen = aufruf.einstellungen;
    return konto;
}

std::vector<fs::path> Eingaben(const Staffelaufruf& aufruf) {
    if (aufruf.projekt.empty()) return {aufruf.zahlungen, aufruf.zinssaetze};
    const Projektpfade pfade(aufruf.projekt);
    return {pfade.projekt, pfade.zahlungen, pfade.konditionen, pfade.einstellungen};
}

/// No mistyped call may destroy an account.
void AusgabenPruefen(const Staffelaufruf& aufruf) {
    const std::vector<fs::path> eingaben = Eingaben(aufruf);
    std::set<fs::path> vergeben;
    for (const std::string& ausgabe : {aufruf.ausgabe, aufruf.pdf, aufruf.rtf, aufruf.html}) {
        if (!ausgabe.empty() && !vergeben.insert(fs::absolute(ausgabe).lexically_normal()).second)
            throw Aufruffehler("Die Ausgabe \"" + ausgabe + "\" steht zweimal da.");
        for (const fs::path& eingabe : eingaben) {
            std::error_code egal;
            if (!ausgabe.empty() && fs::equivalent(ausgabe, eingabe, egal))
                throw Aufruffehler("Die Ausgabe \"" + ausgabe + "\" nähme einer Eingabe den Platz.");
        }
    }
}

/// The operation's trap: a fault of the calculation becomes the general message.
template <typename Rechnung>
std::optional<Ablehnung> MitFalle(Rechnung rechnung) {
    try {
        return rechnung();
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception&) {
        return Ablehnung{std::string(meldung::angabenFehler), "", ""};
    }
}

std::string Effektivzeilen(const Kontoeffektivzins& effektivzins, Effektivmethode methode) {
    const std::string satz = effektivzins.ezins.empty() ? "keiner gefunden" : effektivzins.ezins + " %";
    return "\nEffektivzinssatzberechnungsmethode: " + std::string(Effektivmethodentext(methode)) +
           "\nEffektivzinssatz: " + satz + "\n";
}

/// The result object of the job `staffel`, without its `id`.
std::string AlsJson(const Staffelergebnis& ergebnis, const std::optional<Ablehnung>& ablehnung) {
    std::string json;
    JsonSchreiber schreiber(json);
    schreiber.ObjektAuf();
    schreiber.Feld("ok", !ablehnung);
    if (ablehnung) {
        AblehnungsfelderSchreiben(*ablehnung, schreiber);
    } else {
        StaffelergebnisSchreiben(ergebnis, schreiber);
    }
    schreiber.ObjektZu();
    return JsonEingezogen(json) + "\n";
}

/// The calculated rows, which share the whole result.
std::shared_ptr<const std::vector<Staffelsatz>> Loesung(
    const std::shared_ptr<const Staffelergebnis>& ergebnis) {
    return {ergebnis, &ergebnis->konto.loesung};
}

std::string AlsAusgabe(const std::shared_ptr<const Staffelergebnis>& ergebnis, const Staffelaufruf& aufruf) {
    const auto ansicht = [&] { return AnsichtBilden(aufruf.ansicht, Loesung(ergebnis)); };
    switch (aufruf.format.value()) {
        case Ausgabeformat::json:
            return AlsJson(*ergebnis, std::nullopt);
        case Ausgabeformat::csv:
            return TabelleAlsCsv(ansicht());
        case Ausgabeformat::text:
            break;
    }
    std::string text = TabelleAlsText(ansicht());
    if (ergebnis->effektivzins) text += Effektivzeilen(*ergebnis->effektivzins, *aufruf.effektivmethode);
    return text;
}

Bericht BerichtBilden(const std::shared_ptr<const Staffelergebnis>& ergebnis, const Staffelaufruf& aufruf) {
    const Konto& konto = ergebnis->konto;
    Kontoberichtsdaten daten;
    daten.projekt = fs::path(aufruf.projekt).filename().string();
    daten.einstellungen = konto.einstellungen;
    if (ergebnis->effektivzins) {
        daten.ezins = ergebnis->effektivzins->ezins;
        daten.effektivmethode = Effektivmethodentext(*aufruf.effektivmethode);
    }
    daten.konditionen = konto.konditionen;
    daten.loesung = Loesung(ergebnis);
    daten.ansicht = aufruf.ansicht;
    return KontoberichtBilden(daten);
}

bool BerichtVerlangt(const Staffelaufruf& aufruf) {
    return !aufruf.pdf.empty() || !aufruf.rtf.empty() || !aufruf.html.empty();
}

/// Throws a `Dateifehler`.
void BerichteSchreiben(const Bericht& bericht, const Staffelaufruf& aufruf) {
    if (!aufruf.pdf.empty()) {
        const std::string fehler = PdfSchreiben(bericht, aufruf.pdf);
        if (!fehler.empty()) throw Dateifehler(fehler);
    }
    if (!aufruf.rtf.empty()) AtomarSchreiben(aufruf.rtf, RtfBericht(bericht), Sicherung::Dauerhaft);
    if (!aufruf.html.empty()) AtomarSchreiben(aufruf.html, HtmlBericht(bericht), Sicherung::Dauerhaft);
}

void Ausgeben(const std::string& text, const Staffelaufruf& aufruf) {
    if (aufruf.ausgabe.empty() || aufruf.ausgabe == "-") return AusgabeSchreiben(text);
    AtomarSchreiben(aufruf.ausgabe, text, Sicherung::Dauerhaft);
}

int Ablehnen(const Ablehnung& ablehnung, const Staffelaufruf& aufruf) {
    if (aufruf.format == Ausgabeformat::json) Ausgeben(AlsJson({}, ablehnung), aufruf);
    if (!ablehnung.Meldung.empty()) FehlerMelden(ablehnung.Meldung);
    return status::abgelehnt;
}

}  // namespace

int BefehlStaffel(const Staffelaufruf& aufruf) {
    AusgabenPruefen(aufruf);
    const auto ergebnis = std::make_shared<Staffelergebnis>();
    ergebnis->konto = KontoLesen(aufruf);
    std::string ausgabe;
    std::optional<Bericht> bericht;
    const auto ablehnung = MitFalle([&] {
        auto abgelehnt = StaffelRechnen(*ergebnis, aufruf.effektivmethode);
        if (abgelehnt) return abgelehnt;
        if (aufruf.format) ausgabe = AlsAusgabe(ergebnis, aufruf);
        if (BerichtVerlangt(aufruf)) bericht = BerichtBilden(ergebnis, aufruf);
        return abgelehnt;
    });
    if (ablehnung) return Ablehnen(*ablehnung, aufruf);
    if (bericht) BerichteSchreiben(*bericht, aufruf);
    if (aufruf.format) Ausgeben(ausgabe, aufruf);
    return status::fertig;
}

}  // namespace zinfolio
