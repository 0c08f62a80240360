"""CPU of the whole program (ovra, its window host and the engine's
processes) between rests, behind a Simple rest screen (the same page, still)
and behind a Standard one (animated), on one output; the Standard's cost is
also given against the Simple's, measured in the same run. Prints figures;
asserts nothing.

Usage: rest_bench.py BUILD_DIR [--seconds S]   (needs DISPLAY)"""
import argparse
import os
import subprocess
import sys
import time

sys.dont_write_bytecode = True
import benchkit  # noqa: E402

CONFIG = """[General]
SaveVersion=3
TimerType=2
TimerPaused=false
WorkTime=60
RestTime=900
RestScreenType=%d
UseSounds=false
UseKeyboardShortcuts=true
StartRestHotkey=Ctrl+Alt+S
"""


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", nargs="?", default="build")
    parser.add_argument("--seconds", type=float, default=20.0, help="length of each measurement")
    return parser.parse_args()


def measure(label, pid, seconds):
    """CPU in ms a second of the process and its descendants."""
    members = [pid] + benchkit.descendants(pid)
    before = {p: benchkit.sample(p) for p in members}
    time.sleep(seconds)
    total_ms = wakeups = 0.0
    rss = 0
    for p in members:
        try:
            usage = benchkit.Usage(p, before[p], benchkit.sample(p))
            rss += benchkit.memory_kib(p)[0]
        except (FileNotFoundError, ProcessLookupError):
            continue
        total_ms += usage.cpu_ms
        wakeups += usage.wakeups
    cpu = total_ms / seconds
    print("%-28s %3d processes  cpu %7.1f ms/s (%5.2f%% of a core)  wake-ups %6.1f/s  rss %6.1f MiB"
          % (label, len(members), total_ms / seconds, total_ms / seconds / 10.0, wakeups / seconds,
             rss / 1024.0))
    sys.stdout.flush()
    return cpu


def rest_screen_shown():
    out = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Rest screen$"],
                         capture_output=True, text=True)
    return bool(out.stdout.strip())


def main():
    args = arguments()
    if not os.environ.get("DISPLAY"):
        print("rest_bench: needs DISPLAY (run through scripts/with-xserver.sh)")
        return
    binary = os.path.join(args.build, "ovra")
    if not os.access(binary, os.X_OK):
        print("rest_bench: %s is not built" % binary)
        return
    cpu = {}
    for kind, label in ((2, "Simple rest screen"), (3, "Standard rest screen")):
        ovra = benchkit.Program([binary], config=CONFIG % kind)
        try:
            time.sleep(4)
            if kind == 2:
                measure("between rests", ovra.pid, min(args.seconds, 40.0))
            # The start-rest combination: a rest now.
            subprocess.run(["xdotool", "key", "ctrl+alt+s"], check=True)
            deadline = time.monotonic() + 90
            while not rest_screen_shown() and time.monotonic() < deadline:
                time.sleep(0.5)
            if not rest_screen_shown():
                print("rest_bench: no rest screen came")
                return
            time.sleep(5)
            cpu[kind] = measure(label, ovra.pid, args.seconds)
        finally:
            ovra.stop()
        while rest_screen_shown():
            time.sleep(0.2)
    print("Standard against Simple      %.2fx the CPU" % (cpu[3] / max(cpu[2], 0.1)))

main()
