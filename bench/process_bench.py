"""Wall time of the real program on the X server from process start to its
first gamma write. Its idle cost is measured by idle_bench.py. Prints
figures; asserts nothing.

Usage: process_bench.py BUILD_DIR [RUNS]   (needs DISPLAY)"""
import os
import subprocess
import sys
import time

sys.dont_write_bytecode = True
import benchkit  # noqa: E402

build = sys.argv[1] if len(sys.argv) > 1 else "build"
runs = int(sys.argv[2]) if len(sys.argv) > 2 else 5
binary = os.path.join(build, "ovra")
ramps_tool = os.path.join(build, "tests", "ovra-ramps")

# Manual night values so that the first write differs from neutral whatever
# the hour.
NIGHT_CONFIG = ("[General]\nSaveVersion=3\nUseManualColorSettings=true\n"
                "UseManualBrightness=true\nNightTemperature=3400\nNightBrightness=80\n")


def ramps():
    return subprocess.run([ramps_tool, "get", "0"], capture_output=True, text=True).stdout


def first_write_time():
    subprocess.run([ramps_tool, "linear"], check=True)
    before = ramps()
    start = time.monotonic()
    program = benchkit.Program([binary], NIGHT_CONFIG)
    while ramps() == before and time.monotonic() - start < 10:
        pass
    elapsed = time.monotonic() - start
    program.stop()
    return elapsed


if not os.environ.get("DISPLAY"):
    print("process_bench: needs DISPLAY (run through scripts/with-xserver.sh)")
    sys.exit(0)
for needed in (binary, ramps_tool):
    if not os.access(needed, os.X_OK):
        print("process_bench: %s is not built" % needed)
        sys.exit(0)
times = [first_write_time() for _ in range(runs)]
print("start_to_first_gamma_write_ms  median %.1f  min %.1f  max %.1f  (runs %d; "
      "the first write is the first step of the fade-in)"
      % (benchkit.median(times) * 1000, min(times) * 1000, max(times) * 1000, len(times)))
subprocess.run([ramps_tool, "linear"])
