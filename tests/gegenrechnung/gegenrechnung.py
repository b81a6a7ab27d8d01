"""Calculates random jobs of one kind anew, step by step and in the plainest way, and compares the program's results.

Numbers must agree in every bit, texts in every letter, refusals in message, field and tab.

Call: gegenrechnung.py PROGRAM KIND COUNT [SEED], where the KIND "sparen" takes its form behind a colon. Ends with
status 1 and the jobs in question if a result differs, and if fewer than a tenth of the jobs have one.
"""

import json
import random
import subprocess
import sys

import analysen
import eingaben
import faktoren
import konto
import ratensparen
import reihen
import sparsuche
import tilgungsplan
import zufall
from zahlen import ALLGEMEIN, Ablehnung, Rechenfehler

RECHNUNGEN = {
    "datum": eingaben.datumsfeld,
    "faktor": faktoren.einzelfaktor,
    "faktortabelle": faktoren.faktortabelle,
    "jahreswerte": analysen.jahreswerte,
    "kurz": ratensparen.kurz,
    "periodenzinsen": eingaben.zinsen,
    "reihe": reihen.reihe,
    "reihenwert": reihen.reihenwert,
    "sensitivitaet": analysen.sensitivitaet,
    "sparen": sparsuche.sparen,
    "staffel": konto.staffel,
    "tage": eingaben.tage,
    "tilgungsplan": tilgungsplan.tilgungsplan,
    "wertanalyse": analysen.wertanalyse,
    "zahlformat": eingaben.zahlformat,
    "zahlungsreihe": eingaben.zahlungsreihe,
    "zinstermine": eingaben.zinstermine,
}
ERZEUGER = {"datum": zufall.datumsfeld, "tage": zufall.periode}
GEZEIGT = 3

# What a fault becomes, where it is not the general message.
FEHLER = {
    "sparen": Ablehnung(ALLGEMEIN, register="Daten"),
    "kurz": Ablehnung(""),
    "reihenwert": Ablehnung(reihen.NICHT_GEFUNDEN),
}


def erzeugen(art, anzahl, saat):
    rechnung, _, form = art.partition(":")
    r = random.Random(saat)
    erzeuger = ERZEUGER.get(rechnung) or getattr(zufall, rechnung)
    return [{"rechnung": rechnung, **(erzeuger(r, form) if form else erzeuger(r))} for _ in range(anzahl)]


def rechnen(auftrag):
    rechnung = auftrag["rechnung"]
    try:
        return {"ok": True, **RECHNUNGEN[rechnung](auftrag)}
    except Ablehnung as ablehnung:
        grund = ablehnung
    except Rechenfehler:
        grund = FEHLER.get(rechnung, Ablehnung(ALLGEMEIN))
    return {"ok": False, "Meldung": grund.meldung, "Feld": grund.feld, "Register": grund.register}


def ergebnisse(programm, auftraege):
    eingabe = "".join(json.dumps(auftrag, ensure_ascii=False) + "\n" for auftrag in auftraege)
    ausgabe = subprocess.run([programm, "stapel"], input=eingabe.encode(), stdout=subprocess.PIPE, check=False).stdout
    return [json.loads(zeile) for zeile in ausgabe.decode().splitlines()]


def unterschied(soll, ist, pfad=""):
    """The path of the first difference; None where there is none."""
    if isinstance(soll, dict) and isinstance(ist, dict) and soll.keys() == ist.keys():
        paare = [(f"{pfad}.{name}", soll[name], ist[name]) for name in soll]
    elif isinstance(soll, list) and isinstance(ist, list) and len(soll) == len(ist):
        paare = [(f"{pfad}[{i}]", *paar) for i, paar in enumerate(zip(soll, ist))]
    else:
        art_gleich = isinstance(soll, (bool, str)) == isinstance(ist, (bool, str))
        return None if art_gleich and soll == ist else f"{pfad}: {soll!r} erwartet, {ist!r} bekommen"
    return next((fund for name, a, b in paare if (fund := unterschied(a, b, name))), None)


def vergleichen(programm, art, anzahl, saat):
    auftraege = erzeugen(art, anzahl, saat)
    bekommen = ergebnisse(programm, auftraege)
    if len(bekommen) != anzahl:
        return [f"{len(bekommen)} Ergebnisse für {anzahl} Aufträge"]
    funde = []
    for auftrag, ist in zip(auftraege, bekommen):
        fund = unterschied({"id": None, **rechnen(auftrag)}, ist)
        if fund:
            funde.append(f"{fund}\n    {json.dumps(auftrag, ensure_ascii=False)}")
    gerechnet = sum(ergebnis["ok"] for ergebnis in bekommen)
    if gerechnet < anzahl / 10:
        funde.append(f"nur {gerechnet} von {anzahl} Aufträgen haben ein Ergebnis")
    print(f"{art}: {anzahl} Aufträge, {gerechnet} mit Ergebnis, {len(funde)} Unterschiede")
    return funde


def main():
    programm, art, anzahl, *saat = sys.argv[1:]
    funde = vergleichen(programm, art, int(anzahl), int(saat[0]) if saat else 1)
    for fund in funde[:GEZEIGT]:
        print(fund, file=sys.stderr)
    sys.exit(1 if funde else 0)


if __name__ == "__main__":
    main()
