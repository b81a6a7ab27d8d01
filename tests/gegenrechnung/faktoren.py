"""The factors of financial mathematics, as a table and one by one."""

from zahlen import Ablehnung, endlich, format_, ganzzahl16, potenz, teile, zahl, zahltext

AUFZINSUNG, ABZINSUNG, RENTENENDWERT, DISKONTIERUNGSSUMME, KAPITALWIEDERGEWINNUNG, RESTWERTVERTEILUNG = range(6)
ZAHLUNGEN_IM_JAHR = [12, 6, 4, 3, 2, 1]
ZAHLUNGSWEISEN = ["Monatlich", "Alle 2 Monate", "Vierteljährlich", "Alle 4 Monate", "Halbjährlich", "Jährlich"]
FAELLIGKEITEN = ["nachschüssig", "vorschüssig"]
SAETZE = [
    "Ein Betrag von {B} € , der heute zu einem Zinssatz von {Z} % über {N} Jahre angelegt wird, ergibt einen "
    "Vermögensendwert von {E} € nach {N} Jahren",
    "Ein Betrag von {B} € , der in {N} Jahren fällig wird, hat bei einem Zinssatz von {Z} % einen Wert am heutigen "
    "Tage von {E} €",
    "Wenn von heute an über einen Zeitraum von {N} Jahren jeweils ein Betrag von {B} € {T} {W} zu einem Zinssatz von "
    "{Z} % angelegt wird, so ergibt das nach {N} Jahren einen Vermögensendwert von {E} € incl. Zinsen und "
    "Zinseszinsen.",
    "Wenn von heute an über einen Zeitraum von {N} Jahren jeweils ein Betrag von {B} € {T} {W}  ausbezahlt wird, so "
    "hat dies einen heutigen Gegenwert (=Barwert) von {E} €. D.h.: Dieser Einmalbetrag per heute ist genauso viel wert "
    "wie die ganzen Zahlungen, wobei angenommen wird, das der Einmalbetrag mit jährlich {Z} % verzinst werden könnte.",
    "Ein heute vorhandener Geldbetrag von {B} € ist bei einem Zinssatz von {Z} % genauso viel wert, wie ein jeweiliger "
    "Betrag von {E} € , der {T} {W} über einen Zeitraum von {N} Jahren gezahlt wird.",
    "Ein Betrag von {B} €, der in {N} Jahren fällig wird, ist genauso viel wert, wie ein Betrag von {E} €, der jeweils "
    "{T} {W} über einen Zeitraum von {N} Jahren gezahlt und mit {Z} % verzinst wird.",
]


def faktor(art, i, jahre, zahlweise, vorschuessig):
    f = potenz(1 + i, jahre)
    if art == AUFZINSUNG:
        return f
    if art == ABZINSUNG:
        return teile(1, f)
    m = ZAHLUNGEN_IM_JAHR[zahlweise]
    p = ((m + 1) / 2 if vorschuessig else (m - 1) / 2) + teile(m, i)
    if art == RENTENENDWERT:
        return endlich((f - 1) * p)
    if art == DISKONTIERUNGSSUMME:
        return endlich((f - 1) * teile(1, f) * p)
    return endlich(teile(f if art == KAPITALWIEDERGEWINNUNG else 1, f - 1) * teile(1, p))


def verlange(bedingung, meldung):
    if not bedingung:
        raise Ablehnung(meldung)


def pflichtzahl(auftrag, feld, meldung):
    wert = zahl(auftrag[feld] or "0")
    verlange(wert != 0, meldung)
    return wert


def faktortabelle(auftrag):
    von = pflichtzahl(auftrag, "Pro1", "Geben Sie bitte den 1. Prozentsatz ein. (grösser als 0)")
    bis = pflichtzahl(auftrag, "Pro2", "Geben Sie bitte den 2. Prozentsatz ein.")
    erstes = pflichtzahl(auftrag, "J1", "Geben Sie bitte den 1. Jahreswert ein.")
    letztes = pflichtzahl(auftrag, "J2", "Geben Sie bitte den 2. Jahreswert ein.")
    verlange(bis >= von, "Die 1. Prozentangabe darf nicht vor der 2. Prozentangabe liegen.")
    verlange(letztes >= erstes, "Das 1. Jahr darf nicht vor dem 2. Jahr liegen.")
    schritt = [0.1, 0.2, 0.3, 0.4, 0.5, 1.0][auftrag["Combo2"]]
    saetze = [von + schritt * k for k in range(ganzzahl16((bis - von) / schritt + 1))]
    saetze = [satz for satz in saetze if satz <= bis + 1e-9]
    zeilen = [["Jahr / Zins", *map(zahltext, saetze)]]
    for k in range(ganzzahl16(letztes + 1 - erstes)):
        jahr = erstes + k
        werte = [faktor(auftrag["Combo1"], satz / 100, jahr, auftrag["Combo3"], auftrag["Combo4"]) for satz in saetze]
        zeilen.append([zahltext(jahr), *(format_(wert, 7) for wert in werte)])
    return {"Zeilen": zeilen}


def einzelfaktor(auftrag):
    zins = pflichtzahl(auftrag, "Zins2", "Geben Sie bitte den Zinssatz ein (grösser als 0)")
    jahre = pflichtzahl(auftrag, "Jahre2", "Geben Sie bitte die Anzahl der Jahre ein.")
    betrag = pflichtzahl(auftrag, "Betrag2", "Geben Sie bitte den Betrag ein.")
    art = auftrag["Combo7"]
    if art == ABZINSUNG:
        wert = teile(betrag, potenz(1 + zins / 100, jahre))
    else:
        wert = endlich(faktor(art, zins / 100, jahre, auftrag["Combo5"], auftrag["Combo6"]) * betrag)
    erklaerung = SAETZE[art].format(
        B=auftrag["Betrag2"],
        Z=auftrag["Zins2"],
        N=auftrag["Jahre2"],
        E=format_(wert),
        T=FAELLIGKEITEN[auftrag["Combo6"]],
        W=ZAHLUNGSWEISEN[auftrag["Combo5"]],
    )
    return {"Ergebnis": format_(wert, 8), "Erklärung3": erklaerung}
