"""In every language of the system the game looks and plays the same."""
import subprocess
import unittest

from machine import BUILD, Machine

LANGUAGES = ("tr_TR", "de_DE")


class Language(unittest.TestCase):
    def setUp(self):
        self.machine = Machine().__enter__()
        self.addCleanup(self.machine.__exit__)
        self.locales = self.machine.folder / "locales"
        self.locales.mkdir()
        for language in LANGUAGES:
            self.machine.run("localedef", "-i", language, "-f", "UTF-8",
                             str(self.locales / f"{language}.UTF-8"))

    def in_language(self, language):
        # But for the system's own words, as those on a full disk, which tests compare.
        return {"LANG": f"{language}.UTF-8", "LC_MESSAGES": "C.UTF-8",
                "LOCPATH": str(self.locales)}

    def test_the_windows_look_the_same(self):
        def looks(*arguments, environment=None, expected=(None, None)):
            """The screens with the start window and with the setup on it."""
            self.machine.run("xdotool", "mousemove", "0", "0")
            game = self.machine.launch(*arguments, environment=environment)
            window = game.window("Zelvo 32")
            start = game.still_screen(expected[0])
            game.click("GST.CMDSET", window)
            game.window("Zelvo Setup options")
            setup = game.still_screen(expected[1])
            game.end()
            return start, setup

        expected = looks()
        self.assertNotEqual(*expected)
        for language in LANGUAGES:
            with self.subTest(language):
                looks(environment=self.in_language(language), expected=expected)
        with self.subTest("from right to left"):
            looks("-reverse", expected=expected)

    def test_the_rules_and_windows_pass_their_tests(self):
        for language in LANGUAGES:
            for tests in ("zelvo_tests", "zelvo_desktop_tests"):
                with self.subTest(language, tests=tests):
                    done = subprocess.run(
                        [BUILD / tests, "--gtest_brief=1"], text=True, cwd=self.machine.folder,
                        env={**self.machine.environment, **self.in_language(language)},
                        stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
                    self.assertEqual(done.returncode, 0, done.stdout)


if __name__ == "__main__":
    unittest.main()
