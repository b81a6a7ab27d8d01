"""Reads reports from outside: as rich text by a reader of its own and by unrtf, as HTML by Python's parser.

Each reader must find every cell of the table in its place, and the document must be well formed.

Call: bericht_pruefen.py PROBE KIND PAYMENTS, where PROBE is the program bericht_probe. Ends with status 1 and a line for each offence.
"""

import re
import subprocess
import sys
import tempfile
from html.parser import HTMLParser

MARKE = re.compile(rb"\\'([0-9a-f]{2})|\\([a-z]+)(-?\d+)? ?|\\([{}\\])|([{}])|(\r\n)|([^\\{}\r\n]+)|(.)", re.DOTALL)


class Rtf:
    """A rich-text document as its rows: those of the page header, and those of the body as (repeated, cells)."""

    def __init__(self, inhalt):
        self.fehler, self.kopfzeilen, self.zeilen = [], [], []
        self.gruppen, self.im_kopf = [], None
        self.werte, self.raender, self.zellen, self.text, self.wiederholt = {}, [], [], "", False
        if any(byte > 0x7F for byte in inhalt):
            self.fehler.append("ein Byte über 7F")
        if not inhalt.endswith(b"}\r\n"):
            self.fehler.append("das Ende fehlt")
        for treffer in MARKE.finditer(inhalt):
            self.marke(treffer)
        if self.gruppen:
            self.fehler.append("eine Klammer bleibt offen")

    def marke(self, treffer):
        byte, wort, zahl, zeichen, klammer, _, text, rest = treffer.groups()
        if byte:
            self.text += bytes.fromhex(byte.decode()).decode("cp1252")
        elif wort:
            self.steuerwort(wort.decode(), int(zahl) if zahl else None)
        elif klammer:
            self.klammer(klammer)
        elif rest:
            self.fehler.append(f"ein Zeichen {rest!r}, das hier nicht stehen darf")
        else:
            self.text += (zeichen or text or b"").decode("latin-1")

    def klammer(self, klammer):
        if klammer == b"{":
            self.gruppen.append(klammer)
            return
        if not self.gruppen:
            self.fehler.append("eine Klammer zu viel")
            return
        self.gruppen.pop()
        if self.im_kopf is not None and len(self.gruppen) < self.im_kopf:
            self.im_kopf = None

    def steuerwort(self, wort, zahl):
        if zahl is not None:
            self.werte.setdefault(wort, zahl)
        if wort == "header":
            self.im_kopf = len(self.gruppen)
        elif wort == "trowd":
            self.raender, self.zellen, self.wiederholt = [], [], False
        elif wort == "trhdr":
            self.wiederholt = True
        elif wort == "cellx":
            self.raender.append(zahl)
        elif wort in ("pard", "par"):
            self.text = ""
        elif wort == "cell":
            self.zellen.append(self.text)
            self.text = ""
        elif wort == "row":
            self.zeilenende()

    def zeilenende(self):
        if len(self.zellen) != len(self.raender):
            self.fehler.append(f"{len(self.zellen)} Zellen in {len(self.raender)} Spalten: {self.zellen}")
        breite = self.werte.get("paperw", 0) - self.werte.get("margl", 0) - self.werte.get("margr", 0)
        if self.raender != sorted(set(self.raender)) or not 0 < self.raender[0] <= self.raender[-1] <= breite:
            self.fehler.append(f"Spalten {self.raender} auf {breite} Twips")
        ziel = self.kopfzeilen if self.im_kopf is not None else self.zeilen
        ziel.append((self.wiederholt, self.zellen))


def rtf_fehler(inhalt, zellen):
    """What is wrong with a rich-text report whose table has these cells."""
    rtf = Rtf(inhalt)
    fehler = list(rtf.fehler)
    koepfe = len(rtf.kopfzeilen)
    # Behind the title lines, which go over the whole table.
    titel = max(0, len(rtf.zeilen) - koepfe - len(zellen))
    if any(len(z) != 1 for _, z in rtf.zeilen[:titel]):
        fehler.append("zwischen Titel und Tabellenkopf steht etwas anderes")
    if not koepfe or not all(wiederholt for wiederholt, _ in rtf.kopfzeilen):
        fehler.append("der Tabellenkopf wird nicht auf jeder Seite wiederholt")
    if [z for _, z in rtf.zeilen[titel:titel + koepfe]] != [z for _, z in rtf.kopfzeilen]:
        fehler.append("die erste Seite hat einen anderen Tabellenkopf als die übrigen")
    if [z for _, z in rtf.zeilen[titel + koepfe:]] != zellen:
        fehler.append("die Zellen sind andere")
    return fehler


def unrtf_fehler(inhalt, zellen):
    """The same as unrtf sees it: a tab before each cell, behind its first character where that is an escaped one.

    Where a long table is cut, the tab of its next cell stands on a line of its own.
    """
    with tempfile.NamedTemporaryFile(suffix=".rtf") as datei:
        datei.write(inhalt)
        datei.flush()
        lauf = subprocess.run(["unrtf", "--text", "--noremap", datei.name], capture_output=True, check=True)
    text = re.sub(r"^\t\n", "\t", lauf.stdout.decode("latin-1"), flags=re.MULTILINE)
    zeilen = [zeile for zeile in text.splitlines() if zeile.startswith("\t") and zeile.strip()]
    erwartet = [re.sub(r"\t([^\0-\x7F]|[{}\\])", "\\1\t", "".join("\t" + zelle for zelle in zeile)) for zeile in zellen]
    return [] if erwartet and zeilen[-len(erwartet):] == erwartet else ["unrtf liest andere Zellen"]


class Html(HTMLParser):
    """An HTML document as its rows; keeps count of its tags."""

    OHNE_ENDE = ("meta", "col")

    def __init__(self, inhalt):
        super().__init__()
        self.fehler, self.offen, self.zeilen, self.titel, self.tabellen = [], [], [], "", 0
        self.feed(inhalt)
        self.close()
        if self.offen:
            self.fehler.append(f"offen geblieben: {self.offen}")

    def handle_starttag(self, tag, attrs):
        if tag in self.OHNE_ENDE:
            return
        self.offen.append(tag)
        self.tabellen += tag == "table"
        if tag == "tr":
            self.zeilen.append((self.offen[-2], []))
        elif tag in ("td", "th"):
            self.zeilen[-1][1].append("")

    def handle_endtag(self, tag):
        if not self.offen or self.offen.pop() != tag:
            self.fehler.append(f"</{tag}> an falscher Stelle")

    def handle_data(self, data):
        if self.offen and self.offen[-1] in ("td", "th"):
            self.zeilen[-1][1][-1] += data
        elif self.offen and self.offen[-1] == "title":
            self.titel += data
        elif data.strip() and self.offen[-1:] not in (["pre"], ["style"], ["caption"]):
            self.fehler.append(f"Text zwischen den Tags: {data!r}")


def html_fehler(inhalt, zellen):
    """What is wrong with an HTML report whose table has these cells."""
    html = Html(inhalt.decode("utf-8"))
    fehler = list(html.fehler)
    if not inhalt.startswith(b"<!DOCTYPE html>\n") or not html.titel.strip() or html.tabellen != 1:
        fehler.append("kein Dokument mit Titel und einer Tabelle")
    if [z for ort, z in html.zeilen if ort == "tbody"] != zellen:
        fehler.append("die Zellen sind andere")
    koepfe = [z for ort, z in html.zeilen if ort == "thead"]
    if not koepfe or len(koepfe[-1]) != len(zellen[0]):
        fehler.append("der Tabellenkopf passt nicht")
    return fehler


def main(probe, art, zahlungen):
    def aufruf(format_):
        return subprocess.run([probe, format_, art, zahlungen], capture_output=True, check=True).stdout

    zellen = [zeile.split("\t") for zeile in aufruf("zellen").decode("utf-8").splitlines()]
    rtf = aufruf("rtf")
    fehler = [f"rtf: {f}" for f in rtf_fehler(rtf, zellen) + unrtf_fehler(rtf, zellen)]
    fehler += [f"html: {f}" for f in html_fehler(aufruf("html"), zellen)]
    print("\n".join(fehler) or f"{len(zellen)} Zeilen zu {len(zellen[0])} Zellen, dreimal dieselben.")
    return 1 if fehler else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
