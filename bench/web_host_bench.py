"""Figures of the window host ovra-web: time from "open" to "mapped" and to
"loaded" for a small page, with the host started by the open (cold) and
already running (warm); the PSS of the host and its engine processes, with
the lean engine switches and without; and how long the host and its engine
outlive a parent killed with SIGKILL. Prints figures; asserts nothing.

Usage: web_host_bench.py BUILD_DIR [RUNS]   (needs DISPLAY)"""
import http.server
import json
import os
import signal
import subprocess
import sys
import threading
import time

sys.dont_write_bytecode = True
import benchkit  # noqa: E402

build = sys.argv[1] if len(sys.argv) > 1 else "build"
runs = int(sys.argv[2]) if len(sys.argv) > 2 else 5
host_binary = os.path.abspath(os.path.join(build, "ovra-web"))
PAGE = b"<html><body><p>A small page.</p></body></html>"


class Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        try:
            self.send_response(200)
            self.send_header("Content-Type", "text/html")
            self.end_headers()
            self.wfile.write(PAGE)
        except OSError:
            pass  # the engine went away first

    def log_message(self, *args):
        pass


server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
threading.Thread(target=server.serve_forever, daemon=True).start()
URL = "http://127.0.0.1:%d/page.html" % server.server_port


class Host:
    def __init__(self, lean=True):
        env = dict(os.environ, OVRA_WEB_LEAN_ENGINE="1" if lean else "0")
        if not lean:
            env.setdefault("QTWEBENGINE_CHROMIUM_FLAGS", "--disable-gpu")
        self.proc = subprocess.Popen([host_binary], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                     stderr=subprocess.DEVNULL, env=env, text=True)

    def open(self, wid):
        """Seconds from the open command to "mapped" and to "loaded"."""
        start = time.monotonic()
        self.proc.stdin.write(json.dumps({"cmd": "open", "id": wid, "url": URL,
                                          "rect": [50, 50, 400, 300]}) + "\n")
        self.proc.stdin.flush()
        seen = {}
        for line in self.proc.stdout:
            event = json.loads(line)
            if event.get("id") == wid and event["event"] in ("mapped", "loaded"):
                seen.setdefault(event["event"], time.monotonic() - start)
                if len(seen) == 2:
                    break
        return seen.get("mapped", float("nan")), seen.get("loaded", float("nan"))

    def end(self):
        self.proc.stdin.close()
        self.proc.wait()


def tree(pid):
    return [pid] + benchkit.descendants(pid)


def pss_kib(pid):
    try:
        return benchkit.memory_kib(pid)[1]
    except OSError:
        return 0


def alive(pid):
    try:
        with open("/proc/%d/stat" % pid) as f:
            return f.read().rsplit(")", 1)[1].split()[0] != "Z"
    except OSError:
        return False


def timings():
    cold, warm = [], []
    for _ in range(runs):
        host = Host()
        cold.append(host.open("w0"))
        for i in range(1, 4):
            warm.append(host.open("w%d" % i))
        host.end()
    for name, values in (("cold (host started by the open)", cold),
                         ("warm (host already running)", warm)):
        print("%-34s open->mapped median %4.0f ms, open->loaded median %4.0f ms  (%d runs)" % (
            name, 1000 * benchkit.median([m for m, _ in values]), 1000 * benchkit.median([l for _, l in values]),
            len(values)))


def memory(lean):
    host = Host(lean)
    host.open("main")
    time.sleep(3)  # let the engine settle after the first paint
    pids = tree(host.proc.pid)
    per_process = [pss_kib(p) / 1024 for p in pids]
    print("PSS with one small page, %-22s %6.1f MB over %d processes (%s)" % (
        "lean engine:" if lean else "engine as Qt sets it:", sum(per_process), len(pids),
        " + ".join("%.0f" % p for p in per_process)))
    host.end()


def parent_kill():
    """A stand-in parent starts the host and is killed; the host's input is
    held open elsewhere, so only the parent's death can end it."""
    commands, command_end = os.pipe()
    parent = subprocess.Popen(
        ["/usr/bin/python3", "-c", "import os,subprocess,sys,time\n"
         "os.environ['OVRA_WEB_PARENT']=str(os.getpid())\n"
         "subprocess.Popen([sys.argv[1]],stdin=int(sys.argv[2]));time.sleep(600)",
         host_binary, str(commands)], pass_fds=(commands,), stdout=subprocess.PIPE, text=True,
        stderr=subprocess.DEVNULL)
    os.close(commands)
    os.write(command_end, (json.dumps({"cmd": "open", "id": "p", "url": URL}) + "\n").encode())
    for line in parent.stdout:
        if '"loaded"' in line:
            break
    pids = tree(parent.pid)[1:]
    start = time.monotonic()
    parent.send_signal(signal.SIGKILL)
    parent.wait()
    host_gone = all_gone = None
    while time.monotonic() - start < 10 and all_gone is None:
        now = time.monotonic() - start
        if host_gone is None and not alive(pids[0]):
            host_gone = now
        if not any(map(alive, pids)):
            all_gone = now
        time.sleep(0.002)
    os.close(command_end)
    parent.stdout.close()
    print("parent killed: host gone after %s, all %d engine processes after %s" % (
        "%.0f ms" % (1000 * host_gone) if host_gone is not None else "more than 10 s",
        len(pids), "%.0f ms" % (1000 * all_gone) if all_gone is not None else "more than 10 s"))


if not os.environ.get("DISPLAY"):
    sys.exit("web_host_bench.py needs DISPLAY")
timings()
memory(lean=True)
memory(lean=False)
parent_kill()
server.shutdown()
