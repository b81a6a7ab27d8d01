"""The value of a payment series by four methods, and the search for its effective rate."""

from collections import namedtuple

from kalender import datum, datumstext, tage30
from zahlen import Ablehnung, Rechenfehler, endlich, format_, ganz, potenz, prozent, teile, vierbyte, zahl, zahltext

PANGV_ALT, AIDB, ISMA, PANGV_2000 = 1, 2, 3, 4
EINE_RICHTUNG = " Es gibt nur Ein- bzw. nur Auszahlungen. Ein Effektivzinssatz existiert nicht !"
NICHT_GEFUNDEN = "Es wurde kein Effektivzinssatz gefunden."

Wertzeile = namedtuple("Wertzeile", "tag betrag faktor wert summe zahlungen")
Zinsfund = namedtuple("Zinsfund", "zinssatz text meldung")


def wachstum(tage, r):
    """Whole years compounded, the rest simple."""
    jahre = ganz(tage / 360)
    return (1 + (tage - 360 * jahre) * r / 360) * potenz(1 + r, jahre)


def faktor(von, bis, methode, r):
    if methode == ISMA:
        return potenz(1 + r, (bis - von).days / 365)
    tage = tage30(von, bis)
    if methode == AIDB:
        return potenz(1 + r, tage / 360)
    jahre = ganz(tage / 360)
    monate = ganz((tage - 360 * jahre) / 30)
    rest = tage - 360 * jahre - 30 * monate
    return potenz(1 + r, (365 * jahre + 30.4166666 * monate + rest) / 365)


def endwert_pangv_alt(tag, betrag, beginn, ende, r):
    """Simple interest up to the anniversary of the first date, compounded from there."""
    tage = tage30(tag, ende)
    try:
        jahrestag = tag.replace(year=beginn.year)
    except ValueError:
        raise Rechenfehler("Den 29.02. gibt es im ersten Jahr nicht.") from None
    bis_jahrestag = tage30(jahrestag, beginn)
    bis_jahrestag -= 360 * ganz(bis_jahrestag / 360)
    if bis_jahrestag < 0:
        bis_jahrestag += 360
    if tage - bis_jahrestag > 0:
        g = wachstum(tage - bis_jahrestag, r)
        return (1 + r * (bis_jahrestag / 360)) * g, g * (betrag + betrag * r * (bis_jahrestag / 360))
    g = wachstum(tage, r)
    return g, g * betrag


def endwertzeilen(reihe, methode, zinssatz):
    """Row by row, so that those before a fault can be had."""
    r, beginn, ende = zinssatz / 100, reihe[0][0], reihe[-1][0]
    summe = zahlungen = 0.0
    for tag, betrag in reihe:
        if methode == PANGV_ALT:
            f, wert = endwert_pangv_alt(tag, betrag, beginn, ende, r)
        else:
            f = faktor(tag, ende, methode, r)
            wert = betrag * f
        summe, zahlungen = endlich(summe + wert), zahlungen + betrag
        yield Wertzeile(tag, betrag, f, wert, summe, zahlungen)


def barwertzeilen(reihe, methode, zinssatz):
    r, beginn, ende = zinssatz / 100, reihe[0][0], reihe[-1][0]
    summe = zahlungen = 0.0
    for zeile in endwertzeilen(reihe, methode, zinssatz) if methode == PANGV_ALT else reihe:
        tag, betrag = zeile[:2]
        if methode == PANGV_ALT:
            abzinsung = abs(teile(zeile.faktor, wachstum(tage30(beginn, ende), r))) or 1.0
            f, wert = 1 / abzinsung, betrag * abzinsung
        else:
            f = faktor(beginn, tag, methode, r)
            wert = teile(betrag, f)
        summe, zahlungen = endlich(summe + wert), zahlungen + betrag
        yield Wertzeile(tag, betrag, f, wert, summe, zahlungen)


def barwert(reihe, methode, zinssatz):
    """As the search sees it: without rows, and with 15 digits."""
    if methode == PANGV_ALT:
        endwert = list(endwertzeilen(reihe, methode, zinssatz))[-1].summe
        wert = teile(endwert, wachstum(tage30(reihe[0][0], reihe[-1][0]), zinssatz / 100))
    else:
        wert = list(barwertzeilen(reihe, methode, zinssatz))[-1].summe
    return float("%.15G" % wert)


def hat_vorzeichenwechsel(reihe):
    vorzeichen = [betrag > 0 for _, betrag in reihe if betrag != 0]
    return any(a != b for a, b in zip(vorzeichen, vorzeichen[1:]))


def suchen(f):
    """A secant from 10 and 1 percent, held by a bracket where these enclose the root."""
    x0, y0 = xo, yo = 10.0, f(10.0)
    x1, y1 = xu, yu = 1.0, f(1.0)
    klammer = yo >= 0 >= yu or yo <= 0 <= yu
    for _ in range(50):
        s = x0 / 100 - teile((x1 / 100 - x0 / 100) * y0, y1 - y0)
        if klammer and (s <= xu / 100 or s >= xo / 100):
            s = (xu + xo) / 200
        x0, y0, x1 = x1, y1, 100 * s
        y1 = f(x1)
        if klammer and xu < x1 < xo:
            if yo > 0 and y1 > 0 or yo < 0 and y1 < 0:
                xo, yo = x1, y1
            else:
                if abs(yu) >= 2147483648:
                    raise Rechenfehler("mehr, als 4 Byte fassen")
                if yu < 0 and y1 < 0 or round(yu) != 0 and y1 > 0:
                    xu, yu = x1, y1
        if abs(y1) < 0.00001:
            break
    if abs(y1) > 1:
        raise Rechenfehler("keine Lösung")
    return x1


def effektivzins(reihe, methode):
    try:
        if not reihe or len(reihe) > 32767:
            raise Rechenfehler("Zeilenzahl")
        if not hat_vorzeichenwechsel(reihe):
            return Zinsfund(None, "", EINE_RICHTUNG)
        zinssatz = suchen(lambda x: barwert(reihe, methode, x))
        return Zinsfund(zinssatz, format_(zinssatz, 5, 0), "")
    except Rechenfehler:
        return Zinsfund(None, "", NICHT_GEFUNDEN)


def herleitung(reihe, methode, zinssatz):
    """The cells of the rows; a fault ends them where it happens."""
    zellen = []
    try:
        for z in endwertzeilen(reihe, methode, zinssatz):
            gezeigt = (format_(wert) for wert in (z.wert, z.summe, z.zahlungen))
            zellen.append([datumstext(z.tag), format_(z.betrag), zahltext(vierbyte(z.faktor), 7), *gezeigt])
    except Rechenfehler:
        pass
    return zellen


def gegebene(auftrag):
    return [(datum(z["Datum"]), float(z["Betrag"])) for z in auftrag["Zahlungen"]]


def reihe(auftrag):
    zahlungen, methode = gegebene(auftrag), auftrag["Effektivmethode"]
    if not zahlungen:
        raise Ablehnung("Es müssen erst die Zahlungen eingegeben werden.", "Begdatum", "Zahlungen")
    fund = effektivzins(zahlungen, methode)
    return {
        "Effektivergebnis": fund.text,
        "Effzins": prozent(zahl(fund.text)) if fund.text else "",
        "Zinssatz": fund.zinssatz,
        "Meld": fund.meldung.strip(),
        "Zeilen": herleitung(zahlungen, methode, zahl(fund.text)) if fund.text else [],
    }


def wertsaetze(zeilen):
    namen = ("Ergebnisbetrag", "Faktor", "Zeilenwert", "Summenwert", "Summenbetrag")
    return [
        {"Ergebnisdatum": datumstext(z.tag), **dict(zip(namen, z[1:])), "Faktor": vierbyte(z.faktor)} for z in zeilen
    ]


def reihenwert(auftrag):
    zahlungen, methode, zinssatz = gegebene(auftrag), auftrag["Effektivmethode"], float(auftrag["Zinssatz"])
    if not zahlungen:
        raise Rechenfehler("keine Zeile")
    endwerte = list(endwertzeilen(zahlungen, methode, zinssatz))
    barwerte = list(barwertzeilen(zahlungen, methode, zinssatz))
    return {
        "Endwert": endwerte[-1].summe,
        "Barwert": barwerte[-1].summe,
        "Vendwertberechnung": wertsaetze(endwerte),
        "Barwertberechnung": wertsaetze(barwerte),
    }
