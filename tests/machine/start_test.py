"""The program starts, plays and ends, whatever the machine lacks."""
import unittest

from machine import Machine


class Start(unittest.TestCase):
    def test_from_the_first_window_to_the_last(self):
        for without, options in {"a sound server": {}, "a window manager": {"wm": None}}.items():
            with self.subTest(without=without), Machine(**options) as machine:
                game = machine.play()
                board = game.open_board()
                game.click("GFM.CMDEXIT", board)
                game.wait_until_gone(board)
                game.click("GST.CMDEXIT", game.window("Start Screen"))
                self.assertEqual(game.wait_for_end(), 0)


if __name__ == "__main__":
    unittest.main()
