"""A series as a loan: its rows, the nominal rate at which it ends at zero, and its tables."""

from analysen import auswahlsortierung
from kalender import datum, datumstext, monatsletzter, plus_monate
from konto import KONDITION, ZAHLUNG, ZINSTERMIN, Satz, erster_kandidat, staffelberechnung
from reihen import PANGV_2000, effektivzins
from zahlen import Ablehnung, Rechenfehler, format_, prozent, teile, vierbyte, zahl

RUNDEN = 100_000
KEIN_PLAN = "Ein Tilgungsplan konnte rechnerisch nicht ermittelt werden."


def an_zahlungsterminen(zahlungen):
    saetze = []
    for k, (tag, betrag) in enumerate(zahlungen):
        saetze += [Satz(ZAHLUNG, tag, Zahlbetrag=betrag), Satz(ZINSTERMIN, tag)]
        # Each year put in passes over one of the payments left.
        for spaeter, _ in zahlungen[k + 1 :]:
            tag = plus_monate(tag, 12)
            if spaeter <= tag:
                break
            saetze.append(Satz(ZINSTERMIN, tag))
    return saetze


def an_monatsenden(zahlungen, art):
    monate, rhythmus = [(1, 0), (3, 2), (6, 4), (12, 5)][art - 1]

    def weiter(termin):
        return monatsletzter(plus_monate(termin, monate))

    termin = erster_kandidat(zahlungen[0][0].year, rhythmus)
    while termin <= zahlungen[0][0]:
        termin = weiter(termin)
    saetze = []
    for tag, betrag in zahlungen:
        while termin < tag:
            saetze.append(Satz(ZINSTERMIN, termin))
            termin = weiter(termin)
        saetze.append(Satz(ZAHLUNG, tag, Zahlbetrag=betrag))
    return [*saetze, Satz(ZINSTERMIN, zahlungen[-1][0])]


def endstand(saetze, methode, zinssatz):
    for feld in ("Gutzins1", "Gutzins2", "Kreditzins1", "Kreditzins2"):
        setattr(saetze[0], feld, vierbyte(zinssatz))
    for satz in saetze:
        satz.Periodenzins = satz.Kumulzins = satz.Zinsgutschrift = satz.Kontostand = 0.0
    staffelberechnung(saetze, methode)
    return saetze[-1].Kontostand


def nominalzins(start, lauf):
    r0, r1 = start, start - 0.05
    b0, b1 = lauf(r0), lauf(r1)
    for _ in range(RUNDEN):
        r = r0 - teile((r1 - r0) * b0, b1 - b0)
        r0, b0, r1, b1 = r1, b1, r, lauf(r)
        if abs(b1) < 0.001 or abs(b1 - b0) < 0.0001:
            return r1
    raise Ablehnung(KEIN_PLAN)


def jahresweise(saetze):
    zeilen, gezahlt, ausgezahlt, zinsen = [], 0.0, 0.0, 0.0
    for i, satz in enumerate(saetze):
        if satz.Zahlbetrag < 0:
            gezahlt = gezahlt - satz.Zahlbetrag
        else:
            ausgezahlt = ausgezahlt + satz.Zahlbetrag
        zinsen = zinsen + satz.Zinsgutschrift
        if i + 1 == len(saetze) or saetze[i + 1].tag.year != satz.tag.year:
            betraege = (ausgezahlt, gezahlt, -zinsen, -satz.Kontostand)
            zeilen.append([datumstext(satz.tag), *map(format_, betraege)])
            gezahlt = ausgezahlt = zinsen = 0.0
    return zeilen


def unterjaehrig(saetze):
    def vorgang(satz):
        if satz.Zahlungsart == ZINSTERMIN:
            return "Zinstermin"
        return "Zahlung" if satz.Zahlbetrag < 0 else "Auszahlung"

    return [
        [datumstext(s.tag), vorgang(s), *map(format_, (s.Zahlbetrag, -s.Zinsgutschrift, -s.Kontostand))]
        for s in saetze
        if s.Zahlungsart != KONDITION
    ]


def tilgungsplan(auftrag):
    zahlungen = [(datum(z["Datum"]), float(z["Betrag"])) for z in auftrag["Zahlungen"]]
    zahlungen = auswahlsortierung(zahlungen, lambda zahlung: zahlung[0])
    if len({betrag > 0 for _, betrag in zahlungen if betrag != 0}) < 2:
        raise Ablehnung("Es gibt nur Ein- bzw. Auszahlungen. Daher existiert kein Tilgungsplan !")
    try:
        return plan(zahlungen, auftrag["Combo4"], auftrag["Combo6"])
    except Rechenfehler:
        raise Ablehnung("") from None


def plan(zahlungen, termine, methode):
    text = effektivzins(zahlungen, PANGV_2000).text
    if not text:
        raise Ablehnung(KEIN_PLAN)
    effektiv = zahl(text)
    saetze = an_monatsenden(zahlungen, termine) if termine else an_zahlungsterminen(zahlungen)
    saetze = [Satz(KONDITION, zahlungen[0][0]), *saetze]
    nominal = nominalzins(effektiv, lambda zinssatz: endstand(saetze, methode, zinssatz))
    zinskopf = "Zinsen nominal  %.15G %%" % nominal
    return {
        "nomzins": prozent(nominal) + " %",
        "effzinssatz": prozent(effektiv) + " %",
        "Nominalzins": nominal,
        "Jahresweise": jahresweise(saetze),
        "Unterjährig": unterjaehrig(saetze),
        "Spalten": [
            ["Datum", "Auszahlung", "Zahlungen", zinskopf, "Kontostand"],
            ["Datum", "Vorgang", "Zahlungsbetrag", zinskopf, "Kontostand"],
        ],
    }
