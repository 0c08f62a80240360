// The change rule for a setting of one value: the families of switches and
// numbers call it with their key, their set_* signal and what the change
// sets off.
#include "app/MainWindow.h"
#include "settings/ChangeRule.h"

namespace {
QString key_of(const char* key)
{
    return QString::fromLatin1(key);
}

void run(const std::function<void()>& apply)
{
    if (apply)
        apply();
}
} // namespace

void MainWindow::store_setting(const char* key, bool value, SwitchSignal signal,
                               const Apply& apply)
{
    change_setting(settings, key_of(key), value, [&] { run(apply); },
                   [&](const QVariant& stored) { emit(this->*signal)(stored.toBool()); });
}

void MainWindow::store_setting(const char* key, int value, ValueSignal signal, const Apply& apply)
{
    change_setting(settings, key_of(key), value, [&] { run(apply); },
                   [&](const QVariant& stored) { emit(this->*signal)(stored.toInt()); });
}

void MainWindow::keep_in_shadow(const char* key, const char* shadow)
{
    settings[key_of(shadow)] = settings[key_of(key)];
}
