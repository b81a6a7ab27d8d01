"""Shows that the comparison refuses what it should, and that the calculation gives figures known from elsewhere."""

import json
import math
import os
import sys
import tempfile
import unittest

from gegenrechnung import erzeugen, rechnen, unterschied, vergleichen

# A program that gives each job the result `ERGEBNIS`.
PROGRAMM = """#!{python}
import sys
for zeile in sys.stdin:
    print({ergebnis!r})
"""


def mit_programm(ergebnis, art, anzahl):
    """What the comparison finds where the program answers every job alike."""
    with tempfile.TemporaryDirectory() as ordner:
        programm = os.path.join(ordner, "programm")
        with open(programm, "w", encoding="utf-8") as datei:
            datei.write(PROGRAMM.format(python=sys.executable, ergebnis=ergebnis))
        os.chmod(programm, 0o755)
        return vergleichen(programm, art, anzahl, 1)


class Vergleich(unittest.TestCase):
    def test_gleiches_ist_gleich(self):
        self.assertIsNone(unterschied({"a": [1, "x", None, True]}, {"a": [1.0, "x", None, True]}))

    def test_jede_abweichung_faellt_auf(self):
        faelle = {
            "das letzte Bit": (0.1, math.nextafter(0.1, 1)),
            "ein Buchstabe": ("1,00", "1,01"),
            "Text statt Zahl": (1, "1"),
            "Wahrheit statt Zahl": (1, True),
            "nichts statt Text": ("", None),
            "eine Zeile zu viel": ([1], [1, 2]),
            "ein Feld zu viel": ({"a": 1}, {"a": 1, "b": 2}),
            "ein Feld zu wenig": ({"a": 1, "b": 2}, {"a": 1}),
        }
        for name, (soll, ist) in faelle.items():
            with self.subTest(name):
                self.assertIsNotNone(unterschied({"x": [soll]}, {"x": [ist]}))

    def test_der_ort_der_abweichung_wird_genannt(self):
        self.assertEqual(unterschied({"x": [1, {"y": 2}]}, {"x": [1, {"y": 3}]}), ".x[1].y: 2 erwartet, 3 bekommen")


class Programm(unittest.TestCase):
    def test_ein_falsches_ergebnis_faellt_auf(self):
        (auftrag,) = erzeugen("tage", 1, 1)
        richtig = {"id": None, **rechnen(auftrag)}
        falsch = {**richtig, "Zinstage": richtig["Zinstage"] + 1}
        self.assertEqual(mit_programm(json.dumps(richtig), "tage", 1), [])
        self.assertEqual(len(mit_programm(json.dumps(falsch), "tage", 1)), 1)

    def test_ohne_ergebnisse_taugen_die_auftraege_nicht(self):
        ablehnung = '{"id": null, "ok": false, "Meldung": "", "Feld": null, "Register": null}'
        self.assertIn("nur 0 von 20 Aufträgen haben ein Ergebnis", mit_programm(ablehnung, "tage", 20))

    def test_fehlende_zeilen_fallen_auf(self):
        self.assertEqual(mit_programm("{}\n{}", "tage", 3), ["6 Ergebnisse für 3 Aufträge"])


class Bekanntes(unittest.TestCase):
    """Banking trainees' forum: 15.525,38 at 7 %, eight times 2.600; the interest of each year as published there."""

    def test_acht_raten_zu_sieben_prozent(self):
        zahlungen = [{"Datum": "31.12.2006", "Betrag": 15525.38}]
        zahlungen += [{"Datum": f"31.12.{jahr}", "Betrag": -2600} for jahr in range(2007, 2015)]
        plan = rechnen({"rechnung": "tilgungsplan", "Zahlungen": zahlungen, "Combo4": 4, "Combo6": 0})
        zinsen = ["1.086,78", "980,85", "867,51", "746,24", "616,47", "477,63", "329,06", "170,09"]
        self.assertEqual([zeile[3] for zeile in plan["Jahresweise"][1:]], ["-" + betrag for betrag in zinsen])


if __name__ == "__main__":
    unittest.main()
