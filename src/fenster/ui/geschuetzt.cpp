#include "fenster/ui/geschuetzt.h"

#include <QApplication>
#include <QCursor>
#include <exception>

#include "fenster/ui/meldungsfenster.h"
#include "kern/dateien/dateifehler.h"
#include "kern/dates/tage30.h"
#include "kern/grund/meldungen.h"

namespace zinfolio {
namespace {

class Wartezeiger {
  public:
    Wartezeiger() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Wartezeiger() { QApplication::restoreOverrideCursor(); }
    Wartezeiger(const Wartezeiger&) = delete;
    Wartezeiger& operator=(const Wartezeiger&) = delete;
};

bool Versuchen(QWidget* fenster, const std::function<void()>& operation,
               Meldungsinhalt (*fehlermeldung)(const QString& ursache)) {
    try {
        operation();
        return true;
    } catch (const Tage30Fehler& fehler) {
        MeldungZeigen(fenster, {.text = fehler.what()});
        QCoreApplication::exit(1);
    } catch (const std::exception& fehler) {
        MeldungZeigen(fenster, fehlermeldung(QString::fromUtf8(fehler.what())));
    }
    return false;
}

Meldungsinhalt UrsacheInDenEinzelheiten(const QString& ursache) {
    return {.text = Anzeigetext(meldung::angabenFehler), .einzelheiten = ursache};
}

Meldungsinhalt UrsacheDahinter(const QString& ursache) {
    return {.text = Anzeigetext(meldung::angabenFehler) + "\n\n" + ursache};
}

}  // namespace

bool Geschuetzt(QWidget* fenster, const std::function<void()>& operation) {
    return Versuchen(fenster, operation, UrsacheInDenEinzelheiten);
}

bool MitLesemeldung(QWidget* fenster, const std::function<void()>& operation) {
    const auto wartend = [&] {
        const Wartezeiger zeiger;
        operation();
    };
    return Versuchen(fenster, wartend, UrsacheDahinter);
}

bool MitSchreibmeldung(QWidget* fenster, const std::function<void()>& operation, const QString& vorspann) {
    try {
        operation();
        return true;
    } catch (const Dateifehler& fehler) {
        MeldungZeigen(fenster, {.text = vorspann + QString::fromUtf8(fehler.what())});
    }
    return false;
}

bool GeschuetztMitWartezeiger(QWidget* fenster, const std::function<void()>& operation) {
    return Geschuetzt(fenster, [&] {
        const Wartezeiger zeiger;
        operation();
    });
}

}  // namespace zinfolio
