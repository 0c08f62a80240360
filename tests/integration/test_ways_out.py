"""Every way the program ends: the settings saved, the ramps given back, and
nothing left behind that a later start on another server would trust."""
import os
import re
import shutil
import signal
import subprocess
import time

from harness import (BINARY, OvraTestCase, expected_tint, make_linear, read_ramps,
                     settings_windows, wait_for, write_ramps)

SOURCE_DIR = os.environ.get("OVRA_SOURCE_DIR", "")
TINT = {
    "SaveVersion": 3,
    "UseManualColorSettings": "true",
    "UseManualBrightness": "true",
    "NightTemperature": 3400,
    "NightBrightness": 80,
}
# Saved as they change rather than by the save on the way out.
SAVED_ON_CHANGE = {"CameraActive", "ColorChangesPaused", "OvraPaused", "TimerPaused"}


def full_save_keys():
    keys = set()
    with open(os.path.join(SOURCE_DIR, "tests", "data", "setting_defaults.tsv")) as f:
        for line in f:
            fields = line.rstrip("\n").split("\t")
            if not line.startswith("#") and len(fields) == 4 and fields[3] in ("map", "monitor"):
                keys.add(fields[0])
    return keys - SAVED_ON_CHANGE


def catches(pid, sig):
    """Whether the process has a handler for the signal yet."""
    try:
        with open("/proc/%d/status" % pid) as f:
            mask = next(l for l in f if l.startswith("SigCgt:")).split()[1]
    except (OSError, StopIteration):
        return False
    return bool(int(mask, 16) >> (sig - 1) & 1)


def calibrated(size):
    """Originals that are not the identity, as a calibrated screen has."""
    line = [j * 65535 // (size - 1) for j in range(size)]
    return (line, [v * 9 // 10 for v in line], [v * 8 // 10 for v in line])


class EndingSignals(OvraTestCase):

    def fresh_store(self):
        shutil.rmtree(self.config)
        os.makedirs(self.config)

    def assert_saved_and_given_back(self, p):
        self.assertEqual(p.wait(timeout=15), 0, p.stderr())
        missing = sorted(full_save_keys() - set(self.stored()))
        if missing:
            self.fail("the way out did not save %d keys, e.g. %s" % (len(missing), missing[:5]))
        self.assertIn("NightTemperature1", self.stored(), "the pass for the first monitor")
        self.assertEqual(read_ramps(), self.original)

    def test_each_signal_saves_everything_and_gives_the_ramps_back(self):
        for sig in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(signal=sig.name):
                self.fresh_store()
                p = self.start()
                self.wait_for_tint()
                # Only the first-start marks are in the file before the end.
                self.assertNotIn("WorkTime", self.stored())
                p.send(sig)
                self.assert_saved_and_given_back(p)

    def test_a_signal_during_start_up_takes_the_same_road(self):
        kept = os.path.join(self.runtime, "ovra-ramps-%s.bin"
                            % os.environ["DISPLAY"].lstrip(":").split(".")[0])
        early = 0
        # Retried only because the poll may lose the race to a start-up that
        # is quicker than usual; a program that catches late never wins it.
        for _ in range(5):
            self.fresh_store()
            p = self.start()
            wait_for(lambda: catches(p.pid, signal.SIGTERM) or not p.alive(), 10, 0.001)
            before_backend = not os.path.exists(kept)
            p.send(signal.SIGTERM)
            self.assert_saved_and_given_back(p)
            self.assertFalse(os.path.exists(kept))
            early += before_backend
            if early:
                break
        self.assertTrue(early, "the signal handler came only after the display was opened")


class LostDisplay(OvraTestCase):

    def setUp(self):
        super().setUp()
        self.write_config(TINT)

    def leftovers(self):
        return [n for n in os.listdir(self.runtime) if n == "MorvenikOvra" or n.startswith("ovra-")]

    def test_a_dead_server_ends_the_program_and_leaves_nothing_to_trust(self):
        server = self.x_server()
        size = len(read_ramps(display=server.display)[0])
        write_ramps(calibrated(size), server.display)
        env = dict(self.env, DISPLAY=server.display)
        p = self.start(env=env)
        self.wait_for_ramps(expected_tint(calibrated(size), 3400, 80), display=server.display)
        self.assertTrue(self.leftovers())
        server.kill()
        self.assertEqual(p.wait(timeout=15), 1)
        self.assertEqual(self.leftovers(), [])

        # A new server on the same number, linear: its ramps are the ones to
        # give back, not the dead server's.
        server.restart()
        linear = read_ramps(display=server.display)
        q = self.start(env=env)
        self.wait_for_ramps(expected_tint(linear, 3400, 80), display=server.display)
        q.send(signal.SIGTERM)
        self.assertEqual(q.wait(timeout=15), 0)
        self.assertEqual(read_ramps(display=server.display), linear)

    def test_kept_ramps_of_another_server_are_dropped_with_one_line(self):
        # A run killed on the test server leaves its kept ramps behind.
        write_ramps(calibrated(len(self.original[0])))
        p = self.start()
        self.wait_for_ramps(expected_tint(calibrated(len(self.original[0])), 3400, 80))
        p.send(signal.SIGKILL)
        p.wait()
        make_linear()
        kept = [n for n in self.leftovers() if n.endswith(".bin")]
        self.assertEqual(len(kept), 1, self.leftovers())

        server = self.x_server()
        number = server.display.lstrip(":")
        shutil.copy(os.path.join(self.runtime, kept[0]),
                    os.path.join(self.runtime, "ovra-ramps-%s.bin" % number))
        linear = read_ramps(display=server.display)
        q = self.start(env=dict(self.env, DISPLAY=server.display))
        self.wait_for_ramps(expected_tint(linear, 3400, 80), display=server.display)
        q.send(signal.SIGTERM)
        self.assertEqual(q.wait(timeout=15), 0)
        self.assertEqual(read_ramps(display=server.display), linear)
        lines = [l for l in q.stderr().splitlines() if l.strip()]
        self.assertEqual(len(lines), 1, q.stderr())
        self.assertIn("saved ramps", lines[0])


def project_version():
    with open(os.path.join(SOURCE_DIR, "CMakeLists.txt")) as f:
        return re.search(r"project\(ovra VERSION (\S+?)[ )]", f.read()).group(1)


class AnsweredBeforeStarting(OvraTestCase):

    ANSWERS = (
        (("--help",), r"^Usage: ovra .*--version"),
        (("-h",), r"^Usage: ovra "),
        (("--version",), r"^Ovra %s\n\Z"),
        (("pause", "--version"), r"^Ovra %s\n\Z"),
    )

    def launch_each(self):
        for args, pattern in self.ANSWERS:
            for display in (os.environ["DISPLAY"], None):
                with self.subTest(args=args, display=display):
                    env = dict(self.env)
                    env.pop("DISPLAY") if display is None else env.update(DISPLAY=display)
                    result = subprocess.run([BINARY, *args], env=env, cwd=self.home,
                                            capture_output=True, text=True, timeout=20)
                    self.assertEqual(result.returncode, 0, result.stderr)
                    expected = pattern % project_version() if "%s" in pattern else pattern
                    self.assertRegex(result.stdout, re.compile(expected, re.S))
                    self.assertEqual(result.stderr, "")

    def test_help_and_version_start_nothing_and_touch_no_instance(self):
        self.launch_each()
        self.assertEqual(os.listdir(self.runtime), [])
        self.assertFalse(os.path.exists(self.config_file()))

        running = self.start()
        self.wait_for_tint()
        store = self.stored()
        said = running.stdout()
        self.launch_each()
        time.sleep(1.5)  # a knock would have been answered by now
        self.assertTrue(running.alive())
        self.assertEqual(running.stdout(), said)
        self.assertEqual(self.stored(), store)
        self.assertEqual(settings_windows(), [])
