"""The windows stand where the game puts them, whatever the player and the desktop do to them."""
import unittest

from machine import Machine, wait_until


class Windows(unittest.TestCase):
    def test_the_front_is_where_the_game_puts_it(self):
        with Machine() as machine:
            game = machine.play()
            board = game.open_board()
            start = game.window("Start Screen")

            def activate(window):
                machine.run("wmctrl", "-i", "-a", window)

            def wait_for(window):
                """In front: active, and above the others."""
                def is_in_front():
                    stack = machine.run("xprop", "-root", "_NET_CLIENT_LIST_STACKING").split()
                    active = machine.run("xdotool", "getactivewindow", check=False).strip()
                    return active == window and int(stack[-1], 16) == int(window)
                wait_until(is_in_front, f"{window} in front of {game.windows()}")

            for _ in range(3):
                machine.run("xdotool", "windowminimize", board)
                wait_until(lambda: not game.windows(), "both windows are minimised")
                activate(board)
                wait_for(board)
                # When it has answered a key, all that came before has been dealt with.
                game.key("F1")
                game.window("Zelvo Setup options")
                game.key("Escape")
                wait_for(board)
                self.assertEqual(list(game.windows()), [board])

            with self.subTest("a shown window is shown again"):
                machine.run("xdotool", "windowminimize", board)
                wait_until(lambda: not game.windows(), "both windows are minimised")
                activate(start)
                wait_for(start)
                game.key("Return")
                wait_for(board)

            with self.subTest("a dialog gives the front back to its opener"):
                activate(start)
                wait_for(start)
                game.click("GST.CMDSET", start)
                setup = game.window("Zelvo Setup options")
                wait_for(setup)
                game.click("ICF.cmdexit", setup)
                wait_for(start)

    def test_a_window_destroyed_by_others_comes_anew_and_the_last_one_ends_the_program(self):
        with Machine() as machine:
            game = machine.play()
            board = game.open_board()
            game.click("GFM.CMDHELP", board)
            for title in ("Zelvo Setup options", "Click for Setup menu"):
                lost = game.window(title)
                machine.run("xdotool", "windowclose", lost)
                game.wait_until_gone(lost)
                board = game.window(title)
            game.click("ICF.cmdexit", game.window("Zelvo Setup options"))
            wait_until(lambda: len(game.windows()) == 2, "the setup goes")
            game.click("GFM.CMDEXIT", board)
            game.wait_until_gone(board)
            machine.run("xdotool", "windowclose", game.window("Start Screen"))
            self.assertEqual(game.wait_for_end(), 0)


if __name__ == "__main__":
    unittest.main()
