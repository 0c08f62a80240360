#include "tray/TrayArt.h"

#include <QImage>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <array>
#include <memory>

namespace {
// Each picture holds a group "body", drawn as it stands, and a group "mark",
// drawn turned.
const QString BODY = QStringLiteral("body");
const QString MARK = QStringLiteral("mark");

QSvgRenderer& renderer(TrayArt art)
{
    static std::array<std::unique_ptr<QSvgRenderer>, 4> renderers;
    auto& slot = renderers[static_cast<size_t>(art)];
    if (!slot)
        slot = std::make_unique<QSvgRenderer>(TrayArtEngine::resource(art));
    return *slot;
}

// Where an element of the picture lands when the whole picture fills target.
QRectF place(QSvgRenderer& svg, const QString& id, const QRectF& target)
{
    const QRectF view = svg.viewBoxF();
    const QRectF bounds = svg.boundsOnElement(id);
    const qreal sx = target.width() / view.width();
    const qreal sy = target.height() / view.height();
    return QRectF(target.x() + (bounds.x() - view.x()) * sx,
                  target.y() + (bounds.y() - view.y()) * sy, bounds.width() * sx,
                  bounds.height() * sy);
}

void draw(QPainter* painter, const QRectF& rect, TrayArt art, int angle)
{
    QSvgRenderer& svg = renderer(art);
    if (!svg.isValid())
        return;
    // A round picture: the largest square in the middle of the rectangle.
    const qreal side = qMin(rect.width(), rect.height());
    const QRectF target(rect.center().x() - side / 2, rect.center().y() - side / 2, side, side);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    svg.render(painter, BODY, place(svg, BODY, target));
    if (angle % 360 != 0) {
        painter->translate(target.center());
        painter->rotate(angle);
        painter->translate(-target.center());
    }
    svg.render(painter, MARK, place(svg, MARK, target));
    painter->restore();
}
} // namespace

QString TrayArtEngine::resource(TrayArt art)
{
    switch (art) {
    case TrayArt::Green:
        return QStringLiteral(":/images/ovra_green.svg");
    case TrayArt::Yellow:
        return QStringLiteral(":/images/ovra_yellow.svg");
    case TrayArt::Red:
        return QStringLiteral(":/images/ovra_red.svg");
    case TrayArt::Ghost:
        break;
    }
    return QStringLiteral(":/images/hidden_features.svg");
}

QIcon TrayArtEngine::icon(TrayArt art, int angle)
{
    return QIcon(new TrayArtEngine(art, angle));
}

QList<QSize> TrayArtEngine::availableSizes(QIcon::Mode, QIcon::State)
{
    return {QSize(16, 16), QSize(22, 22), QSize(24, 24), QSize(32, 32), QSize(48, 48),
            QSize(64, 64)};
}

QPixmap TrayArtEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    return scaledPixmap(size, mode, state, 1.0);
}

QPixmap TrayArtEngine::scaledPixmap(const QSize& size, QIcon::Mode, QIcon::State, qreal scale)
{
    const QSize pixels = size * scale;
    if (pixels.isEmpty())
        return QPixmap();
    const QString key = QStringLiteral("ovra-tray-%1-%2-%3x%4")
                            .arg(static_cast<int>(art))
                            .arg(angle % 360)
                            .arg(pixels.width())
                            .arg(pixels.height());
    QPixmap cached;
    if (QPixmapCache::find(key, &cached))
        return cached;
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        draw(&painter, QRectF(QPointF(0, 0), QSizeF(pixels)), art, angle);
    }
    QPixmap result = QPixmap::fromImage(std::move(image));
    result.setDevicePixelRatio(scale);
    QPixmapCache::insert(key, result);
    return result;
}

void TrayArtEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                          QIcon::State state)
{
    const qreal scale = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    painter->drawPixmap(rect, scaledPixmap(rect.size(), mode, state, scale));
}
