"""Every window lies wholly on the screen with its frame, and its texts in it, on any screen, and
stays so when that changes."""
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


def frame_of(window, machine):
    """Left, top, right and bottom of a window with its frame; None while it is not on the screen."""
    said = machine.run("xwininfo", "-id", window, check=False)
    if "IsViewable" not in said:
        return None
    values = dict(line.strip().split(":", 1) for line in said.splitlines() if ":" in line)
    left, top, width, height = (int(values[name]) for name in (
        "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
    extents = machine.run("xprop", "-id", window, "_NET_FRAME_EXTENTS")
    if "=" not in extents:
        return None
    west, east, north, south = map(int, extents.split("=")[1].split(","))
    return left - west, top - north, left + width + east, top + height + south


def is_on_screen(window, machine, width, height):
    frame = frame_of(window, machine)
    return (frame is not None and frame[0] >= 0 and frame[1] >= 0
            and frame[2] <= width and frame[3] <= height)


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
                        wait_until(lambda: is_on_screen(window, machine, width, height),
                                   lambda: f"{frame_of(window, machine)} lies on the screen", 10)
                exhibition.end()
                for name in settings:
                    del machine.environment[name]


class OtherScreens(unittest.TestCase):
    def test_a_screen_that_becomes_smaller_takes_the_windows_along(self):
        with Machine(size="1280x960") as machine:
            game = machine.play()
            board = game.open_board()
            game.click("GFM.CMDHELP", board)
            setup = game.window("Zelvo Setup options")
            game.settled(setup)
            machine.run("xrandr", "--newmode", "small", "36", "800", "824", "896", "1024", "600",
                        "601", "603", "625")
            machine.run("xrandr", "--addmode", "screen", "small")
            machine.run("xrandr", "--output", "screen", "--mode", "small")
            for window in game.windows():
                wait_until(lambda: is_on_screen(window, machine, 800, 600),
                           lambda: f"{frame_of(window, machine)} lies on the screen", 10)
            left, _, width, _ = game.settled(setup)
            self.assertGreater(width, 700, "the setup is no smaller than it must be")
            board_left, _, board_width, _ = game.geometry(board)
            self.assertAlmostEqual(left + width / 2, board_left + board_width / 2, delta=2)

    def test_a_desktop_that_tiles_gives_the_board_the_whole_screen(self):
        with Machine(size="1280x960", wm=None) as machine:
            (machine.folder / "config").write_text("font pango:DejaVu Sans 9\n")
            machine.start("i3", "-c", str(machine.folder / "config"))
            wait_until(lambda: "= " in machine.run("xprop", "-root", "_NET_SUPPORTED"), "i3")
            game = machine.play()
            board = game.open_board()
            game.still_screen()
            _, _, width, height = game.geometry(board)
            self.assertGreater(width, 1200)
            self.assertGreater(height, 850)
            # The player can still make it smaller.
            machine.run("xdotool", "windowsize", board, "700", "500")
            wait_until(lambda: game.geometry(board)[2] == 700, "a smaller board")


def on(size):
    return lambda self: self.check(size)


for size in SCREENS:
    setattr(Screens, "test_" + size, on(size))

if __name__ == "__main__":
    unittest.main()
