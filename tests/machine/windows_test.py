"""The windows stand where the game puts them, whatever the player and the desktop do to them."""
import unittest

from machine import BUILD, Machine, wait_until

# All open lots are bought and a hotel is built, so that the next one takes a loan.
SPENT = ["clock 12:00:37", "click GST.CMDSTART"]
for lot in (18, 19, 34, 37, 46):
    SPENT += [f"click GFM.Image1({lot})", "click GFM.CMDBUY"]
for lot in (0, 18):
    SPENT += [f"click GFM.Image1({lot})", "click GFM.CMDBUILD", "click GFM.HILTON"]
    SPENT += ["click GFM.BUILDIT", "click HS.CMDAN1(0)"]
SPENT[-2:] = ["keep spent.zelvo"]


def is_in_front(machine, window):
    """Active, and above the others."""
    stack = machine.run("xprop", "-root", "_NET_CLIENT_LIST_STACKING").split()
    active = machine.run("xdotool", "getactivewindow", check=False).strip()
    return active == window and int(stack[-1], 16) == int(window)


class Windows(unittest.TestCase):
    def test_the_front_is_where_the_game_puts_it(self):
        with Machine() as machine:
            game = machine.play()
            board = game.open_board()
            start = game.window("Start Screen")

            def activate(window):
                machine.run("wmctrl", "-i", "-a", window)

            def wait_for(window):
                wait_until(lambda: is_in_front(machine, window),
                           f"{window} in front of {game.windows()}")

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

    def test_what_a_message_box_or_dialog_leaves_is_the_board_as_it_was(self):
        with Machine(size="1024x768") as machine:
            (machine.folder / "script").write_text("\n".join(SPENT))
            machine.run(str(BUILD / "zelvo-headless"), "script")
            machine.run("xdotool", "mousemove", "0", "0")  # the title tells what lies under it
            game = machine.launch("spent.zelvo")
            board = game.window("Board Game")

            def wait_for(window, title):
                wait_until(lambda: is_in_front(machine, window), f"{title} in front")
                return window
            machine.run("wmctrl", "-i", "-r", board, "-b", "add,maximized_vert,maximized_horz")
            wait_until(lambda: game.geometry(board)[2] == 1024, "a maximised board")
            place = game.settled(board)
            for answer in ("Escape", "Return"):
                game.click("GFM.BUILDIT", board)
                wait_for(game.window("Bank Loan"), "the question")
                game.key(answer)
                if answer == "Return":
                    bank = wait_for(game.window("The Bank"), "the bank")
                    left, top, width, height = game.settled(bank)
                    self.assertTrue(left >= 0 and top > 0 and left + width <= 1024
                                    and top + height <= 768, "the bank lies on the screen")
                    game.still_screen()  # the banker has made his offer
                    game.key("Escape")
                    wait_for(game.window("Bank Loan"), "the question once more")
                    game.key("Escape")
                wait_for(board, "the board")
                self.assertEqual(game.geometry(board), place)

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
