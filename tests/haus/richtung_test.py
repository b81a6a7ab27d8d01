"""Shows that the direction check refuses what it should: each test makes a small source tree and names the offence."""

import tempfile
import unittest
from pathlib import Path

import richtung

GUTER_BAUM = {
    "dates/datum.h": "#include <compare>\n#include <cstdint>\n",
    "dateien/sichern.cpp": "#include <fcntl.h>\n#include <unistd.h>\n",
    "staffel/staffelsatz.h": '#include "dates/datum.h"\n',
    "staffel/form48000.h": '#include <QDialog>\n#include "staffelsatz.h"\n#include "finmath/reihe.h"\n#include "ui/feld.h"\n',
    "finmath/reihe.h": '#include "staffel/staffelsatz.h"\n',
    "sparen/plan.h": '#include "finmath/reihe.h"\n',
    "output/bericht.h": '#include "dates/datum.h"\n',
    "stapel/main.cpp": '#include <simdjson.h>\n#include <CLI/CLI.hpp>\n#include "sparen/plan.h"\n#include "output/bericht.h"\n',
    "ui/feld.h": '#include <QLineEdit>\n#include "dates/datum.h"\n',
    "ui/feld.cpp": '#include "ui/feld.h"\n#include "ui_feld.h"\n',
    "shell/main.cpp": '#include <QApplication>\n#include "staffel/form48000.h"\n',
}


def verstoesse(**dateien):
    """The offences of the good tree with files put in addition; '__' in a keyword stands for '/', '_h' and '_cpp' at its end for the suffix."""
    baum = dict(GUTER_BAUM)
    for name, inhalt in dateien.items():
        stamm, endung = name.replace("__", "/").rsplit("_", 1)
        baum[f"{stamm}.{endung}"] = inhalt + "\n"
    with tempfile.TemporaryDirectory() as ordner:
        for name, inhalt in baum.items():
            datei = Path(ordner, name)
            datei.parent.mkdir(parents=True, exist_ok=True)
            datei.write_text(inhalt, encoding="utf-8")
        return richtung.pruefe(ordner)


class Richtung(unittest.TestCase):
    def test_guter_baum_hat_keinen_verstoss(self):
        self.assertEqual(verstoesse(), [])

    def test_unterer_raum_kennt_keinen_oberen(self):
        self.assertEqual(
            verstoesse(staffel__schlau_cpp='#include <vector>\n\n#include "finmath/reihe.h"'),
            ["staffel/schlau.cpp:3: staffel darf finmath nicht kennen (finmath/reihe.h)"],
        )

    def test_dates_und_dateien_kennen_einander_nicht(self):
        self.assertEqual(
            verstoesse(dateien__x_h='#include "dates/datum.h"'),
            ["dateien/x.h:1: dateien darf dates nicht kennen (dates/datum.h)"],
        )
        self.assertEqual(
            verstoesse(dateien__x_h="", dates__y_h='#include "../dateien/x.h"'),
            ["dates/y.h:1: dates darf dateien nicht kennen (dateien/x.h)"],
        )

    def test_kern_kennt_die_formulare_des_eigenen_ordners_nicht(self):
        self.assertEqual(
            verstoesse(staffel__sicht_cpp='#include "form48000.h"'),
            ["staffel/sicht.cpp:1: staffel darf formen nicht kennen (staffel/form48000.h)"],
        )

    def test_kern_und_stapel_kennen_kein_qt(self):
        for raum in ("dates", "dateien", "staffel", "finmath", "sparen", "allround", "tabellen", "output", "stapel"):
            with self.subTest(raum):
                for kopf in ("QString", "QtCore/QString", "QtWidgets", "qcustomplot.h"):
                    self.assertEqual(
                        verstoesse(**{f"{raum}__x_h": f"#  include <{kopf}>"}),
                        [f"{raum}/x.h:1: {raum} darf {kopf} nicht kennen"],
                    )

    def test_formatmuster_und_formeln_sind_keine_formulare(self):
        for name in ("formatmuster", "formel"):
            self.assertEqual(
                verstoesse(**{f"output__{name}_h": "#include <QString>"}),
                [f"output/{name}.h:1: output darf QString nicht kennen"],
            )

    def test_simdjson_und_cli11_gehoeren_dem_stapel(self):
        self.assertEqual(
            verstoesse(sparen__x_cpp="#include <simdjson.h>"), ["sparen/x.cpp:1: sparen darf simdjson.h nicht kennen"]
        )
        self.assertEqual(verstoesse(shell__x_cpp="#include <CLI/CLI.hpp>"), ["shell/x.cpp:1: shell darf CLI/CLI.hpp nicht kennen"])

    def test_ui_kennt_keine_rechnung_und_kein_formular(self):
        self.assertEqual(
            verstoesse(ui__tabelle_h='#include "finmath/reihe.h"'),
            ["ui/tabelle.h:1: ui darf finmath nicht kennen (finmath/reihe.h)"],
        )
        self.assertEqual(
            verstoesse(ui__tabelle_h='#include "staffel/form48000.h"'),
            ["ui/tabelle.h:1: ui darf formen nicht kennen (staffel/form48000.h)"],
        )

    def test_formulare_kennen_den_rahmen_und_den_stapel_nicht(self):
        self.assertEqual(
            verstoesse(shell__form1_h="", sparen__form90000_cpp='#include "shell/form1.h"'),
            ["sparen/form90000.cpp:1: formen darf shell nicht kennen (shell/form1.h)"],
        )
        self.assertEqual(
            verstoesse(stapel__job_h="", output__form34_cpp='#include "stapel/job.h"'),
            ["output/form34.cpp:1: formen darf stapel nicht kennen (stapel/job.h)"],
        )

    def test_unbekannter_raum_ist_ein_fehler(self):
        self.assertEqual(verstoesse(hilfe__x_h=""), ["hilfe/x.h: liegt in keinem bekannten Raum"])
        self.assertEqual(verstoesse(lose_h=""), ["lose.h: liegt in keinem bekannten Raum"])
        self.assertEqual(verstoesse(formen__x_h=""), ["formen/x.h: liegt in keinem bekannten Raum"])

    def test_fremder_kopf_ohne_regel_und_fehlende_datei_sind_ein_fehler(self):
        self.assertEqual(verstoesse(dates__x_h="#include <boost/any.hpp>"), ["dates/x.h:1: unbekannter fremder Kopf boost/any.hpp"])
        self.assertEqual(verstoesse(dates__x_h='#include "dates/fehlt.h"'), ["dates/x.h:1: unbekannter fremder Kopf dates/fehlt.h"])

    def test_quelle_schliesst_ihren_eigenen_kopf_zuerst_ein(self):
        self.assertEqual(
            verstoesse(dates__tage_h="", dates__tage_cpp='#include <string>\n#include "dates/tage.h"'),
            ["dates/tage.cpp: schließt tage.h nicht zuerst ein"],
        )
        self.assertEqual(verstoesse(dates__tage_h="", dates__tage_cpp=""), ["dates/tage.cpp: schließt tage.h nicht zuerst ein"])
        self.assertEqual(verstoesse(dates__tage_h="", dates__tage_cpp='#include "tage.h"\n#include <string>'), [])

    def test_ordner_ohne_quellen_ist_ein_fehler(self):
        with tempfile.TemporaryDirectory() as leer:
            self.assertEqual(len(richtung.pruefe(leer)), 1)


if __name__ == "__main__":
    unittest.main()
