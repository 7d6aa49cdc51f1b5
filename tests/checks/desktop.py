"""Drives the desktop program on a display of its own, as a user's hands would: with the pointer and the
keys alone. What is on the screen it reads from the file that SEQUENCE_INDEX_PLACES names."""

import json
import os
import signal
import subprocess
import tempfile
import time

GIVEN_UP_AFTER = 20

# Roles of QAccessible.
WINDOW, MENU_ITEM, CELL, LABEL, FIELD, CHECKBOX, SLIDER = 9, 12, 29, 41, 42, 44, 51


def wait_for(what, condition):
    """What `condition` gives as soon as it is true."""
    end = time.monotonic() + GIVEN_UP_AFTER
    while True:
        found = condition()
        if found:
            return found
        if time.monotonic() > end:
            raise AssertionError(f"waited in vain for {what}")
        time.sleep(0.02)


class Display:
    """A screen in memory, with a number that no other has."""

    def __init__(self, size):
        reading, writing = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{size}x24", "-nolisten", "tcp"],
            pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            number = answer.readline().strip()
        if not number:
            raise AssertionError("there is no screen in memory")
        self.name = ":" + number

    def take_picture(self, file, *options):
        subprocess.run(["import", "-display", self.name, "-window", "root", *options, file], check=True)

    def close(self):
        self.server.terminate()
        self.server.wait()


class Desktop:
    """The program, running. `folder` becomes its home."""

    def __init__(self, program, display, folder, arguments, **environment):
        self.display = display
        self.folder = folder
        self.file = os.path.join(folder, "places.json")
        self.places = []
        # Of a program that ran here before.
        if os.path.exists(self.file):
            os.remove(self.file)
        # Nothing of the user's own: neither settings nor scale nor theme.
        kept = {name: os.environ[name] for name in os.environ if not name.startswith(("QT_", "XDG_"))}
        kept |= {"DISPLAY": display.name, "QT_QPA_PLATFORM": "xcb", "HOME": folder, "LC_ALL": "C.UTF-8",
                 "XDG_RUNTIME_DIR": folder, "SEQUENCE_INDEX_PLACES": self.file}
        self.errors = tempfile.TemporaryFile("w+")
        self.process = subprocess.Popen([program, "window", *arguments], env=kept | environment,
                                        stderr=self.errors)

    def look(self):
        """Reads anew what is on the screen."""
        if self.process.poll() is not None:
            raise AssertionError(f"the program has ended: {self.process.returncode} {self.read_errors()}")
        try:
            with open(self.file, encoding="utf-8") as file:
                self.places = json.load(file)
        except FileNotFoundError:
            self.places = []
        return self.places

    def read_errors(self):
        self.errors.seek(0)
        return self.errors.read()

    def find_all(self, **wanted):
        return [place for place in self.look()
                if all(place.get(key) == value for key, value in wanted.items())]

    def find(self, **wanted):
        return next(iter(self.find_all(**wanted)), None)

    def wait(self, **wanted):
        return wait_for(wanted, lambda: self.find(**wanted))

    def wait_until_gone(self, **wanted):
        wait_for(f"the end of {wanted}", lambda: not self.find_all(**wanted))

    def names(self, role, **wanted):
        return [place["name"] for place in self.find_all(role=role, **wanted)]

    def wait_until_read(self, name):
        """Waits until a clip is in the table and all files are read."""
        self.wait(role=WINDOW, active=True)
        self.wait(role=CELL, name=name)
        self.wait_until_gone(name="Progress")

    def do(self, *words):
        subprocess.run(["xdotool", *map(str, words)], check=True,
                       env=os.environ | {"DISPLAY": self.display.name})

    def click(self, place, button=1):
        self.click_at(*middle(place), button)

    def click_at(self, x, y, button=1):
        self.do("mousemove", x, y, "click", button)

    def drag(self, start, end):
        self.do("mousemove", *start, "mousedown", 1)
        self.do("mousemove", *((a + b) // 2 for a, b in zip(start, end)), "mousemove", *end)
        self.do("mouseup", 1)

    def press(self, *keys):
        self.do("key", *keys)

    def type(self, text):
        self.do("type", "--delay", 2, text)

    def activate(self, title):
        """Brings the keys to a window, as a window manager does when a dialog ends."""
        self.do("search", "--onlyvisible", "--name", title, "windowfocus", "--sync")
        self.wait(role=WINDOW, active=True)

    def wait_for_end(self):
        return self.process.wait(GIVEN_UP_AFTER)

    def end(self, number=signal.SIGKILL):
        if self.process.poll() is None:
            self.process.send_signal(number)
        self.process.wait()
        self.errors.close()


def middle(place):
    x, y, width, height = place["area"]
    return x + width // 2, y + height // 2
