"""The window host ovra-web against its own Xvfb and a local page server:
windows open where asked, close only when told, keep keys from their pages,
stay on their site, and never outlive their parent."""
import http.server
import json
import os
import re
import signal
import subprocess
import tempfile
import threading
import unittest

from harness import ENGINE_ENV, TOOLS_DIR, alive, descendants, wait_for

HOST = os.environ.get("OVRA_WEB_HOST", "")
PAGE = b"""<html><body style="margin:0;background:#36c"><script>
const w = new URLSearchParams(location.search).get('w');
document.addEventListener('keydown', e => fetch('/key?w=' + w + '&k=' + e.key));
</script></body></html>"""


class Pages:
    """Serves PAGE at every path and records the paths asked for."""

    def __init__(self):
        self.paths = []
        pages = self

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                pages.paths.append(self.path)
                try:
                    self.send_response(200)
                    self.send_header("Content-Type", "text/html")
                    self.end_headers()
                    self.wfile.write(PAGE)
                except OSError:
                    pass  # a page that navigated on before the answer

            def log_message(self, *args):
                pass

        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        threading.Thread(target=self.server.serve_forever, daemon=True).start()

    def url(self, path):
        return "http://127.0.0.1:%d%s" % (self.server.server_port, path)

    def saw(self, fragment):
        return [p for p in self.paths if fragment in p]


class Host:
    """One ovra-web with its event lines gathered on a thread."""

    def __init__(self, display, parent=None):
        env = dict(os.environ, DISPLAY=display, **ENGINE_ENV)
        if parent:
            env["OVRA_WEB_PARENT"] = str(parent)
        self.stderr = tempfile.TemporaryFile(mode="w+")
        self.proc = subprocess.Popen([HOST], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                     stderr=self.stderr, env=env, text=True)
        self.events, self.taken = [], set()
        threading.Thread(target=self._read, daemon=True).start()

    def _read(self):
        for line in self.proc.stdout:
            self.events.append(json.loads(line))
        self.proc.stdout.close()

    def send(self, **command):
        self.proc.stdin.write(json.dumps(command) + "\n")
        self.proc.stdin.flush()

    def expect(self, name, wid=None, timeout=60):
        """The first event of that name (and id) not yet expected."""
        def find():
            for i, e in enumerate(list(self.events)):
                if i not in self.taken and e["event"] == name and wid in (None, e.get("id")):
                    self.taken.add(i)
                    return e
            return None
        event = wait_for(lambda: find() or self.proc.poll() is not None, timeout=timeout)
        if event is True or not event:
            self.stderr.seek(0)
            raise AssertionError("no %s event for %s; got %s, exit %s, stderr:\n%s" % (
                name, wid, self.events, self.proc.poll(), self.stderr.read()[-2000:]))
        return event

    def open(self, wid, url, rect=(100, 50, 400, 300), size=None, **flags):
        command = dict(cmd="open", id=wid, url=url, flags=flags, state="normal")
        command.update({k: v for k, v in (("rect", rect), ("size", size)) if v})
        self.send(**command)
        self.expect("loaded", wid)
        return self.expect("mapped", wid)["xid"]

    def settle(self, wid, pages):
        """Returns once the host has carried out every command sent before:
        commands run in order, and this one ends in a request."""
        mark = "/settled-%d" % len(pages.paths)
        self.send(cmd="eval", id=wid, script="fetch('%s')" % mark)
        wait_for(lambda: pages.saw(mark))

    def end(self):
        if not self.proc.stdin.closed:
            self.proc.stdin.close()
        self.proc.wait(timeout=30)
        self.stderr.close()


class WebHostTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        if not HOST:
            raise unittest.SkipTest("OVRA_WEB_HOST not set")
        # A display of its own: grabs and focus here touch no other test.
        cls.xvfb = None
        for n in range(150, 250):
            if os.path.exists("/tmp/.X%d-lock" % n) or os.path.exists("/tmp/.X11-unix/X%d" % n):
                continue
            cls.display = ":%d" % n
            cls.env = dict(os.environ, DISPLAY=cls.display)
            cls.xvfb = subprocess.Popen(["Xvfb", cls.display, "-screen", "0", "1280x800x24",
                                         "-nolisten", "tcp", "-noreset"],
                                        stderr=subprocess.DEVNULL)
            if wait_for(lambda: cls.xvfb.poll() is not None or subprocess.run(
                    ["xwininfo", "-root"], env=cls.env, capture_output=True).returncode == 0) \
                    and cls.xvfb.poll() is None:
                break
            cls.xvfb.kill()
            cls.xvfb.wait()
            cls.xvfb = None
        if not cls.xvfb:
            raise RuntimeError("no private Xvfb could be started")
        cls.pages = Pages()

    @classmethod
    def tearDownClass(cls):
        cls.pages.server.shutdown()
        cls.xvfb.terminate()
        cls.xvfb.wait()

    @property
    def host(self):
        if not hasattr(self, "_host"):
            self._host = Host(self.display)
            self.addCleanup(self._host.end)
        return self._host

    def run_x(self, *command):
        return subprocess.run(command, env=self.env, capture_output=True, text=True, timeout=30)

    def window_info(self, xid):
        out = self.run_x("xwininfo", "-id", str(xid))
        if out.returncode != 0:
            return None
        return dict(re.findall(r"^\s*([A-Za-z -]+):\s+(\S+)", out.stdout, re.M))

    def key(self, *keys):
        self.run_x("xdotool", "key", *keys)

    def test_window_opens_where_asked_and_closes_only_when_told(self):
        xid = self.host.open("main", self.pages.url("/main"), rect=[120, 60, 400, 300])
        info = self.window_info(xid)
        self.assertEqual([info["Absolute upper-left X"], info["Absolute upper-left Y"],
                          info["Width"], info["Height"], info["Map State"]],
                         ["120", "60", "400", "300", "IsViewable"])
        strict = self.host.open("strict", self.pages.url("/strict"), refuse_close=True)
        close_tool = os.path.join(TOOLS_DIR, "ovra-close-window")
        # Messages reach the host in order: once main's request is reported,
        # strict's, sent first, has been dropped.
        for target in (strict, xid):
            self.run_x(close_tool, str(target))
        self.host.expect("close_requested", "main")
        self.assertNotIn("strict", [e.get("id") for e in self.host.events
                                    if e["event"] == "close_requested"])
        self.assertEqual(self.window_info(xid)["Map State"], "IsViewable")
        self.host.send(cmd="close", id="main")
        self.host.expect("gone", "main")
        self.assertIsNone(self.window_info(xid))
        self.assertIsNotNone(self.window_info(strict))

    def test_overlay_stays_on_top_and_lets_the_pointer_through(self):
        under = self.host.open("under", self.pages.url("/under"), rect=[0, 0, 600, 400])
        overlay = self.host.open("overlay", self.pages.url("/overlay"), rect=[0, 0, 600, 400],
                                 keep_raised=True, click_through=True, no_focus=True)
        self.host.send(cmd="raise", id="under")
        self.host.settle("under", self.pages)

        def stacked_first():  # xwininfo lists the root's children top first
            listed = [int(w, 16) for w in re.findall(r"^\s+(0x[0-9a-f]+)", self.run_x(
                "xwininfo", "-root", "-children").stdout, re.M)]
            return [w for w in listed if w in (under, overlay)][0]
        self.assertTrue(wait_for(lambda: stacked_first() == overlay))
        # The server finds the window under the pointer by input shapes.
        self.run_x("xdotool", "mousemove", "300", "200")
        pointer = self.run_x("xdotool", "getmouselocation", "--shell").stdout
        self.assertIn("WINDOW=%d\n" % under, pointer)

    def test_notification_waits_off_screen_for_its_geometry(self):
        xid = self.host.open("note", self.pages.url("/note"), rect=None, size=[300, 100],
                             start_offscreen=True, tooltip=True)
        self.assertEqual(self.window_info(xid)["Absolute upper-left X"], "-10000")
        self.host.send(cmd="geometry", id="note", rect=[900, 600, 320, 120])
        self.assertTrue(wait_for(lambda: [self.window_info(xid)[k] for k in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]
            == ["900", "600", "320", "120"]))

    def press_until_seen(self, key, wid):
        # A key pressed just after a script has run can wait in the engine
        # for the next input event: press until one arrives.
        return wait_for(lambda: self.key(key) or self.pages.saw("/key?w=%s&k=%s" % (wid, key)),
                        timeout=30, interval=0.5)

    def test_swallowed_keys_never_reach_the_page(self):
        self.host.open("keys", self.pages.url("/keys?w=keys"))
        self.assertTrue(self.press_until_seen("a", "keys"))
        self.host.send(cmd="policy", id="keys", flags={"swallow_keys": True})
        self.host.settle("keys", self.pages)
        # Were the gate open, b would come out behind the Escape at the latest.
        self.key("b", "Escape")
        self.host.expect("escape", "keys")
        self.host.send(cmd="policy", id="keys", flags={})
        self.assertTrue(self.press_until_seen("c", "keys"))
        self.assertEqual(set(self.pages.saw("/key?w=keys")),
                         {"/key?w=keys&k=a", "/key?w=keys&k=c"})

    def test_keyboard_grab_takes_keys_from_other_clients(self):
        xev = subprocess.Popen(["xev", "-event", "keyboard"], env=self.env, text=True,
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.addCleanup(xev.kill)
        typed = []

        def read_presses():
            pressing = False
            for line in xev.stdout:
                if not line.startswith(" "):
                    pressing = line.startswith("KeyPress")
                typed.extend(re.findall(r"keysym 0x\w+, (\w+)\)", line) if pressing else [])
        threading.Thread(target=read_presses, daemon=True).start()
        xev_window = wait_for(lambda: self.run_x("xdotool", "search", "--name", "Event Tester")
                              .stdout.split())[0]
        self.run_x("xdotool", "windowfocus", "--sync", xev_window)
        self.host.open("rest", self.pages.url("/rest?w=rest"), no_focus=True, swallow_keys=True,
                       grab_keyboard=True, frameless=True, rect=[0, 0, 1280, 800])
        self.key("d", "Escape")
        self.host.expect("escape", "rest")
        self.host.send(cmd="hide", id="rest")
        self.host.settle("rest", self.pages)
        self.key("e")
        self.assertTrue(wait_for(lambda: "e" in typed))
        self.assertEqual([k for k in typed if k in ("d", "e", "Escape")], ["e"])

    def test_page_stays_on_its_site(self):
        other = Pages()
        self.addCleanup(other.server.shutdown)
        self.host.open("nav", self.pages.url("/first"))
        self.host.send(cmd="eval", id="nav", script="window.open('/popup');"
                       "location.href = '%s';" % other.url("/away"))
        self.host.send(cmd="eval", id="nav", script="location.href = '/second';")
        self.host.expect("loaded", "nav")
        self.assertEqual((other.paths, self.pages.saw("/popup"), self.pages.saw("/second")),
                         ([], [], ["/second"]))

    def test_closed_input_ends_host_and_engine_and_leaves_home_empty(self):
        xid = self.host.open("main", self.pages.url("/main"))
        helpers = descendants(self.host.proc.pid)
        self.assertTrue(helpers)
        self.host.proc.stdin.close()
        self.assertEqual(self.host.proc.wait(timeout=30), 0)
        self.host.expect("gone", "main")
        self.assertIsNone(self.window_info(xid))
        self.assertTrue(wait_for(lambda: not any(map(alive, helpers)), timeout=30))
        home = os.environ.get("HOME", "")
        if os.environ.get("OVRA_TEST_TMP"):
            self.assertEqual([f for _, _, files in os.walk(home) for f in files], [])

    def test_killed_parent_takes_host_and_windows_along(self):
        # A stand-in for ovra starts the host on a pipe this test also holds,
        # so that the host's input stays open when the stand-in dies.
        commands, command_end = os.pipe()
        parent = subprocess.Popen(
            ["/usr/bin/python3", "-c", "import os,subprocess,sys,time\n"
             "os.environ['OVRA_WEB_PARENT']=str(os.getpid())\n"
             "subprocess.Popen([sys.argv[1]],stdin=int(sys.argv[2]));time.sleep(600)",
             HOST, str(commands)], pass_fds=(commands,), stdout=subprocess.PIPE, text=True,
            env=dict(self.env, **ENGINE_ENV))
        os.close(commands)
        self.addCleanup(parent.stdout.close)
        self.addCleanup(parent.kill)
        self.addCleanup(os.close, command_end)
        os.write(command_end, json.dumps({"cmd": "open", "id": "p", "url": self.pages.url("/p"),
                                          "flags": {"refuse_close": True}}).encode() + b"\n")
        lines = []
        threading.Thread(target=lambda: lines.extend(parent.stdout), daemon=True).start()
        mapped = wait_for(lambda: [json.loads(l) for l in lines if '"mapped"' in l], timeout=60)
        self.assertTrue(mapped, lines)
        tree = descendants(parent.pid)
        parent.kill()
        parent.wait()
        # How fast is for the benchmark; a loaded machine may take seconds.
        wait_for(lambda: not any(map(alive, tree)), timeout=30)
        self.assertEqual([p for p in tree if alive(p)], [])
        self.assertIsNone(self.window_info(mapped[0]["xid"]))

    def test_host_started_by_another_process_leaves_at_once(self):
        host = Host(self.display, parent=1)
        self.addCleanup(host.end)
        self.assertEqual(host.proc.wait(timeout=30), 1)


if __name__ == "__main__":
    unittest.main()
