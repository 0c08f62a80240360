"""The tray under a small XEmbed tray (trayer): the icon shows in it, its menu
switches the type, and closing the settings window keeps the program only
while a tray can bring the window back."""
import os
import re
import shutil
import subprocess
import time
import unittest

from harness import OvraTestCase, expected_tint, read_ramps, wait_for

# Health in Manual mode: the night values hold at any hour.
HEALTH_MANUAL = {
    "SaveVersion": 3,
    "OvraType": 1,
    "OvraMode": 2,
    "UseManualColorSettings": "true",
    "UseManualBrightness": "true",
    "NightTemperature": 3400,
    "NightBrightness": 80,
}
# Sleep's night values.
SLEEP_TEMPERATURE = 0
SLEEP_BRIGHTNESS = 80


def run(*argv):
    return subprocess.run(argv, capture_output=True, text=True, timeout=20).stdout


def windows_of(pid, visible=False):
    return set(run("xdotool", "search", *(["--onlyvisible"] if visible else []),
                   "--pid", str(pid)).split())


def child_pids(pid):
    return run("ps", "-o", "pid=", "--ppid", str(pid)).split()


class Trayer:
    """A notification area of the XEmbed kind, at the top right."""

    def __init__(self, env):
        self.proc = subprocess.Popen(["trayer", "--edge", "top", "--align", "right",
                                      "--height", "24", "--widthtype", "request"],
                                     env=env, stdout=subprocess.DEVNULL,
                                     stderr=subprocess.DEVNULL)
        found = wait_for(lambda: run("xdotool", "search", "--all", "--pid",
                                     str(self.proc.pid), "--name", "^panel$").split(), timeout=10)
        if not found:
            raise RuntimeError("trayer did not come up")
        self.panel = found[0]

    def embedded(self):
        """Every window inside the tray, as decimal ids."""
        tree = run("xwininfo", "-tree", "-id", self.panel)
        return {str(int(w, 16)) for w in re.findall(r"^\s+(0x[0-9a-f]+) ", tree, re.M)}

    def stop(self):
        if self.proc.poll() is None:
            self.proc.terminate()
            self.proc.wait(timeout=10)


@unittest.skipUnless(shutil.which("trayer"), "needs trayer (scripts/install-deps.sh)")
class TrayIcon(OvraTestCase):

    def setUp(self):
        super().setUp()
        self.write_config(HEALTH_MANUAL)

    def trayer(self):
        tray = Trayer(self.env)
        self.addCleanup(tray.stop)
        return tray

    def icon_in(self, tray, p):
        icons = wait_for(lambda: tray.embedded() & windows_of(p.pid), timeout=15)
        self.assertTrue(icons, "no icon of ovra in the tray")
        return icons.pop()

    def test_the_icon_appears_and_its_menu_switches_the_type(self):
        # Qt's icon everywhere but on Unity; there the indicator, shown in a
        # tray of this kind through its fallback icon, and GTK with it.
        for desktop in ("", "UNITY"):
            with self.subTest(desktop=desktop):
                self.write_config(HEALTH_MANUAL)
                tray = self.trayer()
                p = self.start(env=dict(self.env, XDG_CURRENT_DESKTOP=desktop))
                try:
                    self.choose_sleep_from_the_menu(tray, p)
                    with open("/proc/%d/maps" % p.pid) as f:
                        maps = f.read()
                    for library in ("libgtk-3", "libovra-indicator"):
                        self.assertEqual(library in maps, desktop == "UNITY", library)
                    # GTK and the indicator keep quiet, as Qt does.
                    self.assertNotRegex(p.stderr(), "CRITICAL|WARNING|indicator")
                finally:
                    p.stop()
                    tray.stop()

    def choose_sleep_from_the_menu(self, tray, p):
        self.wait_for_ramps(expected_tint(self.original, 3400, 80))
        icon = self.icon_in(tray, p)
        self.assertIn("Map State: IsViewable", run("xwininfo", "-id", icon))
        shown = windows_of(p.pid, visible=True)
        run("xdotool", "mousemove", "--window", icon, "8", "8", "click", "3")
        self.assertTrue(wait_for(lambda: windows_of(p.pid, visible=True) - shown, timeout=10),
                        "the menu did not open")
        # Settings, then the first types: Health, Sleep.
        run("xdotool", "key", "Down", "Down", "Down", "Return")
        self.wait_for_ramps(expected_tint(self.original, SLEEP_TEMPERATURE, SLEEP_BRIGHTNESS))
        # The tray saves the type at once, without a full save.
        self.assertEqual(self.stored().get("OvraType"), "2")

    def settings_window(self, p):
        """The settings window the window host shows for ovra, once visible."""
        def visible():
            for child in child_pids(p.pid):
                found = run("xdotool", "search", "--all", "--onlyvisible", "--pid", child,
                            "--name", "^Ovra$").split()
                if found:
                    return found[0]
            return None
        window = wait_for(visible, timeout=90)
        self.assertTrue(window, "the settings window never showed")
        return window

    def close_until(self, window, done):
        """Asks the window to close, as a user would, until `done` holds: a
        close that reaches the window before Qt has seen it mapped is dropped."""
        closer = os.path.join(os.path.dirname(os.environ["OVRA_RAMPS"]), "ovra-close-window")

        def closed():
            subprocess.run([closer, window], timeout=10)
            return wait_for(done, timeout=1.0)
        return wait_for(closed, timeout=30)

    def test_with_a_tray_closing_the_window_keeps_the_program(self):
        tray = self.trayer()
        p = self.start("--show_ui")
        self.icon_in(tray, p)
        window = self.settings_window(p)
        self.assertTrue(self.close_until(window, lambda: window not in run(
            "xdotool", "search", "--onlyvisible", "--name", "^Ovra$").split()),
            "the window did not close")
        time.sleep(2)
        self.assertTrue(p.alive(), "closing the window ended the program")
        self.wait_for_ramps(expected_tint(self.original, 3400, 80))

    def test_without_a_tray_closing_the_window_ends_the_program(self):
        p = self.start("--show_ui")
        self.wait_for_ramps(expected_tint(self.original, 3400, 80))
        window = self.settings_window(p)
        self.assertTrue(self.close_until(window, lambda: not p.alive()),
                        "closing the window did not end the program")
        self.assertEqual(p.wait(timeout=20), 0)
        self.assertIn("Tray icon is not visible", p.stdout())
        self.assertEqual(read_ramps(), self.original)
        # No tray at all costs one line, at most.
        lines = [line for line in p.stderr().splitlines() if "notification" in line]
        self.assertLessEqual(len(lines), 1, p.stderr())
