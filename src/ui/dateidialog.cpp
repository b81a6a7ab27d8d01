#include "ui/dateidialog.h"

#include <QFileDialog>
#include <utility>

namespace zinfolio {
namespace {

Dateizeuge& Zeuge() {
    static Dateizeuge zeuge;
    return zeuge;
}

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

}  // namespace

std::optional<std::filesystem::path> DateiFragen(QWidget* fenster, const Dateifrage& frage) {
    if (Zeuge()) return Zeuge()(frage);
    QFileDialog dialog(fenster, frage.titel);
    const bool speichern = frage.zweck == Dateifrage::Zweck::speichern;
    dialog.setAcceptMode(speichern ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(speichern ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setNameFilter(Werkzeugfilter(frage.filter));
    dialog.setDefaultSuffix(frage.endung);
    Vorgeben(dialog, frage.vorgabe);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return std::filesystem::path(dialog.selectedFiles().constFirst().toStdString());
}

Dateizeuge DateifragenUmleiten(Dateizeuge zeuge) {
    return std::exchange(Zeuge(), std::move(zeuge));
}

}  // namespace zinfolio
