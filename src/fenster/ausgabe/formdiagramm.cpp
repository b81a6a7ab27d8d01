#include "fenster/ausgabe/formdiagramm.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QPrinter>
#include <QPushButton>

#include "fenster/ausgabe/diagrammbild.h"
#include "fenster/ausgabe/diagrammplot.h"
#include "fenster/ausgabe/druckdialog.h"
#include "fenster/ui/ablagehinweis.h"
#include "fenster/ui/bausteine.h"
#include "fenster/ui/dateidialog.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"
#include "kern/dateien/atomar.h"

namespace zinfolio {

FormDiagramm::FormDiagramm(const Diagrammart& art, QWidget* eltern)
    : QWidget(eltern), Chart_(new Diagrammplot(this)) {
    setObjectName(QString::fromUtf8(art.rahmen));
    Chart_->setObjectName(QString::fromUtf8(art.diagramm));
    setFocusProxy(Chart_);
    Chart_->setAccessibleName("Diagramm");
    auto* drucken = NeueTaste(art.drucken, "Dru&cken", this, [this] { Drucken(); });
    auto* speichern = NeueTaste("Bildspeichern", "&Bild speichern", this, [this] { BildSpeichern(); });
    auto* zuruecktaste =
        NeueTaste(art.zurueck, QString::fromUtf8(art.zuruecktext), this, [this] { emit zurueck(); });
    auto* anordnung = new QVBoxLayout(this);
    anordnung->addWidget(Seite(Chart_, {drucken, speichern, zuruecktaste}));
    BefehleAnlegen();
    Faerben();
}

void FormDiagramm::BefehleAnlegen() {
    Chart_->setContextMenuPolicy(Qt::ActionsContextMenu);
    const auto befehl = [this](const char* name, const char* text, const QKeySequence& taste,
                               const auto& wirkung) {
        auto* aktion = new QAction(QString::fromUtf8(text), Chart_);
        aktion->setObjectName(QString::fromUtf8(name));
        aktion->setShortcut(taste);
        aktion->setShortcutContext(Qt::WidgetShortcut);
        connect(aktion, &QAction::triggered, this, wirkung);
        Chart_->addAction(aktion);
    };
    befehl("Bildkopieren", "Bild &kopieren", QKeySequence::Copy, [this] { BildKopieren(); });
    befehl("Bildsichern", "Bild &speichern …", {}, [this] { BildSpeichern(); });
    befehl("Groesser", "&Größer", QKeySequence::ZoomIn, [this] { Chart_->Vergroessern(1); });
    befehl("Kleiner", "K&leiner", QKeySequence::ZoomOut, [this] { Chart_->Vergroessern(-1); });
    befehl("Alleszeigen", "&Alles zeigen", QKeySequence(Qt::CTRL | Qt::Key_0),
           [this] { Chart_->AllesZeigen(); });
}

void FormDiagramm::Zeigen(const Diagramm& diagramm) {
    Chart_->Zeigen(diagramm);
    Chart_->setAccessibleName("Diagramm: " + Anzeigetext(diagramm.achsentitel));
    if (!diagramm.zeilentexte.empty())
        Chart_->setAccessibleDescription(Markentext(diagramm, diagramm.zeilentexte.size() - 1));
}

void FormDiagramm::Faerben() {
    Chart_->Gestalten(Bildschirmgestalt(palette(), font()));
}

void FormDiagramm::changeEvent(QEvent* ereignis) {
    QWidget::changeEvent(ereignis);
    if (ereignis->type() == QEvent::PaletteChange || ereignis->type() == QEvent::FontChange) Faerben();
}

Diagrammausschnitt FormDiagramm::Ausschnitt() const {
    return {Chart_->xAxis->range().lower, Chart_->xAxis->range().upper};
}

bool FormDiagramm::Ausdrucken(QPrinter& drucker) const {
    const Diagramm& diagramm = Chart_->Gezeigtes();
    drucker.setPageOrientation(QPageLayout::Landscape);
    drucker.setDocName(Anzeigetext(diagramm.titel.empty() ? diagramm.achsentitel : diagramm.titel));
    drucker.setCreator("Zinfolio");
    return DiagrammAufBlatt(drucker, diagramm, Ausschnitt());
}

void FormDiagramm::Drucken() {
    QPrinter drucker(QPrinter::HighResolution);
    drucker.setPageOrientation(QPageLayout::Landscape);
    if (!DruckerFragen(this, drucker)) return;
    if (!Ausdrucken(drucker)) MeldungZeigen(this, {.text = "Das Diagramm kann nicht gedruckt werden."});
}

void FormDiagramm::BildSpeichern() {
    const auto datei = DateiFragen(this, {.titel = "Bild speichern",
                                          .filter = "Bilder (*.png *.svg *.pdf) |*.png;*.svg;*.pdf",
                                          .endung = "png",
                                          .vorgabe = Namensvorschlag(*this, "Diagramm", "png")});
    if (!datei) return;
    const QString endung = QString::fromStdString(datei->extension().string()).mid(1);
    const QByteArray bytes = DiagrammAlsDatei(Chart_->Gezeigtes(), Ausschnitt(), endung);
    if (bytes.isEmpty()) {
        MeldungZeigen(this, {.text = "Ein Bild kann nur als .png, .svg oder .pdf gespeichert werden."});
        return;
    }
    const bool gespeichert = MitSchreibmeldung(this, [&] {
        AtomarSchreiben(*datei, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())),
                        Sicherung::Dauerhaft);
    });
    if (gespeichert) Ablagehinweis::Zeigen(*this, *datei);
}

void FormDiagramm::BildKopieren() const {
    QApplication::clipboard()->setImage(DiagrammAlsBild(Chart_->Gezeigtes(), Ausschnitt()));
}

}  // namespace zinfolio
