#include "time/TransitionTimesText.h"

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

// The groups both curves report alike. The transitions of the morning and
// the evening end where the curve says: the sun curve has ramps that run on
// past a set time, the clock curve's end at the set times themselves.
template <class Curve, class Values>
void shared_groups(Report& r, Curve& c, const Values& v, const QString& day_transition_end,
                   const QString& night_transition_end)
{
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Day start time"), c.day_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Day transition start time"), c.day_transition_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Day transition end time"), day_transition_end);
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Day end time"), c.night_start_time_string(v));
    r.end_group();
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Night start time"), c.night_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Night transition start time"), c.night_transition_start_time_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Night transition end time"), night_transition_end);
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
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Night transition duration"),
           c.transition_duration_string(v.night_transition_duration));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Sleep duration"), c.sleep_duration_string(v));
    r.line(QT_TRANSLATE_NOOP("MainWindow", "Sleep transition duration"),
           c.transition_duration_string(v.sleep_transition_duration));
    r.end_group();
}

} // namespace

QString solar(SolarPosition& sun, const SolarInterpolationValues& v, const QString& time_zone)
{
    Report r;
    shared_groups(r, sun, v, sun.day_transition_end_time_string(v), sun.night_transition_end_time_string(v));
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

QString clock(ClockPosition& c, const ClockInterpolationValues& v)
{
    Report r;
    shared_groups(r, c, v, c.day_start_time_string(v), c.night_start_time_string(v));
    return r.text;
}

} // namespace TransitionTimesText
