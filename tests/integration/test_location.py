"""Location by IP against a local stand-in for the service, and the user's
curve files in the working directory, with the real binary."""
import http.server
import os
import signal
import socket
import threading
import time

from harness import (OvraTestCase, expected_tint, make_linear, ramps_close, read_ramps,
                     wait_for)

# Manual values hold the night values at any hour, so the display shows a
# known tint whatever the curve.
TINT = {
    "SaveVersion": 3,
    "UseManualColorSettings": "true",
    "UseManualBrightness": "true",
    "NightTemperature": 3400,
    "NightBrightness": 80,
}
STORED = dict(TINT, Latitude="10.5", Longitude="20.25")
PROXY_VARIABLES = ("http_proxy", "https_proxy", "all_proxy", "no_proxy",
                   "HTTP_PROXY", "HTTPS_PROXY", "ALL_PROXY", "NO_PROXY")


class FakeLocationService:
    """An HTTP server on 127.0.0.1 that answers GET /json/ with a fixed body,
    or, when silent, holds the connection open without a word."""

    def __init__(self, body=None, silent=False):
        self.body = body
        self.silent = silent
        self.paths = []
        self.release = threading.Event()
        service = self

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                service.paths.append(self.path)
                if service.silent:
                    service.release.wait(30)
                    return
                data = service.body.encode()
                self.send_response(200)
                self.send_header("Content-Type", "application/json")
                self.send_header("Content-Length", str(len(data)))
                self.end_headers()
                self.wfile.write(data)

            def log_message(self, *args):
                pass

        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self.server.daemon_threads = True
        self.thread = threading.Thread(target=self.server.serve_forever, daemon=True)
        self.thread.start()

    @property
    def base(self):
        return "http://127.0.0.1:%d" % self.server.server_address[1]

    def stop(self):
        self.release.set()
        self.server.shutdown()
        self.server.server_close()


def closed_port_base():
    with socket.socket() as s:
        s.bind(("127.0.0.1", 0))
        port = s.getsockname()[1]
    return "http://127.0.0.1:%d" % port


class LocationTestCase(OvraTestCase):

    def setUp(self):
        super().setUp()
        for name in PROXY_VARIABLES:
            self.env.pop(name, None)
        self.services = []

    def tearDown(self):
        super().tearDown()
        for service in self.services:
            service.stop()

    def service(self, body=None, silent=False):
        service = FakeLocationService(body, silent)
        self.services.append(service)
        return service

    def start_with_service(self, base, cwd=None):
        env = dict(self.env, OVRA_GEOLOCATION_URL=base)
        return self.start(env=env, cwd=cwd)

    def stored(self):
        """The settings file as a dict of [General] keys."""
        values = {}
        try:
            with open(self.config_file()) as f:
                for line in f:
                    if "=" in line:
                        key, value = line.rstrip("\n").split("=", 1)
                        values[key] = value
        except FileNotFoundError:
            pass
        return values

    def stored_float(self, key):
        value = self.stored().get(key)
        return None if value is None else float(value)

    def wait_for_location(self, latitude, longitude, timeout=10):
        def reached():
            lat, lon = self.stored_float("Latitude"), self.stored_float("Longitude")
            return (lat is not None and lon is not None
                    and abs(lat - latitude) < 1e-4 and abs(lon - longitude) < 1e-4)
        if not wait_for(reached, timeout):
            self.fail("the settings file never held %s, %s; it holds %s, %s"
                      % (latitude, longitude, self.stored().get("Latitude"),
                         self.stored().get("Longitude")))

    def assert_keeps_ticking(self, process):
        """The tick writes every CRTC each second: ramps that someone else
        reset come back tinted."""
        tinted = expected_tint(self.original, 3400, 80)
        self.wait_for_ramps(tinted)
        make_linear()
        self.wait_for_ramps(tinted, timeout=15)
        self.assertTrue(process.alive())


class AutomaticLocation(LocationTestCase):

    def test_reply_coordinates_reach_the_settings_file(self):
        service = self.service('{"ip": "192.0.2.7", "country_code": "BG", "country_name": "Bulgaria",'
                               ' "city": "Sofia", "time_zone": "Europe/Sofia",'
                               ' "latitude": 42.6977, "longitude": 23.3219}')
        self.write_config(TINT)
        p = self.start_with_service(service.base)
        self.wait_for_location(42.6977, 23.3219)
        self.assertIn("/json/", service.paths)
        self.assertTrue(p.alive())

    def test_reply_with_latitude_only_changes_only_the_latitude(self):
        self.write_config(STORED)
        service = self.service('{"latitude": -33.8688}')
        self.start_with_service(service.base)
        self.wait_for_location(-33.8688, 20.25)

    def test_latitude_of_minus_9999_is_ignored(self):
        self.write_config(STORED)
        service = self.service('{"latitude": -9999.0, "longitude": 151.2093}')
        self.start_with_service(service.base)
        self.wait_for_location(10.5, 151.2093)

    def test_garbage_reply_keeps_the_stored_location(self):
        self.write_config(STORED)
        service = self.service("<html><body>502 Bad Gateway</body></html>")
        p = self.start_with_service(service.base)
        self.assertTrue(wait_for(lambda: service.paths, timeout=10), "no request reached the service")
        self.assert_keeps_ticking(p)
        self.wait_for_location(10.5, 20.25)

    def test_dead_service_changes_nothing_and_the_tick_goes_on(self):
        self.write_config(STORED)
        p = self.start_with_service(closed_port_base())
        self.assert_keeps_ticking(p)
        time.sleep(1)
        self.wait_for_location(10.5, 20.25, timeout=1)

    def test_silent_service_changes_nothing_and_never_blocks_the_tick(self):
        self.write_config(STORED)
        service = self.service(silent=True)
        p = self.start_with_service(service.base)
        self.assertTrue(wait_for(lambda: service.paths, timeout=10), "no request reached the service")
        # The request hangs; the tick must not.
        self.assert_keeps_ticking(p)
        # After the request gives up, nothing has changed either.
        time.sleep(11)
        self.assertTrue(p.alive())
        self.wait_for_location(10.5, 20.25, timeout=1)
        self.assert_keeps_ticking(p)

    def test_manual_location_sends_no_request(self):
        self.write_config(dict(STORED, UseManualLocation="true"))
        service = self.service('{"latitude": 42.6977, "longitude": 23.3219}')
        p = self.start_with_service(service.base)
        self.wait_for_tint()
        time.sleep(2)
        self.assertEqual(service.paths, [])
        self.assertTrue(p.alive())
        p.send(signal.SIGTERM)
        self.assertEqual(p.wait(timeout=15), 0)
        self.wait_for_location(10.5, 20.25, timeout=1)


# Night values by the hour: every hour of the day has its own pair, so that
# the test knows what the present hour must show.
def night_brightness(hour):
    return 50 + hour


def night_temperature(hour):
    return (2700, 3400, 3500)[hour % 3]


class CurveFiles(LocationTestCase):

    def write_curve_files(self, folder):
        with open(os.path.join(folder, "brightnessConfig.txt"), "w") as f:
            for hour in range(24):
                f.write("%d %d %d\n" % (hour, hour + 1, night_brightness(hour)))
        with open(os.path.join(folder, "temperatureConfig.txt"), "w") as f:
            # Also one range over midnight, which never matches, and a value
            # beyond the limit ahead of the real entries.
            f.write("0 24 500\n22 6 9000\n")
            for hour in range(24):
                f.write("%d %d %d\n" % (hour, hour + 1, night_temperature(hour)))

    def test_curve_files_in_the_working_directory_set_the_night_values_by_the_hour(self):
        work = os.path.join(self.base, "work")
        os.makedirs(work)
        self.write_curve_files(work)
        # With both manual switches on the night values hold all day, so the
        # display shows what the files give for this hour.
        self.write_config(dict(TINT, NightTemperature=4500, NightBrightness=90))
        p = self.start_with_service(closed_port_base(), cwd=work)
        self.wait_for_tint()

        def shows_this_hour():
            hour = time.localtime().tm_hour
            expected = expected_tint(self.original, night_temperature(hour), night_brightness(hour))
            return ramps_close(read_ramps(), expected)
        self.assertTrue(wait_for(shows_this_hour, timeout=10),
                        "the display does not show the night values of this hour")

        hour = time.localtime().tm_hour
        p.send(signal.SIGTERM)
        self.assertEqual(p.wait(timeout=15), 0)
        after = time.localtime().tm_hour
        stored = self.stored()
        self.assertIn(int(stored.get("NightBrightness", -1)),
                      {night_brightness(hour), night_brightness(after)})
        self.assertIn(int(stored.get("NightTemperature", -1)),
                      {night_temperature(hour), night_temperature(after)})

    def test_curve_files_beside_the_home_are_not_read(self):
        work = os.path.join(self.base, "work")
        os.makedirs(work)
        self.write_curve_files(self.home)
        self.write_config(TINT)
        p = self.start_with_service(closed_port_base(), cwd=work)
        self.wait_for_ramps(expected_tint(self.original, 3400, 80))
        p.send(signal.SIGTERM)
        self.assertEqual(p.wait(timeout=15), 0)
        self.assertEqual(int(self.stored().get("NightBrightness", -1)), 80)
