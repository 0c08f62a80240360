#pragma once

#include <QObject>

#include "base/Singleton.h"

// Process-wide helpers shared by the windows.
class Utils : public QObject, public Singleton<Utils>
{
    Q_OBJECT
};
