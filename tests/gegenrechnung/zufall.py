"""Jobs of every kind by chance, leaning towards the places where something changes: month ends, leap days, limits,
rates of 0 and below, empty and wrong fields."""

from datetime import date, timedelta

from kalender import datum, datumstext

UNSINN = ["", "0", "-0", " 5 ", "5 5", "1,2,3", ",5", "5,", "+7", "-", ",", "1e5", "abc", "ä", "%", "00", "99999"]
UNSINN += ["-100", "32768", "0,0000001", "31.12.9999", "01.01.0100", "29.02.2000", "29.02.2023", "1.1.2007"]
UNSINN += ["01.01.2007 ", "1.234.567,89", "1000000"]


def tag(r, von=1990, bis=2030):
    jahr = r.randint(von, bis)
    art = r.random()
    if art < 0.25:
        return date(jahr, r.choice([1, 3, 5, 7, 8, 10, 12]), 31)
    if art < 0.4:
        return date(jahr, 3, 1) - timedelta(days=r.choice([1, 1, 2]))
    return date(jahr, 1, 1) + timedelta(days=r.randint(0, 364))


def spaeter(r, ab):
    return ab + timedelta(days=r.choice([0, 1, 30, 31, 90, 365, 366, r.randint(0, 400), r.randint(0, 900)]))


def listen(r, **letzte):
    """An index for each list, by the number of its last entry."""
    return {name: r.randint(0, letzter) for name, letzter in letzte.items()}


def kommazahl(wert, stellen=2):
    return f"{wert:.{stellen}f}".replace(".", ",")


def betrag(r):
    ungewoehnlich = ["0", "", "-250", "1.234,5"]
    return r.choice(ungewoehnlich if r.random() < 0.25 else ["50", "100", "1000", kommazahl(r.uniform(0.01, 9000))])


def zins(r):
    ungewoehnlich = ["0", "", "-2", "25"]
    return r.choice(ungewoehnlich) if r.random() < 0.25 else kommazahl(r.uniform(0.05, 9), r.randint(0, 4))


def zahlungen(r, anzahl=None):
    liste, wann, art = [], tag(r, 1995, 2024), r.random()
    for k in range(anzahl or r.choice([1, 2, 3, 4, 8, 24])):
        wert = r.choice([100, 1000, round(r.uniform(50, 3000), 2), round(r.uniform(50, 3000), 2)])
        if k == 0:
            wert *= -10
        if art > 0.7:
            wert *= r.choice([-1, 1])
        wert = round(wert if art > 0.35 else -wert, 2)
        text = {"Text": "Miete März"} if r.random() < 0.2 else {}
        liste.append({"Datum": datumstext(wann), "Betrag": wert if r.random() > 0.03 else 0, **text})
        wann = spaeter(r, wann)
    if r.random() < 0.3:
        r.shuffle(liste)
    return liste


def kondition(r, wann):
    def satz():
        return round(r.uniform(0, 12), r.randint(0, 3))

    return {
        "Datum": datumstext(wann), "Gutzins1": satz(), "Gutzins2": satz(), "Kreditzins1": satz(), "Kreditzins2": satz(),
        "Guthabenlinie": r.choice([0, 100, 1000, 5000.5]), "Kreditlinie": r.choice([0, 100, 1000, 5000]),
        "Zweitzinsart": r.choice([0, 1, 2]),
    }


def staffel(r):
    liste = zahlungen(r)
    tage = sorted(datum(z["Datum"]) for z in liste)
    erste = tage[0] - timedelta(days=r.choice([0, 0, 10, 400, -3]))
    konditionen = [kondition(r, erste + timedelta(days=n * r.randint(1, 900))) for n in range(r.choice([1, 2, 4]))]
    ende = r.choice([tage[-1] + timedelta(days=r.randint(-300, 900)), date(tage[-1].year + 1, 12, 31), tage[0]])
    auftrag = {
        "Zahlungen": liste, "Konditionen": konditionen, "Kontodatum": datumstext(ende),
        "Zinsverrechnungsart": r.randint(0, 5), "Verzinsungsmethode": r.randint(0, 4),
    }
    if r.random() < 0.6:
        auftrag["Effektivmethode"] = r.randint(1, 4)
    return auftrag


def reihe(r):
    return {"Zahlungen": zahlungen(r), "Effektivmethode": r.randint(1, 4)}


def reihenwert(r):
    return {**reihe(r), "Zinssatz": r.choice([0, 5, 3.25, -2, 100, -50, -101, round(r.uniform(-5, 20), 3)])}


def wertanalyse(r):
    liste = zahlungen(r) if r.random() > 0.03 else []
    wann = r.choice(["", "", "1", *(z["Datum"] for z in liste[:3]), "31.12.2005", "01.06.2010", "unsinn"])
    satz = r.choice([zins(r), "7,5x"])
    return {"Zahlungen": liste, "Anzeigeart": r.randint(1, 2), "Abzins2": satz, "BarwDatum": wann}


def sensitivitaet(r):
    return {**wertanalyse(r), "MiZins": r.choice(["", "0", "2", "7,5", "0,3", "abc", "33"]), "Combo2": r.randint(0, 6)}


def jahreswerte(r):
    auftrag = wertanalyse(r)
    del auftrag["Anzeigeart"]
    return auftrag


def tilgungsplan(r):
    return {"Zahlungen": zahlungen(r), "Combo4": r.randint(0, 4), "Combo6": r.randint(0, 4)}


def dynamisierung(r, form):
    felder = {"Check2": 1, "Anzahl": r.choice(["1", "2", "3", "6", "12", "12", "24", r.choice(["0", ""])])}
    felder["Delta"] = r.choice(["10", "2,5", "-5", "0", "", "1,75", "-110"])
    if form == "Form96000":
        return felder
    felder["Delta2"] = r.choice(["10", "-25,5", "0", "", "3,33"])
    grenzen = {
        "Check3": ("DynAnz", ["1", "2", "5", r.choice(["0", ""])]),
        "Check4": ("MaxSparrate", ["55,5", "120", "1100,55", "9999", ""]),
        "Check5": ("MinSparrate", ["5", "0", "-1000", "45,5"]),
    }
    for haken, (feld, werte) in grenzen.items():
        if r.random() < 0.4:
            felder.update({haken: 1, feld: r.choice(werte)})
    return felder


def zinstabelle(r, anfang, ende):
    def zeile():
        wann = anfang + timedelta(days=r.randint(-5 if r.random() < 0.1 else 1, 5000))
        satz = "0" if r.random() < 0.02 else r.choice(["1", "2,5", "0,25", "-1", "7,125", "3"])
        return [datumstext(ende if r.random() < 0.2 else wann), satz]

    return [["", ""] if r.random() < 0.1 else zeile() for _ in range(r.randint(1, 5))]


def sparplan(r, form):
    anfang = tag(r)
    rate = spaeter(r, anfang) if r.random() < 0.95 else tag(r)
    laufzeiten = [1, 365, 366, 3653, r.randint(1, 9000), r.randint(1, 9000), r.randint(-300, 700)]
    ende = rate + timedelta(days=r.choice(laufzeiten))
    felder = listen(r, Combo1=4, Combo2=4, Combo4=5, Combo5=3)
    felder.update(Anfdatum=datumstext(anfang), ratdatum1=datumstext(rate), Check1=int(r.random() < 0.35))
    if form != "Form96000":
        felder["Enddatum"] = datumstext(ende)
    if form != "Form99000":
        felder["AnfVermögen"] = betrag(r)
    if form != "Form94000":
        felder["Betrag"] = betrag(r)
    if form != "Form92000":
        felder["Zins"] = zins(r)
    if form == "Form92000":
        felder.update(ertragsplan(r, felder["Combo1"], anfang, ende))
    elif form != "Form90000":
        felder["Vwert"] = r.choice([kommazahl(r.uniform(5, 60) ** r.choice([2, 3]))] * 6 + ["", "0", "-2000"])
    if r.random() < 0.55:
        felder.update(dynamisierung(r, form))
    return felder, anfang, ende


def ertragsplan(r, rhythmus, anfang, ende):
    """Amounts and an end value that some rate mostly reaches."""
    kapital, rate = r.choice([0, 500, 12345]), r.choice([0, 50, 100, 333])
    eingezahlt = kapital + rate * [12, 6, 4, 2, 1][rhythmus] * max(1, ende.year - anfang.year)
    endwert = r.choice([kommazahl(eingezahlt * r.uniform(0.8, 2.5))] * 6 + [str(eingezahlt), "", "0"])
    return {"AnfVermögen": str(kapital), "Betrag": str(rate), "Vermendwert": endwert}


def sparen(r, form):
    felder, anfang, ende = sparplan(r, form)
    if r.random() < 0.1:
        feld = r.choice([name for name, wert in felder.items() if isinstance(wert, str)])
        felder[feld] = r.choice(UNSINN)
    auftrag = {"Form": form, "Felder": felder}
    if form in ("Form90000", "Form94000", "Form99000") and r.random() < 0.4:
        auftrag["Zinstabelle"] = zinstabelle(r, anfang, ende)
    if form == "Form96000":
        auftrag["Command6"] = r.choice(["%", "€"])
        if r.random() < 0.3:
            sprungziel(r, felder)
    return auftrag


def sprungziel(r, felder):
    """A target that lies inside the jump of a yearly rate."""
    felder.update({"Combo1": 4, "AnfVermögen": "0", "Betrag": "1000", "Zins": "1", "Check2": 0})
    felder["Vwert"] = str(r.randint(2, 9) * 1000 + 500)


def kurz(r):
    form = r.choice(["Form4b", "Form5b", "Form7b", "Form8b"])
    kapital, ziel, jahre = ("Kap", "Vwert", "Laufzeitjahre") if form == "Form4b" else ("kap", "Vendwert", "Laufjahre")
    auftrag = {"Form": form, "m": r.choice([12, 6, 4, 3, 2, 1]), "Zahlungsmodus": r.randint(1, 2)}
    auftrag.update({"rate": betrag(r), kapital: betrag(r), "Zins": zins(r)})
    auftrag[ziel] = r.choice(["", "10000", "50.000", "1234,5"])
    auftrag[jahre] = r.choice(["", "0", "1", "5", "30", "2,5", str(r.randint(1, 50))])
    auftrag["Lauftage"] = r.choice(["", "0", "40", "400", "359", "360", "12,5", str(r.randint(0, 360))])
    if r.random() < 0.1:
        auftrag[r.choice(["rate", kapital, jahre])] = r.choice(UNSINN)
    return auftrag


def faktortabelle(r):
    def prozent():
        return r.choice(["", "0", "x", "-1"] if r.random() < 0.1 else ["0,5", "1", "2,25", "4", "5,3", "7,5"])

    jahre = {"J1": r.choice(["", "1", "2"]), "J2": r.choice(["2", "12", "20"])}
    return {**listen(r, Combo1=5, Combo2=5, Combo3=5, Combo4=1), "Pro1": prozent(), "Pro2": prozent(), **jahre}


def faktor(r):
    texte = {"Zins2": zins(r), "Jahre2": r.choice(["", "1", "10", "2,5"]), "Betrag2": betrag(r)}
    return {**listen(r, Combo7=5, Combo5=5, Combo6=1), **texte}


def periode(r):
    von = tag(r)
    bis = r.choice([spaeter(r, von), tag(r)])
    return {"Von": datumstext(von), "Bis": datumstext(bis), "Verzinsungsmethode": r.randint(0, 4)}


def periodenzinsen(r):
    def wert():
        return r.choice([0, 1000, -2500.55, 1e8, 0.01, 1e15, round(r.uniform(-1e5, 1e5), 2)])

    satz = (round(r.uniform(-3, 15), r.randint(0, 4)) for _ in range(2))
    return {**periode(r), "Betrag1": wert(), "Satz1": next(satz), "Betrag2": wert(), "Satz2": next(satz)}


def datumsfeld(r):
    ziffern = "".join(r.choice("0123456789") for _ in range(r.choice([0, 1, 2, 4, 6, 6, 8, 8, 9])))
    zeichen = "".join(r.choice("0123.91") for _ in range(r.randint(0, 12)))
    teile = f"{r.choice(['', '0'])}{r.randint(1, 32)}.{r.choice(['', '0'])}{r.randint(0, 13)}."
    jahr = r.choice(["", "7", "07", "107", "2007", "99", "20077", str(r.randint(0, 9999))])
    text = r.choice([ziffern, zeichen, teile + jahr])
    return {"Feld": text, "Heute": "15.06.2024", "Laenge": r.choice([10, 10, 10, 6, 5])}


def zahlformat(r):
    werte = [0, -0.004, 2.675, 1.005, 0.5, -0.5, 1234567.891, 1e21, 1e-7, round(r.uniform(-1e6, 1e6), r.randint(0, 6))]
    muster = ["###,#0.00", "###,##0.00000", "###,##.00", "0.00", "###,0.00", "#0", "000.0", "###,000.00"]
    return {"Wert": r.choice(werte), "Muster": r.choice(muster)}


def zinstermine(r):
    erstes = tag(r)
    ende = r.choice([erstes + timedelta(days=r.randint(-400, 1500)), tag(r)])
    return {"Erstdatum": datumstext(erstes), "Kontodatum": datumstext(ende), "Zinsverrechnungsart": r.randint(0, 5)}


def zahlungsreihe(r):
    texte = {
        "Begdatum": [datumstext(tag(r))] * 8 + ["", "0"],
        "Betrag": ["100", "1.234,5", "-50", "0", "", "x"],
        "Ratzahl": ["", "0", "1", "3", "12"],
        "Abstand": ["", "0", "1", "2", "7"],
        "Stufen": ["", "0", "1", "2", "3"],
        "Delta": ["", "0", "10", "-5,5"],
        "Command1": ["%", "€"],
        "Beschreibung": ["", "Rate", "äöüß€ und ein sehr langer Text", "Ω", "  Rand  "],
    }
    return {**{name: r.choice(werte) for name, werte in texte.items()}, **listen(r, Combo5=2, Check1=1, Check2=1)}
