"""A machine for the tests of the real program: an X server, a window manager, a sound server and a
bus of its own, in a folder of its own, and what a person does at it.

    with Machine(sound=True) as machine:
        game = machine.play()
        board = game.open_board()
        game.click("GFM.CMDGO")

Nothing here waits for a time: it waits for something to be so, with a limit that only a program
which hangs will reach.
"""
import os
import pathlib
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import time
import zlib

TREE = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("ZELVO_BUILD", TREE / "build/release")).resolve()
LIMIT = 30  # seconds, for what should be there at once


class Hangs(AssertionError):
    """What was waited for did not come."""


def wait_until(condition, what, limit=LIMIT):
    """Gives back what the condition comes to, once that is true."""
    end = time.monotonic() + limit
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise Hangs(f"after {limit} s: {what() if callable(what) else what}")
        time.sleep(0.02)


class Machine:
    """`size` is the screen's, `wm` the window manager's command, None for none. `environment` goes to
    the program. With `bus` there is a session bus, with `access` also the one on which screen readers
    listen."""

    def __init__(self, size="1280x1024", wm=("openbox",), sound=False, bus=False, access=False,
                 environment=None):
        self.size, self.wm, self.has_sound = size, wm, sound
        self.has_bus, self.has_access = bus or access, access
        self.extra = environment or {}
        self.processes = []
        self.sound_server = None

    def __enter__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="zelvo-machine-"))
        self.runtime = self.folder / "runtime"
        self.runtime.mkdir(mode=0o700)
        self.environment = {
            "PATH": os.environ["PATH"],
            "HOME": str(self.folder),
            "LANG": "C.UTF-8",
            "XDG_RUNTIME_DIR": str(self.runtime),
            "NO_AT_BRIDGE": "1",
            **{name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")},
            **self.extra,
        }
        try:
            self._start_screen()
            if self.has_bus:
                self._start_bus()
            if self.has_access:
                self._start_access()
            if self.has_sound:
                self.start_sound()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for process in reversed(self.processes):
            end(process)
        shutil.rmtree(self.folder, ignore_errors=True)

    def start(self, *command, **options):
        """Starts a program of the machine; it ends with the machine."""
        log = open(self.folder / f"{len(self.processes)}-{pathlib.Path(command[0]).name}.log", "wb")
        options = {"stdin": subprocess.DEVNULL, "stdout": log, "stderr": log,
                   "env": self.environment, **options}
        process = subprocess.Popen(command, cwd=self.folder, start_new_session=True, **options)
        process.log = pathlib.Path(log.name)
        log.close()
        self.processes.append(process)
        return process

    def run(self, *command, check=True):
        """Runs a program to its end and gives back what it said."""
        done = subprocess.run(command, env=self.environment, cwd=self.folder, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=LIMIT)
        if check and done.returncode != 0:
            raise AssertionError(f"{' '.join(command)}: {done.stderr.strip()}")
        return done.stdout

    def _start_screen(self):
        read, write = os.pipe()
        self.start("Xvfb", "-displayfd", str(write), "-screen", "0", self.size + "x24", "-fbdir",
                   str(self.folder), "-nolisten", "tcp", "-noreset", pass_fds=[write])
        os.close(write)
        with os.fdopen(read) as told:
            self.environment["DISPLAY"] = ":" + told.readline().strip()
        if self.wm is None:
            return
        self.start(*self.wm)

        def is_at_work():
            # What a window asks of openbox while that starts can lie unread until somebody else asks
            # for something, so it is asked until it answers.
            self.run("wmctrl", "-n", "1", check=False)
            return self.run("xprop", "-root", "_NET_NUMBER_OF_DESKTOPS").endswith(" = 1\n")
        wait_until(is_at_work, "a window manager")

    def _start_bus(self):
        process = self.start("dbus-daemon", "--session", "--nofork", "--print-address",
                             stdout=subprocess.PIPE)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = process.stdout.readline().decode().strip()

    def _start_access(self):
        self.environment.update(GSETTINGS_BACKEND="memory", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.start("/usr/libexec/at-spi-bus-launcher", "--launch-immediately")
        wait_until(lambda: "AT_SPI_BUS" in self.run("xprop", "-root"), "the accessibility bus")

    def start_sound(self):
        """A sound server that plays into the void. Starting it again stands for one that came
        back."""
        shutil.rmtree(self.runtime / "pulse", ignore_errors=True)
        self.sound_server = self.start(
            "pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
            "--disable-shm=yes", "--load=module-null-sink",
            "--load=module-native-protocol-unix auth-anonymous=1")
        wait_until(lambda: "null" in self.run("pactl", "list", "short", "sinks", check=False),
                   "a sound server")
        self.sound_news = self.start("pactl", "subscribe")
        wait_until(lambda: "pactl" in self.run("pactl", "list", "clients"), "a listener")

    def streams(self):
        """The open streams, as the sound server's mixer shows them."""
        return self.run("pactl", "list", "sink-inputs")

    def streams_begun(self):
        """How many streams this sound server was ever asked for, however short."""
        said = self.sound_news.log.read_text()
        return said.count("Event 'new' on sink-input")

    def screenshot(self, file=None):
        """The screen as rows of (blue, green, red, _) bytes; also as a PNG if a file is named."""
        data = (self.folder / "Xvfb_screen0").read_bytes()
        header = struct.unpack(">25I", data[:100])
        size, width, height, stride, colours = (header[i] for i in (0, 4, 5, 12, 19))
        start = size + 12 * colours
        rows = [data[start + y * stride:start + y * stride + 4 * width] for y in range(height)]
        if file is not None:
            pathlib.Path(file).write_bytes(png(width, height, rows))
        return rows

    def play(self, *arguments):
        """Starts the game and waits for its first window."""
        game = self.launch(*arguments)
        game.window("Zelvo 32")
        return game

    def launch(self, *arguments, environment=None):
        """Starts the game and waits for nothing."""
        return Game(self, self.start(str(BUILD / "zelvo"), *arguments,
                                     env={**self.environment, **(environment or {})}))


class Game:
    """The program on a machine."""

    _places = None

    def __init__(self, machine, process):
        self.machine, self.process = machine, process

    def window_numbers(self, *options):
        """The numbers of the program's windows; with "--onlyvisible" those that are shown."""
        return self.machine.run("xdotool", "search", "--all", *options, "--pid",
                                str(self.process.pid), "--name", "", check=False).split()

    def windows(self):
        """The titles of the shown windows by their number; message boxes too."""
        return {window: self.machine.run("xdotool", "getwindowname", window,
                                         check=False).rstrip("\n")
                for window in self.window_numbers("--onlyvisible")}

    def window(self, *titles, limit=LIMIT):
        """Waits for a window with one of the titles and gives back its number."""
        def find():
            self.must_run()
            return [window for window, title in self.windows().items() if title in titles]
        return wait_until(find, lambda: f"a window {titles}, there are {self.windows()}", limit)[-1]

    def active_window(self):
        """The title of the window that has the keyboard."""
        return self.machine.run("xdotool", "getactivewindow", "getwindowname", check=False).strip()

    def geometry(self, window):
        """Left, top, width and height of a window's contents on the screen."""
        said = self.machine.run("xdotool", "getwindowgeometry", "--shell", window)
        values = dict(line.split("=") for line in said.split())
        return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def settled(self, window):
        """The geometry of a window that the window manager no longer moves."""
        seen, times = None, 0

        def is_settled():
            nonlocal seen, times
            last, seen = seen, self.geometry(window)
            times = times + 1 if seen == last else 0
            return times == 4
        wait_until(is_settled, "a window that stands still")
        return seen

    def place(self, control, window):
        """The middle of a control (such as GFM.CMDGO) on the screen."""
        return self.middle(control, self.settled(window))

    def middle(self, control, geometry):
        left, top, width, height = geometry
        name = control.split(".")[0]
        _, _, design_width, design_height = self.places()[name]
        scale = min(width / design_width, height / design_height)
        x, y, w, h = self.places()[control]
        return (round(left + (width - design_width * scale) / 2 + (x + w / 2) * scale),
                round(top + (height - design_height * scale) / 2 + (y + h / 2) * scale))

    @classmethod
    def places(cls):
        """The boxes of all windows and controls, in twips."""
        if cls._places is None:
            said = subprocess.run([BUILD / "zelvo-places"], check=True, text=True,
                                  stdout=subprocess.PIPE).stdout
            rows = (line.split() for line in said.splitlines())
            cls._places = {row[0]: tuple(map(int, row[1:])) for row in rows}
        return cls._places

    def click(self, control, window, times=1):
        """Clicks in the middle of a control of a window; twice in a row for a double click."""
        self.click_at(*self.place(control, window), times)

    def click_at(self, x, y, times=1):
        self.machine.run("xdotool", "mousemove", str(x), str(y), "click", "--repeat", str(times),
                         "--delay", "80", "1")

    def key(self, *keys):
        self.machine.run("xdotool", "key", "--delay", "30", *keys)

    def close(self, window):
        """What the close box of the window manager's frame does."""
        self.machine.run("wmctrl", "-i", "-c", window)

    def open_board(self):
        """Presses "Start Game"; gives back the board's window. Its title is that of what lies under
        the pointer, so it is known by not being the start window."""
        start = self.window("Zelvo 32", "Start Screen")
        self.click("GST.CMDSTART", start)

        def find():
            self.must_run()
            return [window for window in self.windows() if window != start]
        return wait_until(find, "the board's window")[0]

    def wait_until_gone(self, window):
        wait_until(lambda: window not in self.windows(), f"window {window} goes")

    def still_screen(self, expected=None):
        """The screen once it changes no more; or once it is the expected one."""
        seen, times = None, 0

        def is_still():
            nonlocal seen, times
            self.must_run()
            last, seen = seen, self.machine.screenshot()
            times = times + 1 if seen == last else 0
            return seen == expected if expected else times == 40
        wait_until(is_still, "the screen is as it was before" if expected else "a still screen")
        return seen

    def end(self):
        end(self.process)

    def must_run(self):
        if self.process.poll() is not None:
            raise AssertionError(f"the program ended with {self.process.returncode}:\n{self.said()}")

    def said(self):
        return self.process.log.read_text(errors="replace")

    def wait_for_end(self, limit=LIMIT):
        """Waits until the program has ended by itself; gives back its status."""
        return wait_until(lambda: self.process.poll() is not None and [self.process.returncode],
                          "the program ends", limit)[0]

    def processor_ticks(self):
        """Hundredths of a second of processor time that the program has taken."""
        fields = pathlib.Path(f"/proc/{self.process.pid}/stat").read_text().rsplit(")", 1)[1].split()
        return int(fields[11]) + int(fields[12])


def end(process):
    """Ends a process that may be stopped."""
    for number in (signal.SIGTERM, signal.SIGCONT):
        if process.poll() is None:
            process.send_signal(number)
    try:
        process.wait(5)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


def png(width, height, rows):
    """A picture file of rows of blue, green, red and a byte without a meaning."""
    def chunk(name, data):
        return struct.pack(">I", len(data)) + name + data + struct.pack(
            ">I", zlib.crc32(name + data))
    lines = bytearray()
    for row in rows:
        line = bytearray(3 * width)
        line[0::3], line[1::3], line[2::3] = row[2::4], row[1::4], row[0::4]
        lines += b"\0" + line
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(bytes(lines), 1)) + chunk(b"IEND", b""))


if __name__ == "__main__":
    sys.exit("This is what the tests share; run one of those.")
