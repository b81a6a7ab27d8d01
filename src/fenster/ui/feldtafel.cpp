#include "fenster/ui/feldtafel.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <algorithm>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/datumsfeld.h"
#include "fenster/ui/feldraster.h"
#include "fenster/ui/kalendertaste.h"
#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/optionsfeld.h"
#include "fenster/ui/umschalttaste.h"

namespace zinfolio {
namespace {

/// What an entry stands for.
int Zahl(const Feldbeschreibung& b, int stelle) {
    return b.zahlen.empty() || stelle < 0 ? stelle : b.zahlen[static_cast<std::size_t>(stelle)];
}

/// The entry that shows a content, by its text or what it stands for; 0 where none does.
int Stelle(const Feldbeschreibung& b, const Feldinhalt& inhalt) {
    if (const auto text = std::ranges::find(b.texte, inhalt.text); text != b.texte.end())
        return static_cast<int>(text - b.texte.begin());
    for (int stelle = 0; stelle < static_cast<int>(b.texte.size()); ++stelle) {
        if (Zahl(b, stelle) == inhalt.zahl) return stelle;
    }
    return 0;
}

QWidget* NeuesTextfeld(const Feldbeschreibung& b) {
    const QString name = Anzeigetext(b.name);
    Eingabefeld* feld =
        b.filter == Tastenfilter::datum ? new Datumsfeld(name) : new Eingabefeld(name, b.filter);
    feld->setPlaceholderText(Anzeigetext(b.platzhalter));
    if (b.laenge > 0) feld->setMaxLength(b.laenge);
    return feld;
}

QWidget* NeueAnzeige(const Feldbeschreibung& b) {
    auto* anzeige = new QLabel;
    anzeige->setObjectName(Anzeigetext(b.name));
    return anzeige;
}

QWidget* NeuesKaestchen(const Feldbeschreibung& b) {
    auto* kaestchen = new QCheckBox(Anzeigetext(b.titel));
    kaestchen->setObjectName(Anzeigetext(b.name));
    return kaestchen;
}

QWidget* NeuerRahmen(const Feldbeschreibung& b, std::map<std::string_view, Feldraster*>& rahmen) {
    QWidget* neu = b.titel.empty() ? new QWidget : new QGroupBox(Anzeigetext(b.titel));
    neu->setObjectName(Anzeigetext(b.name));
    auto* raster = new Feldraster(neu);
    if (b.titel.empty()) raster->setContentsMargins(0, 0, 0, 0);
    rahmen[b.name] = raster;
    return neu;
}

/// What stands behind a control: its calendar button, its unit.
std::vector<QWidget*> Begleiter(const Feldbeschreibung& b, QWidget& element) {
    std::vector<QWidget*> begleiter;
    if (auto* datum = qobject_cast<Datumsfeld*>(&element); datum && !b.kalender.empty())
        begleiter.push_back(new Kalendertaste(Anzeigetext(b.kalender), *datum, element.parentWidget()));
    if (!b.einheit.empty()) begleiter.push_back(new QLabel(Anzeigetext(b.einheit), element.parentWidget()));
    return begleiter;
}

/// Its caption is its own, so that it takes a row by itself.
bool HatEigenenTitel(Feldart art) {
    return art == Feldart::kaestchen || art == Feldart::optionen || art == Feldart::rahmen;
}

}  // namespace

Feldtafel::Feldtafel(QWidget* eltern) : QObject(eltern), eltern_(eltern) {}

QWidget* Feldtafel::Bauen(const Feldbeschreibung& b) {
    const QString name = Anzeigetext(b.name);
    switch (b.art) {
        case Feldart::text:
            return NeuesTextfeld(b);
        case Feldart::anzeige:
            return NeueAnzeige(b);
        case Feldart::liste:
            return NeueAuswahl(b.name, b.texte, nullptr);
        case Feldart::kaestchen:
            return NeuesKaestchen(b);
        case Feldart::optionen:
            return new Optionsfeld(name, Anzeigetext(b.titel), b.texte, b.zahlen);
        case Feldart::einheit:
            return new Umschalttaste(name, b.texte);
        case Feldart::rahmen:
            return NeuerRahmen(b, rahmen_);
    }
    return nullptr;
}

void Feldtafel::Anlegen(const Feldbeschreibung& beschreibung, Feldraster& raster, bool mitBegleiter) {
    Eintrag neu{.beschreibung = beschreibung, .element = Bauen(beschreibung), .dabei = {}};
    neu.element->setParent(eltern_);
    if (beschreibung.platzhaltend) {
        QSizePolicy platz = neu.element->sizePolicy();
        platz.setRetainSizeWhenHidden(true);
        neu.element->setSizePolicy(platz);
    }
    Platzieren(neu, beschreibung.gruppe.empty() ? raster : *rahmen_.at(beschreibung.gruppe), mitBegleiter);
    elemente_.push_back(neu);
    Verbinden(neu);
    Abhaengen(neu);
    for (QWidget* element : Fokuselemente(neu)) {
        if (letztes_) QWidget::setTabOrder(letztes_, element);
        letztes_ = element;
    }
}

std::vector<QWidget*> Feldtafel::Fokuselemente(const Eintrag& element) {
    if (const auto* optionen = qobject_cast<Optionsfeld*>(element.element)) {
        const auto tasten = optionen->Optionen();
        return {tasten.begin(), tasten.end()};
    }
    std::vector<QWidget*> elemente{element.element};
    elemente.insert(elemente.end(), element.dabei.begin(), element.dabei.end());
    std::erase_if(elemente, [](const QWidget* e) { return (e->focusPolicy() & Qt::TabFocus) == 0; });
    return elemente;
}

void Feldtafel::Platzieren(Eintrag& neu, Feldraster& raster, bool mitBegleiter) {
    const Feldbeschreibung& b = neu.beschreibung;
    if (b.absatz) raster.Absatz();
    Reihe reihe{&raster, 0};
    if (!b.hinter.empty()) {
        reihe = reihen_.at(b.hinter);
        reihe.raster->Dahinter(reihe.nummer, neu.element);
        neu.element->setAccessibleName(Zeilentitel(b));
    } else if (HatEigenenTitel(b.art)) {
        if (mitBegleiter)
            raster.Titelzeile(neu.element);
        else
            raster.GanzeZeile(neu.element);
        reihe.nummer = raster.LetzteZeile();
    } else {
        QLabel* titel = raster.Zeile(Anzeigetext(b.titel), neu.element);
        titel->setObjectName(Anzeigetext(b.titelname));
        neu.dabei.push_back(titel);
        reihe.nummer = raster.LetzteZeile();
    }
    for (QWidget* dahinter : Begleiter(b, *neu.element)) {
        reihe.raster->Dahinter(reihe.nummer, dahinter);
        neu.dabei.push_back(dahinter);
    }
    reihen_[b.name] = reihe;
}

QString Feldtafel::Zeilentitel(const Feldbeschreibung& beschreibung) const {
    const Eintrag* vorn = Suchen(beschreibung.hinter);
    if (!vorn) return {};
    const QString titel = Anzeigetext(vorn->beschreibung.titel).remove('&');
    return titel.isEmpty() ? Zeilentitel(vorn->beschreibung) : titel;
}

void Feldtafel::Verbinden(const Eintrag& neu) {
    if (auto* feld = qobject_cast<QLineEdit*>(neu.element)) {
        connect(feld, &QLineEdit::textChanged, this, &Feldtafel::gewechselt);
        connect(feld, &QLineEdit::textEdited, this, &Feldtafel::bearbeitet);
    } else if (auto* liste = qobject_cast<QComboBox*>(neu.element)) {
        connect(liste, &QComboBox::currentIndexChanged, this, &Feldtafel::gewechselt);
        connect(liste, &QComboBox::activated, this, &Feldtafel::bearbeitet);
    } else if (auto* kaestchen = qobject_cast<QCheckBox*>(neu.element)) {
        connect(kaestchen, &QCheckBox::toggled, this, &Feldtafel::gewechselt);
        connect(kaestchen, &QCheckBox::clicked, this, &Feldtafel::bearbeitet);
    } else if (auto* optionen = qobject_cast<Optionsfeld*>(neu.element)) {
        connect(optionen, &Optionsfeld::gewechselt, this, &Feldtafel::gewechselt);
        connect(optionen, &Optionsfeld::geklickt, this, &Feldtafel::bearbeitet);
    } else if (auto* einheit = qobject_cast<Umschalttaste*>(neu.element)) {
        connect(einheit, &Umschalttaste::umgeschaltet, this, &Feldtafel::gewechselt);
        connect(einheit, &Umschalttaste::clicked, this, &Feldtafel::bearbeitet);
    }
}

void Feldtafel::Abhaengen(const Eintrag& neu) {
    const std::string_view name = neu.beschreibung.name;
    if (!neu.beschreibung.sichtbarMit.empty()) {
        const std::string_view kaestchen = neu.beschreibung.sichtbarMit;
        connect(this, &Feldtafel::gewechselt, neu.element,
                [=, this] { Zeigen(name, Angekreuzt(kaestchen)); });
        Zeigen(name, Angekreuzt(kaestchen));
    }
    if (!neu.beschreibung.freiMit.empty()) {
        connect(this, &Feldtafel::gewechselt, neu.element, [=, this] { FreigabeZeigen(*Suchen(name)); });
        FreigabeZeigen(neu);
    }
}

bool Feldtafel::Angekreuzt(std::string_view kaestchen) const {
    return Inhalt(kaestchen).zahl != 0;
}

const Feldtafel::Eintrag* Feldtafel::Suchen(std::string_view name) const {
    const auto treffer =
        std::ranges::find(elemente_, name, [](const Eintrag& e) { return e.beschreibung.name; });
    return treffer == elemente_.end() ? nullptr : &*treffer;
}

QWidget* Feldtafel::Element(std::string_view name) const {
    const Eintrag* treffer = Suchen(name);
    return treffer ? treffer->element : nullptr;
}

Eingabefeld* Feldtafel::Textfeld(std::string_view name) const {
    return qobject_cast<Eingabefeld*>(Element(name));
}

Feldinhalt Feldtafel::Inhalt(std::string_view name) const {
    const Eintrag* treffer = Suchen(name);
    if (!treffer) return {};
    const Feldbeschreibung& b = treffer->beschreibung;
    if (const auto* feld = qobject_cast<QLineEdit*>(treffer->element)) return {feld->text().toStdString()};
    if (const auto* anzeige = qobject_cast<QLabel*>(treffer->element)) return {anzeige->text().toStdString()};
    if (const auto* liste = qobject_cast<QComboBox*>(treffer->element))
        return {liste->currentText().toStdString(), Zahl(b, liste->currentIndex())};
    if (const auto* optionen = qobject_cast<Optionsfeld*>(treffer->element)) return {{}, optionen->Zahl()};
    if (const auto* einheit = qobject_cast<Umschalttaste*>(treffer->element))
        return {einheit->text().toStdString(), Zahl(b, einheit->Stelle())};
    if (const auto* kaestchen = qobject_cast<QCheckBox*>(treffer->element))
        return {{}, kaestchen->isChecked() ? 1 : 0};
    return {};
}

void Feldtafel::Setze(std::string_view name, const Feldinhalt& inhalt) {
    const Eintrag* treffer = Suchen(name);
    if (!treffer) return;
    if (auto* feld = qobject_cast<QLineEdit*>(treffer->element)) {
        feld->setText(QString::fromStdString(inhalt.text));
    } else if (auto* anzeige = qobject_cast<QLabel*>(treffer->element)) {
        anzeige->setText(QString::fromStdString(inhalt.text));
    } else if (auto* liste = qobject_cast<QComboBox*>(treffer->element)) {
        liste->setCurrentIndex(Stelle(treffer->beschreibung, inhalt));
    } else if (auto* optionen = qobject_cast<Optionsfeld*>(treffer->element)) {
        optionen->Setze(inhalt.zahl);
    } else if (auto* einheit = qobject_cast<Umschalttaste*>(treffer->element)) {
        einheit->Setze(Stelle(treffer->beschreibung, inhalt));
    } else if (auto* kaestchen = qobject_cast<QCheckBox*>(treffer->element)) {
        kaestchen->setChecked(inhalt.zahl != 0);
    }
}

bool Feldtafel::Fokussieren(std::string_view name) const {
    QWidget* element = Element(name);
    if (!element) return false;
    ElementAnspringen(*element);
    return true;
}

void Feldtafel::Zeigen(std::string_view name, bool sichtbar) {
    const Eintrag* treffer = Suchen(name);
    if (!treffer) return;
    treffer->element->setVisible(sichtbar);
    for (QWidget* dabei : treffer->dabei)
        dabei->setVisible(sichtbar);
}

void Feldtafel::FreigabeZeigen(const Eintrag& element) const {
    const Feldbeschreibung& b = element.beschreibung;
    const bool frei = !gesperrt_.contains(b.name) && (b.freiMit.empty() || Angekreuzt(b.freiMit));
    element.element->setEnabled(frei);
}

void Feldtafel::Sperren(std::initializer_list<std::string_view> namen, bool gesperrt) {
    for (const std::string_view name : namen) {
        const Eintrag* treffer = Suchen(name);
        if (!treffer) continue;
        if (gesperrt)
            gesperrt_.insert(treffer->beschreibung.name);
        else
            gesperrt_.erase(name);
        FreigabeZeigen(*treffer);
    }
}

}  // namespace zinfolio
