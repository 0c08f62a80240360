"""Rest screens on several outputs of a headless Xorg: one screen a monitor
on its rectangle; a monitor switched off during a rest takes its screen with
it, and one switched on gets a screen at the next rest."""
import subprocess

from break_support import REST, BreakTestCase, geometry, visible_windows
from harness import make_linear, wait_for


class BreakOutputs(BreakTestCase):

    def setUp(self):
        super().setUp()
        self.xorg = self.xorg_outputs(3)
        make_linear(self.xorg)

    def output(self, name, on):
        args = ["--mode", "1024x768", "--pos", "2048x0"] if on else ["--off"]
        subprocess.run(["xrandr", "-display", self.xorg, "--output", name, *args], check=True,
                       timeout=20)

    def test_one_screen_per_monitor_and_hot_plugging(self):
        p = self.start_breaks(display=self.xorg, RestTime=300)
        self.start_rest_now()
        screens = self.rest_screens(3, timeout=30)
        self.assertEqual(sorted(geometry(s, self.xorg) for s in screens),
                         [(0, 0, 1024, 768), (1024, 0, 1024, 768), (2048, 0, 1024, 768)])

        self.output("DUMMY2", False)
        remaining = self.rest_screens(2)
        self.assertEqual(sorted(geometry(s, self.xorg)[0] for s in remaining), [0, 1024])
        self.assertTrue(p.alive())

        self.click_skip(remaining[0])
        self.assertTrue(wait_for(lambda: not visible_windows(REST, self.xorg), 10))

        self.output("DUMMY2", True)
        self.start_rest_now()
        self.rest_screens(3, timeout=30)
