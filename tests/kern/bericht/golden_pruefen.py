"""Compares the reports of a few rows with the files of the folder golden, byte for byte: KIND.rtf, KIND.html and KIND.txt.

A file there is what somebody has read line by line and found right. What has to change there is changed by hand, or taken
from the program and then read again.

Call: golden_pruefen.py PROBE FOLDER KIND, where PROBE is the program bericht_probe. Ends with status 1 and the differences.
"""

import difflib
import subprocess
import sys
from pathlib import Path

# Payments of a report; the savings plan settles a quarter after two rates.
ZAHLUNGEN = {"Form": "2", "faktoren": "2"}
SONST = "4"


def probe(programm, format_, art):
    zahlungen = next((zahl for anfang, zahl in ZAHLUNGEN.items() if art.startswith(anfang)), SONST)
    return subprocess.run([programm, format_, art, zahlungen], capture_output=True, check=True).stdout


def unterschiede(erwartet, erhalten, name):
    """The lines that differ; empty where the bytes are the same."""
    if erwartet == erhalten:
        return []
    zeilen = [inhalt.decode("utf-8", "backslashreplace").splitlines(keepends=True) for inhalt in (erwartet, erhalten)]
    return list(difflib.unified_diff(*zeilen, f"golden/{name}", "erhalten")) or [f"{name}: nur die Zeilenenden\n"]


def main(programm, ordner, art):
    formate = {"txt": "text"} if art == "text" else {"rtf": "rtf", "html": "html"}
    ausgang = 0
    for endung, format_ in formate.items():
        datei = Path(ordner) / f"{art}.{endung}"
        zeilen = unterschiede(datei.read_bytes(), probe(programm, format_, "Form96000" if art == "text" else art), datei.name)
        sys.stdout.writelines(zeilen)
        ausgang |= bool(zeilen)
    return ausgang


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
