"""The program plays what it is given, in a session of either kind, and ends cleanly."""
import os
import re
import signal
import subprocess
import unittest

import support
from support import ENGINE, PATIENCE, PROGRAM, Stage, read_text, wait_until

KINDS = [("flac", dict(rate=44100, bits=16)), ("wav", dict(rate=96000, bits=24)), ("dsf", {}), ("dff", {})]


def children_of(pid):
    """The process numbers of a process's children."""
    with open(f"/proc/{pid}/task/{pid}/children", encoding="ascii") as file:
        return [int(number) for number in file.read().split()]


class Play(unittest.TestCase):
    def play_to_the_end(self, stage, path, inproc, finished=1):
        log = stage.player_to_its_end(path, KELP_GUI_INPROC=inproc, quit_after=2 + finished,
                                      done=lambda log: log.count("Playback finished") >= finished).log()
        self.assertIn("OPENED ", log)
        self.assertRegex(log, r"\[control\] closure: queued=\d+ recv=\d+ diff=\d+ — passed")
        if inproc:
            self.assertRegex(log, r"\[control\] closure: queued=[1-9]\d* recv=[1-9]\d* diff=0 — passed")
        self.assertNotIn("[crash-guard]", log)
        return log

    def test_files_of_all_kinds_play_in_both_kinds_of_session(self):
        with Stage() as stage:
            stage.display()
            stage.bus()
            for kind, options in KINDS:
                path, _ = stage.make(kind, f"a track, {kind}.{kind}", seconds=1, **options)
                for inproc in (1, 0):
                    with self.subTest(kind=kind, inproc=inproc):
                        self.play_to_the_end(stage, path, inproc)

    def test_a_cue_sheet_plays_its_tracks(self):
        with Stage() as stage:
            path, _ = stage.make("wav", "album.wav", seconds=2)
            sheet = stage.path("album.cue")
            with open(sheet, "w", encoding="utf-8") as file:
                file.write('TITLE "海带"\nPERFORMER "Someone"\nFILE "album.wav" WAVE\n  TRACK 01 AUDIO\n    TITLE "Eins"\n'
                           "    INDEX 01 00:00:00\n  TRACK 02 AUDIO\n    TITLE \"Zwei\"\n    INDEX 01 00:01:00\n")
            log = self.play_to_the_end(stage, sheet, 1)
            self.assertIn("CUE: 海带 — Someone", log)
            self.assertIn("Auto-advanced (seamless/crossfade): track 2/2: 02. Zwei", log)
            # Both tracks, each of one second, and not the file as a whole behind the first.
            self.assertEqual(re.findall(r"^SRC 44100 16 2 wav 0 ([0-9.]+)", log, re.M), ["1.000", "1.000"])

            settings = os.path.join(stage.folder("settings/KELP"), "KelpPlayer.ini")
            with open(settings, "w", encoding="utf-8") as file:
                file.write("[param]\ngapless=false\n")
            log = self.play_to_the_end(stage, sheet, 0, finished=2)
            self.assertIn("load-cue 2 ", log)

    def test_a_disc_image_plays_its_tracks(self):
        with Stage() as stage:
            image, _ = stage.make("iso", "disc.iso", tracks=2, seconds=1, charset=3, title="管弦楽", track="第一楽章", areas="both",
                                  coding="dststored")
            log = self.play_to_the_end(stage, image, 1)
            self.assertIn("SACD ISO: disc.iso — 2 track(s)", log)
            self.assertIn("The SACD image holds a stereo area and a multichannel area of 6 channels, so the stereo area is "
                          "played.", log)
            self.assertIn("Auto-advanced (seamless/crossfade): track 2/2: 02. 第一楽章 2", log)
            # Both tracks, each of one second, and not the image as a whole behind the first.
            self.assertEqual(re.findall(r"^SRC 2822400 1 2 dsd 1 ([0-9.]+)", log, re.M), ["1.000", "1.000"])

            settings = os.path.join(stage.folder("settings/KELP"), "KelpPlayer.ini")
            with open(settings, "w", encoding="utf-8") as file:
                file.write("[param]\ngapless=false\n")
            log = self.play_to_the_end(stage, image, 0, finished=2)
            self.assertIn("load-iso 2 ", log)

    def test_names_that_are_hard_to_pass_on(self):
        names = ["blank and 'quotes\" 海带 قائمة 🎧.flac", "-dash.flac", "http:colon.flac", " leading.flac"]
        with Stage() as stage:
            for name in names:
                with self.subTest(name=name):
                    path, _ = stage.make("flac", name, seconds=1)
                    self.play_to_the_end(stage, path, 1)

    def test_a_damaged_file_ends_with_one_clear_line(self):
        with Stage() as stage:
            for name, content in (("empty.flac", b""), ("text.flac", b"this is no music\n" * 100), ("cut.wav", b"RIFF\x24\x10\0\0WAVEfmt ")):
                path = stage.path(name)
                with open(path, "wb") as file:
                    file.write(content)
                run = stage.engine("-i", path, "-dev", "null")
                self.assertEqual(run.returncode, 1, name + run.stdout + run.stderr)
                self.assertEqual(len([line for line in run.stdout.split("\n") if "FAILED" in line]), 1, run.stdout)
                self.assertNotIn("DONE", run.stdout)
                player = stage.player_to_its_end(path, KELP_GUI_INPROC=1, quit_after=2, done=lambda log: "FAILED" in log)
                self.assertNotIn("Playback finished", player.log())

    def test_the_console_role_answers_in_the_terminal(self):
        with Stage() as stage:
            path, _ = stage.make("flac", "t.flac", seconds=1)
            for program in (PROGRAM, ENGINE):
                environment = {k: v for k, v in stage.env.items() if k not in ("QT_QPA_PLATFORM", "DISPLAY")}
                listing = subprocess.run([program, "-list"], env=environment, capture_output=True, text=True, timeout=PATIENCE)
                self.assertEqual(listing.returncode, 0, listing.stderr)
                playing = subprocess.run([program, "-i", path], env=environment, capture_output=True, text=True, timeout=PATIENCE,
                                         stdin=subprocess.DEVNULL)
                self.assertEqual(playing.returncode, 0, playing.stdout + playing.stderr)
                self.assertIn("DONE", playing.stdout)

    def test_a_second_program_is_refused_and_a_dead_one_does_not_block(self):
        with Stage() as stage:
            trace = stage.path("guard.txt")
            first = stage.player(KELP_GUARD_TRACE=trace)
            wait_until(lambda: "GetLastError=0" in read_text(trace), what="the first program's guard line")
            second = stage.player(KELP_GUARD_TRACE=trace)
            wait_until(lambda: "GetLastError=183" in read_text(trace), what="the second program's guard line")
            first.process.kill()
            first.process.wait()
            second.process.kill()
            second.process.wait()
            third = stage.player(KELP_GUARD_TRACE=trace, KELP_GUI_QUIT_AFTER=1)
            self.assertEqual(third.wait_end(), 0)
            self.assertEqual(read_text(trace).count("GetLastError=0"), 2)

    def test_asked_to_end_by_the_system_it_ends_as_if_closed(self):
        with Stage() as stage:
            path, _ = stage.make("flac", "long.flac", seconds=60)
            for inproc, number in ((1, signal.SIGTERM), (0, signal.SIGINT), (0, signal.SIGHUP)):
                with self.subTest(inproc=inproc, number=number):
                    player = stage.player(path, KELP_GUI_INPROC=inproc)
                    player.wait_log(r"Progress \(PG\) received")
                    engine = children_of(player.process.pid)
                    player.process.send_signal(number)
                    self.assertEqual(player.wait_end(), 0, player.log())
                    self.assertRegex(player.log(), rf"\[gui\] {number.name}: ")
                    self.assertRegex(player.log(), r"\[control\] closure: queued=\d+ recv=\d+ diff=\d+ — passed")
                    wait_until(lambda: not any(os.path.exists(f"/proc/{pid}") for pid in engine), what="the end of the engine")

    def test_closing_the_window_ends_the_engine(self):
        with Stage() as stage:
            path, _ = stage.make("flac", "long.flac", seconds=20)
            for inproc in (1, 0):
                player = stage.player(path, KELP_GUI_INPROC=inproc, KELP_GUI_AUTOCLOSE=1)
                self.assertEqual(player.wait_end(), 0)
                self.assertRegex(player.log(), "test hook: ")
                engine = ["pgrep", "-f", f"KelpPlayerEngine.*-parent-pid {player.process.pid}"]
                wait_until(lambda engine=engine: subprocess.run(engine, capture_output=True).returncode != 0,
                           what="the end of the engine's process")

    def test_the_window_gets_its_icon_small_at_once_and_then_large(self):
        with Stage() as stage:
            stage.display()
            player = stage.player()
            seen = ["xprop", "-name", "Kelp Player", "_NET_WM_ICON"]

            def icon():
                return subprocess.run(seen, env=stage.env, capture_output=True, text=True).stdout
            wait_until(lambda: "Icon (32 x 32)" in icon(), what="the small icon")
            wait_until(lambda: "Icon (128 x 128)" in icon(), what="the large icon")
            self.assertIn("Icon (32 x 32)", icon())
            support.end_process(player.process)


if __name__ == "__main__":
    support.main()
