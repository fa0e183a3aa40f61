"""Sample rates: the device has the right one on the first track, each time."""
import os
import re
import unittest

import support
from support import Stage, read_bytes

TRACKS = [("flac", dict(rate=44100, bits=16)), ("flac", dict(rate=48000, bits=24)), ("wav", dict(rate=96000, bits=24)), ("dsf", {})]


class Rates(unittest.TestCase):
    def test_an_alternating_list_opens_the_device_at_each_tracks_rate(self):
        with Stage() as stage:
            stage.alsa_capture()
            wanted = {"flac44100": "44100", "flac48000": "48000", "wav96000": "96000", "dsf": "176400"}
            session = support.EngineSession(stage, "-dev", "cap", "-dop", "force")
            for turn in range(2):
                for index, (kind, options) in enumerate(TRACKS):
                    path, _ = stage.make(kind, f"{turn}-{index}.{kind}", seconds=0.5, signal="noise" if kind != "dsf" else "sine", **options)
                    number = turn * len(TRACKS) + index + 1
                    session.send("load " + path)
                    session.wait_line("DONE", count=number)
                    opened = session.matching("OPENED")
                    self.assertEqual(len(opened), number, "the device is opened anew for each rate")
                    rate = wanted[kind + str(options.get("rate", ""))]
                    self.assertRegex(opened[-1], rf"\b{rate} Hz", "the first track at a rate has that rate")
                    self.assertRegex(opened[-1], rf"{rate} Hz.*read back from the setup of the file at the end")
            self.assertEqual(session.stop(), 3)

    def test_the_server_is_asked_for_what_it_really_runs_at(self):
        with Stage() as stage:
            stage.sound_server(48000, "s16le")
            path, _ = stage.make("flac", "t.flac", rate=96000, bits=24, seconds=1)
            run = stage.engine("-i", path, "-dev", "pulse")
            self.assertEqual(run.returncode, 0, run.stdout)
            opened = [line for line in run.stdout.split("\n") if line.startswith("OPENED")]
            self.assertEqual(len(opened), 1)
            self.assertIn("48000", opened[0], "the sink's own rate is told, not the one that was asked for")
            chain = run.stdout[run.stdout.index("SIGNAL CHAIN BEGIN"):]
            self.assertRegex(chain, r"chain: OS mixer")
            self.assertRegex(chain, r"bit-perfect: NO")

    def test_an_hour_of_dop_keeps_its_markers_in_step(self):
        with Stage() as stage:
            verdict = stage.path("verdict.txt")
            checker = os.path.join(support.BUILD, "tests", "dop_check")
            stage.alsa_capture(target=f"| {checker} > {verdict}")
            # Sixty minutes in sixty tracks: joins and pauses between tracks are part of the hour.
            path, _ = stage.make("dsf", "minute.dsf", seconds=60, signal="sine")
            session = support.EngineSession(stage, "-dev", "cap", "-dop", "force")
            for number in range(1, 61):
                session.send("load " + path)
                session.wait_line("DONE", count=number)
            self.assertEqual(session.stop(), 3)
            support.wait_until(lambda: "frames" in support.read_text(verdict), what="the checker's verdict")
            text = support.read_text(verdict)
            match = re.search(r"(\d+) frames, (\d+) markers out of step, (\d+) differing between channels", text)
            self.assertTrue(match, text)
            self.assertGreaterEqual(int(match[1]), 3600 * 176400)
            self.assertEqual((match[2], match[3]), ("0", "0"), text)


if __name__ == "__main__":
    support.main()
