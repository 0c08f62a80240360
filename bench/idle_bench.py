"""Idle cost of the real ovra against a floor: a bare Qt program that writes
the same ramps to the same CRTCs once a second and does nothing else, run
twice, once waiting for each write's answer and once only sending. All run
side by side on the same X server and are measured over the same stretches,
so that their ratios hold on a busy machine. Prints figures; asserts nothing.

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
    return ("%-22s %9.2f %9.2f %7.2fx %9d %10d %7.2fx"
            % (label, ovra_ms, floor_ms, benchkit.ratio(ovra_ms, floor_ms),
               ovra_wakeups, floor_wakeups, benchkit.ratio(ovra_wakeups, floor_wakeups)))


def measure(ovra, floors, rounds, seconds):
    """Per round: {floor name: (ovra Usage, floor Usage)}, all programs measured
    over the same stretch."""
    print("%-22s %9s %9s %8s %9s %10s %8s"
          % ("round/scope/floor", "ovra_ms", "floor_ms", "cpu", "ovra_wake", "floor_wake", "wake"))
    programs = [ovra] + [floor for _, floor in floors]
    results = []
    for number in range(1, rounds + 1):
        before = [benchkit.sample(p.pid) for p in programs]
        time.sleep(seconds)
        after = [benchkit.sample(p.pid) for p in programs]
        if not all(p.running() for p in programs):
            print("round %d: a program ended while measured; stopping" % number)
            break
        usage = [benchkit.Usage(p.pid, b, a) for p, b, a in zip(programs, before, after)]
        results.append({name: (usage[0], usage[i + 1]) for i, (name, _) in enumerate(floors)})
        for name, (mine, theirs) in results[-1].items():
            print(row("%d main %s" % (number, name), mine.main_cpu_ms, theirs.main_cpu_ms,
                      mine.main_wakeups, theirs.main_wakeups))
            print(row("%d process %s" % (number, name), mine.cpu_ms, theirs.cpu_ms,
                      mine.wakeups, theirs.wakeups))
        for name, used in [("ovra", usage[0])] + [(n, usage[i + 1]) for i, (n, _) in enumerate(floors)]:
            if used.threads_gone:
                print("  (%s: %d threads ended during the round, their time is not counted)"
                      % (name, used.threads_gone))
        sys.stdout.flush()
    return results


def summarise(results, floors, seconds, pinned_cpu):
    if not results:
        return
    median = benchkit.median
    for name, _ in floors:
        pairs = [r[name] for r in results]
        for scope, cpu, wake in (("main", "main_cpu_ms", "main_wakeups"),
                                 ("process", "cpu_ms", "wakeups")):
            ovra_ms = median([getattr(p[0], cpu) for p in pairs])
            floor_ms = median([getattr(p[1], cpu) for p in pairs])
            ovra_wake = median([getattr(p[0], wake) for p in pairs])
            floor_wake = median([getattr(p[1], wake) for p in pairs])
            cpu_ratio = median([benchkit.ratio(getattr(p[0], cpu), getattr(p[1], cpu)) for p in pairs])
            wake_ratio = median([benchkit.ratio(getattr(p[0], wake), getattr(p[1], wake)) for p in pairs])
            print("median %-7s %-8s %9.2f %9.2f %7.2fx %9d %10d %7.2fx"
                  % (scope, name, ovra_ms, floor_ms, cpu_ratio, ovra_wake, floor_wake, wake_ratio))
    print("(ratios are medians of the per-round ratios; target <= %.2fx; %d rounds of %.0f s; "
          "floor: waits for each write's answer, as a simple program does; floor_send: sends "
          "without waiting, as ovra's repeat does; %s)"
          % (TARGET_RATIO, len(results), seconds,
             "all kept on CPU %d" % pinned_cpu if pinned_cpu is not None else "free to move between CPUs"))


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
    # ovra first, so that the floors take the ramps ovra keeps on the screen.
    cpus = {args.cpu} if args.cpu is not None else None
    ovra = benchkit.Program([ovra_binary], cpus=cpus)
    floors = []
    try:
        time.sleep(args.settle)
        floors = [("floor", benchkit.Program([floor_binary], cpus=cpus)),
                  ("floor_send", benchkit.Program([floor_binary, "--no-wait"], cpus=cpus))]
        time.sleep(args.settle)
        if not (ovra.running() and all(floor.running() for _, floor in floors)):
            print("idle_bench: ovra or a floor did not keep running")
            return
        results = measure(ovra, floors, args.rounds, args.seconds)
        summarise(results, floors, args.seconds, args.cpu)
        rss, pss = benchkit.memory_kib(ovra.pid)
        floor_rss, floor_pss = benchkit.memory_kib(floors[0][1].pid)
        print("ovra_idle_memory  rss %.1f MiB  pss %.1f MiB   (floor: rss %.1f MiB  pss %.1f MiB; "
              "target rss <= %d MiB)"
              % (rss / 1024, pss / 1024, floor_rss / 1024, floor_pss / 1024, TARGET_RSS_MIB))
    finally:
        for _, floor in floors:
            floor.stop()
        ovra.stop()


main()
