"""The game is told on the accessibility bus and can be played from there."""
import pathlib
import queue
import subprocess
import threading
import unittest

from machine import LIMIT, Machine, wait_until


class Listener:
    """Someone on the bus: see listener.py."""

    def __init__(self, machine):
        self.process = machine.start(
            "/usr/bin/python3", "-B", str(pathlib.Path(__file__).with_name("listener.py")),
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.lines = queue.Queue()
        self.said = []
        threading.Thread(target=self._read, daemon=True).start()
        self.answer()

    def _read(self):
        for line in self.process.stdout:
            self.lines.put(line.rstrip())

    def _next(self):
        """The next line, with what was said put by."""
        line = self.lines.get(timeout=LIMIT)
        if line.startswith("said "):
            self.said.append(line[len("said "):])
        return line

    def answer(self, command=None):
        if command is not None:
            self.process.stdin.write(command + "\n")
            self.process.stdin.flush()
        while True:
            line = self._next()
            if not line.startswith("said "):
                return line

    def hear(self, words):
        """Waits until something with these words is said; gives back all that was said until then."""
        while not any(words in said for said in self.said):
            self._next()
        said, self.said = self.said, []
        return said


class Access(unittest.TestCase):
    def test_a_turn_is_played_and_heard(self):
        with Machine(access=True) as machine:
            listener = Listener(machine)
            # Under a dialog that closes, the mouse would speak up over the keyboard.
            machine.run("xdotool", "mousemove", "0", "0")
            game = machine.play()
            wait_until(lambda: game.active_window() == "Zelvo 32", "the keyboard is there")
            game.key("Return")  # on "Start Game"
            listener.hear("Choose Purchased or open lot")
            self.assertEqual(listener.answer("look Board"), "saw panel 100")
            # The press is answered while the dialog that it opens is up.
            self.assertEqual(listener.answer("press Setup"), "pressed Setup")
            setup = game.window("Zelvo Setup options")
            self.assertRegex(listener.answer("look Zelvo Setup options"), "^saw dialog .* [A-Z]")
            self.assertEqual(listener.answer("press Exit Setup"), "pressed Exit Setup")
            game.wait_until_gone(setup)
            wait_until(lambda: game.active_window() == "Player owned lot", "the board's keyboard")
            game.key("Return")  # on the lot at which the keyboard is from the start
            listener.hear("Property # 0-PU - Not Insured, Property Value is $")
            game.key("ctrl+Return")
            told = listener.hear("Player, Choose Purchased or open lot")
            self.assertIn("Computer, Computer making Selection 1 now", told)
            self.assertTrue([text for text in told if text.startswith("Computer Purchased")], told)
            game.must_run()


if __name__ == "__main__":
    unittest.main()
