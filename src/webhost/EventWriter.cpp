#include "EventWriter.h"

#include <QJsonDocument>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <unistd.h>

EventWriter::EventWriter(int fd, QObject* parent)
    : QObject(parent)
    , m_fd(fd)
{
}

void EventWriter::send(const QJsonObject& event)
{
    if (m_broken)
        return;
    QByteArray line = QJsonDocument(event).toJson(QJsonDocument::Compact);
    line.append('\n');
    const char* data = line.constData();
    qsizetype left = line.size();
    while (left > 0) {
        const ssize_t n = ::write(m_fd, data, size_t(left));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            fprintf(stderr, "ovra-web: event channel closed: %s\n", strerror(errno));
            m_broken = true;
            emit broken();
            return;
        }
        data += n;
        left -= n;
    }
}
