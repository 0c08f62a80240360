"""The settings window comes forward under a window manager that prevents
focus stealing, while another application's window has the focus: a launch
through a launcher passes the launcher's time on, ends the launch feedback,
and a launch with a bad startup ID still brings the window, as a pager would."""
import os
import queue
import shutil
import subprocess
import threading
import unittest

from harness import SETTINGS_TITLE, TOOLS_DIR, WINDOW_TIMEOUT, OvraTestCase, wait_for

WINDOW_MANAGER = shutil.which("openbox")


class RootWatch:
    """ovra-root-watch: the other application's window, and what is said on
    the root window, line by line."""

    def __init__(self, env):
        self.proc = subprocess.Popen([os.path.join(TOOLS_DIR, "ovra-root-watch")], env=env,
                                     stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.lines = queue.Queue()
        threading.Thread(target=self._read, daemon=True).start()
        self.other = int(self.expect("ready ").split()[1], 16)

    def _read(self):
        for line in self.proc.stdout:
            self.lines.put(line.rstrip("\n"))

    def expect(self, prefix, timeout=WINDOW_TIMEOUT):
        """The next line that starts with `prefix`; the ones before it go."""
        while True:
            line = self.lines.get(timeout=timeout)
            if line.startswith(prefix):
                return line

    def ask(self, command, answer):
        self.proc.stdin.write(command + "\n")
        self.proc.stdin.flush()
        return self.expect(answer, timeout=10)

    def now(self):
        return int(self.ask("now", "now ").split()[1])

    def stop(self):
        self.proc.stdin.close()
        self.proc.wait(timeout=10)


@unittest.skipUnless(WINDOW_MANAGER, "openbox is not installed (scripts/install-deps.sh)")
class WindowFocus(OvraTestCase):

    def setUp(self):
        super().setUp()
        self.env["DISPLAY"] = self.x_server().display
        manager = subprocess.Popen([WINDOW_MANAGER, "--sm-disable"], env=self.env,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(manager.wait, 10)
        self.addCleanup(manager.terminate)
        self.assertTrue(wait_for(lambda: self.root_property("_NET_SUPPORTING_WM_CHECK")),
                        "the window manager never came up")
        self.watch = RootWatch(self.env)
        self.addCleanup(self.watch.stop)

    def root_property(self, name):
        return self.window_property("-root", name)

    def window_property(self, where, name):
        out = subprocess.run(["xprop", *where.split(), name], env=self.env, capture_output=True,
                             text=True, timeout=10).stdout
        return out.split()[-1] if "=" in out or "#" in out else ""

    def user_time(self, window):
        """The user time the window manager reads for the window."""
        holder = self.window_property("-id %d" % window, "_NET_WM_USER_TIME_WINDOW")
        where = "-id " + holder if holder.startswith("0x") else "-id %d" % window
        value = self.window_property(where, "_NET_WM_USER_TIME")
        return int(value) if value.isdigit() else 0

    def settings_windows(self):
        return subprocess.run(["xdotool", "search", "--onlyvisible", "--name", SETTINGS_TITLE],
                              env=self.env, capture_output=True, text=True,
                              timeout=20).stdout.split()

    def settings_window(self):
        windows = wait_for(self.settings_windows, WINDOW_TIMEOUT, interval=0.1)
        self.assertTrue(windows, "the settings window never showed")
        return int(windows[0])

    def active_window(self):
        value = self.root_property("_NET_ACTIVE_WINDOW")
        return int(value, 16) if value.startswith("0x") else 0

    def focus_other(self):
        # Asked again while the manager may not yet manage the window.
        def focused():
            self.watch.ask("focus", "focused")
            return wait_for(lambda: self.active_window() == self.watch.other, timeout=1)
        self.assertTrue(wait_for(focused, timeout=10), "the other window never became active")

    def launch_with(self, startup_id, *words):
        env = dict(self.env)
        if startup_id is not None:
            env["DESKTOP_STARTUP_ID"] = startup_id
        second = self.launch(*words, env=env)
        self.assertEqual(second.returncode, 0, second.stderr)

    def wait_until_active(self, window):
        self.assertTrue(wait_for(lambda: self.active_window() == window, timeout=WINDOW_TIMEOUT),
                        "the settings window never became active")

    def test_a_first_launch_with_show_ui_comes_forward_with_its_time(self):
        self.focus_other()
        stamp = self.watch.now()
        self.start("--show_ui", env=dict(self.env, DESKTOP_STARTUP_ID="first_TIME%d" % stamp))
        self.assertEqual(self.watch.expect("startup "), "startup remove: ID=first_TIME%d" % stamp)
        window = self.settings_window()
        self.wait_until_active(window)
        self.assertEqual(self.watch.expect("active 0x%x " % window),
                         "active 0x%x 1 %d" % (window, stamp))
        self.assertEqual(self.user_time(window), stamp)

    def test_a_second_launch_brings_the_settings_window_forward(self):
        # A first launch that opens no window only ends its feedback.
        p = self.start(env=dict(self.env, DESKTOP_STARTUP_ID="first_TIME1"))
        self.assertEqual(self.watch.expect("startup "), "startup remove: ID=first_TIME1")
        socket = os.path.join(self.runtime, "MorvenikOvra")
        self.assertTrue(wait_for(lambda: os.path.exists(socket)), "ovra never listened")
        self.focus_other()

        # From a launcher: its time reaches the window manager, and its
        # feedback ends, while the page is still loading.
        stamp = self.watch.now()
        launch_id = "menu/ovra-1 host_TIME%d" % stamp
        self.launch_with(launch_id)
        self.assertEqual(self.watch.expect("startup "),
                         'startup remove: ID="%s"' % launch_id)
        window = self.settings_window()
        self.wait_until_active(window)
        self.assertEqual(self.watch.expect("active 0x%x " % window),
                         "active 0x%x 1 %d" % (window, stamp))

        # Bad IDs never stand in the way: the window comes as a pager asks.
        huge = "x" * 5000 + "_TIME%d" % stamp
        ahead = "ahead_TIME%d" % (stamp + 3600 * 1000)
        for startup_id, removed in [("no-time-here", "no-time-here"), (ahead, ahead),
                                    ("bad\x01id_TIME%d" % stamp, None), (huge, None),
                                    (None, None)]:
            with self.subTest(startup_id=(startup_id or "")[:20]):
                self.focus_other()
                self.launch_with(startup_id)
                if removed:
                    self.assertEqual(self.watch.expect("startup "),
                                     "startup remove: ID=%s" % removed)
                self.wait_until_active(window)
                self.assertEqual(self.watch.expect("active 0x%x " % window),
                                 "active 0x%x 2 0" % window)
        # Words that open the window carry the launch's time as well.
        self.focus_other()
        stamp = self.watch.now()
        self.launch_with("words_TIME%d" % stamp, "open")
        self.assertEqual(self.watch.expect("startup "), "startup remove: ID=words_TIME%d" % stamp)
        self.wait_until_active(window)
        self.assertEqual(self.watch.expect("active 0x%x " % window),
                         "active 0x%x 1 %d" % (window, stamp))
        self.assertTrue(p.alive())
        self.assertEqual(self.settings_windows(), [str(window)])
