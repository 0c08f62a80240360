#include "TransitionTimesText.h"

#include <QCoreApplication>

#include "time/ClockPosition.h"
#include "time/SolarPosition.h"

namespace TransitionTimesText {

namespace {

// The labels are the controller's texts: marked for the translation tools
// and translated in its context.
class Report
{
public:
    void line(const char* label, const QString& value)
    {
        text += ' ' + QCoreApplication::translate("MainWindow", label) + QStringLiteral(" - ")
                + value + '\n';
    }
    void end_group() { text += '\n'; }

    QString text;
};

} // namespace

QString solar(SolarPosition& sun, const SolarInterpolationValues& v, const QString& time_zone)
{
    Report r;
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Day start time"), sun.day_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Day transition start time"), sun.day_transition_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Day transition end time"), sun.day_transition_end_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Day end time"), sun.night_start_time_string(v));
    r.end_group();
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Night start time"), sun.night_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Night transition start time"), sun.night_transition_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Night transition end time"), sun.night_transition_end_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Night end time"), sun.day_start_time_string(v));
    r.end_group();
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Bedtime"), sun.bedtime_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Bedtime transition start time"), sun.bedtime_transition_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Bedtime transition end time"), sun.bedtime_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Bedtime end time"), sun.wake_time_start_time_string(v));
    r.end_group();
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Wake time"), sun.wake_time_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Wake time transition start time"), sun.wake_time_transition_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Wake time transition end time"), sun.wake_time_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Wake time end time"), sun.bedtime_start_time_string(v));
    r.end_group();
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Day duration"), sun.day_duration_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Day transition duration"), sun.transition_duration_string(v.day_transition_duration));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Night duration"), sun.night_duration_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Night transition duration"),
           sun.transition_duration_string(v.night_transition_duration));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Sleep duration"), sun.sleep_duration_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Sleep transition duration"),
           sun.transition_duration_string(v.sleep_transition_duration));
    r.end_group();
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Time zone"), time_zone);
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Custom Time zone offset"), sun.time_zone_offset_string(v.time_zone_offset));
    r.end_group();
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Sunrise time"), sun.sunrise_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Sunset time"), sun.sunset_time_string(v));
    r.end_group();
    r.line(QT_TRANSLATE_NOOP("MainWindow", "New moon offset"), sun.new_moon_offset_string(v.new_moon_offset));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Full moon offset"), sun.full_moon_offset_string(v.full_moon_offset));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Current moon offset"),
           sun.current_moon_offset_string(v.new_moon_offset, v.full_moon_offset));
    r.end_group();
    return r.text;
}

// The clock curve has no ramp that ends after a set time: the transitions
// end at the set times themselves.
QString clock(ClockPosition& c, const ClockInterpolationValues& v)
{
    Report r;
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Day start time"), c.day_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Day transition start time"), c.day_transition_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Day transition end time"), c.day_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Day end time"), c.night_start_time_string(v));
    r.end_group();
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Night start time"), c.night_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Night transition start time"), c.night_transition_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Night transition end time"), c.night_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Night end time"), c.day_start_time_string(v));
    r.end_group();
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Bedtime"), c.bedtime_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Bedtime transition start time"), c.bedtime_transition_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Bedtime transition end time"), c.bedtime_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Bedtime end time"), c.wake_time_start_time_string(v));
    r.end_group();
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Wake time"), c.wake_time_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Wake time transition start time"), c.wake_time_transition_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Wake time transition end time"), c.wake_time_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Wake time end time"), c.bedtime_start_time_string(v));
    r.end_group();
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Day duration"), c.day_duration_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Day transition duration"), c.transition_duration_string(v.day_transition_duration));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Night duration"), c.night_duration_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Night transition duration"), c.transition_duration_string(v.night_transition_duration));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Sleep duration"), c.sleep_duration_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Sleep transition duration"), c.transition_duration_string(v.sleep_transition_duration));
    r.end_group();
    return r.text;
}

} // namespace TransitionTimesText
