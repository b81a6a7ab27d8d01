#pragma once

#include <QComboBox>
#include <QPushButton>
#include <QSpinBox>
#include <memory>

#include "fenster/ausgabe/export.h"
#include "fenster/ausgabe/formvorschau.h"
#include "fenster/ausgabe/seitenansicht.h"
#include "fenster/formhelfer.h"
#include "fenster/nummernbericht.h"

namespace zinfolio {

/// A shown preview with folders of its own, gone with the test: 150 rows, which are a head page and four
/// pages of the table.
struct Vorschauaufbau {
    Vorschauaufbau() {
        form.resize(1000, 700);
        BerichtZeigen(150);
        Zeige(form);
    }

    void BerichtZeigen(std::size_t zeilen) {
        gebildet = 0;
        form.Zeigen([this, zeilen] {
            ++gebildet;
            return Nummernbericht(zeilen);
        });
    }

    Seitenansicht* Ansicht() { return Finde<Seitenansicht>(&form, "VP"); }
    QString Seitenangabe() { return Finde<QSpinBox>(&form, "Seitenzahl")->text(); }
    void Klicke(const char* taste) { QTest::mouseClick(Finde<QPushButton>(&form, taste), Qt::LeftButton); }
    void Exportieren(Exportziel ziel) {
        Finde<QComboBox>(&form, "Combo18")->setCurrentIndex(static_cast<int>(ziel));
        Klicke("Command12");
    }

    Testordner arbeit;
    Testordner ablage;
    FormVorschau form{arbeit.Pfad()};
    /// How often the report was composed.
    int gebildet = 0;
};

}  // namespace zinfolio
