"""CPU of the whole program (ovra, its window host and the engine's
processes) between rests and while a Standard rest screen animates on one
output. Prints figures; asserts nothing.

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
WorkTime=1
RestTime=900
RestScreenType=3
UseSounds=false
"""


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", nargs="?", default="build")
    parser.add_argument("--seconds", type=float, default=20.0, help="length of each measurement")
    return parser.parse_args()


def family(pid):
    """The process and all its descendants."""
    children = {}
    for name in os.listdir("/proc"):
        if name.isdigit():
            try:
                with open("/proc/%s/stat" % name) as f:
                    parent = int(f.read().rsplit(")", 1)[1].split()[1])
            except (OSError, IndexError, ValueError):
                continue
            children.setdefault(parent, []).append(int(name))
    found, todo = [], [pid]
    while todo:
        current = todo.pop()
        found.append(current)
        todo.extend(children.get(current, []))
    return found


def measure(label, pid, seconds):
    members = family(pid)
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
    print("%-28s %3d processes  cpu %7.1f ms/s (%5.2f%% of a core)  wake-ups %6.1f/s  rss %6.1f MiB"
          % (label, len(members), total_ms / seconds, total_ms / seconds / 10.0, wakeups / seconds,
             rss / 1024.0))
    sys.stdout.flush()


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
    ovra = benchkit.Program([binary], config=CONFIG)
    try:
        time.sleep(4)
        measure("between rests", ovra.pid, min(args.seconds, 40.0))
        deadline = time.monotonic() + 90
        while not rest_screen_shown() and time.monotonic() < deadline:
            time.sleep(0.5)
        if not rest_screen_shown():
            print("rest_bench: no rest screen came")
            return
        time.sleep(5)
        measure("Standard rest screen", ovra.pid, args.seconds)
    finally:
        ovra.stop()


main()
