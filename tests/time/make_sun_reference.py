#!/usr/bin/python3
"""Reference sunrises, sunsets and moon phases for the time tests, computed
with PyEphem (Debian's python3-ephem), which shares no code with Ovra. Run
once and commit the output:

    /usr/bin/python3 tests/time/make_sun_reference.py tests/data

Sun: rise and set are the moments the centre of the sun stands at -0.833
degrees (refraction and the sun's radius in one angle). Ovra takes the day of
the solar noon nearest to 00:00 UTC of the present UTC date and reports its
rise and set at their local clock time on the present local date; the table
gives the raw events and that expected result. Longitudes stay well away from
0 and 180 degrees, where "nearest noon" would be ambiguous. Position: the
sun's geometric altitude and azimuth (from the north, eastward) at 00:00 UTC
of the present UTC date. Moon: full and new moons of 2024 to 2027, and the lit
fraction at further instants.
"""

import csv
import datetime as dt
import math
import os
import sys
from zoneinfo import ZoneInfo

import ephem

UTC = dt.timezone.utc

# name, time zone, latitude, longitude
PLACES = [
    ("kampala", "Africa/Kampala", 0.3136, 32.5811),
    ("quito", "America/Guayaquil", -0.1807, -78.4678),
    ("new_york", "America/New_York", 40.7128, -74.0060),
    ("beijing", "Asia/Shanghai", 39.9042, 116.4074),
    ("helsinki", "Europe/Helsinki", 60.1699, 24.9384),
    ("anchorage", "America/Anchorage", 61.2181, -149.9003),
    ("sydney", "Australia/Sydney", -33.8688, 151.2093),
    ("buenos_aires", "America/Argentina/Buenos_Aires", -34.6037, -58.3816),
    ("punta_arenas", "America/Punta_Arenas", -53.1638, -70.9171),
]

# Dates around the year, none on a day when clocks change.
# 2025-03-14 and 2025-03-29 are a full and a new moon.
DATES = ["2025-01-15", "2025-03-14", "2025-03-20", "2025-03-29", "2025-05-05",
         "2025-06-21", "2025-08-10", "2025-09-23", "2025-11-05", "2025-12-21"]

# Local clock times at which the calculator is asked: noon, and early and
# late hours where the UTC date differs from the local one somewhere.
HOURS = [(12, 0), (0, 30), (23, 30)]

POLAR = [
    ("longyearbyen_summer", "Arctic/Longyearbyen", 78.2232, 15.6267, "2025-06-21"),
    ("longyearbyen_winter", "Arctic/Longyearbyen", 78.2232, 15.6267, "2025-12-21"),
    ("mcmurdo_winter", "Antarctica/McMurdo", -77.8463, 166.6683, "2025-06-21"),
    ("mcmurdo_summer", "Antarctica/McMurdo", -77.8463, 166.6683, "2025-12-21"),
]


def ms(moment):
    return int(round(moment.timestamp() * 1000))


def to_datetime(edate):
    return ephem.Date(edate).datetime().replace(tzinfo=UTC)


def observer(lat, lon):
    o = ephem.Observer()
    o.lat = str(lat)
    o.lon = str(lon)
    o.elevation = 0
    o.pressure = 0  # no refraction model: the horizon angle holds it
    o.horizon = "-0.833"
    return o


def noon_nearest(o, sun, moment):
    o.date = ephem.Date(moment)
    after = to_datetime(o.next_transit(sun))
    o.date = ephem.Date(moment)
    before = to_datetime(o.previous_transit(sun))
    gap_after = (after - moment).total_seconds()
    gap_before = (moment - before).total_seconds()
    if abs(gap_after - gap_before) < 3600:
        raise SystemExit("ambiguous noon near %s" % moment)
    return after if gap_after < gap_before else before


def on_local_date(event, zone, local_date):
    wall = event.astimezone(zone)
    placed = dt.datetime.combine(local_date, wall.time(), tzinfo=zone)
    return ms(placed)


def sun_rows():
    rows = []
    sun = ephem.Sun()
    for name, tz, lat, lon in PLACES:
        zone = ZoneInfo(tz)
        for date in DATES:
            for hour, minute in HOURS:
                local = dt.datetime.fromisoformat(date).replace(hour=hour, minute=minute, tzinfo=zone)
                now = local.astimezone(UTC)
                utc_midnight = dt.datetime(now.year, now.month, now.day, tzinfo=UTC)
                o = observer(lat, lon)
                noon = noon_nearest(o, sun, utc_midnight)
                o.date = ephem.Date(noon)
                rise = to_datetime(o.previous_rising(sun, use_center=True))
                o.date = ephem.Date(noon)
                sett = to_datetime(o.next_setting(sun, use_center=True))
                o.date = ephem.Date(utc_midnight)
                sun.compute(o)
                rows.append({
                    "name": "%s_%s_%02d%02d" % (name, date, hour, minute), "tz": tz, "latitude": lat,
                    "longitude": lon, "now_ms": ms(now), "rise_event_ms": ms(rise), "set_event_ms": ms(sett),
                    "expected_rise_ms": on_local_date(rise, zone, local.date()),
                    "expected_set_ms": on_local_date(sett, zone, local.date()), "polar": "",
                    "midnight_altitude": "%.4f" % math.degrees(sun.alt),
                    "midnight_azimuth": "%.4f" % math.degrees(sun.az)})
    for name, tz, lat, lon, date in POLAR:
        zone = ZoneInfo(tz)
        local = dt.datetime.fromisoformat(date).replace(hour=12, tzinfo=zone)
        o = observer(lat, lon)
        o.date = ephem.Date(local.astimezone(UTC))
        try:
            o.next_rising(ephem.Sun(), use_center=True)
            raise SystemExit("%s is not polar" % name)
        except ephem.AlwaysUpError:
            polar = "up"
        except ephem.NeverUpError:
            polar = "down"
        rows.append({"name": name, "tz": tz, "latitude": lat, "longitude": lon,
                     "now_ms": ms(local.astimezone(UTC)), "rise_event_ms": "", "set_event_ms": "",
                     "expected_rise_ms": "", "expected_set_ms": "", "polar": polar,
                     "midnight_altitude": "", "midnight_azimuth": ""})
    return rows


def moon_rows():
    rows = []
    start = ephem.Date("2024/1/1")
    end = ephem.Date("2028/1/1")
    for kind, step in (("full", ephem.next_full_moon), ("new", ephem.next_new_moon)):
        moment = start
        while True:
            moment = step(moment)
            if moment >= end:
                break
            rows.append({"kind": kind, "utc_ms": ms(to_datetime(moment)), "lit": ""})
            moment = ephem.Date(moment + 1)
    # Lit fraction, seen from the earth's centre, every 53 hours through 2025.
    moon = ephem.Moon()
    moment = ephem.Date("2025/1/1 05:00")
    while moment < ephem.Date("2026/1/1"):
        moon.compute(moment, epoch=moment)
        rows.append({"kind": "lit", "utc_ms": ms(to_datetime(moment)),
                     "lit": "%.5f" % (moon.moon_phase)})
        moment = ephem.Date(moment + 53 * ephem.hour)
    rows.sort(key=lambda r: (r["kind"], r["utc_ms"]))
    return rows


def write(path, rows):
    with open(path, "w", newline="") as f:
        w = csv.DictWriter(f, fieldnames=list(rows[0].keys()), lineterminator="\n")
        w.writeheader()
        w.writerows(rows)


def main():
    out = sys.argv[1] if len(sys.argv) > 1 else "."
    write(os.path.join(out, "sun_reference.csv"), sun_rows())
    write(os.path.join(out, "moon_reference.csv"), moon_rows())


if __name__ == "__main__":
    main()
