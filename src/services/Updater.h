#pragma once

#include <QObject>

#include "base/Singleton.h"

// Learns of new versions. The check itself comes with the update service;
// until then it reports nothing.
class Updater : public QObject, public Singleton<Updater>
{
    Q_OBJECT

public:
    void check_for_new_version() {}

signals:
    void new_version_available();
};
