"""Global hotkeys pressed with xdotool against the real program, each test on
an X server of its own so that no other test's grabs stand in the way."""
import os
import subprocess

from harness import (TOOLS_DIR, OVRA_ROWS, OvraTestCase, expected_tint, read_ramps,
                     ramps_close, wait_for)

OVRA_ROWS.setdefault(3000, (1.0, .71976951, .42860152))

VALUES = {"DayTemperature": 6500, "NightTemperature": 3000, "SleepLight": 2700,
          "DayBrightness": 100, "NightBrightness": 70, "SleepBrightness": 50,
          "UseManualColorSettings": "true", "UseManualBrightness": "true"}
CONFIG = dict(
    {"SaveVersion": 3, "OptimizeUiCreation": "true", "UseKeyboardShortcuts": "true",
     "PauseTransitionDuration": 300, "AdvancedView": "true",
     # The defaults of these four name keys that X does not know, and never fire.
     "IncreaseBrightnessHotkey": "Ctrl+Alt+Right", "DecreaseBrightnessHotkey": "Ctrl+Alt+Left",
     "StartRestHotkey": "Ctrl+Alt+S", "QuitOvraHotkey": "Ctrl+Alt+Q"},
    **VALUES, **{"Advanced" + key: value for key, value in VALUES.items()})


class Hotkeys(OvraTestCase):

    def setUp(self):
        super().setUp()
        self.server = self.x_server()
        self.env["DISPLAY"] = self.server.display
        self.original = read_ramps(display=self.server.display)
        self.write_config(CONFIG)

    def press(self, keys):
        subprocess.run(["xdotool", "key", keys], env=self.env, check=True, timeout=10)

    def ramps(self):
        return read_ramps(display=self.server.display)

    def wait_for_tint(self, temperature, brightness):
        expected = expected_tint(self.original, temperature, brightness)
        self.assertTrue(wait_for(lambda: ramps_close(self.ramps(), expected), timeout=10),
                        "never reached %d K at %d %%" % (temperature, brightness))

    def wait_for_stored(self, key, value):
        self.assertTrue(wait_for(lambda: self.stored().get(key) == str(value), timeout=10),
                        "%s never became %s in the store" % (key, value))

    def test_steps_pause_and_quit(self):
        p = self.start()
        self.wait_for_tint(3000, 70)
        steps = [("ctrl+alt+Up", "NightTemperature", 3500, (3500, 70)),
                 ("ctrl+alt+Down", "NightTemperature", 3000, (3000, 70)),
                 ("ctrl+alt+Right", "NightBrightness", 80, (3000, 80)),
                 ("ctrl+alt+Left", "NightBrightness", 70, (3000, 70))]
        for keys, key, value, tint in steps:
            self.press(keys)
            self.wait_for_tint(*tint)
            self.wait_for_stored(key, value)

        self.press("ctrl+alt+p")
        self.assertTrue(wait_for(lambda: self.ramps() == self.original, timeout=10),
                        "the pause did not give the saved ramps back")
        self.wait_for_stored("OvraPaused", "true")
        self.press("ctrl+alt+p")
        self.wait_for_tint(3000, 70)

        self.press("ctrl+alt+q")
        self.assertEqual(p.wait(timeout=15), 0, p.stderr())
        self.assertEqual(self.ramps(), self.original)
        self.assertEqual(p.stderr(), "")

    def test_a_combination_another_client_holds_is_left_with_one_line(self):
        holder = subprocess.Popen([os.path.join(TOOLS_DIR, "ovra-hold-key"), "Up", "0xc"],
                                  env=self.env, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                  text=True)
        self.addCleanup(holder.wait, 10)
        self.addCleanup(holder.stdin.close)
        self.addCleanup(holder.stdout.close)
        self.assertEqual(holder.stdout.readline(), "held\n")

        p = self.start()
        self.wait_for_tint(3000, 70)
        # The held combination goes to its holder; the next one is ours.
        self.press("ctrl+alt+Up")
        self.press("ctrl+alt+Right")
        self.wait_for_tint(3000, 80)
        self.press("ctrl+alt+q")
        self.assertEqual(p.wait(timeout=15), 0, p.stderr())
        self.assertEqual(p.stderr().splitlines(),
                         ["QHotkey: Failed to register hotkey. Error: BadAccess "
                          "(attempt to access private resource denied)"])

    def test_the_start_rest_key_brings_the_rest_screen(self):
        self.write_config(dict(CONFIG, TimerType=2, TimerPaused="false", RestScreenType=2,
                               RestTime=300))
        p = self.start()
        self.wait_for_tint(3000, 70)
        rest_screens = ["xdotool", "search", "--onlyvisible", "--name", "^Rest screen$"]
        shown = lambda: subprocess.run(rest_screens, env=self.env, capture_output=True,
                                       text=True, timeout=10).stdout.split()
        self.assertEqual(shown(), [])
        self.press("ctrl+alt+s")
        self.assertTrue(wait_for(shown, timeout=60), "no rest screen came")
        self.press("ctrl+alt+q")
        self.assertEqual(p.wait(timeout=15), 0, p.stderr())
        self.assertEqual(shown(), [])
