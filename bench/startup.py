"""Starts two programs in turns and compares time and memory; bench/startup calls it.

Usage: startup.py DESKTOP_WINDOW ROUNDS LOADER FLOOR_PROGRAM ITS_TITLE PROGRAM ITS_TITLE

The X server tells when windows come onto the device's screen, and of everything that is drawn
there. X11 is called directly, since its libraries are there wherever Wine is.
"""

import ctypes
import select
import statistics
import subprocess
import sys
import time

SUBSTRUCTURE_NOTIFY = 1 << 19
MAP_NOTIFY = 19
RAW_RECTANGLES = 0

START_LIMIT = 30.0  # Seconds until something comes onto the screen.
STILL = 0.4  # Seconds in which nothing happens, after which a start counts as done.

LONGEST_START = 1.6  # Times the floor.
MOST_MEMORY = 7.0  # MB more than the floor.

x11 = ctypes.CDLL("libX11.so.6")
damage = ctypes.CDLL("libXdamage.so.1")
x11.XOpenDisplay.restype = ctypes.c_void_p
for call in (x11.XSelectInput, x11.XPending, x11.XNextEvent, x11.XConnectionNumber, x11.XSync,
             x11.XFetchName, damage.XDamageQueryExtension, damage.XDamageCreate):
    call.argtypes = [ctypes.c_void_p] + {
        "XSelectInput": [ctypes.c_ulong, ctypes.c_long],
        "XNextEvent": [ctypes.c_void_p],
        "XSync": [ctypes.c_int],
        "XFetchName": [ctypes.c_ulong, ctypes.POINTER(ctypes.c_char_p)],
        "XDamageQueryExtension": [ctypes.POINTER(ctypes.c_int)] * 2,
        "XDamageCreate": [ctypes.c_ulong, ctypes.c_int],
    }.get(call.__name__, [])


class XEvent(ctypes.Structure):
    """What map, unmap and damage events have in common, in the room of the largest event."""
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("sent", ctypes.c_int),
                ("display", ctypes.c_void_p), ("event", ctypes.c_ulong),
                ("window", ctypes.c_ulong), ("rest", ctypes.c_long * 18)]


class Screen:
    """The events of a device's screen: its windows are children of the desktop's window."""

    def __init__(self, desktop):
        self.display = x11.XOpenDisplay(None)
        if not self.display:
            sys.exit("startup.py: no display")
        # A window may be gone before it is asked for its name.
        self.on_error = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(
            lambda display, error: 0)
        x11.XSetErrorHandler(self.on_error)
        first, error = ctypes.c_int(), ctypes.c_int()
        if not damage.XDamageQueryExtension(self.display, ctypes.byref(first), ctypes.byref(error)):
            sys.exit("startup.py: the X server does not tell of drawing")
        self.drawn = first.value
        x11.XSelectInput(self.display, desktop, SUBSTRUCTURE_NOTIFY)
        damage.XDamageCreate(self.display, desktop, RAW_RECTANGLES)
        x11.XSync(self.display, 0)

    def events(self, limit):
        """The time and the kind of each event, and its window, until none comes for limit() s."""
        event = XEvent()
        connection = x11.XConnectionNumber(self.display)
        while x11.XPending(self.display) or select.select([connection], [], [], limit())[0]:
            if x11.XPending(self.display):
                x11.XNextEvent(self.display, ctypes.byref(event))
                yield time.perf_counter(), event.type, event.window

    def settle(self):
        """Waits until the last program's windows are gone and nothing happens any more."""
        for _ in self.events(lambda: STILL):
            pass

    def title(self, window):
        name = ctypes.c_char_p()
        x11.XFetchName(self.display, window, ctypes.byref(name))
        return name.value.decode(errors="replace") if name.value else ""


def peak_memory(pid):
    with open(f"/proc/{pid}/status", encoding="ascii", errors="replace") as status:
        for line in status:
            if line.startswith("VmHWM:"):
                return int(line.split()[1]) / 1024
    return 0.0


class Start:
    """One start of a program, ended again: milliseconds and MB."""

    def __init__(self, screen, loader, program, title):
        screen.settle()
        began = time.perf_counter()
        process = subprocess.Popen([loader, program], stdin=subprocess.DEVNULL,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.shown = self.painted = None
        try:
            self.watch(screen, began, title)
            self.memory = peak_memory(process.pid)
            if self.shown is None or self.painted is None or process.poll() is not None:
                sys.exit(f"startup.py: {program} does not show its window")
        finally:
            process.kill()
            process.wait()

    def watch(self, screen, began, title):
        limit = START_LIMIT
        for when, kind, window in screen.events(lambda: limit):
            if kind == MAP_NOTIFY and self.shown is None and screen.title(window) == title:
                self.shown = (when - began) * 1000
            elif kind == screen.drawn and self.shown is not None:
                self.painted = (when - began) * 1000
                limit = STILL


def print_row(what, floor, ours, comparison, target):
    missed = "  MISSED" if comparison > target else ""
    print(f"{what:<44} {floor:10.3f} {ours:10.3f} {comparison:7.2f} {target:7.2f}{missed}")


def main():
    desktop, rounds, loader, *programs = sys.argv[1:]
    pairs = [programs[:2], programs[2:]]
    screen = Screen(int(desktop))
    for pair in pairs:  # Unmeasured: until the files are in memory.
        Start(screen, loader, *pair)
    starts = [[], []]
    for _ in range(int(rounds)):
        for of_program, pair in zip(starts, pairs):
            of_program.append(Start(screen, loader, *pair))

    def medians(measure):
        return [statistics.median(getattr(one, measure) for one in of) for of in starts]

    print(f"{'what':<44} {'floor ms':>10} {'ours ms':>10} {'ratio':>7} {'target':>7}")
    for what, measure in (("start to the window on the screen", "shown"),
                          ("start to everything painted", "painted")):
        floor, ours = medians(measure)
        print_row(what, floor, ours, ours / floor, LONGEST_START)
    print(f"{'what':<44} {'floor MB':>10} {'ours MB':>10} {'more':>7} {'target':>7}")
    floor, ours = medians("memory")
    print_row("peak memory", floor, ours, ours - floor, MOST_MEMORY)


main()
