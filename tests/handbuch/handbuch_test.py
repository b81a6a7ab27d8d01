"""Shows that the check of the handbook refuses what it should, with a command of its own that answers from a table."""

import stat
import tempfile
import unittest
from pathlib import Path

import handbuch

ANTWORTEN = {'{"a":1}': {"ok": True, "Zins": 25.45, "Text": "1.278,00", "Termine": ["30.06.2007", "31.12.2007"]}}


def verstoesse(kapitel, inhalt="[K](kapitel.md)"):
    with tempfile.TemporaryDirectory() as name:
        ordner = Path(name)
        (ordner / "inhalt.md").write_text(inhalt, encoding="utf-8")
        (ordner / "kapitel.md").write_text(kapitel, encoding="utf-8")
        programm = ordner / "befehl"
        programm.write_text(
            "#!/usr/bin/env python3\nimport json, sys\n"
            f"print(json.dumps({ANTWORTEN!r}.get(sys.stdin.read(), {{'Meldung': 'unbekannt'}})))\n",
            encoding="utf-8",
        )
        programm.chmod(programm.stat().st_mode | stat.S_IXUSR)
        return handbuch.pruefe(ordner, str(programm))


def beispiel(soll, text, auftrag='{"a":1}'):
    return f"# K\n<!-- beispiel {auftrag} -->\n<!-- ergebnis {soll} -->\n{text}\n"


class Handbuch(unittest.TestCase):
    def test_stimmige_seite_hat_keinen_verstoss(self):
        self.assertEqual(verstoesse(beispiel("Zins=25.45 Text=1.278,00", "25,45 € und 1.278,00 €. [K](#k)")), [])
        self.assertEqual(verstoesse(beispiel('Termine=["30.06.2007","31.12.2007"]', "30.06.2007 und\n31.12.2007")), [])

    def test_falsches_ergebnis_wird_bemerkt(self):
        self.assertEqual(len(verstoesse(beispiel("Zins=25.46", "25,46"))), 1)

    def test_fehlendes_feld_und_abgelehnter_auftrag_werden_bemerkt(self):
        self.assertEqual(len(verstoesse(beispiel("Fehlt=1", "1"))), 1)
        self.assertIn("unbekannt", verstoesse(beispiel("Zins=25.45", "25,45", '{"b":2}'))[0])

    def test_wert_der_nicht_im_text_steht_wird_bemerkt(self):
        self.assertEqual(verstoesse(beispiel("Zins=25.45", "viel")), ["kapitel.md: Zins=25.45 steht nicht im Text"])

    def test_wert_in_einem_anderen_abschnitt_zaehlt_nicht(self):
        self.assertEqual(len(verstoesse(beispiel("Zins=25.45", "viel") + "## Weiter\n25,45\n")), 1)

    def test_beispiel_ohne_ergebnis_wird_bemerkt(self):
        self.assertEqual(len(verstoesse('# K\n<!-- beispiel {"a":1} -->\n')), 1)

    def test_toter_verweis_und_fehlende_ueberschrift_werden_bemerkt(self):
        gut = beispiel("Zins=25.45", "25,45")
        self.assertEqual(verstoesse(gut + "[x](fehlt.md)"), ["kapitel.md: fehlt.md gibt es nicht"])
        self.assertEqual(verstoesse(gut + "[x](kapitel.md#fehlt)"), ["kapitel.md: kapitel.md#fehlt: keine solche Überschrift"])

    def test_kapitel_ausserhalb_des_inhalts_wird_bemerkt(self):
        self.assertEqual(verstoesse(beispiel("Zins=25.45", "25,45"), inhalt="leer"), ["kapitel.md: steht nicht im Inhaltsverzeichnis"])

    def test_handbuch_ohne_beispiel_ist_ein_fehler(self):
        self.assertEqual(verstoesse("# K\n"), ["kein Beispiel gefunden"])

    def test_sprungziele_sind_klein_und_ohne_satzzeichen(self):
        self.assertEqual(handbuch.sprungziel("Zins-/Tilgungsplan"), "zins-tilgungsplan")
        self.assertEqual(handbuch.sprungziel("Zinsstaffel berechnen"), "zinsstaffel-berechnen")


if __name__ == "__main__":
    unittest.main()
