"""The settings window's life in the window host: it opens once its page is
ready, the host ends with the window or after a warm period, and neither a
dead host nor a missing one costs the resident program its tint."""
import os
import re
import signal
import subprocess
import time

from harness import (OvraTestCase, WINDOW_TIMEOUT, alive, descendants, expected_tint,
                     host_pids, make_linear, maps_web_engine, settings_windows, wait_for,
                     window_pid)

TEMPERATURE = 3400
BRIGHTNESS = 80
MANUAL_TINT = {
    "SaveVersion": 3,
    "UseManualColorSettings": "true",
    "UseManualBrightness": "true",
    "NightTemperature": TEMPERATURE,
    "NightBrightness": BRIGHTNESS,
}
# What the page logs once its channel to ovra is open; the host passes page
# logs on with OVRA_DEBUG set.
CHANNEL_OPEN = "WebSocket connected, setting up QWebChannel."


class MapWatch:
    """Every window the X server maps from now on, in order (xev on the root
    window; without a window manager the top-level windows are its
    children)."""

    def __init__(self, base, env):
        self.path = os.path.join(base, "maps-%d.txt" % time.monotonic_ns())
        self.file = open(self.path, "w")
        self.proc = subprocess.Popen(["xev", "-root", "-event", "substructure"], env=env,
                                     stdout=self.file, stderr=subprocess.DEVNULL)

    def maps_of(self, window):
        with open(self.path) as f:
            text = f.read()
        mapped = re.findall(r"^MapNotify event.*\n\s*event 0x[0-9a-f]+, window (0x[0-9a-f]+)",
                            text, re.M)
        return sum(int(w, 16) == int(window) for w in mapped)

    def stop(self):
        self.proc.terminate()
        self.proc.wait(timeout=10)
        self.file.close()


class SettingsWindow(OvraTestCase):

    def setUp(self):
        super().setUp()
        self.write_config(MANUAL_TINT)
        self.tinted = expected_tint(self.original, TEMPERATURE, BRIGHTNESS)

    def start_with_config(self, values, *args, env=None):
        self.write_config(dict(MANUAL_TINT, **values))
        return self.start(*args, env=env)

    def keeps_tinting(self, p):
        """The ticks still write: ramps taken from it come back tinted."""
        self.assertTrue(p.alive(), "ovra ended: " + p.stderr())
        make_linear()
        self.wait_for_ramps(self.tinted)

    def the_host(self, p):
        hosts = wait_for(lambda: host_pids(p.pid), timeout=WINDOW_TIMEOUT)
        self.assertEqual(len(hosts), 1, "window hosts of ovra: %s" % hosts)
        return hosts[0]

    def press_escape_until_hidden(self, window):
        # The key goes where the focus is; the host gives the window focus
        # right after it maps, so a key that came earlier went elsewhere.
        def hidden():
            if window not in settings_windows():
                return True
            subprocess.run(["xdotool", "key", "Escape"], timeout=20)
            return wait_for(lambda: window not in settings_windows(), timeout=0.5)

        self.assertTrue(wait_for(hidden, timeout=20), "Escape did not close the window")

    def stderr_lines(self, p):
        return [line for line in p.stderr().splitlines() if line.strip()]

    def test_show_ui_maps_the_window_once_its_page_is_ready(self):
        watch = MapWatch(self.base, self.env)
        self.addCleanup(watch.stop)
        p = self.start("--show_ui", env=dict(self.env, OVRA_DEBUG="1"))
        window = self.wait_for_window()
        # Shown by the page's own call after the restore push, so its channel
        # was open before the window mapped.
        self.assertIn(CHANNEL_OPEN, p.stderr())
        host = self.the_host(p)
        self.assertEqual(window_pid(window), host, "the window is not the host's")
        time.sleep(2)
        self.assertEqual(settings_windows(), [window])
        self.assertEqual(watch.maps_of(window), 1)
        self.assertFalse(maps_web_engine(p.pid))

    def test_without_a_window_no_engine_is_loaded_and_no_host_runs(self):
        p = self.start()
        self.wait_for_ramps(self.tinted)
        time.sleep(1)
        self.assertFalse(maps_web_engine(p.pid))
        self.assertEqual(host_pids(p.pid), [])
        self.assertEqual(settings_windows(visible=False), [])

    def test_closing_ends_the_host_at_once_or_after_its_warm_period(self):
        cases = (
            # name, settings, warm period, host left after the close
            ("destroyed on close", {"DestroyUiOnClose": "true"}, None, False),
            ("warm period over", {}, "1500", False),
            ("warm period running", {}, None, True),
        )
        for name, values, warm, host_stays in cases:
            with self.subTest(name):
                env = dict(self.env)
                if warm:
                    env["OVRA_PAGE_WARM_MSECS"] = warm
                p = self.start_with_config(values, env=env)
                try:
                    self.close_and_check(p, host_stays)
                finally:
                    # The next case needs the single instance free again.
                    p.stop()
                    wait_for(lambda: not settings_windows(visible=False))

    def close_and_check(self, p, host_stays):
        self.wait_for_ramps(self.tinted)
        self.assertEqual(self.launch().returncode, 0)
        window = self.wait_for_window()
        host = self.the_host(p)
        self.press_escape_until_hidden(window)
        if host_stays:
            time.sleep(3)
            self.assertTrue(alive(host), "the host ended within its warm period")
            # The page is still there: a second launch only shows it.
            self.assertEqual(self.launch().returncode, 0)
            self.assertEqual(self.wait_for_window(), window)
            self.assertEqual(host_pids(p.pid), [host])
        else:
            self.assertTrue(wait_for(lambda: not alive(host), timeout=10),
                            "the host outlived the window")
            self.assertEqual(settings_windows(visible=False), [])
            self.assertFalse(maps_web_engine(p.pid))
        self.keeps_tinting(p)

    def test_a_killed_host_costs_one_line_and_the_next_open_starts_a_new_one(self):
        p = self.start("--show_ui")
        window = self.wait_for_window()
        host = self.the_host(p)
        said = len(self.stderr_lines(p))
        os.kill(host, signal.SIGKILL)
        self.assertTrue(wait_for(lambda: not settings_windows(visible=False), timeout=10),
                        "the dead host's window stayed")
        self.keeps_tinting(p)
        lines = self.stderr_lines(p)[said:]
        self.assertEqual(len(lines), 1, lines)
        self.assertIn("window host", lines[0])
        # The window maps only when the new page, its channel open and the
        # settings pushed, asks for it: mapping again means the page works.
        self.assertEqual(self.launch().returncode, 0)
        self.wait_for_window()
        self.assertNotIn(host, host_pids(p.pid))
        self.the_host(p)
        self.keeps_tinting(p)

    def test_a_killed_ovra_takes_its_host_and_window_along(self):
        p = self.start("--show_ui")
        self.wait_for_window()
        host = self.the_host(p)
        engine = [host] + descendants(host)
        p.send(signal.SIGKILL)
        p.wait()
        self.assertTrue(wait_for(lambda: not any(alive(pid) for pid in engine), timeout=10),
                        "left running: %s" % [pid for pid in engine if alive(pid)])
        self.assertEqual(settings_windows(visible=False), [])

    def test_a_missing_host_is_told_at_each_request_and_costs_nothing_else(self):
        env = dict(self.env, OVRA_WEB_HOST="/nonexistent")
        p = self.start("--show_ui", env=env)
        self.wait_for_ramps(self.tinted)
        self.assertTrue(wait_for(lambda: self.stderr_lines(p), timeout=10))
        first = self.stderr_lines(p)
        self.assertEqual(len(first), 1, first)
        self.assertIn("/nonexistent", first[0])
        self.assertEqual(self.launch(env=env).returncode, 0)
        self.assertTrue(wait_for(lambda: len(self.stderr_lines(p)) > 1, timeout=10),
                        "the second request did not try again")
        time.sleep(1)
        self.assertEqual(self.stderr_lines(p), first * 2)
        self.keeps_tinting(p)
        self.assertEqual(settings_windows(visible=False), [])

