"""Location by IP against a local stand-in for the service, and the user's
curve files in the working directory, with the real binary."""
import http.server
import os
import signal
import socket
import threading
import time

from harness import OvraTestCase, expected_tint, make_linear, ramps_close, read_ramps, wait_for

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
    or, with no body, holds the connection open without a word."""

    def __init__(self, body=None):
        self.paths = []
        self.release = threading.Event()
        service = self

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                service.paths.append(self.path)
                if body is None:
                    service.release.wait(30)
                    return
                self.send_response(200)
                self.send_header("Content-Type", "application/json")
                self.send_header("Content-Length", str(len(body)))
                self.end_headers()
                self.wfile.write(body.encode())

            def log_message(self, *args):
                pass

        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self.server.daemon_threads = True
        threading.Thread(target=self.server.serve_forever, daemon=True).start()
        self.base = "http://127.0.0.1:%d" % self.server.server_address[1]

    def stop(self):
        self.release.set()
        self.server.shutdown()
        self.server.server_close()


def closed_port_base():
    with socket.socket() as s:
        s.bind(("127.0.0.1", 0))
        return "http://127.0.0.1:%d" % s.getsockname()[1]


class LocationTestCase(OvraTestCase):

    def setUp(self):
        super().setUp()
        for name in PROXY_VARIABLES:
            self.env.pop(name, None)

    def service(self, body=None):
        service = FakeLocationService(body)
        self.addCleanup(service.stop)
        return service

    def start_with_service(self, base, cwd=None):
        return self.start(env=dict(self.env, OVRA_GEOLOCATION_URL=base), cwd=cwd)

    def location(self):
        stored = self.stored()
        try:
            return float(stored["Latitude"]), float(stored["Longitude"])
        except (KeyError, ValueError):
            return None

    def wait_for_location(self, latitude, longitude, timeout=10):
        def reached():
            got = self.location()
            return got and abs(got[0] - latitude) < 1e-4 and abs(got[1] - longitude) < 1e-4
        if not wait_for(reached, timeout):
            self.fail("the settings file never held %s, %s; it holds %s"
                      % (latitude, longitude, self.location()))

    def assert_keeps_ticking(self, process):
        """The tick writes every CRTC each second: ramps that someone else
        reset come back tinted."""
        tinted = expected_tint(self.original, 3400, 80)
        self.wait_for_ramps(tinted)
        make_linear()
        self.wait_for_ramps(tinted, timeout=15)
        self.assertTrue(process.alive())


class AutomaticLocation(LocationTestCase):

    def test_each_reply_changes_what_it_names(self):
        replies = (
            (TINT, '{"ip": "192.0.2.7", "country_code": "BG", "city": "Sofia",'
                   ' "time_zone": "Europe/Sofia", "latitude": 42.6977, "longitude": 23.3219}',
             (42.6977, 23.3219)),
            # The stored longitude stays.
            (STORED, '{"latitude": -33.8688}', (-33.8688, 20.25)),
        )
        for store, body, (latitude, longitude) in replies:
            with self.subTest(body=body):
                self.write_config(store)
                service = self.service(body)
                p = self.start_with_service(service.base)
                self.wait_for_location(latitude, longitude)
                self.assertIn("/json/", service.paths)
                p.stop()

    def test_a_failing_service_changes_nothing_and_never_blocks_the_tick(self):
        garbage = self.service("<html><body>502 Bad Gateway</body></html>")
        silent = self.service()
        for name, base, service in (("garbage", garbage.base, garbage),
                                    ("closed port", closed_port_base(), None),
                                    ("silent", silent.base, silent)):
            with self.subTest(service=name):
                self.write_config(STORED)
                p = self.start_with_service(base)
                if service:
                    self.assertTrue(wait_for(lambda: service.paths, 10), "no request reached it")
                self.assert_keeps_ticking(p)
                if service is silent:
                    # Past the time the request takes to give up.
                    time.sleep(11)
                    self.assert_keeps_ticking(p)
                self.wait_for_location(10.5, 20.25, timeout=1)
                p.stop()


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

    def work_folder(self):
        work = os.path.join(self.base, "work")
        os.makedirs(work)
        return work

    def test_curve_files_in_the_working_directory_set_the_night_values_by_the_hour(self):
        work = self.work_folder()
        self.write_curve_files(work)
        self.write_config(dict(TINT, NightTemperature=4500, NightBrightness=90))
        p = self.start_with_service(closed_port_base(), cwd=work)
        self.wait_for_tint()

        def shows_this_hour():
            hour = time.localtime().tm_hour
            expected = expected_tint(self.original, night_temperature(hour), night_brightness(hour))
            return ramps_close(read_ramps(), expected)
        self.assertTrue(wait_for(shows_this_hour, timeout=10),
                        "the display does not show the night values of this hour")

        hours = {time.localtime().tm_hour}
        p.send(signal.SIGTERM)
        self.assertEqual(p.wait(timeout=15), 0)
        hours.add(time.localtime().tm_hour)
        stored = self.stored()
        self.assertIn(int(stored["NightBrightness"]), {night_brightness(h) for h in hours})
        self.assertIn(int(stored["NightTemperature"]), {night_temperature(h) for h in hours})

    def test_a_cut_brightness_file_is_refused_with_one_line(self):
        work = self.work_folder()
        # Read as it stands, the cut line would be 0 % all day, held at 5 %.
        with open(os.path.join(work, "brightnessConfig.txt"), "w") as f:
            f.write("0 24 60\n0 24")
        self.write_config(TINT)
        p = self.start_with_service(closed_port_base(), cwd=work)
        tinted = expected_tint(self.original, 3400, 80)
        self.wait_for_ramps(tinted)
        time.sleep(1.5)  # the file is looked at every second
        self.assertTrue(ramps_close(read_ramps(), tinted), "the curve file took over")
        p.send(signal.SIGTERM)
        self.assertEqual(p.wait(timeout=15), 0)
        lines = [l for l in p.stderr().splitlines() if l.strip()]
        self.assertEqual(len(lines), 1, p.stderr())
        self.assertIn("brightnessConfig.txt", lines[0])
        self.assertEqual(self.stored()["NightBrightness"], "80")
