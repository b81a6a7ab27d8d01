#include "fenster/ui/symbol.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace zinfolio {
namespace {

class Symbolzeichner : public QIconEngine {
  public:
    explicit Symbolzeichner(QByteArray bild) : bild_(std::move(bild)) {}

    void paint(QPainter* maler, const QRect& flaeche, QIcon::Mode modus, QIcon::State /*zustand*/) override {
        const auto gruppe = modus == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor farbe = QApplication::palette().color(gruppe, QPalette::ButtonText);
        QSvgRenderer(QByteArray(bild_).replace("currentColor", farbe.name().toUtf8())).render(maler, flaeche);
    }

    QPixmap pixmap(const QSize& groesse, QIcon::Mode modus, QIcon::State zustand) override {
        QPixmap bild(groesse);
        bild.fill(Qt::transparent);
        QPainter maler(&bild);
        paint(&maler, QRect(QPoint(), groesse), modus, zustand);
        return bild;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new Symbolzeichner(bild_); }

  private:
    QByteArray bild_;
};

}  // namespace

QIcon Symbol(const QString& name) {
    QFile datei(":/symbole/" + name + ".svg");
    if (!datei.open(QIODevice::ReadOnly)) return {};
    return QIcon(new Symbolzeichner(datei.readAll()));
}

}  // namespace zinfolio
