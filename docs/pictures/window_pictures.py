#!/usr/bin/env python3
"""Takes the pictures of the window, with the demo timeline in it. Nobody needs it to build or to test.

    docs/pictures/window_pictures.py PROGRAM [FOLDER [SCALE]]

It writes window-dark.png and window-light.png into FOLDER (this one), of 1280 by 800 points at SCALE (1)
pixels each. It needs Xvfb, xdotool and ImageMagick.
"""

import os
import sys
import tempfile

sys.dont_write_bytecode = True
HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
sys.path.insert(0, os.path.join(ROOT, "tests", "checks"))

from desktop import CELL, CHECKBOX, Desktop, Display, middle  # noqa: E402

WIDTH, HEIGHT = 1280, 800
# No dates: the same each time.
OPTIONS = ["-strip", "-define", "png:exclude-chunks=date,time", "-define", "png:compression-filter=0",
           "-define", "png:compression-level=9"]


def choose_theme(home, theme):
    folder = os.path.join(home, ".config", "sequence-index")
    os.makedirs(folder)
    with open(os.path.join(folder, "sequence-index.conf"), "w", encoding="utf-8") as settings:
        settings.write(f"[General]\ntheme={theme}\n")


def show_something(desktop, scale):
    """A row that is selected, and with it its clip in the timeline."""
    def click(place):
        desktop.click_at(*(scale * number for number in middle(place)))

    desktop.wait_until_read("Harbour before dawn")
    click(desktop.wait(role=CHECKBOX))
    desktop.wait(role=CHECKBOX, checked=True)
    click(desktop.wait(role=CELL, name="Ada opens the wheelhouse"))
    desktop.wait(name="1 selected in the timeline")
    desktop.wait(name="Playhead time", value="01:00:08:08")


def take(program, folder, theme, scale):
    display = Display(f"{WIDTH * scale}x{HEIGHT * scale}")
    try:
        with tempfile.TemporaryDirectory() as home:
            choose_theme(home, theme)
            demo = os.path.join(ROOT, "samples", "demo.otio")
            desktop = Desktop(program, display, home, [demo], QT_SCALE_FACTOR=str(scale))
            try:
                show_something(desktop, scale)
                display.take_picture(os.path.join(folder, f"window-{theme}.png"), *OPTIONS)
            finally:
                desktop.end()
    finally:
        display.close()


def main():
    program = os.path.abspath(sys.argv[1])
    folder = os.path.abspath(sys.argv[2]) if len(sys.argv) > 2 else HERE
    scale = int(sys.argv[3]) if len(sys.argv) > 3 else 1
    for theme in ("dark", "light"):
        take(program, folder, theme, scale)


main()
