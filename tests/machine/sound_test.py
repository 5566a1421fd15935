"""Whatever the sound server does, the game goes on, and what the player does meanwhile is not lost."""
import signal
import unittest

from machine import Machine, wait_until


class Sound(unittest.TestCase):
    def setUp(self):
        self.machine = self.enterContext(Machine(sound=True))

    def sounds(self):
        return "Sink Input" in self.machine.streams()

    def wait_for_sound(self, game):
        def heard():
            game.must_run()
            return self.sounds()
        wait_until(heard, "a stream")

    def wait_for_silence(self):
        wait_until(lambda: not self.sounds(), "no stream")

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
        self.assertIn('application.name = "Zelvo"', self.machine.streams())
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
        board = game.open_board()
        self.wait_for_sound(game)
        game.close(start)
        self.assertEqual(game.wait_for_end(), 0)

    def test_a_server_that_stops_answering_holds_up_nobody(self):
        for moment in ("before the first window", "in the opening cue", "in a new game's cue"):
            with self.subTest(moment):
                if moment == "before the first window":
                    self.server(signal.SIGSTOP)
                game = self.machine.play()
                if moment == "in the opening cue":
                    self.wait_for_sound(game)
                    self.server(signal.SIGSTOP)
                if moment == "in a new game's cue":
                    self.wait_for_silence()
                board = game.open_board()
                if moment == "in a new game's cue":
                    self.wait_for_sound(game)
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
