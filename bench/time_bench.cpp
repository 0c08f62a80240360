// The cost of one day-curve evaluation, which runs several times a tick (for
// temperature and brightness, for each monitor): by the sun (sunrise and
// sunset, the moon, the sleep window) and by the clock.

#include <benchmark/benchmark.h>

#include "time/ClockPosition.h"
#include "time/SolarPosition.h"

namespace {

// The fields both records share, set alike so that the two figures compare.
template <class Values>
void fill_shared(Values& v)
{
    v.bedtime_hours = 23;
    v.wake_time_hours = 7;
    v.day_value = 6500.0f;
    v.night_value = 3400.0f;
    v.sleep_value = 2000.0f;
    v.use_sleep_light = true;
    v.day_transition_duration = 1800;
    v.night_transition_duration = 1800;
    v.sleep_transition_duration = 1800;
}

void BM_solar_get_interpolated_value(benchmark::State& state)
{
    SolarPosition curve;
    SolarInterpolationValues v;
    v.latitude = 52.52f;
    v.longitude = 13.40f;
    fill_shared(v);
    v.time_zone_offset = 1;
    v.new_moon_offset = 600;
    v.full_moon_offset = -600;
    for (auto _ : state)
        benchmark::DoNotOptimize(curve.get_interpolated_value(v));
}
BENCHMARK(BM_solar_get_interpolated_value);

void BM_clock_get_interpolated_value(benchmark::State& state)
{
    ClockPosition curve;
    ClockInterpolationValues v;
    v.night_start_hours = 21;
    v.night_end_hours = 7;
    fill_shared(v);
    for (auto _ : state)
        benchmark::DoNotOptimize(curve.get_interpolated_value(v));
}
BENCHMARK(BM_clock_get_interpolated_value);

} // namespace

BENCHMARK_MAIN();
