"""Every window lies wholly on the screen with its frame, and its texts in it, on any screen."""
import subprocess
import unittest

from machine import BUILD, Machine, wait_until

WINDOWS = "GST GFM ICF TT WINX HH HS SV RB ML CHN BK ABT".split()
MESSAGES = ["You Don't have enough Money !",
            "You don't have enough money ! Do you wish to borrow the money from the bank ?"]
SCREENS = {
    "640x480": [{}],
    "1024x600": [{}],
    "768x1366": [{}],
    "1366x768": [{"QT_SCALE_FACTOR": "2"}, {"QT_FONT_DPI": "192"},
                 {"QT_SCALE_FACTOR": "2", "QT_FONT_DPI": "192"}],
    "3840x2160": [{}, {"QT_SCALE_FACTOR": "1.5"}, {"QT_SCALE_FACTOR": "2"}],
}


class Exhibition:
    def __init__(self, machine, settings):
        self.machine = machine
        machine.environment.update(settings)
        self.process = machine.start(str(BUILD / "zelvo-exhibit"), stdin=subprocess.PIPE,
                                     stdout=subprocess.PIPE)

    def show(self, what):
        """The number of the native window and the texts that do not fit into it."""
        self.process.stdin.write(what.encode() + b"\n")
        self.process.stdin.flush()
        window, *clipped = self.process.stdout.readline().decode().split()
        return window, clipped

    def frame(self, window):
        """Left, top, right and bottom of a window with its frame; None while it is not on the
        screen."""
        said = self.machine.run("xwininfo", "-id", window, check=False)
        if "IsViewable" not in said:
            return None
        values = dict(line.strip().split(":", 1) for line in said.splitlines() if ":" in line)
        left, top, width, height = (int(values[name]) for name in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        extents = self.machine.run("xprop", "-id", window, "_NET_FRAME_EXTENTS")
        if "=" not in extents:
            return None
        west, east, north, south = map(int, extents.split("=")[1].split(","))
        return left - west, top - north, left + width + east, top + height + south

    def end(self):
        self.process.communicate()


class Screens(unittest.TestCase):
    def check(self, size):
        width, height = map(int, size.split("x"))
        with Machine(size=size) as machine:
            for settings in SCREENS[size]:
                exhibition = Exhibition(machine, settings)
                for what in WINDOWS + ["message " + text for text in MESSAGES]:
                    with self.subTest(what, **settings):
                        window, clipped = exhibition.show(what)
                        self.assertEqual(clipped, [])

                        def is_on_screen():
                            frame = exhibition.frame(window)
                            return (frame is not None and frame[0] >= 0 and frame[1] >= 0
                                    and frame[2] <= width and frame[3] <= height)
                        wait_until(is_on_screen, f"{exhibition.frame(window)} lies on the screen", 10)
                exhibition.end()
                for name in settings:
                    del machine.environment[name]


def on(size):
    return lambda self: self.check(size)


for size in SCREENS:
    setattr(Screens, "test_" + size, on(size))

if __name__ == "__main__":
    unittest.main()
