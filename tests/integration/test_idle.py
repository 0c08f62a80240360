"""Inactivity stops the work timer and the next input starts it again: the
X server's idle time with a threshold shortened for the test."""
import subprocess
import time

from break_support import BreakTestCase, visible_windows

PROMPT = "Incoming break"


class Idle(BreakTestCase):

    def test_no_input_stops_the_work_timer_and_input_starts_it(self):
        self.start_breaks(env={"OVRA_TEST_IDLE_SECONDS": "3"}, WorkTime=1, RestTime=10,
                          UseMouseInactivity="true")
        # Untouched, the minute of work would bring its prompt after 50 s.
        deadline = time.monotonic() + 70
        while time.monotonic() < deadline:
            self.assertFalse(visible_windows(PROMPT), "the work timer ran without input")
            time.sleep(2)

        # A user at work: the timer starts again and the prompt comes.
        deadline = time.monotonic() + 75
        step = 0
        while not visible_windows(PROMPT) and time.monotonic() < deadline:
            step += 1
            subprocess.run(["xdotool", "mousemove", str(100 + step % 50), "100"], check=True)
            time.sleep(1)
        self.assertTrue(visible_windows(PROMPT), "input did not start the work timer again")
