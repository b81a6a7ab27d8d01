#include "kern/staffel/kontodiagramm.h"

#include <algorithm>

#include "kern/dates/zahl.h"
#include "kern/staffel/kontoansicht.h"

namespace zinfolio {
namespace {

/// The column of "Kurzform" with that header.
Kontospalte Kurzformspalte(std::string_view kopf) {
    const std::vector<Kontospalte> spalten = Ansichtsspalten(Kontoansicht::kurzform);
    return *std::ranges::find(spalten, kopf, &Kontospalte::kopf);
}

}  // namespace

std::variant<Diagramm, Ablehnung> Kontodiagramm(std::span<const Staffelsatz> loesung,
                                                std::span<const std::size_t> zeilen,
                                                const Kontodiagrammtexte& texte) {
    if (zeilen.size() < 2) return Ablehnung{std::string(diagrammBrauchtZweiZeilen), "", ""};
    const Kontospalte datum = Kurzformspalte("Datum");
    const Kontospalte betrag = Kurzformspalte("Zahlungsbetrag");
    const Kontospalte kontostand = Kurzformspalte("Kontostand");
    const auto einheit = EinheitWaehlen(Zahl(kontostand.zelle(loesung[zeilen.back()])), texte.einheiten);
    Diagramm diagramm{.achsentitel = std::string(einheit.titel), .teiler = einheit.teiler};
    Diagrammreihe staende{.name = std::string(texte.kontostand)};
    Diagrammreihe zahlungen{.name = std::string(texte.zahlungen)};
    double summe = 0;
    for (const std::size_t zeile : zeilen) {
        const std::string tag = datum.zelle(loesung[zeile]);
        diagramm.zeilentexte.push_back(std::string(texte.vorJahr) + Jahrestext(tag) +
                                       std::string(texte.nachJahr));
        diagramm.zeilennamen.push_back(tag);
        staende.werte.push_back(Zahl(kontostand.zelle(loesung[zeile])) / einheit.teiler);
        summe += Zahl(betrag.zelle(loesung[zeile]));
        zahlungen.werte.push_back(summe / einheit.teiler);
    }
    diagramm.reihen = {std::move(staende), std::move(zahlungen)};
    return diagramm;
}

std::variant<Diagramm, Ablehnung> Kontodiagramm(std::span<const Staffelsatz> loesung) {
    return Kontodiagramm(loesung, Ansichtszeilen(Kontoansicht::kurzform, loesung), kontodiagrammtexte);
}

}  // namespace zinfolio
