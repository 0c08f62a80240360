// The long report of the day's times. Built on request and whenever a curve
// setting changes, never per tick.
#include "app/MainWindow.h"
#include "time/TransitionTimesText.h"
#include "time/Clock.h"
#include "time/ClockPosition.h"
#include "time/SolarPosition.h"

void MainWindow::update_times_info()
{
    update_transition_times_info();
    update_moon_phases_info();
}

void MainWindow::update_transition_times_info()
{
    emit set_transition_times_info(get_transition_times_info_string());
}

// There is no moon text of its own: the page shows the same report there.
void MainWindow::update_moon_phases_info()
{
    emit set_moon_phases_info(get_transition_times_info_string());
}

QString MainWindow::get_transition_times_info_string()
{
    if (uses_solar_curve()) {
        if (!SolarPosition::s_instance)
            return QString();
        SolarInterpolationValues values;
        fill_solar_interpolation_values(&values);
        return TransitionTimesText::solar(*SolarPosition::s_instance, values,
                                          Clock::instance()->now().timeZoneAbbreviation());
    }
    if (!ClockPosition::s_instance)
        return QString();
    ClockInterpolationValues values;
    fill_clock_interpolation_values(&values);
    return TransitionTimesText::clock(*ClockPosition::s_instance, values);
}
