#!/usr/bin/python3
"""Stands in for ovra-web where a test needs exact event sequences: every
open is answered with "loaded", every close with a stale "escape" and then
"gone", and an eval's script is a JSON list of events to send as they are."""
import json
import sys


def send(event):
    sys.stdout.write(json.dumps(event) + "\n")
    sys.stdout.flush()


send({"event": "ready"})
for line in sys.stdin:
    command = json.loads(line)
    wid = command.get("id")
    if command["cmd"] == "open":
        send({"event": "loaded", "id": wid, "ok": True})
    elif command["cmd"] == "close":
        send({"event": "escape", "id": wid})
        send({"event": "gone", "id": wid})
    elif command["cmd"] == "eval":
        for event in json.loads(command["script"]):
            send(event)
