#include "stapel/befehle/stapelverarbeitung.h"

#include <atomic>
#include <thread>
#include <utility>
#include <vector>

#include "stapel/json/jsonschreiber.h"

namespace zinfolio {
namespace {

bool IstLeer(std::string_view zeile) {
    return zeile.find_first_not_of(" \t\r") == std::string_view::npos;
}

/// Calculates the lines of a block. `abfluss` is called whenever the results have become long.
bool BlockRechnen(std::string_view zeilen, Auftragsrechner& rechner, std::string& ergebnis,
                  const Rueckruf<void()>& abfluss) {
    bool alle = true;
    while (!zeilen.empty()) {
        alle = ZeileRechnen(ZeileNehmen(zeilen), rechner, ergebnis, &abfluss) && alle;
        if (ergebnis.size() >= JsonSchreiber::abflussmenge) abfluss();
    }
    return alle;
}

bool AlleinRechnen(Zeilenleser& leser, const Senke& senke) {
    Auftragsrechner rechner;
    Zeilenblock block;
    std::string ergebnis;
    const auto ausgeben = [&] {
        if (!ergebnis.empty()) senke(ergebnis);
        ergebnis.clear();
    };
    bool alle = true;
    while (leser.Naechster(block)) {
        alle = BlockRechnen(block.Zeilen(), rechner, ergebnis, ausgeben) && alle;
        ausgeben();
    }
    return alle;
}

void AmBandArbeiten(Fliessband& band, std::atomic<bool>& alle) {
    try {
        Auftragsrechner rechner;
        while (Werkstueck* const stueck = band.Nehmen()) {
            const auto ausgeben = [&] { band.Zwischenausgabe(*stueck); };
            if (!BlockRechnen(stueck->block.Zeilen(), rechner, stueck->ergebnis, ausgeben)) alle = false;
            band.Fertig(*stueck);
        }
    } catch (...) {
        band.Abbrechen(std::current_exception());
    }
}

void Beschicken(Fliessband& band, Zeilenleser& leser) {
    Zeilenblock block;
    while (leser.Naechster(block) && band.Auflegen(block)) {
    }
}

bool GemeinsamRechnen(Zeilenleser& leser, Senke senke, unsigned kerne) {
    Fliessband band(2 * std::size_t{kerne} + 2, std::move(senke));
    std::atomic<bool> alle = true;
    {
        std::vector<std::jthread> arbeiter;
        struct Schluss {  // before the threads are joined, also on the way of an exception
            Fliessband& zuSchliessen;
            ~Schluss() { zuSchliessen.Schliessen(); }
        };
        arbeiter.reserve(kerne);
        const Schluss schluss{band};
        for (unsigned i = 0; i < kerne; ++i)
            arbeiter.emplace_back([&] { AmBandArbeiten(band, alle); });
        Beschicken(band, leser);
    }
    band.FehlerWerfen();
    return alle;
}

}  // namespace

bool ZeileRechnen(std::string_view zeile, Auftragsrechner& rechner, std::string& ergebnis,
                  const Rueckruf<void()>* abfluss) {
    if (IstLeer(zeile)) return true;
    bool gerechnet = false;
    if (zeile.size() > hoechsteZeilenlaenge) {
        ergebnis += R"({"id":null,"ok":false,"Meldung":"Die Zeile ist länger als 32 MB.",)"
                    R"("Feld":null,"Register":null})";
    } else {
        gerechnet = rechner.Rechnen(zeile, ergebnis, abfluss).ausgang == Ausgang::gerechnet;
    }
    ergebnis += '\n';
    return gerechnet;
}

bool StapelRechnen(Quelle quelle, Senke senke, unsigned kerne) {
    Zeilenleser leser(std::move(quelle));
    return kerne <= 1 ? AlleinRechnen(leser, senke) : GemeinsamRechnen(leser, std::move(senke), kerne);
}

}  // namespace zinfolio
