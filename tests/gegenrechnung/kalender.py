"""Dates, the calendar, days between dates, and the interest of one period."""

import re
from datetime import date, timedelta

from zahlen import Rechenfehler, endlich, runde, vierbyte

LETZTER_TAG = date(9999, 12, 31)


def versuche(text):
    """The date of a text tt.mm.jjjj, or None."""
    if not re.fullmatch(r"\d\d\.\d\d\.\d{4}", text, re.ASCII) or int(text[6:]) < 100:
        return None
    try:
        return date(int(text[6:]), int(text[3:5]), int(text[:2]))
    except ValueError:
        return None


def datum(text):
    ergebnis = versuche(text)
    if ergebnis is None:
        raise Rechenfehler(f"{text!r} ist kein Datum")
    return ergebnis


def datumstext(tag):
    return f"{tag.day:02}.{tag.month:02}.{tag.year:04}"


def ist_schaltjahr(jahr):
    return jahr % 4 == 0 and (jahr % 100 != 0 or jahr % 400 == 0)


def jahreslaenge(jahr):
    return 366 if ist_schaltjahr(jahr) else 365


def monatslaenge(jahr, monat):
    return [31, 29 if ist_schaltjahr(jahr) else 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31][monat - 1]


def plus_tage(tag, tage):
    try:
        ergebnis = tag + timedelta(days=int(tage))
    except OverflowError:
        raise Rechenfehler("außerhalb des Kalenders") from None
    if ergebnis.year < 100:
        raise Rechenfehler("außerhalb des Kalenders")
    return ergebnis


def plus_monate(tag, monate):
    jahr, monat = divmod(tag.year * 12 + tag.month - 1 + monate, 12)
    if not 100 <= jahr <= 9999:
        raise Rechenfehler("außerhalb des Kalenders")
    return date(jahr, monat + 1, min(tag.day, monatslaenge(jahr, monat + 1)))


def monatsletzter(tag):
    """Found by walking: in December 9999 the walk leaves the calendar."""
    monat = tag.month
    while tag.month == monat:
        tag = plus_tage(tag, 1)
    return plus_tage(tag, -1)


def mit_rastertag(tag, rastertag):
    """The wanted day in the month of `tag`, or the last one before it that there is."""
    while versuche(f"{rastertag:02}" + datumstext(tag)[2:]) is None:
        rastertag -= 1
    return tag.replace(day=rastertag)


def tage30(von, bis):
    def tag(d):
        februarende = d.month == 2 and d.day >= monatslaenge(d.year, 2)
        return 30 if februarende or d.day == 31 else d.day

    return tag(bis) + 30 * (bis.month - von.month) + 360 * (bis.year - von.year) - tag(von)


def zinstage(von, bis, methode):
    return tage30(von, bis) if methode in (0, 3) else (bis - von).days


def periodenzinsen(von, bis, methode, betrag1, satz1, betrag2, satz2):
    """Days and interest. The rates' hundredths are 4-byte numbers."""
    q1, q2 = vierbyte(vierbyte(satz1) / 100), vierbyte(vierbyte(satz2) / 100)
    tage = zinstage(von, bis, methode)
    if methode == 1 and von.year != bis.year:
        schnitt = date(von.year, 12, 31)
        t1, t2 = (schnitt - von).days, (bis - schnitt).days
        zins = (betrag1 * q1 * t1 + betrag2 * q2 * t1) / jahreslaenge(von.year)
        zins = zins + (betrag1 * q1 * t2 + betrag2 * q2 * t2) / jahreslaenge(bis.year)
    else:
        jahr = [360, jahreslaenge(von.year), 360, 365, 365][methode]
        zins = betrag1 * q1 * tage / jahr + betrag2 * q2 * tage / jahr
    return tage, runde(endlich(zins), 2)
