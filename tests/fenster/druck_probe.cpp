// Prints a report of 100 rows on a printer of the print system: druck_probe PRINTER [COPIES].

#include <QGuiApplication>
#include <QPrinter>
#include <QPrinterInfo>
#include <cstdio>

#include "fenster/ausgabe/druck.h"
#include "fenster/nummernbericht.h"

int main(int argc, char** argv) {
    using namespace zinfolio;
    const QGuiApplication programm(argc, argv);
    if (argc < 2) return 2;
    const QPrinterInfo angabe = QPrinterInfo::printerInfo(argv[1]);
    if (angabe.isNull()) {
        std::fprintf(stderr, "Es gibt keinen Drucker %s.\n", argv[1]);
        return 1;
    }
    QPrinter drucker(angabe, QPrinter::HighResolution);
    const Seitenmaler maler(Nummernbericht(100));
    DruckEinrichten(drucker, maler.Inhalt());
    if (argc > 2) drucker.setCopyCount(QByteArray(argv[2]).toInt());
    std::printf("kopien durch den Drucker: %d\n", drucker.supportsMultipleCopies() ? 1 : 0);
    return Drucken(maler, drucker) ? 0 : 1;
}
