"""Numbers, their texts, and the two ways in which a calculation ends without a result."""

import math
import re
import struct
from decimal import ROUND_HALF_UP, Decimal, localcontext

ALLGEMEIN = (
    "Bitte überprüfen Sie Ihre Angaben. Diese sind offenbar unvollständig oder nicht in sich schlüssig und lassen "
    "daher die gewünschte Berechnung nicht zu."
)
ZAHLFORM = re.compile(r"[+-]?(?:[0-9.]*[0-9][0-9.]*(?:,[0-9]*)?|[.]*,[0-9]+)")
SATZGRENZE = 32767


class Rechenfehler(Exception):
    """A fault of the calculation."""


class Ablehnung(Exception):
    """A refusal with the message of the form, the field that gets the focus and the tab."""

    def __init__(self, meldung, feld=None, register=None):
        super().__init__(meldung)
        self.meldung, self.feld, self.register = meldung, feld, register


def endlich(wert):
    if not math.isfinite(wert):
        raise Rechenfehler("keine endliche Zahl")
    return wert


def teile(zaehler, nenner):
    if nenner == 0:
        raise Rechenfehler("Division durch 0")
    return endlich(zaehler / nenner)


def potenz(basis, exponent):
    if basis <= 0 and exponent != math.floor(exponent):
        raise Rechenfehler("Wurzel aus einer negativen Zahl")
    try:
        return endlich(math.pow(basis, exponent))
    except (ValueError, OverflowError):
        raise Rechenfehler("Überlauf") from None


def ganz(wert):
    """The whole part, cut toward zero."""
    return math.trunc(endlich(wert))


def vierbyte(wert):
    try:
        return struct.unpack("<f", struct.pack("<f", wert))[0]
    except OverflowError:
        raise Rechenfehler("mehr, als 4 Byte fassen") from None


def ganzzahl16(wert):
    ergebnis = round(endlich(wert))
    if not -32768 <= ergebnis <= 32767:
        raise Rechenfehler("mehr, als 2 Byte fassen")
    return ergebnis


def runde(wert, stellen):
    """Halves go upwards, on either side of zero."""
    faktor = 10.0**stellen
    return math.floor(endlich(faktor * wert + 0.5)) / faktor


def zahl(text):
    """The number that a text is as a whole, in German notation."""
    text = text.strip(" ")
    if not ZAHLFORM.fullmatch(text):
        raise Rechenfehler(f"{text!r} ist keine Zahl")
    return endlich(float(text.replace(".", "").replace(",", ".") + "0" * text.endswith(",")))


def zahlwert(text):
    """The number that the longest leading part of a text is, else 0."""
    anfang = ZAHLFORM.match(text.strip(" "))
    if anfang is None:
        return 0.0
    try:
        return zahl(anfang.group())
    except Rechenfehler:
        return 0.0


def zahltext(wert, stellen=15):
    text = "%.*G" % (stellen, wert)
    return "0" if text == "-0" else text.replace(".", ",")


def format_(wert, stellen=2, vorkomma=1, gruppen=True):
    """Rounds the decimal text of 15 digits, halves away from zero; at least `vorkomma` digits before the comma."""
    with localcontext() as kontext:
        kontext.prec = 400
        dezimal = Decimal("%.15G" % wert).quantize(Decimal(1).scaleb(-stellen), ROUND_HALF_UP)
        vorne, _, hinten = format(abs(dezimal), "f").partition(".")
    vorne = vorne.lstrip("0").rjust(vorkomma, "0")
    if gruppen:
        vorne = re.sub(r"(?<=\d)(?=(\d{3})+$)", ".", vorne)
    return ("-" if dezimal < 0 else "") + vorne + ("," + hinten if stellen else "")


def prozent(wert):
    return format_(wert, 5)
