"""What the five savings calculators look for, each by full passes of the account."""

from kalender import datumstext, plus_tage, tage30
from konto import Satz, ZAHLUNG, reihe_aus, summen, zeilen
from ratensparen import rate_im_modell
from reihen import effektivzins
from sparplan import MIT_TABELLE, ZAHLUNGSMONATE, Sparplan
from zahlen import Ablehnung, Rechenfehler, ganz, prozent, runde, teile, zahl

RUNDEN, TAGE = 100_000, 100_000
NICHTS_GEFUNDEN = (
    "Es wurde keine Lösung gefunden. Heben Sie die Begrenzungen für die Höhe der Sparraten auf oder Verändern Sie "
    "deren Werte."
)


def sekante(x0, f0, x1, f1):
    return x0 - teile(f0 * (x1 - x0), f1 - f0)


def in_cents_suchen(abweichung, x0, x1, begrenzen=lambda x: x):
    """Ends where two deviations agree, or in a ring with that member of it that is nearest to the target."""
    f0, f1 = abweichung(x0), abweichung(x1)
    besucht, weg = {(x0, x1): 0}, [(x1, f1)]
    for _ in range(RUNDEN):
        x = begrenzen(runde(sekante(x0, f0, x1, f1), 2))
        x0, f0, x1, f1 = x1, f1, x, abweichung(x)
        if abs(f0 - f1) < 0.001:
            return x1, f1
        weg.append((x1, f1))
        if (x0, x1) in besucht:
            x, f = min(weg[besucht[x0, x1] + 1 :], key=lambda punkt: abs(punkt[1]))
            abweichung(x)
            return x, f
        besucht[x0, x1] = len(weg) - 1
    raise Ablehnung(NICHTS_GEFUNDEN, "Check4", "Daten")


def betrag_suchen(plan, feld, x0, x1, begrenzen=lambda x: x):
    ende, ziel = plan.tag("Enddatum"), plan.zahl("Vwert")
    x, f = in_cents_suchen(lambda x: plan.lauf(ende, **{feld: x}) - ziel, x0, x1, begrenzen)
    if abs(f) > 5:
        raise Ablehnung(NICHTS_GEFUNDEN, "Check4", "Daten")
    return x


def endkapital(plan):
    return {"Endkapital": plan.lauf(plan.tag("Enddatum"))}


def anfangskapital(plan):
    return {"Anfangskapital": betrag_suchen(plan, "kapital", 0.0, 1000.0)}


def sparrate(plan):
    def begrenzen(x):
        if plan["Check2"] == 1 and plan["Check4"] == 1:
            x = min(x, plan.zahl("MaxSparrate"))
        if plan["Check2"] == 1 and plan["Check5"] == 1:
            x = max(x, plan.zahl("MinSparrate"))
        return x

    tage = tage30(plan.tag("ratdatum1"), plan.tag("Enddatum"))
    jahre = ganz(tage / 360)
    rhythmus = 12 // ZAHLUNGSMONATE[plan["Combo1"]]
    ziel, zins, kapital = plan.zahl("Vwert"), plan.zahl("Zins") or 0.1, plan.zahl("AnfVermögen")
    x0 = begrenzen(rate_im_modell(jahre, tage - 360 * jahre, zins / 100, rhythmus, kapital, 1, ziel))
    x1 = begrenzen(0.9 * x0)
    return {"Sparrate": betrag_suchen(plan, "rate", x0, 0.9 * x0 if x1 == x0 else x1, begrenzen)}


def rendite(plan):
    keine = Ablehnung("Es wurde keine zulässige Lösung gefunden", None, "Daten")
    ende, ziel = plan.tag("Enddatum"), plan.zahl("Vermendwert")
    zahlungen = plan.raten(plan.kapital(), plan.zahl("Betrag"), ende) + [Satz(ZAHLUNG, ende, Zahlbetrag=-ziel)]
    text = effektivzins([(satz.tag, -satz.Zahlbetrag) for satz in zahlungen], plan["Combo5"] + 1).text
    if not text:
        raise keine
    effektiv = r0 = r1 = zahl(text)
    f0, f1 = plan.lauf(ende, zins=r0) - ziel, 0.0
    if effektiv != 0:
        r1 = 0.98 * r0
        f1 = plan.lauf(ende, zins=r1) - ziel
        for _ in range(15):
            r = sekante(r0, f0, r1, f1)
            r0, f0, r1, f1 = r1, f1, r, plan.lauf(ende, zins=r) - ziel
            if abs(f1 - f0) < 0.01:
                break
    if abs(f1) > abs(ziel) / 100000:
        raise keine
    return {"Nominalzins": r1, "Nzins": prozent(r1), "ezins": prozent(effektiv)}


class Anspardauer:
    def __init__(self, plan):
        self.plan, self.anfang, self.ziel = plan, plan.tag("Anfdatum"), plan.zahl("Vwert")
        self.ende = self.anfang

    def abweichung(self, tage):
        self.ende = plus_tage(self.anfang, tage)
        if self.ende < self.anfang:
            return -self.ziel
        return self.plan.lauf(self.ende) - self.ziel

    def einkreisen(self):
        """The last trial with its deviation and the one before, and the best trial below the target."""
        t0, f0, t1, f1 = 0.0, self.abweichung(0), 365.0, self.abweichung(365)
        darunter, bester, oben = -999999999999999.0, 0.0, False
        for runde_ in range(1, 32768):
            t = runde(sekante(t0, f0, t1, f1), 0)
            if abs(t) > 4e6:
                raise Rechenfehler("außerhalb des Kalenders")
            t0, f0, t1, f1 = t1, f1, t, self.abweichung(t)
            if f1 <= 0 and f1 > darunter:
                darunter, bester = f1, t
            oben = oben or 0 < f1 < 999999999999999
            beide = oben and darunter > -999999999999999
            if abs(f1 - f0) <= 0.1 or beide and runde_ >= 20:
                return t1, f0, f1, bester
        raise Rechenfehler("zu viele Runden")

    def suchen(self):
        tage, f0, f1, bester = self.einkreisen()
        if abs(f1 - f0) > 0.1:
            tage = bester or tage
            for schritt in range(1, TAGE + 1):
                if self.abweichung(tage + schritt) >= 0:
                    break
            else:
                raise Rechenfehler("das Ziel wird nicht erreicht")
        if self.ende < self.anfang:
            raise Rechenfehler("das Ende liegt vor dem Anfang")
        return {"Enddatum": datumstext(self.ende), "ezins": ""}


LOESER = {
    "Form90000": endkapital,
    "Form94000": sparrate,
    "Form92000": rendite,
    "Form96000": lambda plan: Anspardauer(plan).suchen(),
    "Form99000": anfangskapital,
}


def sparen(auftrag):
    plan = Sparplan(auftrag)
    plan.pruefen()
    if plan.form in MIT_TABELLE:
        plan.zinstabelle_pruefen()
    ergebnis = LOESER[plan.form](plan)
    if "ezins" not in ergebnis:
        text = effektivzins(reihe_aus(plan.loesung), plan["Combo5"] + 1).text
        ergebnis["ezins"] = prozent(zahl(text)) if text else ""
    ergebnis.update(zip(("Gesamtzahlungssumme", "EV", "Geszins"), summen(plan.loesung)))
    ergebnis["Zeilen"] = zeilen(plan.loesung)
    return ergebnis
