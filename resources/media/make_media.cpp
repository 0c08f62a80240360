// Makes the media of the breaks at build time, so that no binary sits in the
// tree: the two sounds of the timer and the picture behind the rest screens.
//
//   ovra-make-media <sound folder> <picture path>
//
// writes <sound folder>/tick-tock.wav, <sound folder>/bip.wav and the JPEG.
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QRandomGenerator>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

const int RATE = 22050;
const double PI = 3.14159265358979323846;

// One voice of a sound: a sine with its overtone, a quick rise and an
// exponential fall.
void add_tone(std::vector<double>& samples, double start, double frequency, double length,
              double level, double decay)
{
    const int first = int(start * RATE);
    const int count = int(length * RATE);
    for (int i = 0; i < count && first + i < int(samples.size()); ++i) {
        const double t = double(i) / RATE;
        const double rise = std::min(1.0, t / 0.004);
        const double envelope = rise * std::exp(-t * decay);
        const double wave = std::sin(2 * PI * frequency * t) + 0.25 * std::sin(4 * PI * frequency * t);
        samples[size_t(first + i)] += level * envelope * wave;
    }
}

bool write_wav(const QString& path, const std::vector<double>& samples)
{
    QByteArray data;
    for (double s : samples) {
        const auto v = qint16(std::lround(std::max(-1.0, std::min(1.0, s)) * 32767));
        data.append(char(v & 0xff));
        data.append(char((v >> 8) & 0xff));
    }
    // Little-endian fields of the header.
    auto field = [](quint32 v, int bytes) {
        QByteArray out;
        for (int i = 0; i < bytes; ++i)
            out.append(char((v >> (8 * i)) & 0xff));
        return out;
    };
    auto u32 = [&](quint32 v) { return field(v, 4); };
    auto u16 = [&](quint16 v) { return field(v, 2); };
    QByteArray wav = QByteArray("RIFF") + u32(quint32(36 + data.size())) + "WAVEfmt " + u32(16) + u16(1)
                     + u16(1) + u32(RATE) + u32(RATE * 2) + u16(2) + u16(16) + "data"
                     + u32(quint32(data.size())) + data;
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(wav) == wav.size();
}

// A soft clock: a tick and, a second later, a lower tock; it loops.
std::vector<double> tick_tock()
{
    std::vector<double> samples(size_t(RATE * 2), 0.0);
    add_tone(samples, 0.0, 1760, 0.06, 0.22, 90);
    add_tone(samples, 1.0, 1320, 0.06, 0.20, 90);
    return samples;
}

// A short, round bip: two notes a fifth apart that ring out.
std::vector<double> bip()
{
    std::vector<double> samples(size_t(RATE * 0.45), 0.0);
    add_tone(samples, 0.0, 880, 0.45, 0.30, 11);
    add_tone(samples, 0.0, 1320, 0.45, 0.12, 14);
    return samples;
}

// Dusk over calm hills: a deep blue sky that warms towards the horizon, a
// low glow, three ridges fading into the distance.
QImage dusk(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);

    QLinearGradient sky(0, 0, 0, height);
    sky.setColorAt(0.0, QColor(0x16, 0x1b, 0x2c));
    sky.setColorAt(0.45, QColor(0x2a, 0x31, 0x4e));
    sky.setColorAt(0.72, QColor(0x5a, 0x4a, 0x62));
    sky.setColorAt(0.86, QColor(0xb0, 0x73, 0x5c));
    sky.setColorAt(1.0, QColor(0xd9, 0x98, 0x6a));
    p.fillRect(image.rect(), sky);

    QRadialGradient glow(width * 0.62, height * 0.80, width * 0.45);
    glow.setColorAt(0.0, QColor(255, 196, 140, 120));
    glow.setColorAt(0.5, QColor(255, 170, 120, 40));
    glow.setColorAt(1.0, QColor(255, 160, 120, 0));
    p.fillRect(image.rect(), glow);

    struct Ridge { double base; double height; double phase; QColor color; };
    const Ridge ridges[] = {
        {0.74, 0.06, 0.3, QColor(0x4a, 0x42, 0x5c)},
        {0.82, 0.07, 1.7, QColor(0x33, 0x31, 0x49)},
        {0.91, 0.06, 3.1, QColor(0x20, 0x22, 0x35)},
    };
    for (const Ridge& r : ridges) {
        QPainterPath path(QPointF(0, height));
        for (int x = 0; x <= width; x += 8) {
            const double u = double(x) / width;
            const double y = r.base - r.height * (0.55 * std::sin(u * 2.3 * PI + r.phase)
                                                  + 0.30 * std::sin(u * 5.1 * PI + r.phase * 1.7)
                                                  + 0.15 * std::sin(u * 11.0 * PI + r.phase));
            path.lineTo(x, y * height);
        }
        path.lineTo(width, height);
        path.closeSubpath();
        p.fillPath(path, r.color);
    }
    p.end();

    // A grain of one step keeps the gradient from banding.
    QRandomGenerator grain(1234);
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            const int d = int(grain.bounded(3)) - 1;
            const QRgb c = line[x];
            line[x] = qRgb(qBound(0, qRed(c) + d, 255), qBound(0, qGreen(c) + d, 255),
                           qBound(0, qBlue(c) + d, 255));
        }
    }
    return image;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: ovra-make-media <sound folder> <picture path>\n");
        return 2;
    }
    const QString sounds = QString::fromLocal8Bit(argv[1]);
    const QString picture = QString::fromLocal8Bit(argv[2]);
    QDir().mkpath(sounds);
    if (!write_wav(sounds + "/tick-tock.wav", tick_tock()) || !write_wav(sounds + "/bip.wav", bip())) {
        std::fprintf(stderr, "ovra-make-media: cannot write the sounds in %s\n", argv[1]);
        return 1;
    }
    if (!dusk(1920, 1080).save(picture, "JPG", 88)) {
        std::fprintf(stderr, "ovra-make-media: cannot write %s\n", argv[2]);
        return 1;
    }
    return 0;
}
