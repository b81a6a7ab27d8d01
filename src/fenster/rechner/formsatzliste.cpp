#include "fenster/rechner/formsatzliste.h"

#include <QAction>
#include <algorithm>
#include <array>
#include <numeric>

#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"
#include "kern/staffel/meldungen.h"

namespace zinfolio {
namespace {

/// A record as its file holds it: a damaged number is equal to itself there.
std::array<std::byte, Staffelsatz::Satzlaenge> Bytes(const Staffelsatz& satz) {
    std::array<std::byte, Staffelsatz::Satzlaenge> bytes{};
    satz.Schreiben(bytes);
    return bytes;
}

}  // namespace

FormSatzliste::FormSatzliste(const Satzlistenart& art, const Satzdatei<Staffelsatz>& datei, QWidget* eltern)
    : QObject(eltern),
      art_(art),
      datei_(datei),
      tabelle_(new Tabelle(art.name, eltern)),
      rueckgaengig_(nullptr) {
    tabelle_->setAccessibleName(art.ansage);
    Trennen();
    NeuerBefehl("Bea&rbeiten", {Qt::Key_Return, Qt::Key_Enter}, [this] { bearbeiten(); });
    NeuerBefehl("&Löschen", {QKeySequence::Delete}, [this] { MarkierteLoeschen(); });
    rueckgaengig_ = NeuerBefehl({}, {QKeySequence::Undo}, [this] { SchrittRueckgaengig(); });
    rueckgaengig_->setObjectName("LöschenRückgängig");
    RueckgaengigZeigen();
    connect(tabelle_, &QTableView::doubleClicked, this,
            [this] { Geschuetzt(tabelle_, [this] { bearbeiten(); }); });
}

QAction* FormSatzliste::NeuerBefehl(const QString& beschriftung, std::initializer_list<QKeySequence> tasten,
                                    const std::function<void()>& wirkung) {
    auto* befehl = new QAction(beschriftung, this);
    befehl->setShortcuts(tasten);
    befehl->setShortcutContext(Qt::WidgetShortcut);
    tabelle_->addAction(befehl);
    connect(befehl, &QAction::triggered, this, [this, wirkung] { Geschuetzt(tabelle_, wirkung); });
    return befehl;
}

void FormSatzliste::Trennen() {
    auto* strich = new QAction(this);
    strich->setSeparator(true);
    tabelle_->addAction(strich);
}

void FormSatzliste::Lesen() {
    const auto vorher = geaendert_ ? std::optional(saetze_.at(*geaendert_)) : std::nullopt;
    saetze_ = datei_.Lesen();
    if (vorher) geaendert_ = Stelle(*vorher);
    Zeigen();
}

void FormSatzliste::NeuLesen() {
    Lesen();
    tabelle_->Markiere(static_cast<int>(saetze_.size()) - 1);
    nachLesen();
}

void FormSatzliste::Auffrischen() {
    std::vector<Staffelsatz> markierte;
    for (const std::size_t zeile : tabelle_->MarkierteZeilen())
        markierte.push_back(saetze_.at(zeile));
    Lesen();
    std::vector<std::size_t> zeilen;
    for (const Staffelsatz& satz : markierte)
        if (const auto stelle = Stelle(satz)) zeilen.push_back(*stelle);
    std::ranges::sort(zeilen);
    tabelle_->Markiere(geaendert_ ? std::vector{*geaendert_} : zeilen);
}

std::optional<std::size_t> FormSatzliste::Stelle(const Staffelsatz& satz) const {
    const auto treffer = std::ranges::find(saetze_, Bytes(satz), Bytes);
    if (treffer == saetze_.end()) return std::nullopt;
    return static_cast<std::size_t>(treffer - saetze_.begin());
}

void FormSatzliste::KontoWechseln() {
    schritte_.clear();
    RueckgaengigZeigen();
    geaendert_.reset();
    NeuLesen();
}

void FormSatzliste::Ersetzen(const std::vector<Staffelsatz>& saetze, std::optional<std::size_t> marke) {
    datei_.Schreiben(saetze);
    NeuLesen();
    if (marke && !saetze_.empty()) tabelle_->Markiere(static_cast<int>(std::min(*marke, saetze_.size() - 1)));
    nachAendern();
}

void FormSatzliste::Zeigen() {
    const auto saetze = std::make_shared<const std::vector<Staffelsatz>>(saetze_);
    Tabelleninhalt inhalt = TabelleBilden(art_.spalten, saetze);
    inhalt.zeilentext = [zeile = art_.zeile, saetze](std::size_t nummer) { return zeile((*saetze)[nummer]); };
    tabelle_->Zeige(std::move(inhalt));
}

bool FormSatzliste::AenderungBeginnen() {
    const auto zeilen = tabelle_->MarkierteZeilen();
    if (!zeilen.empty()) {
        geaendert_ = zeilen.front();
        return true;
    }
    MeldungZeigen(
        tabelle_,
        {.text = Anzeigetext(meldung::nichtsMarkiert), .titel = Anzeigetext(meldung::titelMarkieren)},
        Meldungsart::hinweis);
    return false;
}

void FormSatzliste::MarkierteLoeschen() {
    auto zeilen = tabelle_->MarkierteZeilen();
    const bool alle = zeilen.empty();
    const Meldungsinhalt frage{
        .text = Anzeigetext(alle ? meldung::alleLoeschen : art_.loeschfrage),
        .titel = Anzeigetext(alle ? meldung::titelMarkieren : meldung::titelLoeschen),
    };
    if (!Fragen(tabelle_, frage)) return;
    if (alle) {
        zeilen.resize(saetze_.size());
        std::iota(zeilen.begin(), zeilen.end(), std::size_t{0});
    }
    Loeschen(zeilen);
}

void FormSatzliste::Loeschen(const std::vector<std::size_t>& zeilen) {
    std::vector<Staffelsatz> saetze = saetze_;
    Loeschung loeschung = SaetzeLoeschen(saetze, zeilen);
    Ersetzen(saetze, zeilen.empty() ? std::nullopt : std::optional(zeilen.front()));
    if (!loeschung.saetze.empty()) SchrittMerken(std::move(loeschung));
}

void FormSatzliste::Aufnehmen(std::vector<Staffelsatz> neue) {
    std::vector<Staffelsatz> saetze = saetze_;
    saetze.insert(saetze.end(), neue.begin(), neue.end());
    ordnen(saetze);
    Ersetzen(saetze);
    SchrittMerken(Zugang{std::move(neue)});
}

void FormSatzliste::SchrittMerken(Schritt schritt) {
    schritte_.push_back(std::move(schritt));
    RueckgaengigZeigen();
}

void FormSatzliste::SchrittRueckgaengig() {
    if (schritte_.empty()) return;
    std::vector<Staffelsatz> saetze = saetze_;
    if (const auto* loeschung = std::get_if<Loeschung>(&schritte_.back()))
        LoeschungZuruecknehmen(saetze, *loeschung);
    else
        ZugangZuruecknehmen(saetze, std::get<Zugang>(schritte_.back()).saetze);
    ordnen(saetze);
    Ersetzen(saetze);
    schritte_.pop_back();
    RueckgaengigZeigen();
}

void FormSatzliste::RueckgaengigZeigen() {
    const bool einlesen = !schritte_.empty() && std::holds_alternative<Zugang>(schritte_.back());
    rueckgaengig_->setText(einlesen ? "Einlesen rü&ckgängig" : "Löschen rü&ckgängig");
    rueckgaengig_->setEnabled(!schritte_.empty());
}

}  // namespace zinfolio
