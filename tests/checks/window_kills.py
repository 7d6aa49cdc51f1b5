#!/usr/bin/env python3
"""window_kills.py PROGRAM

Ends the desktop program at any moment, by request and by force: it goes at once, by that signal and by no
other, and an exported file is whole or is not there.
"""

import json
import os
import random
import signal
import subprocess
import sys
import tempfile
import time

sys.dont_write_bytecode = True

from desktop import CELL, FIELD, WINDOW, Desktop, Display  # noqa: E402

CLIPS = 5000
OPENINGS = 4
EXPORTS = 4
# Of the time that a step takes at most, the signal comes at a random moment.
OPENING_SECONDS, EXPORT_SECONDS = 1.2, 0.3


def time_of(frames):
    return {"OTIO_SCHEMA": "RationalTime.1", "rate": 25, "value": frames}


def write_timeline(file):
    clips = [{"OTIO_SCHEMA": "Clip.2", "name": f"Clip {i}",
              "source_range": {"OTIO_SCHEMA": "TimeRange.1", "start_time": time_of(0),
                               "duration": time_of(25)}}
             for i in range(CLIPS)]
    track = {"OTIO_SCHEMA": "Track.1", "kind": "Video", "children": clips}
    stack = {"OTIO_SCHEMA": "Stack.1", "children": [track]}
    with open(file, "w", encoding="utf-8") as timeline:
        json.dump({"OTIO_SCHEMA": "Timeline.1", "name": "Long", "tracks": stack}, timeline)


def end_at_random(desktop, seconds, number):
    time.sleep(random.uniform(0, seconds))
    desktop.process.send_signal(number)
    ended_by = -desktop.wait_for_end()
    if ended_by != number:
        raise AssertionError(f"ended by {ended_by}, not by {number}")


def confirm_export(desktop, output):
    desktop.wait(role=WINDOW, active=True)
    desktop.wait(role=CELL, name="Clip 0")
    desktop.press("ctrl+e")
    desktop.wait(role=FIELD, name="Name", focused=True)
    desktop.press("ctrl+a")
    desktop.type(os.path.basename(output).removesuffix(".csv"))
    desktop.press("Return")


def end_while_opening(program, display, folder, timeline):
    for i in range(OPENINGS):
        desktop = Desktop(program, display, folder, [timeline])
        try:
            end_at_random(desktop, OPENING_SECONDS, (signal.SIGTERM, signal.SIGKILL)[i % 2])
        finally:
            desktop.end()


def end_in_dialog(program, display, folder, timeline):
    """Each of the windows that wait for an answer."""
    for keys, number in (("ctrl+e", signal.SIGTERM), ("ctrl+shift+f", signal.SIGKILL),
                         ("ctrl+o", signal.SIGTERM)):
        desktop = Desktop(program, display, folder, [timeline])
        try:
            desktop.wait(role=WINDOW, active=True)
            desktop.wait(role=CELL, name="Clip 0")
            desktop.press(keys)
            desktop.wait(name="Cancel")
            end_at_random(desktop, 0, number)
        finally:
            desktop.end()


def end_while_exporting(program, display, folder, timeline):
    whole = subprocess.run([program, "export", timeline, "-o", "-"], check=True, stdout=subprocess.PIPE).stdout
    for i in range(EXPORTS):
        output = os.path.join(folder, f"index{i}.csv")
        desktop = Desktop(program, display, folder, [timeline])
        try:
            confirm_export(desktop, output)
            end_at_random(desktop, EXPORT_SECONDS, (signal.SIGTERM, signal.SIGKILL)[i % 2])
        finally:
            desktop.end()
        if not os.path.exists(output):
            continue
        with open(output, "rb") as written:
            if written.read() != whole:
                raise AssertionError("half an index was written")


def main():
    program = os.path.abspath(sys.argv[1])
    seed = random.randrange(2**32)
    print("seed", seed)
    random.seed(seed)
    display = Display("1280x800")
    try:
        with tempfile.TemporaryDirectory() as folder:
            timeline = os.path.join(folder, "long.otio")
            write_timeline(timeline)
            end_while_opening(program, display, folder, timeline)
            end_in_dialog(program, display, folder, timeline)
            end_while_exporting(program, display, folder, timeline)
    finally:
        display.close()


main()
