#pragma once

#include <QObject>

// Whether the machine is online, as the system's network information tells
// it. Where no such information can be had, the machine counts as online.
class OnlineState : public QObject
{
    Q_OBJECT

public:
    explicit OnlineState(QObject* parent = nullptr);

    bool is_online() const;

signals:
    void online_state_changed(bool online);
};
