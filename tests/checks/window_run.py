#!/usr/bin/env python3
"""window_run.py PROGRAM DEMO PICTURES

The program in a real window, from the first click to the exported file: rows, search, columns, slider,
checkbox, playhead, export. Pictures of the screen are left in the folder PICTURES, for people.
"""

import csv
import os
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True

from desktop import (CELL, CHECKBOX, FIELD, LABEL, MENU_ITEM, SLIDER, Desktop,  # noqa: E402
                     Display, middle, wait_for)

SEARCH = "ada"
COLUMN = "Tape Name"
OPEN = "Open the file afterwards"
# Measures of what is drawn without being a widget.
TIMELINE_NAMES_WIDTH, RULER_MIDDLE, HEADER_MIDDLE = 120, 14, 10


def check(what, is_so):
    if not is_so:
        raise AssertionError(f"not so: {what}")


def get_selected(desktop):
    """What stands in the selected rows."""
    return desktop.names(CELL, selected=True)


def select_rows(desktop):
    desktop.click(desktop.wait(role=CELL, name="Main title"))
    desktop.wait(name="1 of 110 Item(s) Selected")
    # In a panel that is worked in, the playhead goes to the one row that is selected.
    desktop.wait(name="Playhead time", value="01:00:01:00")
    desktop.press("shift+Down")
    desktop.wait(name="2 of 110 Item(s) Selected")


def select_in_timeline(desktop):
    desktop.click(desktop.wait(role=CHECKBOX, name="Update Timeline Selection"))
    desktop.wait(role=CHECKBOX, checked=True)
    desktop.click(desktop.wait(role=CELL, name="Bell"))
    desktop.wait(name="1 selected in the timeline")


def scale_rows(desktop):
    height = desktop.wait(role=CELL, name="Main title")["area"][3]
    slider = desktop.wait(role=SLIDER)
    x, y, width, _ = slider["area"]
    desktop.drag((x + 5, middle(slider)[1]), (x + width - 4, middle(slider)[1]))
    wait_for("higher rows", lambda: desktop.wait(role=CELL, name="Main title")["area"][3] > 2 * height)
    desktop.press("ctrl+0")
    wait_for("low rows", lambda: desktop.wait(role=CELL, name="Main title")["area"][3] == height)


def move_playhead(desktop):
    x, y, width, _ = desktop.wait(name="Timeline")["area"]
    before = get_selected(desktop)
    desktop.click_at(x + TIMELINE_NAMES_WIDTH + (width - TIMELINE_NAMES_WIDTH) // 20, y + RULER_MIDDLE)
    wait_for("rows at the playhead", lambda: get_selected(desktop) not in ([], before))
    check("the time has changed", not desktop.find(name="Playhead time", value="01:00:01:20"))


def search(desktop, count):
    desktop.press("ctrl+f")
    desktop.wait(role=FIELD, name="Search", focused=True)
    desktop.type(SEARCH)
    wait_for(f"{count} rows found",
             lambda: any(f"{count} Item" in name for name in desktop.names(LABEL)))
    # Letters that a text takes are no keys of the transport.
    check("nothing plays", desktop.find(name="Play"))


def choose_column(desktop):
    first = desktop.wait(role=CELL)["area"]
    count = len(desktop.find_all(role=CELL))
    desktop.click_at(first[0] + 60, first[1] - HEADER_MIDDLE, 3)
    desktop.wait(role=MENU_ITEM, name=COLUMN)
    desktop.press("Home")
    while not desktop.wait(role=MENU_ITEM, name=COLUMN).get("focused"):
        was_at = desktop.names(MENU_ITEM, focused=True)
        desktop.press("Down")
        wait_for("the next entry", lambda: desktop.names(MENU_ITEM, focused=True) != was_at)
    desktop.press("Return")
    desktop.wait_until_gone(role=MENU_ITEM, name=COLUMN)
    wait_for("one more column", lambda: len(desktop.find_all(role=CELL)) > count)


def export(desktop, output):
    desktop.press("ctrl+e")
    desktop.wait(role=FIELD, name="Name", focused=True)
    desktop.press("ctrl+a")
    desktop.type(os.path.basename(output).removesuffix(".csv"))
    desktop.wait(role=FIELD, name="Name", value=os.path.basename(output).removesuffix(".csv"))
    desktop.click(desktop.find(role=FIELD, name="Folder"))
    desktop.press("ctrl+a")
    desktop.type(os.path.dirname(output))
    desktop.wait(role=FIELD, name="Folder", value=os.path.dirname(output))
    desktop.press("alt+o")
    wait_for("no wish to open the file", lambda: not desktop.find(name=OPEN, checked=True))
    desktop.press("Return")
    wait_for("the exported file", lambda: os.path.exists(output))
    desktop.wait_until_gone(role=FIELD, name="Folder")


def export_by_command(program, demo, *options):
    """The file's bytes."""
    return subprocess.run([program, "export", demo, "--search", SEARCH, *options, "-o", "-"], check=True,
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout


def read_lines(output):
    return list(csv.reader(output.decode("utf-8-sig").splitlines()))


def run(program, demo, display, folder, pictures):
    take_picture = lambda name: display.take_picture(os.path.join(pictures, name))  # noqa: E731
    output = os.path.join(folder, "from the window.csv")
    count = len(read_lines(export_by_command(program, demo))) - 1
    desktop = Desktop(program, display, folder, [demo])
    try:
        desktop.wait_until_read("Harbour before dawn")
        take_picture("opened.png")
        select_rows(desktop)
        select_in_timeline(desktop)
        take_picture("selected.png")
        scale_rows(desktop)
        move_playhead(desktop)
        take_picture("playhead.png")
        search(desktop, count)
        choose_column(desktop)
        take_picture("searched.png")
        export(desktop, output)
        desktop.activate("demo.otio")
        desktop.press("ctrl+q")
        code = desktop.wait_for_end()
        check(f"the program ends well, not with {code}: {desktop.read_errors()}", code == 0)
    except BaseException:
        take_picture("failed.png")
        raise
    finally:
        desktop.end()
    with open(output, "rb") as file:
        written = file.read()
    columns = read_lines(written)[0]
    check("the chosen column is exported", COLUMN in columns)
    check("the command line exports the same",
          written == export_by_command(program, demo, "--columns", ",".join(columns)))


def main():
    program, demo, pictures = map(os.path.abspath, sys.argv[1:])
    os.makedirs(pictures, exist_ok=True)
    display = Display("1280x800")
    try:
        with tempfile.TemporaryDirectory() as folder:
            run(program, demo, display, folder, pictures)
    finally:
        display.close()


main()
