"""Shows that the direction check refuses what it should: each test makes a small source tree and names the offence."""

import tempfile
import unittest
from pathlib import Path

import richtung

GUTER_BAUM = {
    "kern/dates/datum.h": "#include <compare>\n#include <cstdint>\n",
    "kern/dateien/sichern.cpp": "#include <fcntl.h>\n#include <unistd.h>\n",
    "kern/finmath/reihe.h": '#include "kern/dates/datum.h"\n',
    "kern/staffel/staffelsatz.h": '#include "kern/finmath/reihe.h"\n',
    "kern/sparen/plan.h": '#include "kern/staffel/staffelsatz.h"\n',
    "kern/bericht/bericht.h": '#include "kern/dates/datum.h"\n',
    "stapel/befehle/main.cpp": '#include <simdjson.h>\n#include <CLI/CLI.hpp>\n#include "kern/sparen/plan.h"\n#include "kern/bericht/bericht.h"\n',
    "fenster/ui/feld.h": '#include <QLineEdit>\n#include "kern/dates/datum.h"\n',
    "fenster/ui/feld.cpp": '#include "fenster/ui/feld.h"\n#include "ui_feld.h"\n',
    "fenster/staffel/form48000.h": '#include <QDialog>\n#include "kern/staffel/staffelsatz.h"\n#include "fenster/ui/feld.h"\n',
    "fenster/start/main.cpp": '#include <QApplication>\n#include "fenster/staffel/form48000.h"\n',
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
            verstoesse(kern__finmath__schlau_cpp='#include <vector>\n\n#include "kern/staffel/staffelsatz.h"'),
            ["kern/finmath/schlau.cpp:3: kern/finmath darf kern/staffel nicht kennen (kern/staffel/staffelsatz.h)"],
        )

    def test_dates_und_dateien_kennen_einander_nicht(self):
        self.assertEqual(
            verstoesse(kern__dateien__x_h='#include "kern/dates/datum.h"'),
            ["kern/dateien/x.h:1: kern/dateien darf kern/dates nicht kennen (kern/dates/datum.h)"],
        )
        self.assertEqual(
            verstoesse(kern__dateien__x_h="", kern__dates__y_h='#include "../dateien/x.h"'),
            ["kern/dates/y.h:1: kern/dates darf kern/dateien nicht kennen (kern/dateien/x.h)"],
        )

    def test_kern_kennt_keinen_anderen_fluegel(self):
        self.assertEqual(
            verstoesse(kern__staffel__sicht_cpp='#include "fenster/staffel/form48000.h"'),
            ["kern/staffel/sicht.cpp:1: kern/staffel darf fenster/staffel nicht kennen (fenster/staffel/form48000.h)"],
        )
        self.assertEqual(
            verstoesse(stapel__json__wert_h="", kern__staffel__sicht_cpp='#include "stapel/json/wert.h"'),
            ["kern/staffel/sicht.cpp:1: kern/staffel darf stapel/json nicht kennen (stapel/json/wert.h)"],
        )

    def test_stapel_und_fenster_kennen_einander_nicht(self):
        self.assertEqual(
            verstoesse(stapel__befehle__job_h="", fenster__ausgabe__form34_cpp='#include "stapel/befehle/job.h"'),
            ["fenster/ausgabe/form34.cpp:1: fenster/ausgabe darf stapel/befehle nicht kennen (stapel/befehle/job.h)"],
        )
        self.assertEqual(
            verstoesse(stapel__befehle__x_cpp='#include "fenster/ui/feld.h"'),
            ["stapel/befehle/x.cpp:1: stapel/befehle darf fenster/ui nicht kennen (fenster/ui/feld.h)"],
        )

    def test_kern_und_stapel_kennen_kein_qt(self):
        for raum in [raum for raum in richtung.RAEUME if not raum.startswith("fenster/")]:
            with self.subTest(raum):
                for kopf in ("QString", "QtCore/QString", "QtWidgets", "qcustomplot.h"):
                    self.assertEqual(
                        verstoesse(**{f"{raum.replace('/', '__')}__x_h": f"#  include <{kopf}>"}),
                        [f"{raum}/x.h:1: {raum} darf {kopf} nicht kennen"],
                    )

    def test_simdjson_und_cli11_gehoeren_dem_stapel(self):
        self.assertEqual(
            verstoesse(kern__sparen__x_cpp="#include <simdjson.h>"),
            ["kern/sparen/x.cpp:1: kern/sparen darf simdjson.h nicht kennen"],
        )
        self.assertEqual(
            verstoesse(fenster__start__x_cpp="#include <CLI/CLI.hpp>"),
            ["fenster/start/x.cpp:1: fenster/start darf CLI/CLI.hpp nicht kennen"],
        )

    def test_ui_kennt_keine_rechnung_und_kein_formular(self):
        self.assertEqual(
            verstoesse(fenster__ui__tabelle_h='#include "kern/staffel/staffelsatz.h"'),
            ["fenster/ui/tabelle.h:1: fenster/ui darf kern/staffel nicht kennen (kern/staffel/staffelsatz.h)"],
        )
        self.assertEqual(
            verstoesse(fenster__ui__tabelle_h='#include "fenster/staffel/form48000.h"'),
            ["fenster/ui/tabelle.h:1: fenster/ui darf fenster/staffel nicht kennen (fenster/staffel/form48000.h)"],
        )

    def test_rechner_kennen_einander_und_den_startschirm_nicht(self):
        self.assertEqual(
            verstoesse(fenster__sparen__x_cpp='#include "fenster/staffel/form48000.h"'),
            ["fenster/sparen/x.cpp:1: fenster/sparen darf fenster/staffel nicht kennen (fenster/staffel/form48000.h)"],
        )
        self.assertEqual(
            verstoesse(fenster__start__form1_h="", fenster__sparen__form90000_cpp='#include "fenster/start/form1.h"'),
            ["fenster/sparen/form90000.cpp:1: fenster/sparen darf fenster/start nicht kennen (fenster/start/form1.h)"],
        )

    def test_inline_variablen_haben_einen_namen_fuer_sich(self):
        self.assertEqual(
            verstoesse(
                kern__sparen__a_h="inline constexpr std::array<double, 2> schritte{1, 2};",
                kern__tabellen__b_h="inline constexpr int schritte = 3;",
            ),
            ["schritte steht in a.h und b.h"],
        )

    def test_unbekannter_raum_ist_ein_fehler(self):
        self.assertEqual(verstoesse(hilfe__x_h=""), ["hilfe/x.h: liegt in keinem bekannten Raum"])
        self.assertEqual(verstoesse(lose_h=""), ["lose.h: liegt in keinem bekannten Raum"])
        self.assertEqual(verstoesse(kern__lose_h=""), ["kern/lose.h: liegt in keinem bekannten Raum"])

    def test_fremder_kopf_ohne_regel_und_fehlende_datei_sind_ein_fehler(self):
        self.assertEqual(verstoesse(kern__dates__x_h="#include <boost/any.hpp>"), ["kern/dates/x.h:1: unbekannter fremder Kopf boost/any.hpp"])
        self.assertEqual(verstoesse(kern__dates__x_h='#include "kern/dates/fehlt.h"'), ["kern/dates/x.h:1: unbekannter fremder Kopf kern/dates/fehlt.h"])

    def test_quelle_schliesst_ihren_eigenen_kopf_zuerst_ein(self):
        self.assertEqual(
            verstoesse(kern__dates__tage_h="", kern__dates__tage_cpp='#include <string>\n#include "kern/dates/tage.h"'),
            ["kern/dates/tage.cpp: schließt tage.h nicht zuerst ein"],
        )
        self.assertEqual(verstoesse(kern__dates__tage_h="", kern__dates__tage_cpp=""), ["kern/dates/tage.cpp: schließt tage.h nicht zuerst ein"])
        self.assertEqual(verstoesse(kern__dates__tage_h="", kern__dates__tage_cpp='#include "tage.h"\n#include <string>'), [])

    def test_ordner_ohne_quellen_ist_ein_fehler(self):
        with tempfile.TemporaryDirectory() as leer:
            self.assertEqual(len(richtung.pruefe(leer)), 1)


if __name__ == "__main__":
    unittest.main()
