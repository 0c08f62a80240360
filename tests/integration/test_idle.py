"""Inactivity stops the work timer and the next input starts it again: the
X server's idle time with a threshold shortened for the test."""
import subprocess
import time

from break_support import BreakTestCase, visible_windows

PROMPT = "Incoming break"
# An untouched minute of work brings its prompt ten seconds before its end.
PROMPT_AFTER = 50
STILL = 20


class Idle(BreakTestCase):

    def test_no_input_stops_the_work_timer_and_input_starts_it(self):
        started = time.monotonic()
        self.start_breaks(env={"OVRA_TEST_IDLE_SECONDS": "3"}, WorkTime=1, RestTime=10,
                          UseMouseInactivity="true")
        time.sleep(STILL)

        # A user at work from here on: the timer goes on and the prompt comes,
        # late by about the still time less the threshold.
        step = 0
        while not visible_windows(PROMPT) and time.monotonic() - started < PROMPT_AFTER + STILL + 30:
            step += 1
            subprocess.run(["xdotool", "mousemove", str(100 + step % 50), "100"], check=True)
            time.sleep(1)
        came = time.monotonic() - started
        self.assertTrue(visible_windows(PROMPT), "input did not start the work timer again")
        self.assertGreater(came, PROMPT_AFTER + STILL - 8, "the work timer ran without input")
