"""What the writer makes, read by a program that is not ours: unrtf_pruefen.py PROBE

PROBE writes a rich-text file to its standard output; unrtf makes text and HTML of it, and both must show what is in it.
"""

import html
import re
import subprocess
import sys
import tempfile
from pathlib import Path

# unrtf's text is no UTF-8: it is asked for what is plain ASCII there.
IM_TEXT = ("{geschweift} \\ schr", "fett kursiv unterstrichen klein gro", "erster Punkt", "7.", "siebter", "8.", "achter", "Ende")
IM_HTML = (
    "Zinsen für Öl & Ähren, groß: 5 € {geschweift} \\ schräg",
    "fett kursiv unterstrichen klein groß",
    "griechisch: αω",
    "• erster Punkt",
    "• zweiter Punkt",
    "7. siebter",
    "8. achter",
    "Ende",
)
AUSZEICHNUNGEN = ("<b>", "<i>kursiv</i>", "<u>unterstrichen</u>", "<center>", 'face="Arial"', 'color="#ff0000">klein<')


def gelesen(als, datei):
    """The file as unrtf shows it."""
    return subprocess.run(["unrtf", als, datei], check=True, capture_output=True).stdout


def fehlend(probe):
    """What unrtf does not show, as texts."""
    with tempfile.TemporaryDirectory() as ordner:
        datei = Path(ordner, "probe.rtf")
        datei.write_bytes(subprocess.run([probe], check=True, capture_output=True).stdout)
        text = gelesen("--text", datei).decode("latin-1")
        seite = gelesen("--html", datei).decode("utf-8")
    ohne_auszeichnung = " ".join(html.unescape(re.sub(r"<[^>]*>", "", seite)).split())
    return (
        [f"Text: {stueck}" for stueck in IM_TEXT if stueck not in text]
        + [f"HTML: {stueck}" for stueck in IM_HTML if stueck not in ohne_auszeichnung]
        + [f"Auszeichnung: {stueck}" for stueck in AUSZEICHNUNGEN if stueck not in seite]
    )


if __name__ == "__main__":
    luecken = fehlend(sys.argv[1])
    print("\n".join(luecken) or "unrtf zeigt alles.")
    sys.exit(1 if luecken else 0)
