"""What the measuring scripts in bench/ share: starting a program in private
HOME and XDG directories, and reading a running process's CPU time,
wake-ups and memory from /proc."""
import os
import shutil
import signal
import subprocess
import tempfile


def isolated_environment(config=None):
    """A copy of the environment with its own HOME, XDG_CONFIG_HOME and
    XDG_RUNTIME_DIR, and the location service pointed at a closed port so
    that the lookup fails at once. `config` becomes ovra's settings file.
    Returns (env, base directory to remove afterwards)."""
    base = tempfile.mkdtemp(prefix="ovra-bench-")
    env = dict(os.environ)
    for name in ("HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"):
        path = os.path.join(base, name.lower())
        os.makedirs(path, mode=0o700)
        env[name] = path
    env["OVRA_GEOLOCATION_URL"] = "http://127.0.0.1:9/"
    if config is not None:
        folder = os.path.join(env["XDG_CONFIG_HOME"], "Morvenik")
        os.makedirs(folder)
        name = "Ovra-root.conf" if os.getuid() == 0 else "Ovra.conf"
        with open(os.path.join(folder, name), "w") as f:
            f.write(config)
    return env, base


class Program:
    """One program started in its own isolated environment; stop() ends it
    and removes its directories."""

    def __init__(self, argv, config=None, extra_env=None, cpus=None):
        self.env, self.base = isolated_environment(config)
        self.env.update(extra_env or {})
        # Set before exec, so that every thread the program starts keeps to it.
        pin = (lambda: os.sched_setaffinity(0, cpus)) if cpus else None
        self.process = subprocess.Popen(argv, env=self.env, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL, preexec_fn=pin)
        self.pid = self.process.pid

    def running(self):
        return self.process.poll() is None

    def stop(self):
        if self.running():
            self.process.send_signal(signal.SIGTERM)
            try:
                self.process.wait(timeout=10)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait()
        shutil.rmtree(self.base, ignore_errors=True)


def _task_counters(pid, tid):
    """(CPU ns, voluntary switches, involuntary switches) of one thread, or
    None once it has gone."""
    try:
        with open("/proc/%d/task/%d/schedstat" % (pid, tid)) as f:
            runtime_ns = int(f.read().split()[0])
        voluntary = involuntary = 0
        with open("/proc/%d/task/%d/status" % (pid, tid)) as f:
            for line in f:
                if line.startswith("voluntary_ctxt_switches:"):
                    voluntary = int(line.split()[1])
                elif line.startswith("nonvoluntary_ctxt_switches:"):
                    involuntary = int(line.split()[1])
    except (FileNotFoundError, ProcessLookupError):
        return None
    return runtime_ns, voluntary, involuntary


def sample(pid):
    """The counters of every thread of `pid` now, by thread id."""
    counters = {}
    for name in os.listdir("/proc/%d/task" % pid):
        values = _task_counters(pid, int(name))
        if values is not None:
            counters[int(name)] = values
    return counters


class Usage:
    """CPU milliseconds and wake-ups (voluntary context switches) between two
    samples, for the main thread and for the whole process. A thread that
    started in between counts from zero; one that ended in between is lost
    and counted in `threads_gone`."""

    def __init__(self, pid, before, after):
        def delta(tid):
            start = before.get(tid, (0, 0, 0))
            end = after[tid]
            return [e - s for s, e in zip(start, end)]

        main = delta(pid) if pid in after else [0, 0, 0]
        whole = [0, 0, 0]
        for tid in after:
            whole = [w + d for w, d in zip(whole, delta(tid))]
        self.main_cpu_ms = main[0] / 1e6
        self.main_wakeups = main[1]
        self.cpu_ms = whole[0] / 1e6
        self.wakeups = whole[1]
        self.preemptions = whole[2]
        self.threads = len(after)
        self.threads_gone = len(set(before) - set(after))


def memory_kib(pid):
    """(RSS, PSS) in KiB."""
    figures = {}
    with open("/proc/%d/smaps_rollup" % pid) as f:
        for line in f:
            parts = line.split()
            if len(parts) >= 2 and parts[0] in ("Rss:", "Pss:"):
                figures[parts[0][:-1]] = int(parts[1])
    return figures.get("Rss", 0), figures.get("Pss", 0)


def descendants(pid):
    """Every process below `pid`, children first."""
    parents = {}
    for name in os.listdir("/proc"):
        if not name.isdigit():
            continue
        try:
            with open("/proc/%s/stat" % name) as f:
                parents[int(name)] = int(f.read().rsplit(")", 1)[1].split()[1])
        except (OSError, IndexError, ValueError):
            continue
    found, todo = [], [pid]
    while todo:
        parent = todo.pop(0)
        kids = sorted(child for child, p in parents.items() if p == parent)
        found += kids
        todo += kids
    return found


def command_name(pid):
    try:
        with open("/proc/%d/comm" % pid) as f:
            return f.read().strip()
    except OSError:
        return "?"


def tree_memory_kib(pid):
    """[(pid, name, RSS, PSS)] of `pid` and every process below it; a process
    that ends while it is read is left out."""
    rows = []
    for member in [pid] + descendants(pid):
        try:
            rss, pss = memory_kib(member)
        except OSError:
            continue
        rows.append((member, command_name(member), rss, pss))
    return rows


def median(values):
    ordered = sorted(values)
    middle = len(ordered) // 2
    if len(ordered) % 2:
        return ordered[middle]
    return (ordered[middle - 1] + ordered[middle]) / 2.0


def ratio(numerator, denominator):
    return numerator / denominator if denominator else float("inf")
