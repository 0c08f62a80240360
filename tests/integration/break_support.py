"""What the break tests share: a started ovra whose window host offers its
pages to the DevTools protocol, and the break windows as the X server and
their pages see them."""
import os
import socket
import subprocess

import cdp
from harness import TOOLS_DIR as TOOLS, OvraTestCase, wait_for

REST = "Rest screen"


def free_port():
    with socket.socket() as s:
        s.bind(("127.0.0.1", 0))
        return s.getsockname()[1]


def x_env(display=None):
    env = dict(os.environ)
    if display:
        env["DISPLAY"] = display
    return env


def visible_windows(title, display=None):
    """X ids of the visible windows with exactly this title."""
    out = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^%s$" % title],
                         env=x_env(display), capture_output=True, text=True, timeout=10)
    return [int(line) for line in out.stdout.split()]


def geometry(xid, display=None):
    """(x, y, width, height) of a window on the screen."""
    out = subprocess.run(["xwininfo", "-id", str(xid)], env=x_env(display), capture_output=True,
                         text=True, timeout=10).stdout
    fields = dict(line.strip().split(":", 1) for line in out.splitlines() if ":" in line)
    return tuple(int(fields[k].strip()) for k in ("Absolute upper-left X", "Absolute upper-left Y",
                                                    "Width", "Height"))


def click(x, y, display=None):
    # A pointer that has just entered a window gets a moment, as a hand does.
    subprocess.run(["xdotool", "mousemove", str(x), str(y), "sleep", "0.3", "click", "1"],
                   env=x_env(display), check=True, timeout=10)


class BreakTestCase(OvraTestCase):
    """Starts ovra with break settings; `self.devtools` is the host's port."""

    BASE = {"SaveVersion": 3, "TimerPaused": "false", "TimerType": 2, "RestScreenType": 2,
            "OptimizeUiCreation": "false", "UseManualColorSettings": "true"}

    def start_breaks(self, display=None, env=None, **settings):
        self.write_config(dict(self.BASE, **settings))
        self.devtools = free_port()
        self.display = display
        run_env = dict(self.env, QTWEBENGINE_REMOTE_DEBUGGING="127.0.0.1:%d" % self.devtools,
                       **(env or {}))
        if display:
            run_env["DISPLAY"] = display
        return self.start(env=run_env)

    def rest_screens(self, count, timeout=20):
        """Waits until exactly `count` rest screens show; returns their ids."""
        screens = wait_for(lambda: len(visible_windows(REST, self.display)) == count
                           and visible_windows(REST, self.display), timeout)
        self.assertTrue(screens, "expected %d rest screens, saw %d"
                        % (count, len(visible_windows(REST, self.display))))
        return screens

    def in_pages(self, window_prefix, expression, count=1, until="true", timeout=20):
        """The values of the expression in the pages of those windows, once
        `count` of them are loaded and `until` holds in each."""
        ready = "document.readyState === 'complete' && !!(%s)" % until
        self.assertTrue(wait_for(lambda: self._evaluate(window_prefix, ready, count) == [True] * count,
                                 timeout), "%d %s pages never showed %s" % (count, window_prefix, until))
        return self._evaluate(window_prefix, expression, count)

    def _evaluate(self, window_prefix, expression, count):
        try:
            values = cdp.evaluate_in(self.devtools, window_prefix, expression)
        except (OSError, RuntimeError):
            return None
        return values if len(values) == count else None

    def start_rest_now(self):
        """The settings page's "Start Rest" button."""
        self.in_pages("main", "true", until="typeof native_object === 'object'", timeout=30)
        cdp.evaluate_in(self.devtools, "main", "native_object.start_rest(), true")

    def click_skip(self, xid):
        """Clicks the way out of a rest screen where its page shows it."""
        x, y, _, _ = geometry(xid, self.display)
        box = self.in_pages("rest_screen", "(function(){ var b = document.querySelector("
                            "'.skip-rest-btn').getBoundingClientRect(); return [b.x + b.width / 2,"
                            " b.y + b.height / 2]; })()", count=len(visible_windows(REST, self.display)))
        click(x + int(box[0][0]), y + int(box[0][1]), self.display)
