#pragma once

#include <QString>
#include <QVariant>

#include "settings/SettingsHost.h"

// One setting that is read every second or faster. The map never loses a
// key once it holds it (nothing erases from it, and std::map keeps its
// nodes in place), so the place of the value, once found, stays valid for
// the life of the map; only a key that is still missing is looked for again.
class SettingRef
{
public:
    SettingRef(const SettingsMap& settings, QString key) : settings(&settings), key(std::move(key)) {}

    // The stored value, or an invalid one while the key is missing.
    const QVariant& value() const
    {
        if (!place) {
            const auto found = settings->find(key);
            if (found == settings->end())
                return missing;
            place = &found->second;
        }
        return *place;
    }
    bool to_bool() const { return value().toBool(); }
    int to_int() const { return value().toInt(); }
    const QString& name() const { return key; }

private:
    const SettingsMap* settings;
    QString key;
    mutable const QVariant* place = nullptr;
    inline static const QVariant missing;
};
