"""The closed model of a savings plan, and the four quick calculators on it."""

import math

from zahlen import Ablehnung, Rechenfehler, endlich, format_, ganz, ganzzahl16, potenz, teile, zahl

RUNDEN = 100_000


def normalisiert(jahre, tage):
    jahre, tage = jahre + ganz(tage / 360), tage - 360 * ganz(tage / 360)
    if jahre > 32767:
        raise Rechenfehler("zu viele Jahre")
    return jahre, tage


def zahlungen_im_rest(tage, m, modus):
    if tage == 0:
        return 0
    return math.ceil(tage / (360 / m)) if modus == 1 else ganz(tage / (360 / m))


def endwert(rate, jahre, tage, i, m, kapital, modus):
    """`i` as a fraction. Not rounded."""
    jahre, tage = normalisiert(jahre, tage)
    jahreszahlung = 0.0
    for k in range(1, m + 1) if modus == 1 else range(m):
        d = 360 - ((m - k) / m) * 360
        jahreszahlung += rate * (1 + i * d / 360)
    a = potenz(1 + i, jahre)
    diskont = 0.0 if a == 1 and i * a == 0 else teile(a - 1, i * a)
    wert = a * (kapital + diskont * jahreszahlung)
    if tage == 0:
        return endlich(wert)
    rest = 0.0
    for k in range(1, zahlungen_im_rest(tage, m, modus) + 1):
        d = tage - (360 / m) * (k - 1 if modus == 1 else k)
        rest += rate + rate * i * d / 360
    return endlich(rest + (1 + i * tage / 360) * wert)


def in_cents(wert):
    return math.floor(endlich(100 * wert + 0.5)) / 100


def rate_im_modell(jahre, tage, i, m, kapital, modus, ziel):
    jahre, tage = normalisiert(jahre, tage)
    a = potenz(1 + i, jahre)
    rate = teile(ziel, a) * teile(i * a, a - 1 or 0.0001) / m
    schritt = None
    for _ in range(RUNDEN):
        d = ziel - endwert(rate, jahre, tage, i, m, kapital, modus)
        schritt = teile(d, m * jahre + zahlungen_im_rest(tage, m, modus)) if schritt is None else schritt / 2
        vorher, rate = rate, rate + schritt if d < 0 else rate - schritt
        if abs(rate - vorher) < 0.0001:
            return in_cents(rate)
    raise Rechenfehler("kein Ende")


def laufzeit_im_modell(rate, i, m, kapital, modus, ziel):
    if rate == 0 and ziel == 0:
        return 0, 0
    jahre, tage, in_tagen, dazu = 1, 0, False, False
    while True:
        jahre, tage = normalisiert(jahre, tage)
        d = ziel - in_cents(endwert(rate, jahre, tage, i, m, kapital, modus))
        if d == 0:
            return jahre, tage
        if not in_tagen:
            jahre, in_tagen, tage = (jahre + 1, False, 0) if d > 0 else (jahre - 1, True, 1)
        elif d > 0:
            tage, dazu = tage + 1, True
        else:
            return jahre, tage if dazu else tage - 1


def rendite_im_modell(rate, jahre, tage, m, kapital, modus, ziel):
    i, schritt, eingeklammert, vorher = 0.12, 0.1, False, 0.0
    for _ in range(RUNDEN):
        d = in_cents(endwert(rate, jahre, tage, i, m, kapital, modus)) - ziel
        if d == 0:
            return i
        eingeklammert = eingeklammert or vorher * d < 0
        vorher = math.copysign(1, d)
        if eingeklammert:
            schritt /= 2
        i = i + schritt if d < 0 else i - schritt
        if schritt < 0.0001:
            return i
    raise Rechenfehler("kein Ende")


def kurz(auftrag):
    form, m, modus = auftrag["Form"], auftrag["m"], auftrag["Zahlungsmodus"]
    jahrefeld, kapitalfeld, zielfeld = ("Laufjahre", "kap", "Vendwert") if form != "Form4b" else (
        "Laufzeitjahre", "Kap", "Vwert"
    )
    ergebnisfelder = {
        "Form4b": [zielfeld], "Form5b": ["rate"], "Form7b": ["Zins"], "Form8b": [jahrefeld, "Lauftage"]
    }[form]
    felder = ("rate", jahrefeld, "Lauftage", "Zins", kapitalfeld, zielfeld)
    werte = {feld: zahl(auftrag.get(feld) or "0") for feld in felder if feld not in ergebnisfelder}
    rate, i, kapital, ziel = (werte.get(feld, 0.0) for feld in ("rate", "Zins", kapitalfeld, zielfeld))
    if form != "Form8b":
        jahre, tage = ganzzahl16(werte[jahrefeld]), ganzzahl16(werte["Lauftage"])
        if form == "Form7b" and jahre == tage == 0:
            raise Ablehnung("Die Laufzeit in Jahren oder Tagen muss grösser als 0 sein.")
        if form == "Form7b" and kapital == rate == 0:
            raise Ablehnung("Das Anfangsvermögen oder die Sparrate müssen grösser als 0 sein.")
        jahre, tage = normalisiert(jahre, tage)
    if form == "Form4b":
        ziel = in_cents(endwert(rate, jahre, tage, i / 100, m, kapital, modus))
    elif form == "Form5b":
        rate = rate_im_modell(jahre, tage, i / 100, m, kapital, modus, ziel)
    elif form == "Form7b":
        i = 100 * rendite_im_modell(rate, jahre, tage, m, kapital, modus, ziel)
    else:
        jahre, tage = laufzeit_im_modell(rate, (i or 0.00001) / 100, m, kapital, modus, ziel)
    texte = [format_(wert) for wert in (rate, jahre, tage, i, kapital, ziel)]
    ergebnis = dict(zip(felder, texte))
    ergebnis["Zins"] += "%" if form == "Form7b" else ""
    return ergebnis
