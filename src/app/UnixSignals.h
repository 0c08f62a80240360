#pragma once

#include <QObject>

class QSocketNotifier;

// Turns the Unix signals that end or steer the program into Qt signals on the
// event loop. The handler only writes the signal number into a socket pair;
// everything else happens on the event loop of the thread this object lives
// in, where it is safe.
class UnixSignals : public QObject
{
    Q_OBJECT

public:
    explicit UnixSignals(QObject* parent = nullptr);
    ~UnixSignals() override;

    // Installs the handlers for SIGINT, SIGTERM, SIGHUP and SIGUSR1 before
    // there is an event loop; what arrives waits in the socket pair.
    static bool catch_early();
    // Reads the socket pair on the event loop (catching first if need be).
    bool install();

signals:
    void termination_requested(int signal_number);
    void pause_toggle_requested();

private slots:
    void read_signal();

private:
    QSocketNotifier* m_notifier = nullptr;
};
