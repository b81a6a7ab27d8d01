"""Recomputes the worked examples of the handbook and follows its links.

An example is a pair of comments, which no reader sees: `<!-- beispiel JOB -->` with a job of the batch command, and behind it
`<!-- ergebnis FIELD=VALUE ... -->` with fields of its result. The command must give each value, and the text of the same section must
name it, so that neither the program nor the page can change alone.

Call: handbuch.py FOLDER PROGRAM. Prints each offence as chapter: reason and ends with status 1 if there is one.
"""

import json
import re
import subprocess
import sys
from pathlib import Path

KOMMENTAR = re.compile(r"<!-- (beispiel|ergebnis) (.*?) -->", re.S)
VERWEIS = re.compile(r"\]\(([^)\s]+)\)")
ERGEBNIS = re.compile(r"([^\s=]+)=(\"[^\"]*\"|\S+)")


def sprungziel(ueberschrift):
    """The anchor of a heading: lower case, blanks as hyphens, punctuation gone."""
    return re.sub(r"[^\w-]", "", ueberschrift.strip().lower().replace(" ", "-"))


def abschnitte(text):
    """The text cut before each heading."""
    return re.split(r"^(?=#{1,6} )", text, flags=re.M)


def sichtbar(abschnitt):
    """What a reader sees of a section: no comments, one blank for any white space."""
    return " ".join(re.sub(r"<!--.*?-->", "", abschnitt, flags=re.S).split())


def gelesen(text):
    """A value as the page writes it: JSON where it is JSON, else the text itself."""
    try:
        return json.loads(text)
    except json.JSONDecodeError:
        return text


def schreibweisen(wert):
    """How the page may write a value: all texts of one of these groups must stand in it."""
    if isinstance(wert, list):
        return [wert]
    if isinstance(wert, str):
        return [[wert]]
    deutsch = f"{wert:,}".replace(",", " ").replace(".", ",").replace(" ", ".")
    zweistellig = f"{wert:,.2f}".replace(",", " ").replace(".", ",").replace(" ", ".")
    return [[str(wert)], [deutsch], [zweistellig]]


def gerechnet(programm, auftrag):
    """The result object of a job; what went wrong stands in it as the command tells it."""
    lauf = subprocess.run([programm, "rechne", "-"], input=auftrag, capture_output=True, text=True, check=False)
    try:
        return json.loads(lauf.stdout)
    except json.JSONDecodeError:
        return {"Meldung": lauf.stderr or lauf.stdout}


def beispielfehler(programm, abschnitt):
    """What is wrong with the examples of one section."""
    kommentare = KOMMENTAR.findall(abschnitt)
    arten = [art for art, _ in kommentare]
    if arten != ["beispiel", "ergebnis"] * (len(arten) // 2):
        return ["Beispiele und Ergebnisse folgen nicht aufeinander"]
    fehler = []
    text = sichtbar(abschnitt)
    for (_, auftrag), (_, soll) in zip(kommentare[::2], kommentare[1::2]):
        ist = gerechnet(programm, auftrag)
        for feld, wert in ((feld, gelesen(wert)) for feld, wert in ERGEBNIS.findall(soll)):
            if ist.get(feld) != wert:
                fehler.append(f"{feld} ist {ist.get(feld, ist.get('Meldung'))!r}, nicht {wert!r}: {auftrag}")
            if not any(all(teil in text for teil in gruppe) for gruppe in schreibweisen(wert)):
                fehler.append(f"{feld}={wert!r} steht nicht im Text")
    return fehler


def verweisfehler(ordner, datei, text):
    """Links of a chapter that lead nowhere."""
    fehler = []
    for ziel in VERWEIS.findall(text):
        name, _, stelle = ziel.partition("#")
        kapitel = ordner / (name or datei.name)
        if not kapitel.is_file():
            fehler.append(f"{ziel} gibt es nicht")
        elif stelle and stelle not in map(sprungziel, re.findall(r"^#+ (.*)$", kapitel.read_text(encoding="utf-8"), re.M)):
            fehler.append(f"{ziel}: keine solche Überschrift")
    return fehler


def pruefe(ordner, programm):
    """All offences of a handbook, as lines of text."""
    ordner = Path(ordner)
    inhalt = (ordner / "inhalt.md").read_text(encoding="utf-8")
    gefunden = []
    beispiele = 0
    for datei in sorted(ordner.glob("*.md")):
        text = datei.read_text(encoding="utf-8")
        beispiele += text.count("<!-- beispiel ")
        fehler = verweisfehler(ordner, datei, text)
        for abschnitt in abschnitte(text):
            fehler += beispielfehler(programm, abschnitt)
        if datei.name != "inhalt.md" and f"]({datei.name})" not in inhalt:
            fehler.append("steht nicht im Inhaltsverzeichnis")
        gefunden += [f"{datei.name}: {grund}" for grund in fehler]
    return gefunden if beispiele else gefunden + ["kein Beispiel gefunden"]


if __name__ == "__main__":
    verstoesse = pruefe(sys.argv[1], sys.argv[2])
    print("\n".join(verstoesse) or "Alle Beispiele stimmen, alle Verweise führen an ein Ziel.")
    sys.exit(1 if verstoesse else 0)
