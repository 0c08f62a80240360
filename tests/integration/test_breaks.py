"""Breaks with the real program on one output: the prompt before a rest, a
rest screen on the monitor, its ways out by timer type, and a quit during a
rest."""
import os
import signal
import subprocess
import time

import cdp
from break_support import REST, TOOLS, BreakTestCase, geometry, visible_windows
from harness import read_ramps, wait_for

SKIP_SHOWN = "getComputedStyle(document.querySelector('.skip-rest-btn')).visibility"
BUTTON_TEXT = "document.querySelector('.skip-rest-text').textContent"


class Breaks(BreakTestCase):

    def test_prompt_comes_ahead_then_a_screen_that_closes_by_itself(self):
        p = self.start_breaks(WorkTime=1, RestTime=12, AutoCloseRest="true")
        prompt = self.in_pages("postpone_break", "document.querySelector('.remainingWork')"
                               ".textContent.match(/in (\\d+)/)", until="/in \\d/.test("
                               "document.querySelector('.remainingWork').textContent)", timeout=75)
        self.assertTrue(0 < int(prompt[0][1]) <= 11, prompt)
        self.assertTrue(visible_windows("Incoming break"))

        screen = self.rest_screens(1, timeout=20)[0]
        self.assertEqual(geometry(screen), (0, 0, 1280, 800))
        self.assertFalse(visible_windows("Incoming break"), "the rest takes the prompt away")
        shown = self.in_pages("rest_screen", "document.querySelector('.timer h1').textContent",
                              until="document.querySelector('.timer h1.shown')")
        self.assertRegex(shown[0], r"^00:1[0-2]$")
        self.assertEqual(self.in_pages("rest_screen", SKIP_SHOWN, until="document.body.classList"
                                       ".contains('normal')"), ["visible"])

        self.assertTrue(wait_for(lambda: not visible_windows(REST), 25), "the screen stayed")
        self.assertTrue(p.alive())

    def test_skip_ends_a_normal_rest(self):
        self.start_breaks(RestTime=300)
        self.start_rest_now()
        screen = self.rest_screens(1)[0]
        # A click before the page has shown the button falls on nothing.
        self.in_pages("rest_screen", SKIP_SHOWN, until=SKIP_SHOWN + " === 'visible'")
        self.click_skip(screen)
        self.assertTrue(wait_for(lambda: not visible_windows(REST), 10), "skip did not end it")

    def test_the_end_waits_for_the_continue_click(self):
        self.start_breaks(RestTime=3, AutoCloseRest="false")
        self.start_rest_now()
        screen = self.rest_screens(1)[0]
        self.assertEqual(self.in_pages("rest_screen", SKIP_SHOWN, until=BUTTON_TEXT + " === 'Continue'",
                                       timeout=15), ["visible"])
        time.sleep(3)
        self.assertEqual(visible_windows(REST), [screen], "the screen must wait for the click")
        self.click_skip(screen)
        self.assertTrue(wait_for(lambda: not visible_windows(REST), 10))

    def test_strict_with_keyboard_blocking_keeps_the_user_out(self):
        p = self.start_breaks(TimerType=3, UseKeyboardBlocking="true", RestTime=300)
        # Before the rest, keys reach the settings window in front.
        count_keys = ("window.keys_seen = 0, document.addEventListener('keydown',"
                      " function () { window.keys_seen++; }, true), true")
        self.in_pages("main", count_keys, until="typeof native_object === 'object'", timeout=30)
        cdp.evaluate_in(self.devtools, "main", "native_object.bring_to_front(), true")
        self.assertTrue(wait_for(lambda: self.keys_in("main", "a") > 0, 10), "no key reached the page")

        self.start_rest_now()
        screen = self.rest_screens(1)[0]
        self.assertEqual(self.in_pages("rest_screen", SKIP_SHOWN, until="document.body.classList"
                                       ".contains('strict')"), ["hidden"])
        self.in_pages("rest_screen", count_keys)
        probe = os.path.join(TOOLS, "ovra-grab-probe")
        self.assertTrue(wait_for(lambda: subprocess.run([probe]).returncode == 1, 10),
                        "the keyboard is not held")
        cdp.evaluate_in(self.devtools, "main", "window.keys_seen = 0")
        for page in ("main", "rest_screen"):
            self.assertEqual(self.keys_in(page, "a Escape Return alt+F4"), 0, page)
        subprocess.run([os.path.join(TOOLS, "ovra-close-window"), str(screen)], check=True)
        time.sleep(2)
        self.assertEqual(visible_windows(REST), [screen], "a close request was not refused")

        # A quit during the rest takes the screens and gives the ramps back.
        self.assertNotEqual(read_ramps(), self.original)
        p.send(signal.SIGTERM)
        self.assertEqual(p.wait(), 0)
        self.assertEqual(read_ramps(), self.original)
        self.assertEqual(visible_windows(REST), [])
        self.assertEqual(subprocess.run([probe]).returncode, 0, "the keyboard stayed held")

    def keys_in(self, page, keys):
        """Sends the keys and tells how many the page has seen."""
        subprocess.run(["xdotool", "key", *keys.split()], check=True)
        time.sleep(1)
        return cdp.evaluate_in(self.devtools, page, "window.keys_seen")[0]
