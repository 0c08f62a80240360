#pragma once

#include <QJsonObject>
#include <QObject>

// Writes one JSON object per line to the channel back to ovra. Nothing else
// may write there, so the channel is a descriptor of its own, not stdout.
class EventWriter : public QObject
{
    Q_OBJECT

public:
    explicit EventWriter(int fd, QObject* parent = nullptr);

    void send(const QJsonObject& event);

signals:
    // ovra no longer reads: the host has nobody left to serve.
    void broken();

private:
    int m_fd;
    bool m_broken = false;
};
