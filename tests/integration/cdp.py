"""A small client of the DevTools protocol that the window host offers when
QTWEBENGINE_REMOTE_DEBUGGING names a port: lists the pages and evaluates
script in one of them. Standard library only."""
import base64
import json
import os
import socket
import struct
import urllib.request


def pages(port):
    """The host's pages as the DevTools list gives them (url, webSocketDebuggerUrl)."""
    try:
        with urllib.request.urlopen("http://127.0.0.1:%d/json/list" % port, timeout=5) as reply:
            return [p for p in json.load(reply) if p.get("type") == "page"]
    except OSError:
        return []


def pages_named(port, window_prefix):
    """The pages whose window name (the `window` query) starts with the prefix."""
    return [p for p in pages(port) if "window=" + window_prefix in p.get("url", "")]


class Page:
    """One page's debugging socket: a WebSocket with the smallest framing."""

    def __init__(self, address):
        host_port, path = address[len("ws://"):].split("/", 1)
        host, port = host_port.split(":")
        self.sock = socket.create_connection((host, int(port)), timeout=10)
        key = base64.b64encode(os.urandom(16)).decode()
        self.sock.sendall(("GET /%s HTTP/1.1\r\nHost: %s\r\nUpgrade: websocket\r\n"
                           "Connection: Upgrade\r\nSec-WebSocket-Key: %s\r\n"
                           "Sec-WebSocket-Version: 13\r\n\r\n" % (path, host_port, key)).encode())
        head = b""
        while b"\r\n\r\n" not in head:
            head += self.sock.recv(1)
        if b" 101 " not in head.split(b"\r\n")[0]:
            raise RuntimeError("DevTools refused the socket: %r" % head[:80])
        self.next_id = 0

    def _send(self, text):
        data = text.encode()
        mask = os.urandom(4)
        length = len(data)
        if length < 126:
            header = struct.pack("!BB", 0x81, 0x80 | length)
        elif length < 65536:
            header = struct.pack("!BBH", 0x81, 0x80 | 126, length)
        else:
            header = struct.pack("!BBQ", 0x81, 0x80 | 127, length)
        masked = bytes(b ^ mask[i % 4] for i, b in enumerate(data))
        self.sock.sendall(header + mask + masked)

    def _exact(self, count):
        data = b""
        while len(data) < count:
            chunk = self.sock.recv(count - len(data))
            if not chunk:
                raise ConnectionError("DevTools closed the socket")
            data += chunk
        return data

    def _receive(self):
        first, second = self._exact(2)
        length = second & 0x7F
        if length == 126:
            length = struct.unpack("!H", self._exact(2))[0]
        elif length == 127:
            length = struct.unpack("!Q", self._exact(8))[0]
        return self._exact(length).decode()

    def evaluate(self, expression):
        """The value of a script expression in the page (JSON values only)."""
        self.next_id += 1
        self._send(json.dumps({"id": self.next_id, "method": "Runtime.evaluate",
                               "params": {"expression": expression, "returnByValue": True}}))
        while True:
            message = json.loads(self._receive())
            if message.get("id") == self.next_id:
                result = message.get("result", {})
                if "exceptionDetails" in result:
                    raise RuntimeError("script failed: %s" % result["exceptionDetails"])
                return result.get("result", {}).get("value")

    def close(self):
        self.sock.close()


def evaluate_in(port, window_prefix, expression):
    """Evaluates in each page of the windows named so; returns the values."""
    values = []
    for entry in pages_named(port, window_prefix):
        page = Page(entry["webSocketDebuggerUrl"])
        try:
            values.append(page.evaluate(expression))
        finally:
            page.close()
    return values
