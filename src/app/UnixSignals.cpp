#include "app/UnixSignals.h"

#include <QSocketNotifier>
#include <csignal>
#include <cstdio>
#include <sys/socket.h>
#include <unistd.h>

namespace {
int signal_pipe[2] = {-1, -1};

void on_signal(int number)
{
    const unsigned char byte = static_cast<unsigned char>(number);
    ssize_t written = ::write(signal_pipe[0], &byte, 1);
    (void)written;
}
}

UnixSignals::UnixSignals(QObject* parent) : QObject(parent) {}

UnixSignals::~UnixSignals()
{
    for (int number : {SIGINT, SIGTERM, SIGHUP, SIGUSR1})
        std::signal(number, SIG_DFL);
}

bool UnixSignals::install()
{
    if (!catch_early())
        return false;
    m_notifier = new QSocketNotifier(signal_pipe[1], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &UnixSignals::read_signal);
    return true;
}

bool UnixSignals::catch_early()
{
    if (signal_pipe[0] < 0 && ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signal_pipe) != 0) {
        std::perror("socketpair");
        return false;
    }
    struct sigaction action = {};
    action.sa_handler = on_signal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int number : {SIGINT, SIGTERM, SIGHUP, SIGUSR1}) {
        if (sigaction(number, &action, nullptr) != 0) {
            std::perror("sigaction");
            return false;
        }
    }
    return true;
}

void UnixSignals::read_signal()
{
    unsigned char byte = 0;
    if (::read(signal_pipe[1], &byte, 1) != 1)
        return;
    if (byte == SIGUSR1)
        emit pause_toggle_requested();
    else
        emit termination_requested(byte);
}
