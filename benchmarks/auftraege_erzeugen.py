"""Prints input for measuring, the same every time: jobs of accounts, jobs of payment series (each by one of the four
methods in turn), or one account's payments as a table.

Call: auftraege_erzeugen.py konten|reihen JOBS ROWS
      auftraege_erzeugen.py tabelle ROWS
"""

import random
import sys

KONDITION = (
    '{"Datum":"%s","Gutzins1":%s,"Gutzins2":%s,"Guthabenlinie":10000,"Kreditzins1":9.5,'
    '"Kreditzins2":12.75,"Kreditlinie":2500,"Zweitzinsart":2}'
)


def tag(nummer):
    """The nummer-th day on months of 28 days, from 01.01.2007 on."""
    jahr, rest = divmod(nummer, 12 * 28)
    return f"{rest % 28 + 1:02}.{rest // 28 + 1:02}.{2007 + jahr}"


def konto(kennung, buchungen, zufall):
    """One job: postings spread over the days of a year, or two a day where there are many."""
    schritt = max(1, 336 // buchungen)
    zahlungen = []
    for i in range(buchungen):
        tagnummer = i * schritt if buchungen <= 336 else i // 2
        betrag = zufall.randint(-90000, 110000) / 100
        zahlungen.append(f'{{"Datum":"{tag(tagnummer)}","Betrag":{betrag:g},"Text":"Buchung {i + 1}"}}')
    return (
        f'{{"id":{kennung},"rechnung":"staffel","Zahlungen":[{",".join(zahlungen)}],'
        f'"Konditionen":[{KONDITION % ("01.01.2007", 2, 3)},{KONDITION % ("01.07.2007", 2.25, 3.3)}],'
        f'"Kontodatum":"{tag(max(335, tagnummer + 1))}","Zinsverrechnungsart":2,"Verzinsungsmethode":1}}'
    )


def reihe(kennung, zeilen, zufall):
    """One job: monthly payments on any day of their month, then one that gives them back with a yield."""
    zahlungen = []
    summe = 0
    for i in range(zeilen):
        betrag = zufall.randint(10000, 90000) / 100
        summe += betrag
        betrag = -betrag if i + 1 < zeilen else summe * zufall.uniform(1.01, 1.3)
        datum = f"{zufall.randint(1, 28):02}.{i % 12 + 1:02}.{2000 + i // 12}"
        zahlungen.append(f'{{"Datum":"{datum}","Betrag":{betrag:.2f}}}')
    return (
        f'{{"id":{kennung},"rechnung":"reihe","Effektivmethode":{kennung % 4 + 1},'
        f'"Zahlungen":[{",".join(zahlungen)}]}}'
    )


def tabelle(zeilen, zufall):
    """The payments of an account as a table, two a day."""
    yield "Datum;Betrag;Beschreibung"
    for i in range(zeilen):
        betrag = f"{zufall.randint(-90000, 110000) / 100:.2f}".replace(".", ",")
        yield f"{tag(i // 2)};{betrag};Buchung {i + 1}"


def hauptprogramm():
    zufall = random.Random(4711)
    if sys.argv[1] == "tabelle":
        print("\n".join(tabelle(int(sys.argv[2]), zufall)))
        return
    auftrag = {"konten": konto, "reihen": reihe}[sys.argv[1]]
    for kennung in range(1, int(sys.argv[2]) + 1):
        print(auftrag(kennung, int(sys.argv[3]), zufall))


if __name__ == "__main__":
    hauptprogramm()
