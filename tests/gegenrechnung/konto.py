"""The account: settlement dates, the merge of the three sources, the walk over the rows."""

from dataclasses import dataclass, replace
from datetime import date

from kalender import LETZTER_TAG, datum, datumstext, ist_schaltjahr, monatsletzter, periodenzinsen, plus_monate
from reihen import effektivzins, herleitung
from zahlen import SATZGRENZE, Ablehnung, Rechenfehler, endlich, format_, prozent, vierbyte, zahl

ZAHLUNG, KONDITION, ZINSTERMIN = 1, 2, 3
KONDITIONSFELDER = (
    "Gutzins1", "Gutzins2", "Guthabenlinie", "Kreditzins1", "Kreditzins2", "Kreditlinie", "Zweitzinsart"
)


@dataclass
class Satz:
    Zahlungsart: int
    tag: date
    Zahlungstext: str = ""
    Zahlbetrag: float = 0.0
    Gutzins1: float = 0.0
    Gutzins2: float = 0.0
    Guthabenlinie: float = 0.0
    Kreditzins1: float = 0.0
    Kreditzins2: float = 0.0
    Kreditlinie: float = 0.0
    Zweitzinsart: int = 0
    Zinstage: int = 0
    Periodenzins: float = 0.0
    Kumulzins: float = 0.0
    Zinsgutschrift: float = 0.0
    Kontostand: float = 0.0


def auswahlsortierung(saetze, schluessel):
    """The smallest one changes places with the first: rows of one day do not keep their order."""
    saetze = list(saetze)
    for i in range(len(saetze)):
        kleinster = min(range(i, len(saetze)), key=lambda k: schluessel(saetze[k]))
        saetze[i], saetze[kleinster] = saetze[kleinster], saetze[i]
    return saetze


def erster_kandidat(jahr, rhythmus):
    ende = [(1, 31), (2, 29 if ist_schaltjahr(jahr) else 28), (3, 31), (4, 30), (6, 30), (12, 31)]
    return date(jahr, *ende[rhythmus])


def zinstermine(erste_zahlung, abschluss, rhythmus):
    monate = [1, 2, 3, 4, 6, 12][rhythmus]
    kandidat = erster_kandidat(erste_zahlung.year, rhythmus)
    termin = kandidat
    while termin < erste_zahlung:
        termin = monatsletzter(plus_monate(termin, monate))
    termine = [termin]
    while (termin := monatsletzter(plus_monate(termin, monate))) < abschluss:
        termine.append(termin)
    if len(termine) == 1 and abschluss < kandidat:
        termine = []
    termine.append(abschluss)
    if len(termine) > SATZGRENZE:
        raise Rechenfehler("zu viele Zinstermine")
    return termine


def mischen(zahlungen, konditionen, termine, abschluss):
    """One row at a time from the source whose turn it is, until one lies behind the closing date."""
    quellen = {
        ZAHLUNG: list(zahlungen), KONDITION: list(konditionen), ZINSTERMIN: [Satz(ZINSTERMIN, t) for t in termine]
    }
    loesung = []

    def naechster(art):
        return quellen[art][0].tag if quellen[art] else LETZTER_TAG

    while True:
        z, k, t = naechster(ZAHLUNG), naechster(KONDITION), naechster(ZINSTERMIN)
        art = ZAHLUNG if z < k and z <= t else KONDITION if k <= z and k <= t else ZINSTERMIN
        if naechster(art) > abschluss:
            return loesung
        if len(loesung) == SATZGRENZE:
            raise Rechenfehler("zu viele Zeilen")
        loesung.append(replace(quellen[art].pop(0)))
        if all(naechster(quelle) == LETZTER_TAG for quelle in quellen):
            return loesung


def zinsbasen(satz):
    """Rate and amount, twice."""
    stand = satz.Kontostand
    if stand < 0:
        if -stand < satz.Kreditlinie:
            return satz.Kreditzins1, stand, satz.Kreditzins1, 0.0
        if satz.Zweitzinsart == 1:
            return satz.Kreditzins2, stand, satz.Kreditzins2, 0.0
        return satz.Kreditzins1, -satz.Kreditlinie, satz.Kreditzins2, stand + satz.Kreditlinie
    if stand < satz.Guthabenlinie:
        return satz.Gutzins1, stand, satz.Gutzins1, 0.0
    if satz.Zweitzinsart == 1:
        return satz.Gutzins2, stand, satz.Gutzins2, 0.0
    return satz.Gutzins1, satz.Guthabenlinie, satz.Gutzins2, stand - satz.Guthabenlinie


def staffelberechnung(saetze, methode):
    """Row by row; the first one takes the second, as it stands, for the one before it."""
    for i, satz in enumerate(saetze):
        vorher = saetze[i - 1] if i else saetze[1] if len(saetze) > 1 else Satz(0, satz.tag)
        nachher = saetze[i + 1] if i + 1 < len(saetze) else satz
        if satz.Zahlungsart == KONDITION:
            satz.Zahlbetrag = 0.0
            satz.Kontostand = vorher.Kontostand if i else 0.0
        else:
            for feld in KONDITIONSFELDER:
                setattr(satz, feld, getattr(vorher, feld))
            zugang = satz.Zahlbetrag if satz.Zahlungsart == ZAHLUNG else vorher.Kumulzins
            satz.Kontostand = endlich(vorher.Kontostand + zugang)
            satz.Zinsgutschrift = 0.0 if satz.Zahlungsart == ZAHLUNG else vorher.Kumulzins
        satz1, betrag1, satz2, betrag2 = zinsbasen(satz)
        satz.Zinstage, satz.Periodenzins = periodenzinsen(
            satz.tag, nachher.tag, methode, betrag1, satz1, betrag2, satz2
        )
        angefallen = 0.0 if satz.Zahlungsart == ZINSTERMIN else vorher.Kumulzins
        satz.Kumulzins = endlich(angefallen + satz.Periodenzins)


def zeilen(saetze):
    def zeile(satz):
        felder = {feld: wert for feld, wert in vars(satz).items() if feld != "tag"}
        felder["Satzdatum"] = datumstext(satz.tag)
        felder["Zahlungstext"] = satz.Zahlungstext if satz.Zahlungsart == ZAHLUNG else ""
        return felder

    return [zeile(satz) for satz in saetze]


def summen(saetze):
    """Payments, balance at the end, and what lies between, over the rows that the short view shows."""
    gezeigte = [satz for satz in saetze if satz.Zahlungsart != KONDITION]
    zahlungen = 0.0
    for satz in gezeigte:
        zahlungen = zahlungen + satz.Zahlbetrag
    endstand = gezeigte[-1].Kontostand if gezeigte else 0.0
    return format_(zahlungen), format_(endstand), format_(endstand - zahlungen)


def reihe_aus(saetze):
    """The payments with their signs turned, and the last balance."""
    reihe = [(satz.tag, -satz.Zahlbetrag) for satz in saetze if satz.Zahlungsart == ZAHLUNG]
    return [*reihe, (saetze[-1].tag, saetze[-1].Kontostand)]


def konditionssatz(felder):
    satz = Satz(KONDITION, datum(felder["Datum"]))
    for feld in KONDITIONSFELDER:
        setattr(satz, feld, vierbyte(felder[feld]) if "zins" in feld else felder[feld])
    satz.Zweitzinsart = felder["Zweitzinsart"]
    return satz


def pruefen_vorher(auftrag):
    if not auftrag["Kontodatum"]:
        raise Ablehnung("Das Kontoschluss/-berechnungsdatum fehlt", "Kontodatum", "Zinsverrechnung")
    if not auftrag["Zahlungen"]:
        raise Ablehnung(
            "Es existieren keine Zahlungsdaten. Eine Berechnung ist nicht möglich", register="Zahlungen"
        )
    if not auftrag["Konditionen"]:
        raise Ablehnung(
            "Es existieren keine Zinsdaten. Eine Berechnung ist nicht möglich. Geben Sie im Register Zinssätze die "
            "Zinsdaten ein und beenden Sie die Eingabe durch Drücken des Buttons <Eingabe übernehmen>.",
            register="Zinssätze",
        )


def pruefen_nachher(loesung):
    if len(loesung) == 1:
        raise Ablehnung(
            "Das Datum für den Kontoabschluss liegt vor dem ersten Zahlungsdatum.", "Kontodatum", "Zinsverrechnung"
        )
    if not loesung or loesung[0].Zahlungsart != KONDITION:
        raise Ablehnung(
            "Eine Berechnung ist nicht möglich, da für die erste Zahlung keine gültigen Zinssätze existieren, bzw. die "
            "Gültigkeit der Zinskonditionen erst nach dem ersten Zahlungsdatum beginnt.",
            register="Zinssätze",
        )


def staffel(auftrag):
    pruefen_vorher(auftrag)
    zahlungen = [Satz(ZAHLUNG, datum(z["Datum"]), z.get("Text", ""), z["Betrag"]) for z in auftrag["Zahlungen"]]
    zahlungen = auswahlsortierung(zahlungen, lambda satz: satz.tag)
    konditionen = auswahlsortierung(map(konditionssatz, auftrag["Konditionen"]), lambda satz: satz.tag)
    abschluss = datum(auftrag["Kontodatum"])
    termine = zinstermine(zahlungen[0].tag, abschluss, auftrag["Zinsverrechnungsart"])
    loesung = mischen(zahlungen, konditionen, termine, abschluss)
    pruefen_nachher(loesung)
    staffelberechnung(loesung, auftrag["Verzinsungsmethode"])
    ergebnis = dict(zip(("Gesamtzahlungssumme", "Endvermögen", "Gesamtzinsen"), summen(loesung)))
    ergebnis["Zeilen"] = zeilen(loesung)
    if "Effektivmethode" in auftrag:
        methode, reihe = auftrag["Effektivmethode"], reihe_aus(loesung)
        text = effektivzins(reihe, methode).text
        ergebnis["Effektivergebnis"] = text
        ergebnis["ezins"] = prozent(zahl(text)) if text else ""
        ergebnis["Herleitung"] = herleitung(reihe, methode, zahl(text) if text else 0.0)
    return ergebnis
