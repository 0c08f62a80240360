#include "color/RampCrashFile.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

const char MAGIC[8] = {'O', 'V', 'R', 'A', 'R', 'M', 'P', '\n'};
const uint32_t VERSION = 2;
// RandR ramps are 16-bit sized; more CRTCs than this is not a real server.
const uint32_t MAX_CRTCS = 1024;
const uint32_t MAX_RAMP_SIZE = 65536;

void put_u32(QByteArray& out, uint32_t value)
{
    for (int shift = 0; shift < 32; shift += 8)
        out.append(static_cast<char>((value >> shift) & 0xff));
}

void put_u16(QByteArray& out, uint16_t value)
{
    out.append(static_cast<char>(value & 0xff));
    out.append(static_cast<char>(value >> 8));
}

bool write_all(int fd, const QByteArray& data)
{
    const char* next = data.constData();
    qsizetype left = data.size();
    while (left > 0) {
        const ssize_t n = ::write(fd, next, static_cast<size_t>(left));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        next += n;
        left -= n;
    }
    return true;
}

uint32_t fnv1a(const char* data, qsizetype size)
{
    uint32_t hash = 2166136261u;
    for (qsizetype i = 0; i < size; ++i) {
        hash ^= static_cast<unsigned char>(data[i]);
        hash *= 16777619u;
    }
    return hash;
}

class Reader
{
public:
    explicit Reader(const QByteArray& data)
        : bytes(data)
    {
    }
    bool u32(uint32_t* value)
    {
        if (bytes.size() - pos < 4)
            return false;
        *value = 0;
        for (int i = 0; i < 4; ++i)
            *value |= static_cast<uint32_t>(static_cast<unsigned char>(bytes[pos + i])) << (8 * i);
        pos += 4;
        return true;
    }
    bool u16(uint16_t* value)
    {
        if (bytes.size() - pos < 2)
            return false;
        *value = static_cast<uint16_t>(static_cast<unsigned char>(bytes[pos])
                                       | static_cast<unsigned char>(bytes[pos + 1]) << 8);
        pos += 2;
        return true;
    }
    qsizetype position() const { return pos; }

private:
    const QByteArray& bytes;
    qsizetype pos = 0;
};

} // namespace

RampCrashFile::RampCrashFile(QString path)
    : file_path(std::move(path))
{
}

QString RampCrashFile::path_for_display(const char* display_name)
{
    QString name = QString::fromLocal8Bit(display_name ? display_name : "");
    // host:display.screen; the screen does not make a different set of CRTCs
    // in the sense that matters here, and a local host may be spelt "unix".
    const int colon = name.lastIndexOf(QLatin1Char(':'));
    QString host = colon >= 0 ? name.left(colon) : QString();
    QString number = colon >= 0 ? name.mid(colon + 1) : name;
    const int dot = number.indexOf(QLatin1Char('.'));
    if (dot >= 0)
        number.truncate(dot);
    if (host == QLatin1String("unix"))
        host.clear();
    QString key = host.isEmpty() ? number : host + QLatin1Char('_') + number;
    for (QChar& c : key)
        if (!c.isLetterOrNumber() && c != QLatin1Char('-') && c != QLatin1Char('_'))
            c = QLatin1Char('_');
    if (key.isEmpty())
        key = QStringLiteral("default");

    QString dir = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (dir.isEmpty() || !QDir(dir).exists())
        dir = QDir::tempPath();
    return dir + QStringLiteral("/ovra-ramps-") + key + QStringLiteral(".bin");
}

uint64_t RampCrashFile::fingerprint(const uint16_t* block, unsigned int size)
{
    uint64_t hash = 14695981039346656037ull;
    for (unsigned int i = 0; i < 3 * size; ++i) {
        hash ^= block[i];
        hash *= 1099511628211ull;
    }
    return hash;
}

bool RampCrashFile::write(const std::vector<KeptCrtcRamps>& crtcs) const
{
    QByteArray out;
    out.append(MAGIC, sizeof(MAGIC));
    put_u32(out, VERSION);
    put_u32(out, static_cast<uint32_t>(crtcs.size()));
    for (const KeptCrtcRamps& crtc : crtcs) {
        put_u32(out, crtc.crtc);
        put_u32(out, crtc.ramp_size);
        put_u32(out, static_cast<uint32_t>(crtc.last_written));
        put_u32(out, static_cast<uint32_t>(crtc.last_written >> 32));
    }
    for (const KeptCrtcRamps& crtc : crtcs) {
        if (crtc.ramps.size() != 3 * static_cast<size_t>(crtc.ramp_size))
            return false;
        for (uint16_t value : crtc.ramps)
            put_u16(out, value);
    }
    put_u32(out, fnv1a(out.constData(), out.size()));

    // The file guards against this process dying, not the machine: after a
    // power cut the X server comes back with ramps of its own. So it is not
    // synced to the disk, which would make each step of a fade, forty a
    // second, wait for the disk.
    const QByteArray path = QFile::encodeName(file_path);
    const QByteArray temp = path + ".new";
    const int fd = ::open(temp.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (fd < 0)
        return false;
    const bool written = write_all(fd, out);
    if (::close(fd) != 0 || !written || std::rename(temp.constData(), path.constData()) != 0) {
        ::unlink(temp.constData());
        return false;
    }
    return true;
}

RampCrashFile::LoadResult RampCrashFile::load(std::vector<KeptCrtcRamps>* crtcs, QString* reason) const
{
    crtcs->clear();
    QFile file(file_path);
    if (!file.exists())
        return LoadResult::Missing;
    if (!file.open(QIODevice::ReadOnly)) {
        *reason = QStringLiteral("cannot be read");
        return LoadResult::Invalid;
    }
    const QByteArray data = file.readAll();
    if (data.size() < static_cast<qsizetype>(sizeof(MAGIC))
        || std::memcmp(data.constData(), MAGIC, sizeof(MAGIC)) != 0) {
        *reason = QStringLiteral("not a ramp file");
        return LoadResult::Invalid;
    }
    Reader reader(data);
    uint32_t skip;
    reader.u32(&skip);
    reader.u32(&skip); // past the magic
    uint32_t version = 0, count = 0;
    if (!reader.u32(&version) || !reader.u32(&count)) {
        *reason = QStringLiteral("truncated");
        return LoadResult::Invalid;
    }
    if (version != VERSION) {
        *reason = QStringLiteral("unknown version %1").arg(version);
        return LoadResult::Invalid;
    }
    if (count == 0 || count > MAX_CRTCS) {
        *reason = QStringLiteral("implausible CRTC count %1").arg(count);
        return LoadResult::Invalid;
    }
    std::vector<KeptCrtcRamps> loaded(count);
    qsizetype expected = 0;
    for (KeptCrtcRamps& crtc : loaded) {
        uint32_t low = 0, high = 0;
        if (!reader.u32(&crtc.crtc) || !reader.u32(&crtc.ramp_size) || !reader.u32(&low)
            || !reader.u32(&high)) {
            *reason = QStringLiteral("truncated");
            return LoadResult::Invalid;
        }
        if (crtc.ramp_size == 0 || crtc.ramp_size > MAX_RAMP_SIZE) {
            *reason = QStringLiteral("implausible ramp size %1").arg(crtc.ramp_size);
            return LoadResult::Invalid;
        }
        crtc.last_written = static_cast<uint64_t>(high) << 32 | low;
        expected += 3 * 2 * static_cast<qsizetype>(crtc.ramp_size);
    }
    if (data.size() - reader.position() != expected + 4) {
        *reason = data.size() - reader.position() < expected + 4 ? QStringLiteral("truncated")
                                                                 : QStringLiteral("wrong size");
        return LoadResult::Invalid;
    }
    for (KeptCrtcRamps& crtc : loaded) {
        crtc.ramps.resize(3 * static_cast<size_t>(crtc.ramp_size));
        for (uint16_t& value : crtc.ramps)
            reader.u16(&value);
    }
    const qsizetype body = reader.position();
    uint32_t checksum = 0;
    reader.u32(&checksum);
    if (checksum != fnv1a(data.constData(), body)) {
        *reason = QStringLiteral("checksum mismatch");
        return LoadResult::Invalid;
    }
    *crtcs = std::move(loaded);
    return LoadResult::Loaded;
}

void RampCrashFile::remove() const
{
    QFile::remove(file_path);
}
