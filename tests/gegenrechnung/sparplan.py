"""A savings plan: its fields, its checks, its payments and conditions, and one pass of its account."""

from kalender import datum, mit_rastertag, monatsletzter, plus_monate
from konto import KONDITION, ZAHLUNG, Satz, mischen, staffelberechnung, zinstermine
from zahlen import SATZGRENZE, Ablehnung, Rechenfehler, runde, vierbyte, zahl

ZAHLUNGSMONATE = [1, 2, 3, 6, 12]
TABELLENZEILEN = 40
MIT_TABELLE = ("Form90000", "Form94000", "Form99000")
SUCHT_BETRAG = ("Form94000", "Form99000")

LISTEN = {"Combo1": 0, "Combo2": 0, "Combo4": 5, "Combo5": 3, "Check1": 0, "Check2": 0}
GRENZEN = {"Check3": 0, "Check4": 0, "Check5": 0, "Delta2": "", "DynAnz": "", "MaxSparrate": "", "MinSparrate": ""}
GEMEINSAM = {**LISTEN, "Anfdatum": "", "ratdatum1": "", "Anzahl": "", "Delta": ""}
FELDER = {
    "Form90000": {**GEMEINSAM, **GRENZEN, "AnfVermögen": "", "Betrag": "", "Enddatum": "", "Zins": ""},
    "Form94000": {**GEMEINSAM, **GRENZEN, "AnfVermögen": "", "Vwert": "", "Enddatum": "", "Zins": ""},
    "Form92000": {**GEMEINSAM, **GRENZEN, "AnfVermögen": "", "Betrag": "", "Enddatum": "", "Vermendwert": ""},
    "Form96000": {**GEMEINSAM, "AnfVermögen": "", "Betrag": "", "Vwert": "", "Zins": ""},
    "Form99000": {**GEMEINSAM, **GRENZEN, "Betrag": "", "Vwert": "", "Enddatum": "", "Zins": ""},
}
WIRD_NULL = {"AnfVermögen", "Betrag", "Anzahl", "Delta", "Delta2", "DynAnz", "MaxSparrate", "MinSparrate"}


def wird_null(form):
    """The empty fields that the check fills."""
    if form in SUCHT_BETRAG:
        return WIRD_NULL - {"Betrag"} | {"Vwert"}
    return WIRD_NULL


class Sparplan:
    def __init__(self, auftrag):
        self.form = auftrag["Form"]
        self.felder = {**FELDER[self.form], **auftrag["Felder"]}
        tabelle = [tuple(zeile) for zeile in auftrag.get("Zinstabelle", [])]
        self.tabelle = tabelle + [("", "")] * (TABELLENZEILEN - len(tabelle))
        self.einheit = auftrag.get("Command6", "%")
        self.loesung = []

    def __getitem__(self, feld):
        return self.felder[feld]

    def zahl(self, feld):
        return zahl(self.felder[feld])

    def tag(self, feld):
        return datum(self.felder[feld])

    def kapital(self):
        """In `Form99000` it is what is looked for, and 0 before."""
        return 0.0 if self.form == "Form99000" else self.zahl("AnfVermögen")

    def pruefen(self):
        for feld in wird_null(self.form) & self.felder.keys():
            self.felder[feld] = self.felder[feld] or "0"
        self.verlange(len(self["ratdatum1"]) >= 3, "Bitte das 1. Spardatum eingeben.", "ratdatum1")
        if self.kapital() == 0:
            self.felder["Anfdatum"] = self["ratdatum1"]
        self.pruefe_ob_alles_da_ist()
        self.verlange(
            self.tag("ratdatum1") >= self.tag("Anfdatum"),
            "Das Datum der 1. Sparrate darf nicht vor dem Datum für das Anfangsvermögen liegen.",
            "ratdatum1",
        )
        if self.form == "Form96000":
            self.verlange(
                self.zahl("AnfVermögen") <= self.zahl("Vwert"),
                "Das Endvermögen darf nicht kleiner als das Anfangsvermögen sein.",
                "Vwert",
            )
            return
        self.pruefe_laufzeit()
        if self.form in SUCHT_BETRAG:
            self.verlange(
                self.zahl("Vwert") != 0 or self.kapital() != 0,
                "Die Differenz zwischen Anfangs- und Endvermögen ist für die Berechnung zu gering.",
                "Vwert",
            )
        if self["Check2"] == 1:
            self.pruefe_dynamisierung()

    def verlange(self, bedingung, meldung, feld):
        if not bedingung:
            raise Ablehnung(meldung, feld, "Daten")

    def pruefe_ob_alles_da_ist(self):
        self.verlange(len(self["Anfdatum"]) >= 3, "Bitte das Anfangsdatum eingeben", "Anfdatum")
        if self.form == "Form96000":
            self.verlange(self["Vwert"], "Bitte das Endvermögen eingeben", "Vwert")
        else:
            self.verlange(self["Enddatum"], "Bitte das Enddatum eingeben", "Enddatum")
        if self.form == "Form92000":
            self.verlange(self["Vermendwert"], "Bitte den Vermögensendwert eingeben", "Vermendwert")
        else:
            self.verlange(self["Zins"], "Bitte den Zinssatz eingeben", "Zins")

    def pruefe_laufzeit(self):
        anfang, ende = self.tag("Anfdatum"), self.tag("Enddatum")
        self.verlange(ende > anfang, "Das Enddatum muss nach dem Anfangsdatum liegen.", "Enddatum")
        self.verlange(
            ende.year - anfang.year <= 150,
            "Zwischen End- und Anfangsdatum dürfen nur bis zu 150 Jahre liegen.",
            "Enddatum",
        )

    def pruefe_dynamisierung(self):
        self.verlange(
            self.zahl("Anzahl") != 0,
            "Sie haben Dynamisierung gewählt. Die Anzahl der Zahlungen,nach denen eine Anpassung der Sparrate erfolgt, "
            "muss grösser als '0' sein.",
            "Anzahl",
        )
        self.verlange(
            self["Check3"] == 0 or self.zahl("DynAnz") != 0,
            "Sie haben Dynamisierung gewählt. Die Anzahl der Dynamisierungsstufen muss bei einer Begrenzug größer als "
            "'0' sein. ",
            "DynAnz",
        )
        if self.form in SUCHT_BETRAG:
            return
        self.verlange(
            self["Check4"] == 0 or self.zahl("Betrag") < self.zahl("MaxSparrate"),
            "Der maximale Sparbetrag muss größer sein als der Anfangssparbetrag",
            "MaxSparrate",
        )
        self.verlange(
            self["Check5"] == 0 or self.zahl("Betrag") > self.zahl("MinSparrate"),
            "Der minimale Sparbetrag muss kleiner sein als der Anfangssparbetrag",
            "MinSparrate",
        )

    def zinstabelle_pruefen(self):
        for i in range(TABELLENZEILEN):
            k = min(range(i, TABELLENZEILEN), key=lambda n: zeilenschluessel(self.tabelle[n][0]))
            self.tabelle[i], self.tabelle[k] = self.tabelle[k], self.tabelle[i]
        erstes = self.tabelle[0][0]
        if len(erstes) > 3 and datum(erstes) <= self.tag("Anfdatum"):
            meldung = f"Weitere Zinssätze müssen nach dem Anfangsatum {self['Anfdatum']} liegen."
            raise Ablehnung(meldung, "ZinsWDAt(1)")
        for nummer, (tag, satz) in enumerate(self.tabelle, 1):
            if len(tag) >= 3 and (not satz or zahl(satz) == 0):
                raise Ablehnung("Geben Sie den Zinsbetrag ein", f"Zinsbetrag({nummer})")

    def raten(self, kapital, rate, ende):
        """The payments as they are written, also those that the end leaves out."""
        tag = self.tag("ratdatum1")
        rastertag = tag.day
        saetze = [
            Satz(ZAHLUNG, self.tag("Anfdatum"), "Anfangsvermögen", kapital),
            Satz(ZAHLUNG, tag, self.ratentext(rate, "Rate"), rate),
        ]
        folge = Ratenfolge(self, rate)
        while (tag := plus_monate(tag, ZAHLUNGSMONATE[self["Combo1"]])) <= ende:
            tag = mit_rastertag(tag, rastertag)
            if self["Check1"] == 1:
                tag = monatsletzter(tag)
            rate = folge.naechste()
            if len(saetze) == SATZGRENZE:
                raise Rechenfehler("zu viele Raten")
            saetze.append(Satz(ZAHLUNG, tag, self.ratentext(rate, "rate"), rate))
        return saetze

    def ratentext(self, rate, text):
        if self.form == "Form96000":
            return text
        return "Auszahlung" if rate <= 0 else "Zahlung"

    def konditionen(self, zins, ende):
        def kondition(tag, satz):
            r = vierbyte(satz)
            return Satz(KONDITION, tag, Gutzins1=r, Gutzins2=r, Kreditzins1=r, Kreditzins2=r, Zweitzinsart=1)

        saetze = [kondition(self.tag("Anfdatum"), zins)]
        if self.form in MIT_TABELLE:
            gefuellt = [(datum(tag), satz) for tag, satz in self.tabelle if len(tag) >= 4]
            saetze += [kondition(tag, zahl(satz)) for tag, satz in gefuellt if tag <= ende]
        return saetze

    def lauf(self, ende, kapital=None, rate=None, zins=None):
        """One pass of the account; gives its last balance."""
        kapital = self.kapital() if kapital is None else kapital
        rate = self.zahl("Betrag") if rate is None else rate
        zahlungen = self.raten(kapital, rate, ende)
        termine = zinstermine(zahlungen[0].tag, ende, self["Combo4"])
        konditionen = self.konditionen(self.zahl("Zins") if zins is None else zins, ende)
        self.loesung = mischen(zahlungen, konditionen, termine, ende)
        staffelberechnung(self.loesung, self["Combo2"])
        return self.loesung[-1].Kontostand


def zeilenschluessel(text):
    if len(text) < 4:
        return 99999999.0
    try:
        return float(text[6:10] + text[3:5] + text[:2])
    except ValueError:
        raise Rechenfehler(f"{text!r} ist kein Datum") from None


class Ratenfolge:
    """The amounts behind the first one."""

    def __init__(self, plan, rate):
        self.plan, self.rate = plan, rate
        self.zaehler = self.stufen = 0

    def naechste(self):
        self.zaehler += 1
        if self.plan["Check2"] == 1 and self.plan.zahl("Anzahl") == self.zaehler:
            self.aendern_einfach() if self.plan.form == "Form96000" else self.aendern()
        return self.rate

    def aendern(self):
        plan = self.plan
        self.stufen += 1
        if plan["Check3"] == 1 and plan.zahl("DynAnz") < self.stufen:
            return
        rate = self.rate * (1 + plan.zahl("Delta") / 100) + plan.zahl("Delta2")
        if plan["Check4"] == 1:
            rate = min(rate, plan.zahl("MaxSparrate"))
        if plan["Check5"] == 1:
            rate = max(rate, plan.zahl("MinSparrate"))
        self.rate = runde(rate, 2)
        self.zaehler = 0

    def aendern_einfach(self):
        delta = self.plan.zahl("Delta")
        if delta == 0:
            return
        self.rate = runde(self.rate * (1 + delta / 100), 2) if self.plan.einheit == "%" else self.rate + delta
        self.zaehler = 0
