"""Present and terminal value of a series, its amortisation, the rates around a middle one, and the years."""

from datetime import date

from kalender import datum, datumstext, plus_monate, plus_tage, tage30
from konto import auswahlsortierung
from zahlen import Ablehnung, Rechenfehler, endlich, format_, ganz, potenz, prozent, runde, teile, zahl
from zahlen import zahltext, zahlwert

BARWERT = 1
KEINE = "Keine"


def sortierte(auftrag):
    zahlungen = [(datum(z["Datum"]), float(z["Betrag"])) for z in auftrag["Zahlungen"]]
    if not zahlungen:
        raise Ablehnung("Es müssen erst Zahlungen eingegeben werden.", "Begdatum", "Zahlungen")
    return auswahlsortierung(zahlungen, lambda zahlung: zahlung[0])


def jahresteile(tage):
    jahre = ganz(tage / 360)
    return jahre, tage - 360 * jahre


def mischfaktor(tage, i):
    jahre, rest = jahresteile(tage)
    return endlich(potenz(1 + i, jahre) * (1 + i * rest / 360))


class Wende:
    """The row from which on a sum has stayed at 0 or above."""

    def __init__(self):
        self.zeile, self.gesetzt = 0, False

    def weiter(self, summe, zeile):
        """True where it is set anew."""
        neu = summe >= 0 and not self.gesetzt
        self.gesetzt = summe >= 0
        if neu:
            self.zeile = zeile
        return neu


class Wertlauf:
    """The table of one analysis: the value of each payment at one date, and the running sums."""

    def __init__(self, art, zinssatz, bezug):
        self.art, self.i, self.bezug = art, zinssatz / 100, bezug
        self.gezahlt = self.wert = 0.0
        self.statisch, self.dynamisch = Wende(), Wende()
        self.tage, self.zeilen = [], []

    def zahlung(self, tag, betrag):
        self.tage.append(tag)
        self.gezahlt = self.gezahlt + betrag
        self.statisch.weiter(self.gezahlt, len(self.tage))
        abstand = tage30(self.bezug, tag) if self.art == BARWERT else tage30(tag, self.bezug)
        f = mischfaktor(abstand, self.i)
        wert = runde(teile(betrag, f) if self.art == BARWERT else betrag * f, 5)
        self.wert = endlich(self.wert + wert)
        self.dynamisch.weiter(self.wert, len(self.tage))
        zellen = [datumstext(tag), format_(betrag), format_(self.gezahlt), *map(zahltext, jahresteile(abstand))]
        self.zeilen.append([*zellen, prozent(f), format_(wert), format_(self.wert)])

    def amortisation(self, wende):
        return self.zeilen[wende.zeile - 1][0] if wende.gesetzt else KEINE


def analyse(zahlungen, auftrag):
    """The result, and the value that the table of rates borrows."""
    art, erster = auftrag["Anzeigeart"], datumstext(zahlungen[0][0])
    barwertdatum = auftrag["BarwDatum"] if len(auftrag["BarwDatum"]) >= 2 else erster
    # The date is read also where it plays no part.
    bezug = datum(barwertdatum)
    if art != BARWERT:
        bezug = zahlungen[-1][0]
    lauf = Wertlauf(art, zahlwert(auftrag["Abzins2"] or "10"), bezug)
    for tag, betrag in zahlungen:
        if art != BARWERT or tag >= bezug:
            lauf.zahlung(tag, betrag)
    ergebnis = {
        "Zeilen": lauf.zeilen,
        "StatAmor": lauf.amortisation(lauf.statisch),
        "DynAmor": lauf.amortisation(lauf.dynamisch),
        "Dynamorinterpoliert": KEINE,
        "Label12": f"Die Investition / Anlage ist {'' if lauf.dynamisch.gesetzt else 'nicht '}vorteilhaft.",
        "Label13": "Barwert" if art == BARWERT else "Vermögensendwert",
        "Label14": format_(lauf.wert),
        "Frame1": art != BARWERT or erster == barwertdatum,
        "Farbzeile": 0,
    }
    d = lauf.dynamisch.zeile
    if not lauf.dynamisch.gesetzt or d == 1:
        return ergebnis, 0.0
    # The line is drawn through the cells, with their two decimals.
    vorwert, nachwert = zahl(lauf.zeilen[d - 2][7]), zahl(lauf.zeilen[d - 1][7])
    ergebnis["Farbzeile"] = d
    ergebnis["Dynamorinterpoliert"] = interpoliert(lauf.tage[d - 2], lauf.tage[d - 1], vorwert, nachwert - vorwert)
    return ergebnis, vorwert


def interpoliert(vorher, tag, vorwert, anstieg):
    """Where the straight line crosses zero; empty for two payments of one day."""
    tage = (tag - vorher).days
    if tage <= 0:
        return ""
    dazu = runde(teile(-vorwert, anstieg / tage), 0)
    if abs(dazu) > 4e6:
        raise Rechenfehler("außerhalb des Kalenders")
    return datumstext(plus_tage(vorher, dazu))


def wertanalyse(auftrag):
    return analyse(sortierte(auftrag), auftrag)[0]


class Durchlauf:
    """One rate of the table."""

    def __init__(self, zahlungen, art, i):
        self.gezahlt = self.wert = 0.0
        self.statdatum, self.wendestelle = KEINE, None
        statisch, self.dynamisch = Wende(), Wende()
        for stelle, (tag, betrag) in enumerate(zahlungen):
            self.gezahlt = self.gezahlt + betrag
            if statisch.weiter(self.gezahlt, stelle):
                self.statdatum = datumstext(tag)
            f = mischfaktor(tage30(zahlungen[0][0], tag) if art == BARWERT else tage30(tag, zahlungen[-1][0]), i)
            vorher = self.wert
            self.wert = runde(vorher + (teile(betrag, f) if art == BARWERT else betrag * f), 2)
            if self.dynamisch.weiter(self.wert, stelle):
                self.wendestelle, self.anstieg = stelle, self.wert - vorher


def sensitivitaet(auftrag):
    zahlungen = sortierte(auftrag)
    vorwert = analyse(zahlungen, auftrag)[1]
    try:
        return {"Zeilen": list(zinszeilen(zahlungen, auftrag, vorwert))}
    except Rechenfehler:
        raise Ablehnung("") from None


def zinszeilen(zahlungen, auftrag, vorwert):
    schritt = [0.1, 0.5, 1, 2, 3, 4, 5][auftrag["Combo2"]]
    x = max(zahlwert(auftrag["MiZins"] or "10") - 5 * schritt, 0) - schritt
    spaetere = ["", "", ""]
    for _ in range(11):
        x = x + schritt
        lauf = Durchlauf(zahlungen, auftrag["Anzeigeart"], zahlwert(zahltext(x)) / 100)
        if not lauf.wendestelle or not lauf.dynamisch.gesetzt:
            spaetere[0] = KEINE
        else:
            vorher, tag = zahlungen[lauf.wendestelle - 1][0], zahlungen[lauf.wendestelle][0]
            if (text := interpoliert(vorher, tag, vorwert, lauf.anstieg)) != "":
                jahre, rest = jahresteile(tage30(zahlungen[0][0], datum(text)))
                spaetere = [text, zahltext(jahre), zahltext(rest)]
        yield [zahltext(x), format_(lauf.gezahlt), format_(lauf.wert), lauf.statdatum, *spaetere]


def jahreswerte(auftrag):
    zahlungen = sortierte(auftrag)
    i = zahlwert(auftrag["Abzins2"] or "0") / 100
    stichtag = datum(auftrag["BarwDatum"])
    if (stichtag.day, stichtag.month) != (31, 12):
        stichtag = plus_monate(date(stichtag.year, 12, 31), -12)
    stichtag = plus_monate(stichtag, -12)
    schluss = date(zahlungen[-1][0].year, 12, 31)
    zeilen, vorwert, vorsumme = [], "0", "0"
    while not zeilen or stichtag < schluss:
        if len(zeilen) == 310:
            raise Ablehnung(
                "Die Zahlungsreihe ist zu lang. Prüfen Sie das Barwertdatum und die Zahlungstermine !",
                register="Zahlungen",
            )
        stichtag = plus_monate(stichtag, 12)
        kommende = [(tag, betrag) for tag, betrag in zahlungen if tag > stichtag]
        wert = summe = 0.0
        for tag, betrag in kommende:
            wert = endlich(wert + teile(betrag, mischfaktor(tage30(stichtag, tag), i)))
            summe = summe + betrag
        wert, summe = format_(wert), format_(summe)
        gezahlt = zinsen = "0,00"
        aenderung = zahl(wert) - zahl(vorwert)
        if zeilen:
            gezahlt = format_(zahl(vorsumme) - zahl(summe))
            zinsen = format_(aenderung + zahl(gezahlt))
        zeilen.append([datumstext(stichtag), wert, summe, gezahlt, format_(aenderung), zinsen])
        vorwert, vorsumme = wert, summe
    return {"Zeilen": zeilen}
