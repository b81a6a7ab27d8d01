"""Prints account jobs for measuring: ACCOUNTS lines with POSTINGS postings each, the same ones every time.

Call: auftraege_erzeugen.py ACCOUNTS POSTINGS
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


def hauptprogramm():
    konten, buchungen = int(sys.argv[1]), int(sys.argv[2])
    zufall = random.Random(4711)
    for kennung in range(1, konten + 1):
        print(konto(kennung, buchungen, zufall))


if __name__ == "__main__":
    hauptprogramm()
