#include "CommandReader.h"

#include <QJsonDocument>
#include <QJsonParseError>
#include <QSocketNotifier>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

CommandReader::CommandReader(int fd, QObject* parent)
    : QObject(parent)
    , m_fd(fd)
    , m_notifier(new QSocketNotifier(fd, QSocketNotifier::Read, this))
{
    fcntl(fd, F_SETFL, fcntl(fd, F_GETFL) | O_NONBLOCK);
    connect(m_notifier, &QSocketNotifier::activated, this, &CommandReader::read_available);
}

void CommandReader::read_available()
{
    char chunk[65536];
    for (;;) {
        const ssize_t n = ::read(m_fd, chunk, sizeof chunk);
        if (n > 0) {
            m_buffer.append(chunk, n);
            continue;
        }
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0 && (errno == EAGAIN || errno == EWOULDBLOCK))
            break;
        if (n < 0)
            fprintf(stderr, "ovra-web: command channel: %s\n", strerror(errno));
        // End of input: what came before it still counts.
        m_notifier->setEnabled(false);
        take_lines();
        emit closed();
        return;
    }
    take_lines();
}

void CommandReader::take_lines()
{
    qsizetype start = 0;
    for (;;) {
        const qsizetype end = m_buffer.indexOf('\n', start);
        if (end < 0)
            break;
        const QByteArray line = m_buffer.mid(start, end - start).trimmed();
        start = end + 1;
        if (line.isEmpty())
            continue;
        QJsonParseError error;
        const QJsonDocument doc = QJsonDocument::fromJson(line, &error);
        if (!doc.isObject()) {
            fprintf(stderr, "ovra-web: command is not a JSON object: %s\n",
                    qPrintable(error.errorString()));
            continue;
        }
        emit command(doc.object());
    }
    m_buffer.remove(0, start);
}
