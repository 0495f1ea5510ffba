#!/usr/bin/python3
"""Clicks a point of an X window and waits until a pixel of it changes.

    window-answer.py <window id> <click x> <click y> <pixel x> <pixel y> [timeout s]

Prints the milliseconds from the click to the changed pixel, which is how
long the window took to answer; exits 1 when the pixel has not changed
within the timeout. The pixel is read straight from the X server, so the
reading costs well under a millisecond and does not hide the answer time.
"""
import sys
import time

from Xlib import X, display
from Xlib.ext import xtest


def pixel(window, x, y):
    return window.get_image(x, y, 1, 1, X.ZPixmap, 0xFFFFFFFF).data


def main():
    if len(sys.argv) not in (6, 7):
        sys.exit(__doc__)
    window_id, click_x, click_y, pixel_x, pixel_y = (int(a, 0) for a in sys.argv[1:6])
    timeout = float(sys.argv[6]) if len(sys.argv) == 7 else 20.0
    screen = display.Display()
    window = screen.create_resource_object("window", window_id)
    before = pixel(window, pixel_x, pixel_y)
    window.warp_pointer(click_x, click_y)
    screen.sync()
    start = time.monotonic()
    xtest.fake_input(screen, X.ButtonPress, 1)
    xtest.fake_input(screen, X.ButtonRelease, 1)
    screen.sync()
    while pixel(window, pixel_x, pixel_y) == before:
        if time.monotonic() - start > timeout:
            sys.exit(1)
        time.sleep(0.001)
    print(round((time.monotonic() - start) * 1000))


if __name__ == "__main__":
    main()
