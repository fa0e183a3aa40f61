"""The commands of the README, as a newcomer types them."""
import os
import shutil
import signal
import subprocess
import unittest

import support
from support import Stage, wait_until

ROOT = os.path.realpath(os.path.join(os.path.dirname(__file__), "..", ".."))
RUN = os.path.join(ROOT, "run")


class Commands(unittest.TestCase):
    def setUp(self):
        if os.path.realpath(support.BUILD) != os.path.join(ROOT, "build"):
            self.skipTest("./run starts the release build; this is another one")

    def environment(self, stage):
        return {k: v for k, v in stage.env.items() if k not in ("DISPLAY", "QT_QPA_PLATFORM", "HOME")} | {"HOME": stage.home}

    def run_it(self, stage, *arguments, timeout=4 * support.PATIENCE, cwd=None):
        return subprocess.run([RUN, *arguments], env=self.environment(stage), capture_output=True, text=True, timeout=timeout,
                              stdin=subprocess.DEVNULL, cwd=cwd or stage.root)

    def test_help_tells_what_the_command_does(self):
        with Stage() as stage:
            for command in ("run", "test"):
                done = subprocess.run([os.path.join(ROOT, command), "--help"], capture_output=True, text=True)
                self.assertEqual(done.returncode, 0)
                self.assertIn("usage: ./" + command, done.stdout)

    def test_a_picture_of_the_playing_window_without_a_display(self):
        support.need("Xvfb")
        with Stage() as stage:
            stage.make("flac", "music to see.flac", seconds=8)
            done = self.run_it(stage, "--screenshot", "shot.png", "music to see.flac")
            self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
            with open(stage.path("shot.png"), "rb") as picture:
                self.assertEqual(picture.read(8), b"\x89PNG\r\n\x1a\n")
            self.assertGreater(os.path.getsize(stage.path("shot.png")), 10_000)

    def test_a_file_plays_on_a_virtual_display_and_the_log_is_named(self):
        support.need("Xvfb")
        with Stage() as stage:
            track, _ = stage.make("flac", "t.flac", seconds=1)
            log = stage.path("named.log")
            process = stage.start([RUN, track], env={**self.environment(stage), "KELP_GUI_LOG": log}, stdout=subprocess.PIPE,
                                  stderr=subprocess.STDOUT, text=True)
            wait_until(lambda: "Playback finished" in support.read_text(log), 4 * support.PATIENCE, "the end of the track")
            process.send_signal(signal.SIGTERM)
            output = process.communicate(timeout=support.PATIENCE)[0]
            self.assertIn("virtual one", output)
            self.assertIn(log, output)

    def test_the_engine_answers_in_the_terminal(self):
        with Stage() as stage:
            self.assertEqual(self.run_it(stage, "-list").returncode, 0)

    def test_mistakes_end_with_a_sentence(self):
        with Stage() as stage:
            missing = self.run_it(stage, "no such file.flac")
            self.assertNotEqual(missing.returncode, 0)
            self.assertIn('There is no file "no such file.flac"', missing.stderr)
            unnamed = self.run_it(stage, "--screenshot")
            self.assertNotEqual(unnamed.returncode, 0)
            self.assertIn("needs the name of the picture", unnamed.stderr)

    def test_missing_packages_are_named_when_nobody_can_install_them(self):
        with Stage() as stage:
            # A Debian without any of our packages and without the right to install them.
            tools = stage.folder("tools")
            for tool in ("bash", "dirname", "awk", "sort", "tr", "cat", "realpath", "mktemp"):
                os.symlink(shutil.which(tool), os.path.join(tools, tool))
            for name, text in (("id", "echo 1000"), ("dpkg-query", "true")):
                with open(os.path.join(tools, name), "w", encoding="utf-8") as script:
                    script.write(f"#!/bin/sh\n{text}\n")
                os.chmod(os.path.join(tools, name), 0o755)
            done = subprocess.run([RUN], env={"PATH": tools, "HOME": stage.home}, capture_output=True, text=True)
            self.assertNotEqual(done.returncode, 0)
            self.assertIn("Please run as root: apt-get install", done.stderr)
            self.assertIn("qt6-base-dev", done.stderr)


if __name__ == "__main__":
    support.main()
