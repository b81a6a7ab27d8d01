"""The small jobs: days, the interest of a period, a typed date, a number's text, settlement dates, a series typed."""

import re

from kalender import datum, datumstext, mit_rastertag, monatsletzter, periodenzinsen, plus_monate, plus_tage, versuche
from kalender import zinstage as tage_zwischen
from konto import zinstermine as termine_bis
from zahlen import Ablehnung, format_, ganz, runde, vierbyte, zahl, zahltext, zahlwert


def tage(auftrag):
    return {"Zinstage": tage_zwischen(datum(auftrag["Von"]), datum(auftrag["Bis"]), auftrag["Verzinsungsmethode"])}


def zinsen(auftrag):
    anzahl, zins = periodenzinsen(
        datum(auftrag["Von"]),
        datum(auftrag["Bis"]),
        auftrag["Verzinsungsmethode"],
        float(auftrag["Betrag1"]),
        vierbyte(auftrag["Satz1"]),
        float(auftrag["Betrag2"]),
        vierbyte(auftrag["Satz2"]),
    )
    return {"Zinstage": anzahl, "Zins": zins}


def zinstermine(auftrag):
    termine = termine_bis(datum(auftrag["Erstdatum"]), datum(auftrag["Kontodatum"]), auftrag["Zinsverrechnungsart"])
    return {"Termine": [datumstext(termin) for termin in termine]}


def zahlformat(auftrag):
    vorne, _, hinten = auftrag["Muster"].partition(".")
    return {"Text": format_(float(auftrag["Wert"]), len(hinten), vorne.count("0"), "," in vorne)}


def mit_punkten(text, laenge):
    """Digits alone, as a date is typed quickly."""
    if laenge == 10 and len(text) in (6, 8):
        return f"{text[:2]}.{text[2:4]}.{'20' if len(text) == 6 else ''}{text[4:]}"
    if laenge != 10 and len(text) == 4:
        return f"{text[:2]}.{text[2:4]}."
    return text


def ergaenzt(text, laenge):
    """Day and month with two digits, the year with four; None where a point stands in the wrong place."""
    if text[1:2] == ".":
        text = "0" + text
    elif text[2:3] != ".":
        return None, text
    if len(text) < laenge:
        if text[4:5] == ".":
            text = f"{text[:3]}0{text[3:]}"
        elif text[5:6] != ".":
            return None, text
    knapp = text.strip(" ")
    if laenge == 10 and len(knapp) in (7, 8, 9):
        text = knapp[:6] + "2000"[: 10 - len(knapp)] + knapp[6:]
    return True, text


def ist_gueltig(text, laenge):
    monat = re.match(r"[+-]?(\d+\.?\d*|\.\d+)", text[3:8].lstrip(" "))
    return round(float(monat.group()) if monat else 0) <= 12 and versuche(text if laenge == 10 else text + "2000")


def datumsfeld(auftrag):
    text, laenge = auftrag["Feld"], auftrag.get("Laenge", 10)
    punkte, lesbar = text.count("."), True
    if punkte == 0:
        text = mit_punkten(text, laenge)
    elif punkte == 2:
        lesbar, text = ergaenzt(text, laenge)
    fehlerhaft = punkte not in (0, 2) or not lesbar or not ist_gueltig(text, laenge)
    if not fehlerhaft or len(text) <= 1:
        return {"Feld": text, "Abbruch": False}
    return {"Feld": auftrag["Heute"] if laenge == 10 else "", "Abbruch": True}


def letztes_datum(auftrag):
    """From the fields as typed; the day of the first date plays no part."""
    anzahl = zahlwert(auftrag["Ratzahl"] or "1")
    if len(auftrag["Begdatum"]) != 10 or not auftrag["Abstand"] or anzahl <= 0:
        return ""
    schritte = anzahl - 1
    if auftrag["Check1"] == 1 and auftrag["Stufen"] not in ("", "0"):
        schritte = anzahl * zahlwert(auftrag["Stufen"]) - 1
    weite = ganz(schritte * zahlwert(auftrag["Abstand"]))
    return datumstext(verschoben(datum(auftrag["Begdatum"]), weite, auftrag["Combo5"]))


def verschoben(tag, weite, einheit):
    return plus_tage(tag, weite) if einheit == 0 else plus_monate(tag, weite * (12 if einheit == 2 else 1))


def eingabe_pruefen(auftrag):
    """Gives the amount as the field shows it afterwards."""
    betrag = zahl(auftrag["Betrag"] or "0")
    if auftrag["Check1"] == 1 and not auftrag["Stufen"]:
        raise Ablehnung(
            "Sie haben Dynamisierung der Zahlungen angekreuzt, aber nicht die Anzahl der Stufen angegeben.", "Stufen"
        )
    if betrag == 0 or zahlwert(auftrag["Begdatum"]) == 0:
        raise Ablehnung("Unvollständige Daten. Eine Übernahme ist nicht möglich.", "Begdatum")
    return zahl(zahltext(betrag))


def zahlungsreihe(auftrag):
    label = letztes_datum(auftrag)
    betrag = eingabe_pruefen(auftrag)
    anzahl, abstand = int(zahl(auftrag["Ratzahl"] or "1")), int(zahl(auftrag["Abstand"] or "0"))
    tag = datum(auftrag["Begdatum"])
    rastertag = tag.day
    zahlungen = [(tag, betrag)]
    stufen = int(zahl(auftrag["Stufen"])) if auftrag["Check1"] == 1 else 1
    delta = zahl(auftrag["Delta"] or "0")
    for stufe in range(max(stufen, 1) if anzahl > 0 else 0):
        if stufe > 0:
            betrag = runde(betrag * (1 + delta / 100), 2) if auftrag["Command1"] == "%" else betrag + delta
        for _ in range(anzahl if stufe > 0 else anzahl - 1):
            tag = verschoben(tag, abstand, auftrag["Combo5"])
            if auftrag["Combo5"] == 1:
                tag = mit_rastertag(tag, rastertag)
                tag = monatsletzter(tag) if auftrag["Check2"] == 1 else tag
            zahlungen.append((tag, betrag))
    text = auftrag["Beschreibung"].encode("cp1252", "replace")[:25].decode("cp1252").rstrip(" ")
    return {
        "Zahlungen": [{"Datum": datumstext(tag), "Betrag": betrag, "Text": text} for tag, betrag in zahlungen],
        "Datumrech": label,
    }
