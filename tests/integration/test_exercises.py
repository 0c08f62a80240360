"""Exercises from the settings page: a notification card in the top right
corner that walks through its chain click by click and goes with its last
step, or at once with its close button."""
import cdp
from break_support import BreakTestCase, click, geometry, visible_windows
from harness import wait_for

WINDOW = "Notification"
CARD = ("(function(){ var c = document.querySelector('.exercise');"
        " var b = c.querySelector('%s').getBoundingClientRect();"
        " return [c.querySelector('.title').textContent, b.x + b.width / 2, b.y + b.height / 2]; })()")


class Exercises(BreakTestCase):

    def start_exercises(self, which):
        self.start_breaks(TimerType=1)
        self.in_pages("main", "true", until="typeof native_object === 'object'", timeout=30)
        cdp.evaluate_in(self.devtools, "main", "native_object.start_%s_exercises(), true" % which)
        windows = wait_for(lambda: visible_windows(WINDOW), 30)
        self.assertEqual(len(windows), 1)
        # It waits off the screen until its page has told its size.
        self.assertTrue(wait_for(lambda: geometry(windows[0])[1] >= 0, 20), "never placed")
        return windows[0]

    def card(self, part=".text"):
        return self.in_pages("notification_screen", CARD % part,
                             until="document.querySelector('.exercise .title').textContent")[0]

    def title(self):
        """The card's title now: None once the page has gone, [None] once
        the card has."""
        return self._evaluate("notification_screen", "(function(){ var t = document.querySelector("
                              "'.exercise .title'); return t && t.textContent; })()", 1)

    def click_card(self, window, part=".text"):
        title, x, y = self.card(part)
        left, top, _, _ = geometry(window)
        click(left + int(x), top + int(y))
        return title

    def test_a_chain_walks_step_by_step_and_its_window_goes_with_the_last(self):
        window = self.start_exercises("neck")
        left, top, width, _ = geometry(window)
        self.assertEqual((top, left + width), (0, 1280), "not in the top right corner")
        self.card()
        titles = []
        # Until the last step's click takes the card away.
        while len(titles) < 12 and self.title() not in (None, [None]):
            before = self.click_card(window)
            titles.append(before)
            wait_for(lambda: self.title() != [before], 5)
        self.assertEqual(len(titles), 8, titles)
        self.assertEqual(len(set(titles)), 8, "a step was shown twice: %s" % titles)
        self.assertEqual(titles[0], "Neck Exercises")
        self.assertTrue(wait_for(lambda: not visible_windows(WINDOW), 10), "the window stayed")

    def test_the_close_button_ends_the_chain_at_once(self):
        window = self.start_exercises("eye")
        self.assertEqual(self.click_card(window, ".close"), "Eye Exercises")
        self.assertTrue(wait_for(lambda: not visible_windows(WINDOW), 10), "the window stayed")
