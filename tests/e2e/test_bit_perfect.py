"""What reached the device is what stands in the file, to the last bit."""
import os
import unittest

import support
from support import Stage, read_bytes, without_silence

PCM = [("flac", 44100, 16), ("flac", 96000, 24), ("wav", 44100, 16), ("wav", 96000, 24)]
SERVER_FORMAT = {16: "s16le", 24: "s24le"}


def widen(raw, bits, container_bytes):
    """Little-endian samples of 24 bits, moved to the top of a container of four bytes."""
    if bits == 8 * container_bytes:
        return raw
    out = bytearray()
    for at in range(0, len(raw), bits // 8):
        out += b"\0" * (container_bytes - bits // 8) + raw[at:at + bits // 8]
    return bytes(out)


class BitPerfect(unittest.TestCase):
    def test_alsa_device_gets_the_files_samples(self):
        for kind, rate, bits in PCM:
            with self.subTest(kind=kind, rate=rate, bits=bits), Stage() as stage:
                captured = stage.alsa_capture()
                path, raw = stage.make(kind, f"take.{kind}", rate=rate, bits=bits, seconds=2, signal="noise")
                run = stage.engine("-i", path, "-dev", "cap")
                self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
                self.assertIn("DONE", run.stdout)
                expected = read_bytes(raw)
                got = read_bytes(captured)
                # The container is the device's choice; the samples in it are not.
                container = len(got) * bits // 8 // len(expected) if expected else 0
                self.assertIn(container, (2, 3, 4), f"{len(got)} bytes captured for {len(expected)}")
                self.assertEqual(got[:len(widen(expected, bits, container))], widen(expected, bits, container))
                self.assertFalse(got[len(widen(expected, bits, container)):].strip(b"\0"), "something follows the track")

    def test_sound_server_gets_the_files_samples_in_both_kinds_of_session(self):
        for inproc in (0, 1):
            for kind, rate, bits in PCM:
                def play():
                    with Stage() as stage:
                        stage.sound_server(rate, SERVER_FORMAT[bits])
                        path, raw = stage.make(kind, f"take.{kind}", rate=rate, bits=bits, seconds=2, signal="noise")
                        with stage.recording(rate, SERVER_FORMAT[bits]) as recorded:
                            player = stage.player(path, KELP_GUI_INPROC=inproc)
                            player.wait_log("Playback finished")
                        return (read_bytes(raw), read_bytes(recorded)), player.log()
                with self.subTest(inproc=inproc, kind=kind, rate=rate, bits=bits):
                    expected, got = support.in_peace(play)
                    self.assertEqual(without_silence(got, bits // 4), without_silence(expected, bits // 4))

    def test_dop_gives_back_the_dsd_bits(self):
        with Stage() as stage:
            captured = stage.alsa_capture()
            path, raw = stage.make("dsf", "take.dsf", seconds=2, signal="sine")
            run = stage.engine("-i", path, "-dev", "cap", "-dop", "force")
            self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
            self.assertIn("176400", run.stdout)
            self.assert_dsd_at_device(read_bytes(captured), read_bytes(raw))

    def test_dop_gives_back_the_bits_of_a_disc_image_in_every_form(self):
        forms = [dict(coding="plain14"), dict(coding="plain16", sector=2064), dict(coding="dststored", sector=2064),
                 dict(coding="dst", areas="both")]
        for form in forms:
            with self.subTest(**form), Stage() as stage:
                captured = stage.alsa_capture()
                path, raw = stage.make("iso", "disc.iso", tracks=3, seconds=0.4, **form)
                run = stage.engine("-iso", path, "-track", "2", "-dev", "cap", "-dop", "force")
                self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
                expected = read_bytes(raw)
                third = len(expected) // 3
                self.assert_dsd_at_device(read_bytes(captured), expected[third:2 * third])

    def test_native_dsd_gives_back_the_bits_of_a_disc_image(self):
        with Stage() as stage:
            captured = stage.alsa_capture()
            path, raw = stage.make("iso", "disc.iso", tracks=2, seconds=1, signal="noise")
            run = stage.engine("-iso", path, "-dev", "cap", "-dop", "native")
            self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
            got, expected = read_bytes(captured), read_bytes(raw)
            # Groups of four bytes a channel against single ones; the device's choice stands in the OPENED line.
            self.assertIn("DSD_U32_BE, 2 channels, native DSD", run.stdout)
            dsd = b"".join(bytes((g[0], g[4], g[1], g[5], g[2], g[6], g[3], g[7])) for g in
                           (got[at:at + 8] for at in range(0, len(got) - 7, 8)))
            at = dsd.find(expected[:4000])
            self.assertGreaterEqual(at, 0, "the DSD bits of the image were not found at the device")
            self.assertEqual(dsd[at:at + len(expected)], expected)

    def test_tracks_of_a_disc_image_join_without_a_bit_too_many_or_too_few(self):
        for form in (dict(coding="plain14"), dict(coding="dst", sector=2064)):
            def play(form=form):
                with Stage() as stage:
                    captured = stage.alsa_capture()
                    path, raw = stage.make("iso", "disc.iso", tracks=3, seconds=2, **form)
                    session = support.EngineSession(stage, "-dev", "cap", "-dop", "force", "-gapless", "on",
                                                    KELP_ENGINE_PACE="realtime")
                    session.send("load-iso 1 " + path)
                    for track in (2, 3):
                        session.wait_line("SRC ", count=track - 1)
                        session.wait_position(0.4)
                        session.send("load " + path)
                        session.wait_line("SRC ", count=track)
                    self.end_in_one(session)
                    return (read_bytes(captured), read_bytes(raw), session), "\n".join(session.lines)
            with self.subTest(**form):
                captured, raw, session = support.in_peace(play)
                self.assertEqual([line.split()[-1] for line in session.matching("SRC ")], ["2.000"] * 3)
                self.assertFalse(session.matching("preload dropped"))
                self.assert_dsd_at_device(captured, raw)

    def end_in_one(self, session):
        """Waits for the end of a chain of tracks and stops the session."""
        session.wait_line("DONE")
        tracks = len(session.matching("SRC "))
        session.stop()
        # A track that was handed over behind the end of the one before begins anew.
        if len(session.matching("DONE")) > 1 or session.lines.index(session.matching("DONE")[0]) < max(
                at for at, line in enumerate(session.lines) if line.startswith("SRC ")):
            raise support.TooLate(f"the {tracks} tracks were not played in one:\n" + "\n".join(session.lines[-40:]))

    def assert_dsd_at_device(self, captured, expected):
        """The bits of a DoP capture are the expected ones, with nothing but silence around them."""
        dsd = b"".join(bytes((left >> 8 & 255, right >> 8 & 255, left & 255, right & 255))
                       for left, right in self.dop_frames(captured))
        expected = expected[:len(expected) - len(expected) % 4]
        at = dsd.find(expected[:4000])
        self.assertGreaterEqual(at, 0, "the DSD bits were not found at the device")
        self.assertEqual(dsd[at:at + len(expected)], expected)
        self.assertFalse(dsd[:at].strip(b"\x69"), "only the silence pattern may stand before the track")
        self.assertFalse(dsd[at + len(expected):].strip(b"\x69"), "only the silence pattern may follow the track")

    def dop_frames(self, captured):
        """The 16-bit payloads of both channels; the markers are checked on the way."""
        width = 4 if len(captured) % 8 == 0 and captured[3] in (0x05, 0xFA) and captured[7] in (0x05, 0xFA) else 3
        frames = []
        for at in range(0, len(captured) - 2 * width + 1, 2 * width):
            frame = captured[at:at + 2 * width]
            left, right = frame[width - 3:width], frame[2 * width - 3:2 * width]
            marker = (0x05, 0xFA)[len(frames) % 2]
            self.assertEqual((left[2], right[2]), (marker, marker), f"frame {len(frames)} has the wrong marker")
            frames.append((left[0] | left[1] << 8, right[0] | right[1] << 8))
        return frames

    def test_two_tracks_join_without_a_sample_too_many_or_too_few(self):
        for first_kind, second_kind in (("flac", "flac"), ("wav", "flac")):
            def play(first_kind=first_kind, second_kind=second_kind):
                with Stage() as stage:
                    captured = stage.alsa_capture()
                    noise = dict(rate=44100, bits=16, signal="noise")
                    first, first_raw = stage.make(first_kind, f"one.{first_kind}", seconds=3, seed=1, **noise)
                    second, second_raw = stage.make(second_kind, f"two.{second_kind}", seconds=2, seed=2, **noise)
                    session = support.EngineSession(stage, "-dev", "cap", "-gapless", "on", KELP_ENGINE_PACE="realtime")
                    session.send("load " + first)
                    session.wait_position(1.4)
                    session.send("load " + second)
                    self.end_in_one(session)
                    return (read_bytes(captured), read_bytes(first_raw) + read_bytes(second_raw)), "\n".join(session.lines)
            with self.subTest(first=first_kind, second=second_kind):
                got, expected = (without_silence(samples, 4) for samples in support.in_peace(play))
                self.assertEqual(len(got), len(expected))
                self.assertEqual(got, expected)


if __name__ == "__main__":
    support.main()
