#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QObject>

class QSocketNotifier;

// Reads the commands ovra writes, one JSON object per line, from a
// descriptor watched by the event loop.
class CommandReader : public QObject
{
    Q_OBJECT

public:
    explicit CommandReader(int fd, QObject* parent = nullptr);

signals:
    void command(const QJsonObject& command);
    // End of input: ovra closed the channel or is gone.
    void closed();

private:
    void read_available();
    void take_lines();

    int m_fd;
    QSocketNotifier* m_notifier;
    QByteArray m_buffer;
};
