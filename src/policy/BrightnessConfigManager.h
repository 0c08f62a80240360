#pragma once

#include <QString>
#include <QVariant>
#include <QVector>
#include <functional>
#include <map>

#include "policy/CurveConfigFile.h"

// The user's own night brightness by the hour, from "brightnessConfig.txt"
// in the working directory. Read once; applied on every status update.
class BrightnessConfigManager
{
public:
    virtual ~BrightnessConfigManager() = default;

    void read_brightness_config();
    void read_brightness_config(const QString& path);
    bool is_config_used() const { return !entries.isEmpty(); }

    // Stores the value of the present hour under NightBrightness and runs
    // update_gamma for every entry that matches.
    void process_brightness_config(std::map<QString, QVariant>& settings,
                                   const std::function<void()>& update_gamma) const;

    static int clamp_brightness_config_value(int value);

    const QVector<CurveConfigEntry>& get_entries() const { return entries; }

private:
    QVector<CurveConfigEntry> entries;
};
