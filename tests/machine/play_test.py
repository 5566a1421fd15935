"""The script that builds and starts the game does so from wherever and however it is called. The
compiler has other tests, so a stand-in takes its place."""
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

from machine import TREE

CMAKE = """#!/bin/sh
# Refuses what another tree has left in the build folder, as the real one does.
if [ "$1" = --build ]; then
  printf '#!/bin/sh\\necho "$0" "$@" in "$PWD"' >"$2/zelvo"
  chmod +x "$2/zelvo"
else
  ! grep -qs another "$4/CMakeCache.txt"
fi
"""
NOBODY = 65534


class Play(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="zelvo-play-"))
        self.addCleanup(shutil.rmtree, self.folder)
        self.folder.chmod(0o755)
        self.tree, self.home = self.folder / "tree", self.folder / "home"
        self.home.mkdir()
        self.home.chmod(0o777)
        shutil.copytree(TREE / "tools", self.tree / "tools")
        shutil.copy(TREE / "play", self.tree)
        (self.folder / "bin").mkdir()
        cmake = self.folder / "bin/cmake"
        cmake.write_text(CMAKE)
        cmake.chmod(0o755)

    def play(self, script, status=0, environment=None, **options):
        done = subprocess.run([script, "a file"], cwd="/", text=True, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, **options, env={
                                  "PATH": f"{self.folder}/bin:{os.environ['PATH']}",
                                  "HOME": str(self.home), **(environment or {})})
        self.assertEqual(done.returncode, status, done.stderr)
        return done.stdout + done.stderr

    def test_through_a_link_and_over_what_another_tree_left(self):
        link = self.folder / "game"
        link.symlink_to(self.tree / "play")
        build = self.tree / "build/release"
        build.mkdir(parents=True)
        (build / "CMakeCache.txt").write_text("another")
        self.assertEqual(self.play(link), f"{build}/zelvo a file in /\n")
        self.assertFalse((build / "CMakeCache.txt").exists())

    def test_what_windows_on_wayland_need_is_installed_where_the_session_is_one(self):
        install = self.tree / "tools/install-packages"
        install.write_text('#!/bin/sh\necho "$@"\n')
        for session, needs in (({"WAYLAND_DISPLAY": "wayland-0"}, True),
                               ({"XDG_SESSION_TYPE": "wayland"}, True),
                               ({"XDG_SESSION_TYPE": "x11"}, False)):
            with self.subTest(**session):
                said = self.play(self.tree / "play", environment=session)
                self.assertEqual("qt6-wayland" in said.split(), needs, said)

    def test_from_a_folder_that_can_only_be_read(self):
        # Root can write anywhere.
        player = {"user": NOBODY, "group": NOBODY, "extra_groups": []} if os.getuid() == 0 else {}
        for folder in (self.tree, *(path for path in self.tree.rglob("*") if path.is_dir())):
            folder.chmod(0o555)
            self.addCleanup(folder.chmod, 0o755)
        play = self.tree / "play"
        self.assertEqual(self.play(play, **player), f"{self.home}/.cache/zelvo/build/zelvo a file in /\n")
        shutil.rmtree(self.home / ".cache")
        self.home.chmod(0o555)
        self.assertEqual(self.play(play, 1, **player),
                         f"play: neither {self.tree}/build/release nor {self.home}/.cache/zelvo/build "
                         "can be written to, so the game cannot be built\n")


if __name__ == "__main__":
    unittest.main()
