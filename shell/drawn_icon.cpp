#include "shell/drawn_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <utility>

namespace quenloft {
namespace {

class DrawingEngine : public QIconEngine {
  public:
    explicit DrawingEngine(IconDrawing drawing) : drawing_(std::move(drawing)) {}

    QIconEngine* clone() const override { return new DrawingEngine(drawing_); }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / kIconUnits, rect.height() / kIconUnits);
        drawing_(*painter, mode, state);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        if (size.isEmpty()) {
            return {};  // There is no room for it, and nothing to paint on.
        }
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }

  private:
    IconDrawing drawing_;
};

}  // namespace

QIcon DrawnIcon(IconDrawing drawing) { return QIcon(new DrawingEngine(std::move(drawing))); }

}  // namespace quenloft
