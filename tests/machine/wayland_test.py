"""The game on Wayland: played under sway, which says where its windows are, and looked at under
weston, which orders windows as most desktops do."""
import json
import os
import shutil
import subprocess
import unittest

from machine import BUILD, LIMIT, Game, Machine, wait_until
from windows_test import SPENT

NOBODY = 65534
SWAY = """output X11-1 resolution 1280x960 position 0,0
xwayland disable
focus_follows_mouse no
"""
WESTON = """[shell]
animation=none
startup-animation=none
close-animation=none
panel-position=none
background-color=0xff204060
background-image=none
locking=false
[core]
idle-time=0
"""
# As the screen has them: blue, green, red.
START_GROUND, BOARD_GROUND = b"\x4f\x29\x10", b"\xdc\xd9\xd7"


class Sway(Machine):
    """A machine with a tiling desktop of Wayland, whose screen, mouse and keyboard are those of an
    X server that the game knows nothing of."""

    def __init__(self):
        super().__init__(size="1280x960", wm=None)

    def _start_screen(self):
        super()._start_screen()
        config = self.folder / "config"
        config.write_text(SWAY)
        # It refuses to run as root.
        own = self.folder / "sway"
        own.mkdir()
        self.folder.chmod(0o711)
        as_player = []
        if os.geteuid() == 0:
            os.chown(own, NOBODY, NOBODY)
            as_player = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]
        self.environment.update(SWAYSOCK=str(own / "ipc"), WAYLAND_DISPLAY=str(own / "wayland-1"))
        self.start(*as_player, "sway", "-c", str(config), env={
            **self.environment, "XDG_RUNTIME_DIR": str(own), "WLR_BACKENDS": "x11",
            "WLR_RENDERER": "pixman"})
        wait_until(lambda: (own / "wayland-1").exists() and (own / "ipc").exists(), "sway")

    def launch(self, *arguments, environment=None):
        game = super().launch(*arguments, environment={"DISPLAY": "", **(environment or {})})
        return SwayGame(self, game.process)


class SwayGame(Game):
    def nodes(self):
        """All that the desktop tells of the program's windows, by their number."""
        found, left = {}, [json.loads(self.machine.run("swaymsg", "-r", "-t", "get_tree"))]
        while left:
            node = left.pop()
            left += node["nodes"] + node["floating_nodes"]
            if node.get("pid") == self.process.pid:
                found[node["id"]] = node
        return found

    def windows(self):
        return {number: node["name"].strip() for number, node in self.nodes().items()}

    def geometry(self, window):
        node = self.nodes()[window]
        frame, inside = node["rect"], node["window_rect"]
        return frame["x"] + inside["x"], frame["y"] + inside["y"], inside["width"], inside["height"]

    def has_keyboard(self, window):
        node = self.nodes().get(window)
        return node is not None and node["focused"]

    def close(self, window):
        self.machine.run("swaymsg", f"[con_id={window}] kill")


class OnSway(unittest.TestCase):
    def test_a_turn_and_all_kinds_of_windows(self):
        with Sway() as machine:
            game = machine.play()
            board = game.open_board()
            with self.subTest("the start window takes no room from the board"):
                self.assertEqual(game.nodes()[board]["type"], "floating_con")
                left, top, width, height = game.settled(board)
                self.assertTrue(left >= 0 and top >= 0 and width > 1200 and height > 900
                                and left + width <= 1280 and top + height <= 960)
            game.click("GFM.CMDHELP", board)
            setup = game.window("Zelvo Setup options")
            game.click("ICF.cmdexit", setup)
            game.wait_until_gone(setup)
            game.click("GFM.CMDGO", board)
            wait_until(lambda: game.has_keyboard(board), "the board has the keyboard")
            game.key("Menu", "Down", "Return")  # its first line keeps
            keep = game.window("Keep this game")
            machine.run("xdotool", "type", str(machine.folder / "kept"))
            game.key("Return")
            game.wait_until_gone(keep)
            kept = machine.folder / "kept.zelvo"
            wait_until(kept.exists, "the game is kept")
            self.assertIn("\nclick GFM.CMDGO\n", kept.read_text())
            game.close(board)
            game.wait_until_gone(board)
            game.close(game.window("Start Screen"))
            self.assertEqual(game.wait_for_end(), 0)

    def test_a_message_box(self):
        with Sway() as machine:
            (machine.folder / "script").write_text("\n".join(SPENT))
            machine.run(str(BUILD / "zelvo-headless"), "script")
            game = machine.launch("spent.zelvo")
            wait_until(lambda: len(game.windows()) == 2, "the start window and the board")
            board = max(game.windows())
            game.still_screen()  # the desktop has put its frames around both
            game.click("GFM.BUILDIT", board)
            question = game.window("Bank Loan")
            wait_until(lambda: game.has_keyboard(question), "the question has the keyboard")
            game.key("Escape")
            game.wait_until_gone(question)
            wait_until(lambda: game.has_keyboard(board), "the board has the keyboard")

    def test_the_plugin_that_is_missing_is_named(self):
        with Sway() as machine:
            program = machine.folder / "bin/zelvo"
            program.parent.mkdir()
            shutil.copy(BUILD / "zelvo", program)
            (program.parent / "qt.conf").write_text(f"[Paths]\nPlugins={machine.folder}\n")
            done = subprocess.run([program], env=machine.environment, text=True, timeout=LIMIT,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
            self.assertEqual(done.returncode, 1)
            self.assertIn("windows on Wayland need the package qt6-wayland", done.stdout)


class OnWeston(unittest.TestCase):
    def test_the_start_window_stays_behind_the_board_and_is_minimised_with_it(self):
        with Machine(size="1280x960", wm=None) as machine:
            (machine.folder / "weston.ini").write_text(WESTON)
            machine.start("weston", "--backend=x11-backend.so", "--socket=weston", "--width=1280",
                          "--height=960", "--use-pixman", f"--config={machine.folder}/weston.ini")
            wait_until((machine.runtime / "weston").exists, "weston")
            machine.run("xdotool", "mousemove", "0", "0")
            game = machine.launch(environment={"WAYLAND_DISPLAY": "weston",
                                               "QT_QPA_PLATFORM": "wayland"})

            def spots(colour):
                """Where a colour is on the screen."""
                rows = machine.screenshot()
                return [(x, y) for y, row in enumerate(rows) if colour in row
                        for x in range(len(row) // 4) if row.startswith(colour, 4 * x)]

            def shows(colour, least):
                return wait_until(lambda: len(found := spots(colour)) >= least and found,
                                  f"{len(spots(colour))} spots of {colour}, of {least}")

            def minimise():
                right, top = max(x for x, _ in board), min(y for _, y in board)
                game.click_at(right, top + 40)  # something reaches the board
                game.click_at(right - 64, top - 17)
                wait_until(lambda: not spots(START_GROUND) and not spots(BOARD_GROUND),
                           "no window is on the screen")
            shows(START_GROUND, 20000)
            game.key("Return")
            shows(BOARD_GROUND, 5000)
            game.still_screen()
            board = spots(BOARD_GROUND)
            game.click_at(*max(spots(START_GROUND)))  # at its edge, beside the board
            game.still_screen()
            self.assertGreater(len(spots(BOARD_GROUND)), len(board) - 1000, "the board in front")
            for _ in range(2):
                minimise()
                # Two steps back through the windows, to the board.
                machine.run("xdotool", "keydown", "super", "key", "Tab", "key", "Tab")
                machine.run("xdotool", "keyup", "super")
                shows(BOARD_GROUND, len(board) - 1000)


if __name__ == "__main__":
    unittest.main()
