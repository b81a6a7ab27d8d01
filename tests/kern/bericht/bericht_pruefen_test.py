"""Shows that the check of reports refuses what it should: each test damages a good document in one place."""

import unittest

from bericht_pruefen import html_fehler, rtf_fehler, unrtf_fehler

ZELLEN = [["01.01.2007", "{Köln}"], ["", "a<b"]]
KOPF = b"\\trowd\\trhdr\\cellx1000\\cellx2000\\pard\\intbl Datum\\cell Vorgang\\cell\\row\r\n"
RTF = (
    b"{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\r\n\\paperw3000\\margl500\\margr500\r\n{\\header\r\n" + KOPF + b"\\pard\\par}\r\n"
    + KOPF.replace(b"\\trhdr", b"")
    + b"\\trowd\\cellx1000\\cellx2000\\pard\\intbl 01.01.2007\\cell \\{K\\'f6ln\\}\\cell\\row\r\n"
    + b"\\trowd\\cellx1000\\cellx2000\\pard\\intbl \\cell a<b\\cell\\row\r\n\\pard\\par\r\n}\r\n"
)
HTML = (
    "<!DOCTYPE html>\n<html><head><title>x</title></head><body><table><thead><tr><th>a</th><th>b</th></tr></thead>"
    "<tbody><tr><td>01.01.2007</td><td>{Köln}</td></tr><tr><td></td><td>a&lt;b</td></tr></tbody></table></body></html>"
).encode()


class Pruefung(unittest.TestCase):
    def test_gute_dokumente_haben_keinen_fehler(self):
        self.assertEqual(rtf_fehler(RTF, ZELLEN), [])
        self.assertEqual(unrtf_fehler(RTF, ZELLEN), [])
        self.assertEqual(html_fehler(HTML, ZELLEN), [])

    def test_beschaedigtes_rtf_faellt_auf(self):
        schaeden = {
            "offene Klammer": (b"{\\fonttbl{", b"{\\fonttbl{{"),
            "Klammer zu viel": (b"Arial;}}", b"Arial;}}}"),
            "Byte über 7F": (b"\\'f6", "ö".encode()),
            "nacktes Zeilenende": (b"\\row\r\n\\pard\\par\r\n", b"\\row\n\\pard\\par\r\n"),
            "fehlende Zelle": (b"a<b\\cell", b"a<b"),
            "breiter als das Papier": (b"\\cellx2000\\pard\\intbl \\cell", b"\\cellx2001\\pard\\intbl \\cell"),
            "Spalten rückwärts": (b"\\cellx1000\\cellx2000\\pard\\intbl \\cell", b"\\cellx2000\\cellx1000\\pard\\intbl \\cell"),
            "Kopf nur einmal": (b"\\trhdr", b""),
            "anderer Kopf": (b"Datum\\cell Vorgang\\cell\\row\r\n\\trowd\\cellx", b"Datum\\cell Zins\\cell\\row\r\n\\trowd\\cellx"),
            "andere Zelle": (b"2007", b"2008"),
        }
        for name, (alt, neu) in schaeden.items():
            with self.subTest(name):
                self.assertIn(alt, RTF)
                self.assertNotEqual(rtf_fehler(RTF.replace(alt, neu, 1), ZELLEN), [])

    def test_abgeschnittenes_rtf_faellt_auf(self):
        self.assertNotEqual(rtf_fehler(RTF[:-3], ZELLEN), [])

    def test_unrtf_merkt_eine_andere_zelle(self):
        self.assertNotEqual(unrtf_fehler(RTF.replace(b"2007", b"2008"), ZELLEN), [])

    def test_beschaedigtes_html_faellt_auf(self):
        schaeden = {
            "offener Tag": ("</td><td>{", "<td>{"),
            "falsche Reihenfolge": ("</tr></tbody>", "</tbody></tr>"),
            "andere Zelle": ("2007", "2008"),
            "fehlende Zelle": ("<td></td>", ""),
            "Zelle im Kopf zu viel": ("<th>a</th>", "<th>a</th><th>c</th>"),
            "nicht umschrieben": ("a&lt;b", "a<b"),
            "Text zwischen den Tags": ("</tr><tr>", "</tr>x<tr>"),
            "ohne Titel": ("<title>x</title>", "<title></title>"),
        }
        for name, (alt, neu) in schaeden.items():
            with self.subTest(name):
                self.assertIn(alt, HTML.decode())
                self.assertNotEqual(html_fehler(HTML.decode().replace(alt, neu, 1).encode(), ZELLEN), [])


if __name__ == "__main__":
    unittest.main()
