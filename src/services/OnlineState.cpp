#include "services/OnlineState.h"

#include <QNetworkInformation>

namespace {
bool reachable(QNetworkInformation::Reachability reachability)
{
    // Only a report of no network at all counts as offline; a backend that
    // cannot tell is no reason to give up the location request.
    return reachability != QNetworkInformation::Reachability::Disconnected;
}
}

OnlineState::OnlineState(QObject* parent) : QObject(parent)
{
    if (!QNetworkInformation::instance())
        QNetworkInformation::loadDefaultBackend();
    if (QNetworkInformation* information = QNetworkInformation::instance()) {
        connect(information, &QNetworkInformation::reachabilityChanged, this,
                [this](QNetworkInformation::Reachability reachability) {
                    emit online_state_changed(reachable(reachability));
                });
    }
}

bool OnlineState::is_online() const
{
    const QNetworkInformation* information = QNetworkInformation::instance();
    return !information || reachable(information->reachability());
}
