#include "web/BrowserBridgeNotice.h"

#include <QDir>
#include <QFile>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The display in a form fit for a file name: ":0.0" and ":0" share one.
QString display_key()
{
    QString name = qEnvironmentVariable("DISPLAY");
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    if (dot > name.lastIndexOf(QLatin1Char(':')))
        name.truncate(dot);
    if (name.startsWith(QLatin1Char(':')))
        name.remove(0, 1);
    for (QChar& c : name)
        if (!c.isLetterOrNumber() && c != QLatin1Char('-') && c != QLatin1Char('_'))
            c = QLatin1Char('_');
    return name.isEmpty() ? QStringLiteral("default") : name;
}

bool write_all(int fd, const QByteArray& bytes)
{
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t n = ::write(fd, bytes.constData() + done, size_t(bytes.size() - done));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        done += n;
    }
    return true;
}

// Made with O_EXCL and mode 0600 in one step, so the token is never in a
// file that someone else could open; a file left by a run that died is
// removed first, and a link in its place is never followed.
int create_private_file(const QByteArray& path, const QByteArray& content)
{
    int fd = ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (fd < 0 && errno == EEXIST) {
        if (::unlink(path.constData()) != 0)
            return -1;
        fd = ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    }
    if (fd < 0)
        return -1;
    const bool ok = ::fchmod(fd, 0600) == 0 && write_all(fd, content);
    const int saved = errno;
    ::close(fd);
    if (!ok) {
        ::unlink(path.constData());
        errno = saved;
        return -1;
    }
    return 0;
}

} // namespace

BrowserBridgeNotice::BrowserBridgeNotice(QString token_file)
    : file_path(std::move(token_file))
{
}

BrowserBridgeNotice::~BrowserBridgeNotice()
{
    if (written)
        QFile::remove(file_path);
}

QString BrowserBridgeNotice::default_path()
{
    QString dir = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (dir.isEmpty() || !QDir(dir).exists())
        dir = QDir::tempPath();
    return dir + QStringLiteral("/ovra-web-bridge-token-") + display_key();
}

int BrowserBridgeNotice::publish(quint16 port, const QString& token, FILE* out)
{
    std::fprintf(out, "http://127.0.0.1:%u/%s/\n", unsigned(port), token.toUtf8().constData());
    std::fflush(out);
    if (create_private_file(QFile::encodeName(file_path), token.toUtf8() + '\n') != 0) {
        std::fprintf(stderr, "Ovra web bridge: cannot write the token file %s: %s\n",
                     QFile::encodeName(file_path).constData(), std::strerror(errno));
        return -1;
    }
    written = true;
    return 0;
}
