// What the page and the tray show of the running state, once a second: the
// time to the next break, the temperature and brightness of the moment, and
// whether the program is paused.
#include <QString>

#include "base/TickPath.h"

#include "app/MainWindow.h"
#include "breaks/IRestTimer.h"
#include "settings/SaveKeys.h"
#include "tray/ITrayIcon.h"

namespace {
// The end of a period beeps through its last three seconds.
const int BIP_MILLISECONDS = 2999;
} // namespace

// "3400K / 80%": per monitor, from the curve, when each has its own values;
// otherwise the values last written.
OVRA_TICK QString MainWindow::status_values()
{
    if (!use_per_monitor_setting.to_bool()) {
        if (shared_status.temperature != current_temperature ||
            shared_status.brightness != current_brightness)
            shared_status = {current_temperature, current_brightness,
                             QString::number(current_temperature) + "K / " +
                                 QString::number(current_brightness) + "%"};
        return shared_status.text;
    }
    QString text;
    const int count = get_screen_count();
    for (int monitor = 1; monitor <= count; ++monitor) {
        if (monitor > 1)
            text += QStringLiteral(" | ");
        text += QString::number(static_cast<int>(get_interpolated_color_temperature(monitor))) +
                "K / " + QString::number(static_cast<int>(get_interpolated_brightness(monitor))) +
                "%";
    }
    return text;
}

void MainWindow::translate_status_words()
{
    status_words = {tr("until"), tr("work"), tr("rest"), tr("Paused")};
}

OVRA_TICK void MainWindow::update_ui()
{
    // A monitor came or went: the page's list and the overlays follow.
    if (get_screen_count() != screen_count) {
        restore_manage_monitors();
        refresh_overlay_screens(true);
    }

    QString remaining = QStringLiteral(" ");
    const QString& until = status_words.until;
    QString phase;
    if (!timer_paused_setting.to_bool() && !timer_auto_paused && rest_timer &&
        !rest_timer->is_paused()) {
        if (rest_timer->get_remaining_work_int() < 1) {
            phase = status_words.work;
            remaining = rest_timer->get_remaining_rest_string();
            if (ovra_loaded)
                emit set_remaining_time(remaining, until, phase);
            if (rest_timer->get_remaining_rest_int() <= BIP_MILLISECONDS &&
                use_sounds_setting.to_bool())
                rest_timer->start_bip_sound();
        } else {
            phase = status_words.rest;
            remaining = rest_timer->get_remaining_work_string();
            if (ovra_loaded)
                emit set_remaining_time(remaining, until, phase);
            QString message;
            if (rest_timer->is_rest_coming(message))
                show_tray_icon_message(tr("Big rest incoming"), message);
            if (rest_timer->get_remaining_work_int() <= BIP_MILLISECONDS &&
                use_sounds_setting.to_bool())
                rest_timer->start_bip_sound();
        }
    } else if (ovra_loaded) {
        emit set_timer_message(phase);
    }

    // Worked out once for the tooltip and the status: per monitor it asks
    // the curve.
    QString values;
    if (tray_icon) {
        values = status_values();
        QString tooltip = values;
        if (remaining != QLatin1String(" "))
            tooltip += " / " + remaining + " " + until + " " + phase;
        tray_icon->set_tooltip(tooltip);
    }

    process_curve_files();
    publish_status(tray_icon ? &values : nullptr);
}

void MainWindow::update_ovra_status()
{
    publish_status(nullptr);
}

// Before the page has loaded only the icon follows.
OVRA_TICK void MainWindow::publish_status(const QString* known_values)
{
    if (ovra_loaded)
        emit set_ovra_status(ovra_paused_setting.to_bool() ? status_words.paused
                             : known_values                ? *known_values
                                                           : status_values());
    if (tray_icon)
        tray_icon->update_tray_icon(false);
}
