"""Idle cost of the real ovra against a floor: a bare Qt program that writes
the same ramps to the same CRTCs once a second and does nothing else. Both run
side by side on the same X server and are measured over the same stretches,
so that their ratio holds on a busy machine. Prints figures; asserts nothing.

Usage: idle_bench.py BUILD_DIR [--rounds N] [--seconds S] [--settle S]
(needs DISPLAY)"""
import argparse
import os
import sys
import time

sys.dont_write_bytecode = True
import benchkit  # noqa: E402

TARGET_RATIO = 1.15
TARGET_RSS_MIB = 40


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", nargs="?", default="build")
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("--seconds", type=float, default=20.0, help="length of one round")
    parser.add_argument("--settle", type=float, default=3.0,
                        help="wait after each start, past start-up and the fade-in")
    parser.add_argument("--cpu", type=int, default=None,
                        help="keep both programs on this CPU: here a wake-up that moves between "
                             "CPUs costs more than the work it does, and which one moves is luck")
    return parser.parse_args()


def row(label, ovra_ms, floor_ms, ovra_wakeups, floor_wakeups):
    return ("%-16s %10.2f %10.2f %7.2fx %9d %9d %7.2fx"
            % (label, ovra_ms, floor_ms, benchkit.ratio(ovra_ms, floor_ms),
               ovra_wakeups, floor_wakeups, benchkit.ratio(ovra_wakeups, floor_wakeups)))


def measure(ovra, floor, rounds, seconds):
    """Per round and scope ('main', 'process'): (ovra Usage, floor Usage)."""
    print("%-16s %10s %10s %8s %9s %9s %8s"
          % ("round/scope", "ovra_ms", "floor_ms", "cpu", "ovra_wake", "floor_wake", "wake"))
    results = []
    for number in range(1, rounds + 1):
        before = (benchkit.sample(ovra.pid), benchkit.sample(floor.pid))
        time.sleep(seconds)
        after = (benchkit.sample(ovra.pid), benchkit.sample(floor.pid))
        if not (ovra.running() and floor.running()):
            print("round %d: a program ended while measured; stopping" % number)
            break
        usage = (benchkit.Usage(ovra.pid, before[0], after[0]),
                 benchkit.Usage(floor.pid, before[1], after[1]))
        results.append(usage)
        print(row("%d main" % number, usage[0].main_cpu_ms, usage[1].main_cpu_ms,
                  usage[0].main_wakeups, usage[1].main_wakeups))
        print(row("%d process" % number, usage[0].cpu_ms, usage[1].cpu_ms,
                  usage[0].wakeups, usage[1].wakeups))
        for name, used in (("ovra", usage[0]), ("floor", usage[1])):
            if used.threads_gone:
                print("  (%s: %d threads ended during the round, their time is not counted)"
                      % (name, used.threads_gone))
        sys.stdout.flush()
    return results


def summarise(results, seconds, pinned_cpu):
    if not results:
        return
    median = benchkit.median
    for scope, cpu, wake in (("main", "main_cpu_ms", "main_wakeups"),
                             ("process", "cpu_ms", "wakeups")):
        ovra_ms = median([getattr(r[0], cpu) for r in results])
        floor_ms = median([getattr(r[1], cpu) for r in results])
        ovra_wake = median([getattr(r[0], wake) for r in results])
        floor_wake = median([getattr(r[1], wake) for r in results])
        cpu_ratio = median([benchkit.ratio(getattr(r[0], cpu), getattr(r[1], cpu)) for r in results])
        wake_ratio = median([benchkit.ratio(getattr(r[0], wake), getattr(r[1], wake)) for r in results])
        print("median %-9s %10.2f %10.2f %7.2fx %9d %9d %7.2fx"
              % (scope, ovra_ms, floor_ms, cpu_ratio, ovra_wake, floor_wake, wake_ratio))
    print("(ratios are medians of the per-round ratios; target <= %.2fx; "
          "%d rounds of %.0f s; ovra %d threads, floor %d; %s)"
          % (TARGET_RATIO, len(results), seconds, results[-1][0].threads, results[-1][1].threads,
             "both kept on CPU %d" % pinned_cpu if pinned_cpu is not None else "free to move between CPUs"))


def main():
    args = arguments()
    if not os.environ.get("DISPLAY"):
        print("idle_bench: needs DISPLAY (run through scripts/with-xserver.sh)")
        return
    ovra_binary = os.path.join(args.build, "ovra")
    floor_binary = os.path.join(args.build, "bench", "idle_floor")
    for binary in (ovra_binary, floor_binary):
        if not os.access(binary, os.X_OK):
            print("idle_bench: %s is not built" % binary)
            return
    # ovra first, so that the floor takes the ramps ovra keeps on the screen.
    cpus = {args.cpu} if args.cpu is not None else None
    ovra = benchkit.Program([ovra_binary], cpus=cpus)
    floor = None
    try:
        time.sleep(args.settle)
        floor = benchkit.Program([floor_binary], cpus=cpus)
        time.sleep(args.settle)
        if not (ovra.running() and floor.running()):
            print("idle_bench: ovra or the floor did not keep running")
            return
        results = measure(ovra, floor, args.rounds, args.seconds)
        summarise(results, args.seconds, args.cpu)
        rss, pss = benchkit.memory_kib(ovra.pid)
        floor_rss, floor_pss = benchkit.memory_kib(floor.pid)
        print("ovra_idle_memory  rss %.1f MiB  pss %.1f MiB   (floor: rss %.1f MiB  pss %.1f MiB; "
              "target rss <= %d MiB)"
              % (rss / 1024, pss / 1024, floor_rss / 1024, floor_pss / 1024, TARGET_RSS_MIB))
    finally:
        if floor:
            floor.stop()
        ovra.stop()


main()
