"""`cmake --install` puts everything in its place, and the installed program runs from there, also when moved."""
import os
import shutil
import subprocess
import unittest

import support
from support import BUILD, Stage

EXPECTED = ["bin/KelpPlayer", "bin/KelpPlayerEngine", "lib/kelp-player/libkelp_player_core.so",
            "lib/kelp-player/libkelp_player_net.so",
            "share/applications/io.kelp.KelpPlayer.desktop", "share/metainfo/io.kelp.KelpPlayer.metainfo.xml",
            "share/icons/hicolor/scalable/apps/kelp-player.svg", "share/icons/hicolor/256x256/apps/kelp-player.png"]


class Install(unittest.TestCase):
    def test_the_installed_program_plays(self):
        with Stage() as stage:
            first = stage.path("first")
            subprocess.run(["cmake", "--install", BUILD, "--prefix", first], check=True, capture_output=True)
            for path in EXPECTED:
                self.assertTrue(os.path.isfile(os.path.join(first, path)), path)
            prefix = stage.path("moved elsewhere")
            shutil.move(first, prefix)
            track, _ = stage.make("flac", "t.flac", seconds=1)
            engine = subprocess.run([os.path.join(prefix, "bin/KelpPlayerEngine"), "-i", track, "-dev", "null"], env=stage.env,
                                    capture_output=True, text=True, timeout=support.PATIENCE, stdin=subprocess.DEVNULL)
            self.assertEqual(engine.returncode, 0, engine.stdout + engine.stderr)
            support.PROGRAM = os.path.join(prefix, "bin/KelpPlayer")
            for inproc in (1, 0):
                stage.player_to_its_end(track, KELP_GUI_INPROC=inproc, quit_after=4, done=lambda log: "Playback finished" in log)

    def test_nothing_is_loaded_from_the_current_folder(self):
        """A search path of the program's own comes before the system's, and an empty part of it is the current folder: that of
        the music, where anybody's files lie."""
        support.need("readelf")
        for name in ("KelpPlayer", "KelpPlayerEngine", "libkelp_player_core.so", "libkelp_player_net.so"):
            dynamic = subprocess.run(["readelf", "-d", os.path.join(BUILD, name)], check=True, capture_output=True, text=True).stdout
            self.assertIn("NEEDED", dynamic)
            self.assertNotRegex(dynamic, r"RUNPATH|RPATH", name)

    def test_the_desktop_files_are_valid(self):
        root = os.path.join(os.path.dirname(__file__), "..", "..", "packaging")
        support.need("desktop-file-validate", "appstreamcli")
        subprocess.run(["desktop-file-validate", os.path.join(root, "io.kelp.KelpPlayer.desktop")], check=True)
        subprocess.run(["appstreamcli", "validate", "--no-net", os.path.join(root, "io.kelp.KelpPlayer.metainfo.xml")], check=True,
                       capture_output=True)


if __name__ == "__main__":
    support.main()
