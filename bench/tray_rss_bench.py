"""Memory and idle wake-ups of the real ovra with each kind of tray: no tray
host at all, Qt's own icon in a small XEmbed tray (trayer), and the Unity
indicator plugin (shown by the same tray through the indicator's fallback).
Prints figures; asserts nothing.

Usage: tray_rss_bench.py BUILD_DIR [--settle S] [--seconds S]
(needs DISPLAY and trayer)"""
import argparse
import os
import shutil
import subprocess
import sys
import time

sys.dont_write_bytecode = True
import benchkit  # noqa: E402

# Manual values: the tint stands still, so the icon has no reason to turn.
CONFIG = ("[General]\nSaveVersion=3\nUseManualColorSettings=true\n"
          "UseManualBrightness=true\nNightTemperature=3400\nNightBrightness=80\n")


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", nargs="?", default="build")
    parser.add_argument("--settle", type=float, default=5.0,
                        help="wait after the start, past start-up and the fade-in")
    parser.add_argument("--seconds", type=float, default=10.0, help="idle stretch measured")
    return parser.parse_args()


def mapped(pid, names):
    """Which of the library names the process has mapped."""
    with open("/proc/%d/maps" % pid) as f:
        text = f.read()
    return [name for name in names if name in text]


def measure(build, label, with_tray, desktop, settle, seconds):
    tray = None
    if with_tray:
        tray = subprocess.Popen(["trayer", "--edge", "top", "--align", "right", "--height", "24"],
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        time.sleep(1.0)
    env, base = benchkit.isolated_environment(CONFIG)
    if desktop:
        env["XDG_CURRENT_DESKTOP"] = desktop
    ovra = subprocess.Popen([os.path.join(build, "ovra")], env=env, stdout=subprocess.DEVNULL,
                            stderr=subprocess.DEVNULL)
    try:
        time.sleep(settle)
        before = benchkit.sample(ovra.pid)
        time.sleep(seconds)
        after = benchkit.sample(ovra.pid)
        usage = benchkit.Usage(ovra.pid, before, after)
        rss, pss = benchkit.memory_kib(ovra.pid)
        libraries = mapped(ovra.pid, ("libQt6Svg", "libgtk-3", "libovra-indicator"))
        print("%-22s %8.1f %8.1f %11.2f %s" % (label, rss / 1024.0, pss / 1024.0,
                                            usage.main_wakeups / seconds,
                                            " ".join(libraries) or "-"))
    finally:
        ovra.terminate()
        ovra.wait(timeout=15)
        if tray:
            tray.terminate()
            tray.wait(timeout=10)
        shutil.rmtree(base, ignore_errors=True)


def main():
    args = arguments()
    if not shutil.which("trayer"):
        print("trayer is missing: run scripts/install-deps.sh")
        return 0
    print("%-22s %8s %8s %11s %s" % ("tray", "rss_MiB", "pss_MiB", "wakeups/s", "mapped"))
    measure(args.build, "none (no tray host)", False, "", args.settle, args.seconds)
    measure(args.build, "Qt icon in trayer", True, "", args.settle, args.seconds)
    measure(args.build, "Unity indicator", True, "Unity", args.settle, args.seconds)
    return 0


if __name__ == "__main__":
    sys.exit(main())
