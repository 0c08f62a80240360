"""The settings window's cost: memory without it, with it and after it
closed; the time to open it cold (no window host) and warm (a hidden page in
a live host); and whether the colour fade keeps its pace while the host
starts. Memory counts ovra and every process below it. Prints figures with
their targets; asserts nothing.

Usage: settings_window_bench.py BUILD_DIR [--runs N] [--fade-ms MS]
(needs DISPLAY, xdotool and xev)"""
import argparse
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time

sys.dont_write_bytecode = True
import benchkit  # noqa: E402

TARGET_IDLE_RSS_MIB = 40
TARGET_OPEN_PSS_MIB = 280
TARGET_HOST_GONE_MS = 2000
TARGET_AFTER_CLOSE_MIB = 3
TARGET_COLD_MS = 1500
TARGET_WARM_MS = 300
TARGET_FADE_RATE = 40
TARGET_FADE_GAP_MS = 30

# The web engine as root and without a GPU, as on the test servers.
ENGINE_ENV = {"QTWEBENGINE_DISABLE_SANDBOX": "1", "QTWEBENGINE_CHROMIUM_FLAGS": "--disable-gpu"}
# Manual night values: a tint at any hour, and a fade with somewhere to go.
CONFIG = ("[General]\nSaveVersion=3\nUseManualColorSettings=true\nUseManualBrightness=true\n"
          "NightTemperature=3400\nNightBrightness=80\nPauseTransitionDuration=%d\n"
          "DestroyUiOnClose=%s\n")
# Past start-up and the fade-in from neutral.
SETTLE_S = 4.0
WINDOW_TIMEOUT_S = 60.0
MIB = 1024.0


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", nargs="?", default="build")
    parser.add_argument("--runs", type=int, default=3)
    parser.add_argument("--fade-ms", type=int, default=4000,
                        help="the pause fade, long enough to span the host's cold start")
    parser.add_argument("--parts", default=",".join(PARTS),
                        help="which measurements, of: " + " ".join(PARTS))
    return parser.parse_args()


class MapWatch:
    """When the X server maps and unmaps windows, as this script reads xev's
    report on the root window (top-level windows are its children here)."""

    EVENT = re.compile(r"^(MapNotify|UnmapNotify) event")
    WINDOW = re.compile(r"^\s+event 0x[0-9a-f]+, window (0x[0-9a-f]+)")

    def __init__(self):
        self.proc = subprocess.Popen(["xev", "-root", "-event", "substructure"],
                                     stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
                                     bufsize=1)
        self.events = []
        self.changed = threading.Condition()
        threading.Thread(target=self._read, daemon=True).start()
        time.sleep(0.3)

    def _read(self):
        kind = None
        for line in self.proc.stdout:
            now = time.monotonic()
            match = self.EVENT.match(line)
            if match:
                kind = match.group(1)
                continue
            match = self.WINDOW.match(line)
            if kind and match:
                with self.changed:
                    self.events.append((now, kind, int(match.group(1), 16)))
                    self.changed.notify_all()
                kind = None

    def next(self, kind, after, window=None, timeout=WINDOW_TIMEOUT_S):
        """(time, window) of the first `kind` event after `after`, or None."""
        deadline = time.monotonic() + timeout
        with self.changed:
            while True:
                for when, what, which in self.events:
                    if when > after and what == kind and window in (None, which):
                        return when, which
                left = deadline - time.monotonic()
                if left <= 0:
                    return None
                self.changed.wait(left)

    def stop(self):
        self.proc.terminate()
        self.proc.wait()


def settings_window():
    out = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Ovra$"],
                         capture_output=True, text=True).stdout.split()
    return int(out[0]) if out else 0


class Ovra:
    """ovra in its own directories, and the ways a user reaches its window."""

    def __init__(self, binary, watch, destroy_on_close, fade_ms=1000, args=(), extra_env=None):
        config = CONFIG % (fade_ms, "true" if destroy_on_close else "false")
        self.binary = binary
        self.watch = watch
        self.program = benchkit.Program([binary, *args], config,
                                        dict(ENGINE_ENV, **(extra_env or {})))
        self.pid = self.program.pid

    def request(self):
        """A second launch without words, as a user opens the window; returns
        when the launch has handed over, and how long that took."""
        start = time.monotonic()
        subprocess.run([self.binary], env=self.program.env, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, timeout=30)
        return time.monotonic() - start

    def hosts(self):
        return [pid for pid in benchkit.descendants(self.pid)
                if benchkit.command_name(pid) == "ovra-web"]

    def close_with_escape(self, window):
        """Escape until the window unmaps (the key goes where the focus is,
        which the window takes only once mapped); the unmap time, or None."""
        for _ in range(40):
            pressed = time.monotonic()
            subprocess.run(["xdotool", "key", "Escape"])
            unmapped = self.watch.next("UnmapNotify", pressed, window, timeout=0.5)
            if unmapped:
                return unmapped[0]
        return None

    def wait_hosts_gone(self, timeout=10.0):
        deadline = time.monotonic() + timeout
        while self.hosts() and time.monotonic() < deadline:
            time.sleep(0.01)
        return time.monotonic() if not self.hosts() else None

    def stop(self):
        self.program.stop()


def mapped_after(watch, start):
    """Seconds from `start` until the settings window mapped, or None."""
    event = watch.next("MapNotify", start)
    if not event or event[1] != settings_window():
        return None
    return event[0] - start


def rss_split_kib(pid):
    """(anonymous, file-backed) resident KiB: what the program holds, and
    pages of libraries and of its own file that the kernel may drop."""
    fields = {}
    with open("/proc/%d/status" % pid) as f:
        for line in f:
            parts = line.split()
            if parts and parts[0] in ("RssAnon:", "RssFile:"):
                fields[parts[0]] = int(parts[1])
    return fields.get("RssAnon:", 0), fields.get("RssFile:", 0)


def private_kib(pid):
    """Pages no other process maps: unlike PSS, not lowered by other web
    engines that happen to run on the machine."""
    total = 0
    with open("/proc/%d/smaps_rollup" % pid) as f:
        for line in f:
            parts = line.split()
            if parts and parts[0] in ("Private_Clean:", "Private_Dirty:"):
                total += int(parts[1])
    return total


def figure(name, value, unit, target, note=""):
    shown = "%.1f %s" % (value, unit) if value is not None else "none"
    print("%-34s %14s   (target %s)%s" % (name, shown, target, "  " + note if note else ""))
    sys.stdout.flush()


def ms_list(values):
    return " ".join("%.0f" % (v * 1000) if v is not None else "-" for v in values)


def median_ms(values):
    known = [v for v in values if v is not None]
    return benchkit.median(known) * 1000 if known else None


def memory_and_cold_requests(binary, watch, runs):
    ovra = Ovra(binary, watch, destroy_on_close=True)
    try:
        time.sleep(SETTLE_S)
        idle_rss, idle_pss = benchkit.memory_kib(ovra.pid)
        idle_split = rss_split_kib(ovra.pid)
        figure("no window: ovra rss", idle_rss / MIB, "MiB", "<= %d MiB" % TARGET_IDLE_RSS_MIB,
               "pss %.1f MiB" % (idle_pss / MIB))
        cold, gone, grown, split = [], [], [], (0, 0)
        for run in range(runs):
            start = time.monotonic()
            ovra.request()
            cold.append(mapped_after(watch, start))
            window = settings_window()
            if run == 0:
                time.sleep(2.0)
                rows = [row + (private_kib(row[0]),) for row in benchkit.tree_memory_kib(ovra.pid)]
                figure("window open: pss of all", sum(r[3] for r in rows) / MIB, "MiB",
                       "<= %d MiB" % TARGET_OPEN_PSS_MIB,
                       "%d processes; private pages %.1f MiB"
                       % (len(rows), sum(r[4] for r in rows) / MIB))
                for pid, name, rss, pss, private in rows:
                    print("    %-20s pid %-7d rss %7.1f  pss %7.1f  private %7.1f MiB"
                          % (name, pid, rss / MIB, pss / MIB, private / MIB))
            unmapped = ovra.close_with_escape(window)
            ended = ovra.wait_hosts_gone() if unmapped else None
            gone.append(ended - unmapped if ended else None)
            if unmapped:
                time.sleep(max(0.0, unmapped + 2.0 - time.monotonic()))
            grown.append(benchkit.memory_kib(ovra.pid)[0] - idle_rss)
            if run == 0:
                split = [now - before for now, before in zip(rss_split_kib(ovra.pid), idle_split)]
        figure("after close: host gone in", median_ms(gone), "ms", "<= %d ms" % TARGET_HOST_GONE_MS,
               "runs: %s" % ms_list(gone))
        figure("after close: ovra rss growth", grown[0] / MIB, "MiB",
               "<= %d MiB" % TARGET_AFTER_CLOSE_MIB,
               "anonymous %+.1f, file-backed %+.1f; after each run: %s MiB"
               % (split[0] / MIB, split[1] / MIB, " ".join("%.1f" % (g / MIB) for g in grown)))
        figure("cold open, second launch", median_ms(cold), "ms", "<= %d ms" % TARGET_COLD_MS,
               "runs: %s" % ms_list(cold))
    finally:
        ovra.stop()


def cold_show_ui(binary, watch, runs):
    times = []
    for _ in range(runs):
        start = time.monotonic()
        ovra = Ovra(binary, watch, destroy_on_close=True, args=("--show_ui",))
        try:
            times.append(mapped_after(watch, start))
        finally:
            ovra.stop()
        time.sleep(1.0)
    figure("cold open, --show_ui from start", median_ms(times), "ms", "<= %d ms" % TARGET_COLD_MS,
           "runs: %s" % ms_list(times))


def warm_requests(binary, watch, runs):
    ovra = Ovra(binary, watch, destroy_on_close=False)
    try:
        time.sleep(SETTLE_S)
        start = time.monotonic()
        ovra.request()
        if mapped_after(watch, start) is None:
            print("warm open: the window never showed")
            return
        warm, launches = [], []
        for _ in range(runs):
            if not ovra.close_with_escape(settings_window()):
                print("warm open: Escape did not hide the window")
                break
            time.sleep(0.5)
            start = time.monotonic()
            launches.append(ovra.request())
            warm.append(mapped_after(watch, start))
        figure("warm open, second launch", median_ms(warm), "ms", "<= %d ms" % TARGET_WARM_MS,
               "runs: %s; the launch alone: %s ms" % (ms_list(warm), ms_list(launches)))
    finally:
        ovra.stop()


def run_delay_ms(pid):
    """How long the main thread of `pid` has waited for a CPU while it could
    run, in all."""
    with open("/proc/%d/task/%d/schedstat" % (pid, pid)) as f:
        return int(f.read().split()[1]) / 1e6


def fade_while(binary, watch, fade_ms, with_host, base):
    """The times, from the fade's start, of the gamma writes of a pause fade
    with or without a cold host start beside it; how long ovra's main thread
    waited for a CPU meanwhile; and when the window mapped."""
    log = os.path.join(base, "writes-%d.txt" % with_host)
    ovra = Ovra(binary, watch, destroy_on_close=True, fade_ms=fade_ms,
                extra_env={"OVRA_TRACE_GAMMA_WRITES": log})
    try:
        time.sleep(SETTLE_S)
        start = time.monotonic()
        waited = run_delay_ms(ovra.pid)
        launch = None
        if with_host:
            launch = subprocess.Popen([binary], env=ovra.program.env, stdout=subprocess.DEVNULL,
                                      stderr=subprocess.DEVNULL)
        os.kill(ovra.pid, signal.SIGUSR1)
        time.sleep(fade_ms / 1000.0)
        waited = run_delay_ms(ovra.pid) - waited
        mapped = mapped_after(watch, start) if with_host else None
        if launch:
            launch.wait(timeout=30)
        with open(log) as f:
            writes = [float(line) - start for line in f if float(line) >= start]
        return writes, waited, mapped
    finally:
        ovra.stop()


def fade_pace(writes, fade_ms):
    """(rate a second, largest gap in ms, gaps over the target) of the fade's
    own writes: after it the tick writes once a second again."""
    fade = [t for t in writes if t <= fade_ms / 1000.0]
    if len(fade) < 2:
        return None
    gaps = [b - a for a, b in zip(fade, fade[1:])]
    return ((len(fade) - 1) / (fade[-1] - fade[0]), max(gaps) * 1000,
            sum(g > TARGET_FADE_GAP_MS / 1000.0 for g in gaps))


def fade_figures(binary, watch, runs, fade_ms):
    base = tempfile.mkdtemp(prefix="ovra-bench-writes-")
    try:
        for with_host in (False, True):
            paces, waits, maps = [], [], []
            for _ in range(runs):
                writes, waited, mapped = fade_while(binary, watch, fade_ms, with_host, base)
                pace = fade_pace(writes, fade_ms)
                if pace:
                    paces.append(pace)
                    waits.append(waited)
                    maps.append(mapped)
            label = "fade with a cold host start" if with_host else "fade alone"
            if not paces:
                print("%s: no fade was written" % label)
                continue
            figure(label + ": rate", benchkit.median([p[0] for p in paces]), "/s",
                   "%d /s" % TARGET_FADE_RATE,
                   "runs: %s; a %d ms fade" % (" ".join("%.1f" % p[0] for p in paces), fade_ms))
            figure(label + ": largest gap", benchkit.median([p[1] for p in paces]), "ms",
                   "<= %d ms" % TARGET_FADE_GAP_MS,
                   "runs: %s ms, with %s gaps over; ovra waited %s ms for a CPU%s"
                   % (" ".join("%.0f" % p[1] for p in paces), " ".join(str(p[2]) for p in paces),
                      " ".join("%.0f" % w for w in waits),
                      "; window mapped at %s ms" % ms_list(maps) if with_host else ""))
    finally:
        shutil.rmtree(base, ignore_errors=True)


PARTS = ("memory", "show_ui", "warm", "fade")


def main():
    args = arguments()
    if not os.environ.get("DISPLAY"):
        print("settings_window_bench: needs DISPLAY (run through scripts/with-xserver.sh)")
        return
    binary = os.path.join(args.build, "ovra")
    for needed in (binary, os.path.join(args.build, "ovra-web")):
        if not os.access(needed, os.X_OK):
            print("settings_window_bench: %s is not built" % needed)
            return
    for tool in ("xdotool", "xev"):
        if not shutil.which(tool):
            print("settings_window_bench: %s is not installed" % tool)
            return
    print("load average %s; %d CPUs" % (" ".join("%.2f" % l for l in os.getloadavg()),
                                         os.cpu_count()))
    parts = {
        "memory": lambda: memory_and_cold_requests(binary, watch, args.runs),
        "show_ui": lambda: cold_show_ui(binary, watch, args.runs),
        "warm": lambda: warm_requests(binary, watch, args.runs),
        "fade": lambda: fade_figures(binary, watch, args.runs, args.fade_ms),
    }
    watch = MapWatch()
    try:
        for part in args.parts.split(","):
            if part in parts:
                parts[part]()
            else:
                print("settings_window_bench: no part %s" % part)
    finally:
        watch.stop()


main()
