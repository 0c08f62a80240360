"""The program as a user starts it: it tints, hands launches over, and gives
the display back on every way out."""
import os
import signal
import socket
import subprocess
import time

from harness import (OvraTestCase, WINDOW_TIMEOUT, expected_tint, read_ramps, settings_windows,
                     wait_for, BINARY)

FIXED_TEMPERATURE = 3400
FIXED_BRIGHTNESS = 80


MANUAL_TINT = {
    "SaveVersion": 3,
    "UseManualColorSettings": "true",
    "UseManualBrightness": "true",
    "NightTemperature": FIXED_TEMPERATURE,
    "NightBrightness": FIXED_BRIGHTNESS,
}


class TintAndRestore(OvraTestCase):

    def setUp(self):
        super().setUp()
        # Manual values hold the night values at any hour.
        self.write_config(MANUAL_TINT)

    def tinted(self):
        return expected_tint(self.original, FIXED_TEMPERATURE, FIXED_BRIGHTNESS)

    def test_closing_the_window_without_tray_quits_and_restores(self):
        p = self.start("--show_ui")
        self.wait_for_ramps(self.tinted())
        # The window host's window, shown once its page is ready.
        window = self.wait_for_window()
        closer = os.path.join(os.path.dirname(os.environ["OVRA_RAMPS"]), "ovra-close-window")

        # A close that reaches the window before Qt has seen it mapped is
        # dropped, as no user could click it then. So ask again, as a user
        # would, until the program ends.
        def closed():
            subprocess.run([closer, window], timeout=10)
            try:
                p.proc.wait(timeout=0.5)
                return True
            except subprocess.TimeoutExpired:
                return False

        self.assertTrue(wait_for(closed, timeout=30), "closing the window did not end the program")
        self.assertEqual(p.wait(timeout=15), 0)
        self.assertIn("Tray icon is not visible", p.stdout())
        self.assertEqual(read_ramps(), self.original)

    def test_a_killed_run_is_repaired_by_the_next_start(self):
        p = self.start()
        self.wait_for_ramps(self.tinted())
        p.send(signal.SIGKILL)
        p.wait()
        self.assertNotEqual(read_ramps(), self.original, "kill -9 cannot restore anything")
        # The next start must tint from the original ramps, not from the
        # tinted ones it finds, and give the original back at the end.
        q = self.start()
        self.wait_for_ramps(self.tinted())
        time.sleep(1.5)
        self.wait_for_ramps(self.tinted())
        q.send(signal.SIGTERM)
        self.assertEqual(q.wait(timeout=15), 0)
        self.assertEqual(read_ramps(), self.original)


class TwoInstancesOnOneDisplay(OvraTestCase):
    """With the guard off, a second instance must not mistake the first one's
    kept ramps for the leftovers of a crash, nor tint on top of its tint."""

    def test_second_instance_keeps_the_first_ones_original_ramps(self):
        config = dict(MANUAL_TINT, AllowMultipleInstances="true")
        self.write_config(config)
        tinted = expected_tint(self.original, FIXED_TEMPERATURE, FIXED_BRIGHTNESS)
        first = self.start()
        self.wait_for_ramps(tinted)
        second = self.start()
        time.sleep(2.5)  # past the second one's fade-in
        self.assertTrue(second.alive())
        self.wait_for_ramps(tinted)
        self.assertNotIn("Restored", second.stderr())
        second.send(signal.SIGTERM)
        self.assertEqual(second.wait(timeout=15), 0)
        # The first one still owns the kept ramps: a crash now is repaired.
        self.wait_for_ramps(tinted)
        first.send(signal.SIGKILL)
        first.wait()
        third = self.start()
        self.assertTrue(wait_for(lambda: "Restored the ramps left tinted by an earlier run"
                                 in third.stderr(), timeout=10), third.stderr())
        self.wait_for_ramps(tinted)
        third.send(signal.SIGTERM)
        self.assertEqual(third.wait(timeout=15), 0)
        self.assertEqual(read_ramps(), self.original)


class SingleInstance(OvraTestCase):

    def leave_a_dead_socket(self):
        # A socket file whose owner died: nobody listens behind it.
        dead = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        dead.bind(os.path.join(self.runtime, "MorvenikOvra"))
        dead.close()

    def test_a_second_launch_hands_its_words_to_the_running_one(self):
        no_runtime = {k: v for k, v in self.env.items() if k != "XDG_RUNTIME_DIR"}
        cases = (
            ("words", self.env, None, "pause", "pause"),
            ("link form", self.env, None, "ovra:some%20words-here", "some words here"),
            ("stale socket", self.env, self.leave_a_dead_socket, "hello", "hello"),
            # Then the socket is per user in the temp dir.
            ("no runtime directory", no_runtime, None, "hello", "hello"),
        )
        for name, env, prepare, word, printed in cases:
            with self.subTest(name):
                if prepare:
                    prepare()
                first = self.start(env=env)
                self.wait_for_tint()
                second = self.launch(word, env=env)
                self.assertEqual(second.returncode, 0)
                self.assertIn(printed + ": first_argument", second.stdout)
                self.assertTrue(wait_for(lambda: printed + "\n" in first.stdout(), timeout=15),
                                "the running one did not print the words: " + first.stdout())
                self.assertTrue(first.alive())
                if env is no_runtime:
                    self.assertTrue(os.path.exists("/tmp/MorvenikOvra-%d" % os.getuid()))
                first.stop()

    def test_second_launch_without_words_opens_the_window(self):
        first = self.start()
        self.wait_for_tint()
        self.assertFalse(settings_windows(), "the window opened by itself at start")
        second = self.launch()
        self.assertEqual(second.returncode, 0)
        self.assertTrue(wait_for(settings_windows, timeout=WINDOW_TIMEOUT),
                        "the running instance did not open its window")
        self.assertTrue(first.alive())

    def test_ten_launches_at_once_leave_one_instance(self):
        procs = [self.start() for _ in range(10)]
        # Everyone but the first ends by itself with status 0.
        wait_for(lambda: sum(p.alive() for p in procs) <= 1, timeout=30)
        time.sleep(1.0)
        alive = [p for p in procs if p.alive()]
        self.assertEqual(len(alive), 1, "instances still running: %d" % len(alive))
        for p in procs:
            if p is not alive[0]:
                self.assertEqual(p.proc.returncode, 0)


class BadDisplay(OvraTestCase):

    def test_unreachable_display_fails_cleanly_and_writes_nothing(self):
        for display in (":987", ""):
            with self.subTest(display=display):
                env = dict(self.env, DISPLAY=display)
                result = subprocess.run([BINARY], env=env, capture_output=True, text=True,
                                        timeout=20)
                self.assertNotEqual(result.returncode, 0)
                lines = [l for l in result.stderr.splitlines() if l.strip()]
                self.assertEqual(len(lines), 1, result.stderr)
                self.assertIn("display", lines[0])
                self.assertFalse(os.path.exists(self.config_file()))
