#pragma once
// All windows of the program, for tests that hold each of them to the same.

#include <QWidget>
#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include "fenster/allround/form61000.h"
#include "fenster/ausgabe/form34.h"
#include "fenster/hilfe/hilfefenster.h"
#include "fenster/rechner/importvorschau.h"
#include "fenster/sparen/sparrechner.h"
#include "fenster/staffel/form48000.h"
#include "fenster/start/form1.h"
#include "fenster/tabellen/form14005.h"
#include "fenster/tabellen/kurzfenster.h"

namespace zinfolio {

using Ordner = std::filesystem::path;
using Fenster = std::unique_ptr<QWidget>;

template <class Form>
Fenster NeuesFenster(const Ordner& ordner) {
    return std::make_unique<Form>(ordner);
}

/// A preview with lines that were taken and lines that were not.
inline Fenster NeueImportvorschau(const Ordner& /*ordner*/) {
    const Zahlungsimport ergebnis = ZahlungenEinlesen("Datum;Betrag\n01.01.2024;1\n02.01.2024;x\n");
    return std::make_unique<Importvorschau>(ergebnis, "der Datei a.csv", Tabelleninhalt{}, nullptr);
}

struct Fensterart {
    const char* name;
    std::function<Fenster(const Ordner&)> neu;
};

/// All windows of the program.
inline std::vector<Fensterart> AlleFenster() {
    std::vector<Fensterart> alle{
        {"Form1", NeuesFenster<Form1>},
        {"Form48000", NeuesFenster<Form48000>},
        {"Form61000", NeuesFenster<Form61000>},
        {"Form90000", NeuesFenster<Form90000>},
        {"Form92000", NeuesFenster<Form92000>},
        {"Form94000", NeuesFenster<Form94000>},
        {"Form96000", NeuesFenster<Form96000>},
        {"Form99000", NeuesFenster<Form99000>},
        {"Form14005", NeuesFenster<Form14005>},
        {"Form34", NeuesFenster<Form34>},
        {"Hilfe", [](const Ordner&) { return std::make_unique<Hilfefenster>(); }},
        {"Importvorschau", NeueImportvorschau},
    };
    for (const Kurzrechner& rechner : AlleKurzrechner())
        alle.push_back({rechner.name.data(), [&rechner](const Ordner& ordner) {
                            return std::make_unique<Kurzfenster>(rechner, ordner);
                        }});
    return alle;
}

}  // namespace zinfolio
