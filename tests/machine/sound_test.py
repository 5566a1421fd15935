"""Whatever the sound server does, the game goes on, and what the player does meanwhile is not lost."""
import signal
import unittest

from machine import Machine, wait_until


class Sound(unittest.TestCase):
    def setUp(self):
        self.machine = Machine(sound=True).__enter__()
        self.addCleanup(self.machine.__exit__)

    def wait_for_sound(self, game, after=0):
        """Waits until more than `after` sounds have begun since the server did."""
        def begun():
            game.must_run()
            return self.machine.streams_begun() > after
        wait_until(begun, "a sound")

    def wait_for_silence(self):
        wait_until(lambda: "Sink Input" not in self.machine.streams(), "no stream")

    def server(self, number):
        self.machine.sound_server.send_signal(number)

    def leave(self, game):
        """Ends the program, from the start window's button and its cue."""
        self.assertEqual(len(game.windows()), 1)
        game.click("GST.CMDEXIT", *game.windows())
        self.assertEqual(game.wait_for_end(), 0)
        self.assertEqual(game.said(), "")

    def test_the_mixer_shows_the_name_and_no_stream_at_rest(self):
        game = self.machine.play()
        self.wait_for_sound(game)
        self.assertIn('application.name = "Zelvo"', self.machine.run("pactl", "list", "clients"))
        self.wait_for_silence()
        self.leave(game)

    def test_what_is_done_while_a_cue_sounds_comes_after_it(self):
        game = self.machine.launch()
        start = game.window("Zelvo 32")
        self.wait_for_sound(game)
        # Clicks all through the opening cue and that of the new game.
        game.click("GST.CMDSTART", start, times=25)
        board = game.open_board()
        game.click("GFM.CMDEXIT", board)
        game.wait_until_gone(board)
        game.must_run()
        self.wait_for_silence()
        # A close request in the middle of a cue.
        sounds = self.machine.streams_begun()
        game.open_board()
        self.wait_for_sound(game, sounds)
        game.close(start)
        self.assertEqual(game.wait_for_end(), 0)

    def test_a_server_that_stops_answering_holds_up_nobody(self):
        for moment in ("before the first window", "in the opening cue", "in a new game's cue"):
            with self.subTest(moment):
                if moment == "before the first window":
                    self.server(signal.SIGSTOP)
                sounds = self.machine.streams_begun()
                game = self.machine.play()
                if moment == "in the opening cue":
                    self.wait_for_sound(game, sounds)
                    self.server(signal.SIGSTOP)
                board = game.open_board()
                if moment == "in a new game's cue":
                    self.wait_for_sound(game, sounds + 1)
                    self.server(signal.SIGSTOP)
                game.click("GFM.CMDEXIT", board)
                game.wait_until_gone(board)
                self.leave(game)
                self.server(signal.SIGCONT)
                self.wait_for_silence()

    def test_a_server_that_dies_is_used_again_when_it_is_back(self):
        game = self.machine.play()
        self.wait_for_sound(game)
        self.server(signal.SIGKILL)
        board = game.open_board()
        game.click("GFM.CMDEXIT", board)
        game.wait_until_gone(board)
        self.machine.start_sound()
        game.open_board()
        self.wait_for_sound(game)


if __name__ == "__main__":
    unittest.main()
