#include "fenster/hilfe/hilfethema.h"

#include <QAbstractButton>
#include <QByteArray>
#include <QLabel>
#include <QRegularExpression>
#include <QTabWidget>
#include <array>

namespace zinfolio {
namespace {

/// A window by its fixed name or a view by its class, and where the handbook explains it.
struct Hilfeort {
    const char* name;
    const char* kapitel;
    const char* ueberschrift;
};

constexpr const char* ersteSeite = "erste-schritte";

constexpr std::array hilfeorte{
    Hilfeort{"FormVorschau", "ausgabe", "Drucken"},   Hilfeort{"FormDiagramm", "ausgabe", "Grafik"},
    Hilfeort{"Form34", "ausgabe", "Textanzeige"},     Hilfeort{"Form48000", "zinsstaffelrechner", ""},
    Hilfeort{"Form61000", "effektivzinsrechner", ""}, Hilfeort{"Form90000", "ratensparen", ""},
    Hilfeort{"Form94000", "ratensparen", ""},         Hilfeort{"Form92000", "ratensparen", ""},
    Hilfeort{"Form96000", "ratensparen", ""},         Hilfeort{"Form99000", "ratensparen", ""},
    Hilfeort{"Form14005", "finanztabellen", ""},      Hilfeort{"Form4b", "kurzberechnung", ""},
    Hilfeort{"Form5b", "kurzberechnung", ""},         Hilfeort{"Form7b", "kurzberechnung", ""},
    Hilfeort{"Form8b", "kurzberechnung", ""},
};

const Hilfeort* OrtVon(const QWidget& element) {
    for (const Hilfeort& ort : hilfeorte) {
        if (element.objectName() == ort.name || element.inherits(QByteArray("zinfolio::") + ort.name))
            return &ort;
    }
    return nullptr;
}

/// A caption as the handbook writes it: no mnemonic, nothing behind the words.
QString Beschriftung(QString text) {
    text.remove('&');
    static const QRegularExpression nachspann(R"(\s*[:?(%,].*$)");
    return text.remove(nachspann).trimmed();
}

QString Feldname(const QWidget& element) {
    if (const auto* taste = qobject_cast<const QAbstractButton*>(&element))
        return Beschriftung(taste->text());
    for (const QLabel* text : element.window()->findChildren<QLabel*>()) {
        if (text->buddy() == &element) return Beschriftung(text->text());
    }
    return Beschriftung(element.accessibleName());
}

}  // namespace

Hilfethema ThemaVon(const QWidget* element) {
    Hilfethema thema{.kapitel = ersteSeite};
    if (!element) return thema;
    thema.feld = Feldname(*element);
    for (const QWidget* ort = element; ort; ort = ort->parentWidget()) {
        const auto* register_ = qobject_cast<const QTabWidget*>(ort);
        if (register_ && thema.ueberschrift.isEmpty())
            thema.ueberschrift = register_->tabText(register_->currentIndex()).remove('&');
        if (const Hilfeort* gefunden = OrtVon(*ort)) {
            thema.kapitel = gefunden->kapitel;
            if (*gefunden->ueberschrift) thema.ueberschrift = gefunden->ueberschrift;
            return thema;
        }
    }
    return {.kapitel = ersteSeite};
}

QString Sprungziel(const QString& ueberschrift) {
    static const QRegularExpression satzzeichen(R"([^\w-])", QRegularExpression::UseUnicodePropertiesOption);
    return ueberschrift.trimmed().toLower().replace(' ', '-').remove(satzzeichen);
}

}  // namespace zinfolio
