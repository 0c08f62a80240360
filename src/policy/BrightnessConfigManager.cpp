#include "policy/BrightnessConfigManager.h"

#include <algorithm>

#include "settings/SaveKeys.h"

namespace {
const char FILE_NAME[] = "/brightnessConfig.txt";
const int MIN_BRIGHTNESS = 5;
const int MAX_BRIGHTNESS = 100;
}

void BrightnessConfigManager::read_brightness_config()
{
    read_brightness_config(CurveConfigFile::path_in_working_directory(QString::fromLatin1(FILE_NAME)));
}

void BrightnessConfigManager::read_brightness_config(const QString& path)
{
    entries = CurveConfigFile::read(path);
}

void BrightnessConfigManager::process_brightness_config(
    std::map<QString, QVariant>& settings, const std::function<void()>& update_gamma) const
{
    CurveConfigFile::apply(entries, &BrightnessConfigManager::clamp_brightness_config_value,
                           QString::fromLatin1(SaveKeys::NIGHT_BRIGHTNESS), settings, update_gamma);
}

int BrightnessConfigManager::clamp_brightness_config_value(int value)
{
    return std::clamp(value, MIN_BRIGHTNESS, MAX_BRIGHTNESS);
}
