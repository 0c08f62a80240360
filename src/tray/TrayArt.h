#pragma once

#include <QIcon>
#include <QIconEngine>

class QPainter;

// The four pictures of the tray icon.
enum class TrayArt { Green, Yellow, Red, Ghost };

// A tray picture drawn from its SVG at whatever size the tray asks for, its
// mark turned by `angle` degrees round the centre while the disc and its
// light stay put. Pixmaps are kept in QPixmapCache, so the frames of a turn
// are drawn once per size.
class TrayArtEngine : public QIconEngine
{
public:
    TrayArtEngine(TrayArt art, int angle) : art(art), angle(angle) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override;
    QIconEngine* clone() const override { return new TrayArtEngine(art, angle); }
    // The sizes trays commonly ask for; any other is drawn as well.
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    QString key() const override { return QStringLiteral("OvraTrayArt"); }

    static QIcon icon(TrayArt art, int angle);
    // The resource each picture is drawn from.
    static QString resource(TrayArt art);

private:
    TrayArt art;
    int angle;
};
