#include "policy/TemperatureConfigManager.h"

#include <algorithm>

#include "settings/SaveKeys.h"

namespace {
const char FILE_NAME[] = "/temperatureConfig.txt";
const int MIN_TEMPERATURE = 1000;
const int MAX_TEMPERATURE = 13000;
}

void TemperatureConfigManager::read_temperature_config()
{
    read_temperature_config(CurveConfigFile::path_in_working_directory(QString::fromLatin1(FILE_NAME)));
}

void TemperatureConfigManager::read_temperature_config(const QString& path)
{
    entries = CurveConfigFile::read(path);
}

void TemperatureConfigManager::process_temperature_config(
    std::map<QString, QVariant>& settings, const std::function<void()>& update_gamma) const
{
    CurveConfigFile::apply(entries, &TemperatureConfigManager::clamp_temperature_config_value,
                           QString::fromLatin1(SaveKeys::NIGHT_TEMPERATURE), settings, update_gamma);
}

int TemperatureConfigManager::clamp_temperature_config_value(int value)
{
    return std::clamp(value, MIN_TEMPERATURE, MAX_TEMPERATURE);
}
