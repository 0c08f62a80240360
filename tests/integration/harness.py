"""Helpers for tests that start the real ovra binary on the test X server."""
import os
import shutil
import struct
import subprocess
import tempfile
import time
import unittest

BINARY = os.environ.get("OVRA_BINARY", "")
RAMPS = os.environ.get("OVRA_RAMPS", "")
TOOLS_DIR = os.path.dirname(RAMPS) if RAMPS else ""

# The window host runs the web engine: as root it needs the sandbox off, and
# there is no GPU on a test server.
ENGINE_ENV = {"QTWEBENGINE_DISABLE_SANDBOX": "1", "QTWEBENGINE_CHROMIUM_FLAGS": "--disable-gpu"}
# The engine's cold start takes a few seconds on a busy two-core machine, and
# far more when other builds run beside the tests: a window gets this long.
WINDOW_TIMEOUT = 60
SETTINGS_TITLE = "^Ovra$"


def f32(value):
    """Rounds a Python float to the nearest 32-bit float."""
    return struct.unpack("f", struct.pack("f", value))[0]


def wait_for(predicate, timeout=10.0, interval=0.05):
    deadline = time.monotonic() + timeout
    while time.monotonic() < deadline:
        result = predicate()
        if result:
            return result
        time.sleep(interval)
    return predicate()


def ramps_tool(*args, display=None, stdin=None):
    env = dict(os.environ)
    if display:
        env["DISPLAY"] = display
    return subprocess.run([RAMPS, *args], env=env, input=stdin, capture_output=True,
                          text=True, timeout=20)


def read_ramps(crtc=0, display=None):
    """Returns (red, green, blue) lists of the CRTC's ramps."""
    out = ramps_tool("get", str(crtc), display=display)
    if out.returncode != 0:
        raise RuntimeError("ovra-ramps get failed: " + out.stderr)
    lines = out.stdout.strip().splitlines()
    size = int(lines[0])
    channels = [list(map(int, line.split())) for line in lines[1:4]]
    assert all(len(c) == size for c in channels), "short ramp"
    return tuple(channels)


def settings_windows(visible=True):
    """X ids of the settings window, whichever process shows it (the window
    host's, never ovra's own)."""
    args = ["xdotool", "search"] + (["--onlyvisible"] if visible else []) + ["--name",
                                                                             SETTINGS_TITLE]
    return subprocess.run(args, capture_output=True, text=True, timeout=20).stdout.split()


def window_pid(window):
    out = subprocess.run(["xdotool", "getwindowpid", window], capture_output=True, text=True,
                         timeout=20).stdout.strip()
    return int(out) if out else 0


def process_table():
    """{pid: (parent pid, command name)} of every process now."""
    table = {}
    for name in os.listdir("/proc"):
        if not name.isdigit():
            continue
        try:
            with open("/proc/%s/stat" % name) as f:
                stat = f.read()
        except OSError:
            continue
        # The name is in parentheses and may hold spaces or parentheses.
        command = stat[stat.index("(") + 1:stat.rindex(")")]
        fields = stat[stat.rindex(")") + 2:].split()
        table[int(name)] = (int(fields[1]), command)
    return table


def children(pid, command=None):
    return [child for child, (parent, name) in process_table().items()
            if parent == pid and (command is None or name == command)]


def descendants(pid):
    table = process_table()
    found, todo = [], [pid]
    while todo:
        parent = todo.pop()
        kids = [child for child, (p, _) in table.items() if p == parent]
        found += kids
        todo += kids
    return found


def host_pids(pid):
    """The window hosts that ovra `pid` runs."""
    return children(pid, "ovra-web")


def alive(pid):
    """Running, and not a zombie waiting for its parent."""
    try:
        with open("/proc/%d/stat" % pid) as f:
            return f.read().rsplit(")", 1)[1].split()[0] != "Z"
    except OSError:
        return False


def maps_web_engine(pid):
    with open("/proc/%d/maps" % pid) as f:
        return "libQt6WebEngine" in f.read()


def crtc_count(display=None):
    return int(ramps_tool("count", display=display).stdout.strip())


def make_linear(display=None):
    out = ramps_tool("linear", display=display)
    if out.returncode != 0:
        raise RuntimeError("ovra-ramps linear failed: " + out.stderr)


def write_ramps(ramps, display=None):
    """Writes (red, green, blue) to every CRTC."""
    text = "%d\n" % len(ramps[0]) + "".join(" ".join(map(str, c)) + "\n" for c in ramps)
    out = ramps_tool("set", display=display, stdin=text)
    if out.returncode != 0:
        raise RuntimeError("ovra-ramps set failed: " + out.stderr)


class XServer:
    """A private Xvfb that a test may kill and bring back on the same number."""

    def __init__(self):
        read_end, write_end = os.pipe()
        self.proc = self._spawn("-displayfd", str(write_end), pass_fds=(write_end,))
        os.close(write_end)
        with os.fdopen(read_end) as f:
            self.display = ":" + f.readline().strip()
        self._wait_ready()

    @staticmethod
    def _spawn(*args, pass_fds=()):
        return subprocess.Popen(["Xvfb", *args, "-screen", "0", "1280x800x24", "+extension",
                                 "RANDR", "-noreset", "-nolisten", "tcp"], pass_fds=pass_fds,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def _wait_ready(self):
        ready = wait_for(lambda: ramps_tool("count", display=self.display).returncode == 0
                         or self.proc.poll() is not None)
        if not ready or self.proc.poll() is not None:
            raise RuntimeError("Xvfb %s did not start" % self.display)
        make_linear(self.display)

    def kill(self):
        """Gone without a word, as a crashed server goes."""
        self.proc.kill()
        self.proc.wait()

    def restart(self):
        self.proc = self._spawn(self.display)
        self._wait_ready()

    def stop(self):
        if self.proc.poll() is None:
            self.proc.terminate()
            self.proc.wait(timeout=15)


# The white points of the default table for the temperatures the tests use,
# copied from the published table (rows of 100 K: red, green, blue).
OVRA_ROWS = {
    0: (1.0, .00000000, .00000000),
    2700: (1.0, .67645822, .34786758),
    3400: (1.0, .76888303, .52427322),
    3500: (1.0, .77987699, .54642268),
    6500: (1.0, 1.0, 1.0),
}


def expected_channel(saved, factor, brightness):
    """The tint of one channel as the ramp code must compute it: the saved
    entry scaled by brightness and white point in double precision, held as
    a float, truncated after a float multiplication by 65535."""
    result = []
    for entry in saved:
        v = entry / 65535.0 * brightness * factor
        p = f32(v)
        if p > 1.0:
            result.append(65535)
        else:
            result.append(int(f32(p * f32(65535.0))))
    return result


def expected_tint(saved, temperature, brightness_percent):
    w = OVRA_ROWS[temperature]
    b = f32(brightness_percent / 100.0)
    return tuple(expected_channel(saved[c], w[c], b) for c in range(3))


def ramps_close(actual, expected, tolerance=1):
    for a_channel, e_channel in zip(actual, expected):
        if len(a_channel) != len(e_channel):
            return False
        for a, e in zip(a_channel, e_channel):
            if abs(a - e) > tolerance:
                return False
    return True


class OvraProcess:
    """One started ovra, with its output collected in files."""

    def __init__(self, home, args=(), env=None, cwd=None):
        stamp = time.monotonic_ns()
        self.paths = [os.path.join(home, "%s-%d.txt" % (name, stamp)) for name in ("out", "err")]
        self.files = [open(path, "w") for path in self.paths]
        self.proc = subprocess.Popen([BINARY, *args], env=env, cwd=cwd or home,
                                     stdout=self.files[0], stderr=self.files[1])
        self.pid = self.proc.pid
        self.send = self.proc.send_signal

    def stdout(self):
        with open(self.paths[0]) as f:
            return f.read()

    def stderr(self):
        with open(self.paths[1]) as f:
            return f.read()

    def wait(self, timeout=10):
        try:
            return self.proc.wait(timeout=timeout)
        finally:
            for f in self.files:
                f.close()

    def alive(self):
        return self.proc.poll() is None

    def stop(self):
        if self.alive():
            self.proc.terminate()
            try:
                self.proc.wait(timeout=15)
            except subprocess.TimeoutExpired:
                self.proc.kill()
        self.wait()


class OvraTestCase(unittest.TestCase):
    """Gives each test its own HOME, XDG directories and a linear display,
    and makes sure no started ovra outlives the test."""

    def setUp(self):
        if not BINARY or not os.environ.get("DISPLAY"):
            self.skipTest("needs the ovra binary and an X server (run through make test)")
        self.base = tempfile.mkdtemp(prefix="ovra-it-")
        self.home = os.path.join(self.base, "home")
        self.config = os.path.join(self.base, "config")
        self.runtime = os.path.join(self.base, "runtime")
        for d in (self.home, self.config, self.runtime):
            os.makedirs(d)
        os.chmod(self.runtime, 0o700)
        self.env = dict(os.environ, HOME=self.home, XDG_CONFIG_HOME=self.config,
                        XDG_RUNTIME_DIR=self.runtime, **ENGINE_ENV)
        self.processes = []
        make_linear()
        self.original = read_ramps()

    def tearDown(self):
        for p in self.processes:
            p.stop()
        make_linear()
        shutil.rmtree(self.base, ignore_errors=True)

    def x_server(self):
        server = XServer()
        self.addCleanup(server.stop)
        return server

    def xorg_outputs(self, count):
        """A headless Xorg with `count` outputs for this test, stopped at its
        end; its display name. Skips where Xorg cannot run."""
        tool = os.path.join(os.environ.get("OVRA_SOURCE_DIR", ""), "tests", "tools",
                            "xorg-dummy.sh")
        started = subprocess.run([tool, "start", str(count)], capture_output=True, text=True,
                                 timeout=60)
        if started.returncode == 77:
            self.skipTest(started.stderr.strip())
        self.assertEqual(started.returncode, 0, started.stderr)
        display = started.stdout.strip()
        self.addCleanup(subprocess.run, [tool, "stop", display], timeout=60)
        return display

    def config_file(self):
        name = "Ovra-root.conf" if os.getuid() == 0 else "Ovra.conf"
        return os.path.join(self.config, "Morvenik", name)

    def write_config(self, values):
        path = self.config_file()
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w") as f:
            f.write("[General]\n")
            for key, value in values.items():
                f.write("%s=%s\n" % (key, value))

    def stored(self):
        """The settings file as a dict of its keys."""
        values = {}
        if os.path.exists(self.config_file()):
            with open(self.config_file()) as f:
                for line in f:
                    if "=" in line:
                        key, value = line.rstrip("\n").split("=", 1)
                        values[key] = value
        return values

    def start(self, *args, env=None, cwd=None):
        p = OvraProcess(self.home, args, env or self.env, cwd)
        self.processes.append(p)
        return p

    def wait_for_ramps(self, expected, timeout=10, crtc=0, display=None):
        got = wait_for(lambda: ramps_close(read_ramps(crtc, display), expected), timeout)
        if not got:
            actual = read_ramps(crtc, display)
            self.fail("ramps never reached the expected values; first entries: actual %s expected %s"
                      % ([c[:6] for c in actual], [c[:6] for c in expected]))

    def launch(self, *args, env=None):
        """A second launch: it hands its words to the running one and ends."""
        return subprocess.run([BINARY, *args], env=env or self.env, cwd=self.home,
                              capture_output=True, text=True, timeout=20)

    def wait_for_window(self, timeout=WINDOW_TIMEOUT):
        """The one visible settings window, once it is there."""
        windows = wait_for(settings_windows, timeout, interval=0.1)
        self.assertTrue(windows, "the settings window never showed")
        self.assertEqual(len(windows), 1, "more than one settings window: %s" % windows)
        return windows[0]

    def wait_for_tint(self, timeout=10):
        """Waits until the display differs from the original ramps."""
        self.assertTrue(wait_for(lambda: read_ramps() != self.original, timeout),
                        "the display was never tinted")
