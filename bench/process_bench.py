"""Figures of the real program on the X server: the wall time from process
start to the first gamma write, and the CPU time and resident memory over a
stretch of idle running. Prints figures; asserts nothing.

Usage: process_bench.py BUILD_DIR [IDLE_SECONDS]   (needs DISPLAY)"""
import os
import signal
import subprocess
import sys
import tempfile
import time

build = sys.argv[1] if len(sys.argv) > 1 else "build"
idle_seconds = float(sys.argv[2]) if len(sys.argv) > 2 else 60.0
binary = os.path.join(build, "ovra")
ramps_tool = os.path.join(build, "tests", "ovra-ramps")


def ramps():
    return subprocess.run([ramps_tool, "get", "0"], capture_output=True, text=True).stdout


def environment():
    base = tempfile.mkdtemp(prefix="ovra-bench-")
    env = dict(os.environ)
    for name in ("HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"):
        path = os.path.join(base, name.lower())
        os.makedirs(path, mode=0o700)
        env[name] = path
    config = os.path.join(env["XDG_CONFIG_HOME"], "Morvenik")
    os.makedirs(config)
    name = "Ovra-root.conf" if os.getuid() == 0 else "Ovra.conf"
    with open(os.path.join(config, name), "w") as f:
        # Manual night values so that the first write differs from neutral
        # whatever the hour.
        f.write("[General]\nSaveVersion=3\nUseManualColorSettings=true\n"
                "UseManualBrightness=true\nNightTemperature=3400\nNightBrightness=80\n")
    return env


def first_write_time(runs=5):
    times = []
    for _ in range(runs):
        subprocess.run([ramps_tool, "linear"], check=True)
        before = ramps()
        env = environment()
        start = time.monotonic()
        p = subprocess.Popen([binary], env=env, stdout=subprocess.DEVNULL,
                             stderr=subprocess.DEVNULL)
        while ramps() == before and time.monotonic() - start < 10:
            pass
        times.append(time.monotonic() - start)
        p.send_signal(signal.SIGTERM)
        p.wait()
    return times


def idle_figures(seconds):
    env = environment()
    p = subprocess.Popen([binary], env=env, stdout=subprocess.DEVNULL,
                         stderr=subprocess.DEVNULL)
    time.sleep(3)  # past start-up and the first fade

    def cpu_seconds():
        with open("/proc/%d/stat" % p.pid) as f:
            fields = f.read().rsplit(")", 1)[1].split()
        ticks = os.sysconf("SC_CLK_TCK")
        return (int(fields[11]) + int(fields[12])) / ticks

    before = cpu_seconds()
    time.sleep(seconds)
    used = cpu_seconds() - before
    with open("/proc/%d/status" % p.pid) as f:
        rss = [l for l in f if l.startswith("VmRSS")][0].split()[1]
    p.send_signal(signal.SIGTERM)
    p.wait()
    return used, int(rss)


if not os.environ.get("DISPLAY"):
    print("process_bench: needs DISPLAY (run through scripts/with-xserver.sh)")
    sys.exit(0)
times = first_write_time()
print("start_to_first_gamma_write_ms  median %.1f  min %.1f  max %.1f  (runs %d; "
      "the first write is the first step of the fade-in)"
      % (sorted(times)[len(times) // 2] * 1000, min(times) * 1000, max(times) * 1000, len(times)))
used, rss = idle_figures(idle_seconds)
print("idle_cpu_seconds_over_%ds  %.3f  (%.3f%% of one core)"
      % (idle_seconds, used, 100.0 * used / idle_seconds))
print("idle_resident_memory_kib  %d" % rss)
subprocess.run([ramps_tool, "linear"])
