#!/usr/bin/env python3
"""Draws what a command prints on a terminal as an SVG picture. Nobody needs it to build or to test.

    docs/pictures/terminal_picture.py OUT.svg COLUMNS LINES COMMAND...

The command runs on a terminal of that many columns; the picture shows its first lines.
"""

import fcntl
import os
import pty
import re
import struct
import sys
import termios
import unicodedata
from html import escape

CELL_WIDTH = 8.4
LINE_HEIGHT = 19
MARGIN = 14
BACKGROUND = "#1d2024"
FOREGROUND = "#d4d7db"
RED = "#ff5f56"
SEQUENCE = re.compile(r"\x1b\[([0-9;]*)m")


def run(columns, command):
    """The bytes that the command writes to a terminal of that width."""
    child, terminal = pty.fork()
    if child == 0:
        os.environ.update(TERM="xterm-256color", COLORTERM="truecolor", LC_ALL="C.UTF-8")
        os.environ.pop("NO_COLOR", None)
        fcntl.ioctl(0, termios.TIOCSWINSZ, struct.pack("HHHH", 50, columns, 0, 0))
        os.execvp(command[0], command)
    output = b""
    while True:
        try:
            block = os.read(terminal, 65536)
        except OSError:
            break
        if not block:
            break
        output += block
    os.waitpid(child, 0)
    return output.decode("utf-8").replace("\r\n", "\n")


def width(text):
    """Columns of the screen."""
    return sum(
        0 if unicodedata.combining(c) else 2 if unicodedata.east_asian_width(c) in "WF" else 1 for c in text
    )


def style(codes, current):
    """The style after a sequence: foreground, background, weight."""
    foreground, background, weight = current
    numbers = [int(n or 0) for n in codes.split(";")]
    if numbers[:2] == [48, 2]:
        return foreground, "#%02x%02x%02x" % tuple(numbers[2:5]), weight
    for number in numbers:
        if number == 0:
            foreground, background, weight = FOREGROUND, None, "normal"
        elif number == 1:
            weight = "bold"
        elif number in (31, 91):
            foreground = RED
    return foreground, background, weight


def draw_line(line, row):
    """The elements of one line."""
    elements = []
    column = 0
    current = (FOREGROUND, None, "normal")
    top = MARGIN + row * LINE_HEIGHT
    for index, part in enumerate(SEQUENCE.split(line)):
        if index % 2 == 1:
            current = style(part, current)
            continue
        foreground, background, weight = current
        if background:
            elements.append(
                f'<rect x="{MARGIN + column * CELL_WIDTH:.1f}" y="{top + 2}" '
                f'width="{width(part) * CELL_WIDTH:.1f}" height="{LINE_HEIGHT - 4}" fill="{background}"/>'
            )
        for word in re.finditer(r"\S+(?: \S+)*", part):
            x = MARGIN + (column + width(part[: word.start()])) * CELL_WIDTH
            length = width(word.group()) * CELL_WIDTH
            elements.append(
                f'<text x="{x:.1f}" y="{top + LINE_HEIGHT - 5}" fill="{foreground}" '
                f'font-weight="{weight}" textLength="{length:.1f}">{escape(word.group())}</text>'
            )
        column += width(part)
    return elements


def main():
    out, columns, lines, command = sys.argv[1], int(sys.argv[2]), int(sys.argv[3]), sys.argv[4:]
    shown = run(columns, command).split("\n")[:lines]
    elements = [e for row, line in enumerate(shown) for e in draw_line(line, row)]
    picture_width = 2 * MARGIN + columns * CELL_WIDTH
    picture_height = 2 * MARGIN + len(shown) * LINE_HEIGHT
    with open(out, "w", encoding="utf-8") as file:
        file.write(
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{picture_width:.0f}" '
            f'height="{picture_height}" font-family="DejaVu Sans Mono, Menlo, Consolas, monospace" '
            f'font-size="14" xml:space="preserve">\n'
            f'<rect width="100%" height="100%" rx="8" fill="{BACKGROUND}"/>\n'
            + "\n".join(elements)
            + "\n</svg>\n"
        )


if __name__ == "__main__":
    main()
