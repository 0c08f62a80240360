#pragma once

#include <QDebug>
#include <QString>
#include <QVariant>

#include <cstddef>
#include <type_traits>
#include <utility>

#include "settings/SettingsHost.h"

// The rule every *_changed slot follows, written once:
//   1. read the stored value; if it equals the new one, stop;
//   2. store the new value in the map;
//   3. apply it (the apply callable; pass nullptr when there is nothing to do);
//   4. emit the matching set_* signal with the value read back from the map.
// The early return in step 1 is what ends the round trip page -> native ->
// page: the page echoes a pushed value once, and the echo stops here.
// Only the in-memory map is written; the file is written on a save.
//
// The comparison is made in the type of the new value, so a stored "true"
// equals true and a missing key equals 0, false or "" as everywhere else.
// Returns whether the value changed.

namespace change_rule_detail {

template <class T>
struct stored_type
{
    using type = T;
};
template <>
struct stored_type<const char*>
{
    using type = QString;
};
template <>
struct stored_type<char*>
{
    using type = QString;
};

template <class Apply>
void run_apply(Apply&& apply)
{
    if constexpr (!std::is_same_v<std::decay_t<Apply>, std::nullptr_t>)
        apply();
}

template <class T, class Apply, class Emit>
bool change(SettingsMap& settings, const QString& key, const T& value, Apply&& apply,
            Emit&& emit_value, bool force)
{
    using Stored = typename stored_type<std::decay_t<T>>::type;
    const Stored new_value(value);
    const auto found = settings.find(key);
    const Stored old_value =
        found == settings.end() ? Stored() : found->second.template value<Stored>();
    if (!force && old_value == new_value)
        return false;

    qDebug() << key << new_value;
    settings[key] = QVariant::fromValue(new_value);
    run_apply(std::forward<Apply>(apply));
    // Copied: the emission may re-enter a slot that changes the map.
    const QVariant read_back = settings[key];
    emit_value(read_back);
    return true;
}

} // namespace change_rule_detail

template <class T, class Apply, class Emit>
bool change_setting(SettingsMap& settings, const QString& key, const T& value, Apply&& apply,
                    Emit&& emit_value)
{
    return change_rule_detail::change(settings, key, value, std::forward<Apply>(apply),
                                      std::forward<Emit>(emit_value), false);
}

// The _force form: stores, applies and emits even when the value is equal.
template <class T, class Apply, class Emit>
bool change_setting_force(SettingsMap& settings, const QString& key, const T& value,
                          Apply&& apply, Emit&& emit_value)
{
    return change_rule_detail::change(settings, key, value, std::forward<Apply>(apply),
                                      std::forward<Emit>(emit_value), true);
}

// The rule bound to one map, so that a controller member
//     SettingChanger change_setting{settings};
// lets a slot read
//     change_setting(SaveKeys::NIGHT_TEMPERATURE, value, [&] { refresh(); },
//                    [&](const QVariant& v) { emit set_night_temperature_value(v.toInt()); });
class SettingChanger
{
public:
    explicit SettingChanger(SettingsMap& settings) : m_settings(settings) {}

    template <class T, class Apply, class Emit>
    bool operator()(const QString& key, const T& value, Apply&& apply, Emit&& emit_value) const
    {
        return change_setting(m_settings, key, value, std::forward<Apply>(apply),
                              std::forward<Emit>(emit_value));
    }

    template <class T, class Apply, class Emit>
    bool force(const QString& key, const T& value, Apply&& apply, Emit&& emit_value) const
    {
        return change_setting_force(m_settings, key, value, std::forward<Apply>(apply),
                                    std::forward<Emit>(emit_value));
    }

private:
    SettingsMap& m_settings;
};
