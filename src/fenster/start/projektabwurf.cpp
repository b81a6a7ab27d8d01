#include "fenster/start/projektabwurf.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <QWidget>
#include <utility>

namespace zinfolio {
namespace {

bool IstAbwurf(const QEvent& ereignis) {
    return ereignis.type() == QEvent::DragEnter || ereignis.type() == QEvent::DragMove ||
           ereignis.type() == QEvent::Drop;
}

}  // namespace

Projektabwurf::Projektabwurf(std::function<bool(const QString&)> istProjekt, QObject* eltern)
    : QObject(eltern), istProjekt_(std::move(istProjekt)) {}

/// The one project among what is dropped, which may have its side files with it; else an empty text.
QString Projektabwurf::EinzigesProjekt(const QMimeData& inhalt) const {
    QString projekt;
    for (const QUrl& adresse : inhalt.urls()) {
        const QString datei = adresse.toLocalFile();
        if (!istProjekt_(datei)) continue;
        if (!projekt.isEmpty()) return {};
        projekt = datei;
    }
    return projekt;
}

bool Projektabwurf::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (!IstAbwurf(*ereignis)) return false;
    const auto* element = qobject_cast<QWidget*>(ziel);
    if (!element || !element->window()->acceptDrops()) return false;
    auto& abwurf = static_cast<QDropEvent&>(*ereignis);
    const QString projekt = EinzigesProjekt(*abwurf.mimeData());
    if (projekt.isEmpty()) return false;
    // Never moved: the file stays where it is.
    abwurf.setDropAction(Qt::CopyAction);
    abwurf.accept();
    if (ereignis->type() == QEvent::Drop)
        QMetaObject::invokeMethod(
            this, [this, projekt] { emit projektAbgeworfen(projekt); }, Qt::QueuedConnection);
    return true;
}

}  // namespace zinfolio
