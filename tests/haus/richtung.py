"""Reads the includes below src/ and refuses one that points upwards, or that brings a foreign library into the core.

A source includes the header of its own name first, so that compiling it shows that the header stands alone.

Call: richtung.py SRC. Prints each offence as file:line and ends with status 1 if there is one.
"""

import re
import sys
from pathlib import Path

# Which rooms a room may know besides itself. A room is a folder below its wing; each is listed after those it knows,
# so that the table itself has no circle.
RAEUME = {}


def _raum(name, *kennt):
    """Enters a room; what it knows must stand in the table already."""
    RAEUME[name] = frozenset(kennt)
    assert RAEUME[name] <= RAEUME.keys(), name


_raum("kern/grund")
_raum("kern/dateien", "kern/grund")
_raum("kern/dates", "kern/grund")
_raum("kern/richtext", "kern/grund")
_raum("kern/bericht", "kern/grund", "kern/dateien", "kern/dates", "kern/richtext")
_raum("kern/finmath", "kern/grund", "kern/dateien", "kern/dates")
_UNTEN = tuple(RAEUME)
_raum("kern/staffel", *_UNTEN)
_RECHNER = tuple(RAEUME)
_raum("kern/sparen", *_RECHNER)
_raum("kern/allround", *_RECHNER)
_raum("kern/tabellen", *_RECHNER)
_KERN = tuple(RAEUME)
_raum("stapel/json", "kern/grund", "kern/dates")
_raum("stapel/auftraege", *_KERN, "stapel/json")
_raum("stapel/befehle", *_KERN, "stapel/json", "stapel/auftraege")
_raum("fenster/ui", "kern/grund", "kern/dateien", "kern/dates", "kern/richtext", "kern/bericht")
_raum("fenster/hilfe", "kern/grund", "fenster/ui")
_raum("fenster/ausgabe", "kern/grund", "kern/dateien", "kern/dates", "kern/richtext", "kern/bericht", "fenster/ui")
_RAHMEN = ("fenster/ui", "fenster/hilfe", "fenster/ausgabe")
_raum("fenster/rechner", *_UNTEN, "kern/staffel", *_RAHMEN)
for _rechner in ("staffel", "allround", "tabellen"):
    _raum(f"fenster/{_rechner}", *_KERN, *_RAHMEN, "fenster/rechner")
# The savings calculators open the quick ones.
_raum("fenster/sparen", *_KERN, *_RAHMEN, "fenster/rechner", "fenster/tabellen")
_raum("fenster/start", *(raum for raum in RAEUME if not raum.startswith("stapel/")))

# Foreign headers, and the rooms or wings that may include them.
FREMD = (
    (re.compile(r"Q[A-Z]|Qt[A-Z]|qcustomplot|ui_\w+\.h$|\w+\.moc$|moc_\w+\.cpp$"), ("fenster",)),
    (re.compile(r"xlsxwriter\.h$"), ("fenster/ui",)),
    (re.compile(r"simdjson\.h$|CLI/"), ("stapel",)),
    (re.compile(r"(fcntl|pwd|unistd|sys/stat|sys/types|sys/file|sys/mman|sys/random|malloc|dlfcn)\.h$"), ("kern/dateien", "stapel")),
)
# Variables that the linker merges by their name, whatever their type.
INLINEVARIABLE = re.compile(r"^inline constexpr [^=({;]*?([\w]+)(?: =|\{)", re.M)
STANDARDKOPF = re.compile(r"[a-z_0-9]+$")

INCLUDE = re.compile(r'\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')
ENDUNGEN = (".h", ".hpp", ".hxx", ".hh", ".cpp", ".cxx", ".cc")


def raum(pfad):
    """The room of a path relative to src/, or None."""
    ordner = "/".join(pfad.parts[:2])
    return ordner if len(pfad.parts) > 2 and ordner in RAEUME else None


def fremdverstoss(von, kopf):
    """What is wrong with including a header that is none of ours, or None."""
    for muster, erlaubt in FREMD:
        if muster.match(kopf):
            return None if von in erlaubt or von.split("/")[0] in erlaubt else f"{von} darf {kopf} nicht kennen"
    return None if STANDARDKOPF.match(kopf) else f"unbekannter fremder Kopf {kopf}"


def eigener(src, datei, kopf):
    """The path relative to src/ that a quoted include means: beside its file, else below src/. None if there is no such file."""
    for ordner in (datei.parent, src):
        ziel = (ordner / kopf).resolve()
        if ziel.is_file() and ziel.is_relative_to(src):
            return ziel.relative_to(src)
    return None


def verstoss(src, datei, von, zitiert, spitz):
    """What is wrong with one include of a file in the room `von`, or None."""
    ziel = eigener(src, datei, zitiert or spitz)
    if ziel is None:
        return fremdverstoss(von, zitiert or spitz)
    nach = raum(ziel)
    if nach is None:
        return f"{ziel} liegt in keinem bekannten Raum"
    return None if nach == von or nach in RAEUME[von] else f"{von} darf {nach} nicht kennen ({ziel})"


def kopf_nicht_zuerst(datei, von, includes):
    """What is wrong with the place of a source's own header among its includes, or None."""
    eigen = datei.with_suffix(".h")
    if datei.suffix != ".cpp" or not eigen.is_file():
        return None
    erster = includes[0][1] if includes else ""
    return None if erster in (eigen.name, f"{von}/{eigen.name}") else f"schließt {eigen.name} nicht zuerst ein"


def includes_von(datei):
    """The includes of a file, as (line, quoted, angled); one of the last two is empty."""
    zeilen = enumerate(datei.read_text(encoding="utf-8").splitlines(), 1)
    return [(nummer, *treffer.groups("")) for nummer, zeile in zeilen if (treffer := INCLUDE.match(zeile))]


def doppelte_variablen(dateien):
    """Inline variables of one name in two headers, each as a line of text."""
    orte = {}
    for datei in (datei for datei in dateien if datei.suffix == ".h"):
        for name in INLINEVARIABLE.findall(datei.read_text(encoding="utf-8")):
            orte.setdefault(name, []).append(datei.name)
    return [f"{name} steht in {' und '.join(gefunden)}" for name, gefunden in orte.items() if len(gefunden) > 1]


def pruefe(src):
    """All offences below a source folder, as lines of text."""
    src = Path(src).resolve()
    dateien = sorted(d for d in src.rglob("*") if d.suffix in ENDUNGEN)
    if not dateien:
        return [f"{src}: keine Quellen gefunden"]
    gefunden = doppelte_variablen(dateien)
    for datei in dateien:
        pfad = datei.relative_to(src)
        von = raum(pfad)
        if von is None:
            gefunden.append(f"{pfad}: liegt in keinem bekannten Raum")
            continue
        includes = includes_von(datei)
        if grund := kopf_nicht_zuerst(datei, von, includes):
            gefunden.append(f"{pfad}: {grund}")
        for nummer, zitiert, spitz in includes:
            if grund := verstoss(src, datei, von, zitiert, spitz):
                gefunden.append(f"{pfad}:{nummer}: {grund}")
    return gefunden


if __name__ == "__main__":
    verstoesse = pruefe(sys.argv[1])
    print("\n".join(verstoesse) or "Alle Includes zeigen nach unten.")
    sys.exit(1 if verstoesse else 0)
