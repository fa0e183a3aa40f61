"""The chain report and the self-check of the running program agree with what was captured at the device."""
import dataclasses
import os
import re
import unittest

import support
from support import Stage, read_bytes


@dataclasses.dataclass
class Shown:
    """What one run of the program said, and what its device got."""
    chain: list
    check: list
    passed: bool
    captured: int
    equal: bool

    def item(self, name):
        return next((line for line in self.check if line.startswith(f"verify: {name} ")), "")

    def row(self, label):
        return next((line for line in self.chain if line.startswith(label)), "")


def show(volume, in_process, kind="flac", device="cap", **options):
    """Plays a file to a device that writes to a file, lets the program check itself while it plays, and compares. On a
    busy machine, with more time each time."""
    factors = iter((1, 2, 4, 8))
    return support.in_peace(lambda: show_once(next(factors), volume, in_process, kind, device, **options))


def show_once(factor, volume, in_process, kind, device, **options):
    with Stage() as stage:
        stage.display()
        captured = stage.alsa_capture()
        with open(os.path.join(stage.home, ".asoundrc"), "a", encoding="utf-8") as config:
            config.write('pcm.slow { type plug slave { pcm "cap" rate 32000 } }\n')
        settings = {"rate": 44100, "bits": 16, "seconds": 4 * factor, "signal": "noise", **options}
        path, raw = stage.make(kind, f"take.{kind}", **settings)
        with open(os.path.join(stage.folder("settings/KELP"), "KelpPlayer.ini"), "w", encoding="utf-8") as file:
            file.write(f"[param]\nvol={volume}\n")
        player = stage.player(KELP_GUI_INPROC=int(in_process), KELP_GUI_AUTOPLAY=path, KELP_GUI_DEV=device,
                              KELP_ENGINE_PACE="realtime", KELP_GUI_CHECK_AFTER=2.5 * factor, KELP_GUI_QUIT_AFTER=7 * factor)
        if player.wait_end(7 * factor + support.PATIENCE) != 0:
            raise AssertionError("the program did not end well:\n" + player.log()[-1500:])
        # Log lines may carry a time in front; what the engine said stands at the end.
        log = player.log()
        if not re.search(r"SIGNAL CHAIN END.*verify: verdict BITPERFECT=[01](?! \| nothing plays).*Playback finished", log, re.S):
            raise support.TooLate("the track did not start, was not checked or did not end in its time:\n" + log[-3000:])
        block = log[log.rindex("SIGNAL CHAIN BEGIN"):log.rindex("SIGNAL CHAIN END")]
        chain = [line for line in re.findall(r"^(?:\[[^\]]*\] |[\d:.]+ )*([a-z][a-z -]*: .*)$", block, re.M)]
        check = re.findall(r"(verify: .*)$", log, re.M)
        expected, got = read_bytes(raw), read_bytes(captured)
        equal = got[:len(expected)] == expected and not got[len(expected):].strip(b"\0")
        return Shown(chain, check, "BITPERFECT=1" in check[-1], len(got), equal), log


class Chain(unittest.TestCase):
    def test_an_untouched_path_is_found_bit_perfect_and_is(self):
        for in_process in (True, False):
            with self.subTest(in_process=in_process):
                shown = show(100, in_process)
                self.assertTrue(shown.equal, f"{shown.captured} bytes were captured")
                self.assertTrue(shown.passed, shown.check)
                self.assertTrue(all(" ok -- " in line for line in shown.check[:-1]), shown.check)
                self.assertIn("bit-perfect: YES", shown.row("bit-perfect:"))
                self.assertIn("clean", shown.row("chain:"))
                self.assertGreaterEqual(len(shown.check), 15)

    def test_a_scaled_path_is_found_out_and_is_different(self):
        for in_process in (True, False):
            with self.subTest(in_process=in_process):
                shown = show(50, in_process)
                self.assertFalse(shown.equal)
                self.assertFalse(shown.passed)
                self.assertIn("volume FAIL -- the volume stage scales the samples", shown.item("volume"))
                self.assertIn("| volume:", shown.check[-1], "the first stage that broke it is named")
                self.assertIn("bit-perfect: NO: the volume stage", shown.row("bit-perfect:"))
                # What the volume did is not laid at others' doors.
                self.assertIn(" ok -- ", shown.item("source"))
                self.assertIn(" ok -- ", shown.item("delivery"))

    def test_a_conversion_behind_the_engine_is_found_out(self):
        shown = show(100, True, device="slow")
        self.assertFalse(shown.equal)
        self.assertFalse(shown.passed)
        self.assertIn("delivery FAIL", shown.item("delivery"))
        self.assertIn("32000 Hz", shown.item("delivery"))
        self.assertNotIn("clean", shown.row("chain:"))

    def test_what_cannot_be_read_back_is_no_pass(self):
        with Stage() as stage:
            path, _ = stage.make("flac", "take.flac", seconds=3, signal="noise")
            session = support.EngineSession(stage, "-dev", "null", KELP_ENGINE_PACE="realtime")
            session.send("load " + path)
            session.wait_line("SIGNAL CHAIN END")
            session.send("verify")
            verdict = session.wait_line("verify: verdict")
            self.assertIn("BITPERFECT=0 | delivery: not known: ", verdict)
            self.assertIn("FAIL -- not known: ", session.matching("verify: delivery")[-1])
            self.assertEqual(session.stop(), 3)


if __name__ == "__main__":
    support.main()
