#include "fenster/ui/dateidialog.h"

#include <QFileDialog>
#include <algorithm>
#include <utility>

#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/zeuge.h"

namespace zinfolio {
namespace {

/// "Text (*.x) |*.x" as the toolkit wants it: "Text (*.x)".
QString Werkzeugfilter(const QString& filter) {
    return filter.section('|', 0, 0).trimmed();
}

void Vorgeben(QFileDialog& dialog, const QString& vorgabe) {
    if (vorgabe.isEmpty()) return;
    const QFileInfo datei(vorgabe);
    if (datei.isAbsolute()) dialog.setDirectory(datei.path());
    dialog.selectFile(datei.fileName());
}

/// Whether a name has one of the endings of the filter: "*.png;*.svg" behind its bar.
bool HatEndung(const QString& name, const QString& filter) {
    const QStringList muster = filter.section('|', 1).split(';');
    return std::any_of(muster.begin(), muster.end(), [&](const QString& eines) {
        return name.endsWith(eines.mid(1), Qt::CaseInsensitive);
    });
}

/// The name with its ending. The dialog itself completes only names without a point, and asks only about the
/// name that it knows.
std::optional<std::filesystem::path> MitEndung(QWidget* fenster, const Dateifrage& frage,
                                               const QString& name) {
    if (HatEndung(name, frage.filter)) return std::filesystem::path(name.toStdString());
    const std::filesystem::path datei = (name + '.' + frage.endung).toStdString();
    if (!DarfUeberschreiben(fenster, datei)) return std::nullopt;
    return datei;
}

}  // namespace

QString Namensvorschlag(const QWidget& element, const QString& ersatz, const QString& endung) {
    const QString name = element.window()->windowFilePath();
    return (name.isEmpty() ? ersatz : name) + '.' + endung;
}

bool DarfUeberschreiben(QWidget* fenster, const std::filesystem::path& datei) {
    std::error_code unwichtig;
    if (!std::filesystem::exists(datei, unwichtig)) return true;
    return Fragen(fenster, {.text = "Die Datei \"" + QString::fromStdString(datei.string()) +
                                    "\" gibt es schon.\nSoll sie überschrieben werden?"});
}

std::optional<std::filesystem::path> DateiFragen(QWidget* fenster, const Dateifrage& frage) {
    if (auto& zeuge = Zeugenplatz<Dateizeuge>()) return zeuge(frage);
    QFileDialog dialog(fenster, frage.titel);
    const bool speichern = frage.zweck == Dateifrage::Zweck::speichern;
    dialog.setAcceptMode(speichern ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(speichern ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setNameFilter(Werkzeugfilter(frage.filter));
    dialog.setDefaultSuffix(frage.endung);
    Vorgeben(dialog, frage.vorgabe);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    const QString name = dialog.selectedFiles().constFirst();
    if (speichern) return MitEndung(fenster, frage, name);
    return std::filesystem::path(name.toStdString());
}

Dateizeuge DateifragenUmleiten(Dateizeuge zeuge) {
    return std::exchange(Zeugenplatz<Dateizeuge>(), std::move(zeuge));
}

}  // namespace zinfolio
