#include "stapel/auftraege/auftragsrechner.h"

#include <algorithm>
#include <new>

#include "kern/grund/meldungen.h"
#include "kern/grund/utf8.h"
#include "stapel/auftraege/ergebnisse.h"
#include "stapel/auftraege/rechnungen.h"
#include "stapel/json/auftragsfehler.h"
#include "stapel/json/jsonschreiber.h"

namespace zinfolio {
namespace {

const Rechnungsart& RechnungsartSuchen(const std::optional<std::string>& name, const char* stelle) {
    if (!name) throw Auftragsfehler("Das Feld \"rechnung\" fehlt.", stelle);
    const auto art = std::ranges::find(rechnungsarten, *name, &Rechnungsart::name);
    if (art != rechnungsarten.end()) return **art;
    constexpr std::size_t zeigbar = 40;
    throw Auftragsfehler(
        "Das Feld \"rechnung\" nennt eine unbekannte Rechnung: \"" + Gekuerzt(*name, zeigbar) + "\".",
        stelle);
}

/// The operation's trap: a fault of the calculation becomes the general message.
std::optional<Ablehnung> MitFalle(const Rechnungsart& art, JsonWert& auftrag, JsonSchreiber& ergebnis) {
    try {
        return art.rechnen(auftrag, ergebnis);
    } catch (const Auftragsfehler&) {
        throw;
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception&) {
        if (ergebnis.IstFest()) throw;
        return Ablehnung{std::string(meldung::angabenFehler), "", std::string(art.fehlerregister)};
    }
}

JsonSchreiber Eroeffnet(std::string& ergebnis, const Auftragskopf& kopf, bool ok,
                        const Rueckruf<void()>* abfluss = nullptr) {
    JsonSchreiber schreiber(ergebnis, abfluss);
    schreiber.ObjektAuf();
    schreiber.Name("id");
    schreiber.Fertiges(kopf.id);
    schreiber.Feld("ok", ok);
    return schreiber;
}

void AblehnungSchreiben(const Ablehnung& ablehnung, const Auftragskopf& kopf, std::string& ergebnis) {
    JsonSchreiber schreiber = Eroeffnet(ergebnis, kopf, false);
    AblehnungsfelderSchreiben(ablehnung, schreiber);
    schreiber.ObjektZu();
}

std::optional<std::size_t> StelleIn(std::string_view auftrag, const char* stelle) {
    if (stelle < auftrag.data() || stelle > auftrag.data() + auftrag.size()) return std::nullopt;
    return static_cast<std::size_t>(stelle - auftrag.data());
}

}  // namespace

Auftragsausgang Auftragsrechner::Versuchen(std::string_view auftrag, std::string& ergebnis,
                                           const Rueckruf<void()>* abfluss) {
    const std::size_t anfang = ergebnis.size();
    leser.Oeffnen(auftrag);
    leser.KopfLesen(kopf);
    const Rechnungsart& art = RechnungsartSuchen(kopf.rechnung, auftrag.data());
    JsonSchreiber schreiber = Eroeffnet(ergebnis, kopf, true, abfluss);
    std::optional<Ablehnung> ablehnung;
    leser.AuftragLesen([&](JsonWert& wert) { ablehnung = MitFalle(art, wert, schreiber); });
    if (!ablehnung) {
        schreiber.ObjektZu();
        return {};
    }
    ergebnis.resize(anfang);
    AblehnungSchreiben(*ablehnung, kopf, ergebnis);
    return {Ausgang::abgelehnt, std::move(ablehnung->Meldung)};
}

Auftragsausgang Auftragsrechner::Rechnen(std::string_view auftrag, std::string& ergebnis,
                                         const Rueckruf<void()>* abfluss) {
    const std::size_t anfang = ergebnis.size();
    kopf.id = "null";
    kopf.rechnung.reset();
    try {
        return Versuchen(auftrag, ergebnis, abfluss);
    } catch (const Auftragsfehler& fehler) {
        ergebnis.resize(anfang);
        AblehnungSchreiben({fehler.what(), "", ""}, kopf, ergebnis);
        return {Ausgang::ungueltig, fehler.what(), StelleIn(auftrag, fehler.Stelle())};
    }
}

}  // namespace zinfolio
