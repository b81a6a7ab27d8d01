#include "fenster/ui/ablagehinweis.h"

#include <QAccessible>
#include <QDesktopServices>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include "fenster/ui/meldungsfenster.h"

namespace zinfolio {
namespace {

constexpr std::chrono::minutes dauer{1};

QString AlsPfad(const std::filesystem::path& datei) {
    return QFileInfo(QString::fromStdString(datei.string())).absoluteFilePath();
}

}  // namespace

Ablagehinweis::Ablagehinweis(QWidget& fenster) : QFrame(&fenster), text_(new QLabel(this)) {
    setObjectName("Ablagehinweis");
    text_->setObjectName("Ablageort");
    text_->setTextFormat(Qt::PlainText);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // A long path does not widen the window: what is cut off stands in its hint.
    text_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* zeile = new QHBoxLayout(this);
    zeile->setContentsMargins(8, 2, 8, 2);
    zeile->addWidget(text_, 1);
    const auto taste = [&](const char* name, const QString& text, const auto& wirkung) {
        auto* neue = new QToolButton(this);
        neue->setObjectName(QString::fromUtf8(name));
        neue->setText(text);
        neue->setFocusPolicy(Qt::StrongFocus);
        connect(neue, &QToolButton::clicked, this, wirkung);
        zeile->addWidget(neue);
        return neue;
    };
    taste("DateiZeigen", "Öffnen", [this] { Oeffnen(datei_); });
    taste("OrdnerZeigen", "Ordner öffnen", [this] { Oeffnen(QFileInfo(datei_).path()); });
    taste("HinweisSchließen", "✕", [this] { Verschwinden(); })->setAccessibleName("Hinweis schließen");
}

bool Ablagehinweis::Einsetzen(QWidget& fenster) {
    if (auto* haupt = qobject_cast<QMainWindow*>(&fenster)) {
        haupt->statusBar()->setSizeGripEnabled(false);
        haupt->statusBar()->addWidget(this, 1);
        haupt->statusBar()->show();
        return true;
    }
    auto* spalte = qobject_cast<QVBoxLayout*>(fenster.layout());
    if (spalte) spalte->addWidget(this);
    return spalte != nullptr;
}

void Ablagehinweis::Zeigen(QWidget& element, const std::filesystem::path& datei) {
    QWidget& fenster = *element.window();
    delete fenster.findChild<Ablagehinweis*>();
    auto* hinweis = new Ablagehinweis(fenster);
    if (!hinweis->Einsetzen(fenster)) return delete hinweis;
    hinweis->Setzen(datei);
    hinweis->show();
    QAccessibleEvent gemeldet(hinweis->text_, QAccessible::Alert);
    QAccessible::updateAccessibility(&gemeldet);
    QTimer::singleShot(dauer, hinweis, &Ablagehinweis::Verschwinden);
}

void Ablagehinweis::Setzen(const std::filesystem::path& datei) {
    datei_ = AlsPfad(datei);
    const QFileInfo angaben(datei_);
    text_->setText("Gespeichert: " + angaben.fileName() + " in " + angaben.path());
    text_->setToolTip(datei_);
}

void Ablagehinweis::Oeffnen(const QString& pfad) {
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(pfad)))
        MeldungZeigen(window(),
                      {.text = "Auf diesem Schreibtisch ist kein Programm dafür eingerichtet:\n" + pfad});
}

void Ablagehinweis::Verschwinden() {
    if (auto* haupt = qobject_cast<QMainWindow*>(window())) haupt->statusBar()->hide();
    deleteLater();
}

}  // namespace zinfolio
