"""Albums play to their end unattended, in every order and manner, and whatever the listener presses ends defined."""
import os
import re
import subprocess
import time
import unittest

import support
from support import Player, Stage, read_bytes, read_text, without_silence

DRIVER = os.path.join(support.BUILD, "window_driver")
KINDS = {1: "in-process", 0: "child"}
SECONDS = 2
MIXED = [("flac", dict(rate=44100, bits=16)), ("wav", dict(rate=48000, bits=24)), ("dsf", {})]


class Window(Player):
    """The window with files in its list, driven by commands. Its log is in the language of the sources."""

    def __init__(self, stage, name, files, inproc, device, platform="offscreen", **param):
        folder = stage.folder(f"settings-{name}/KELP")
        with open(os.path.join(folder, "KelpPlayer.ini"), "w", encoding="utf-8") as file:
            file.write("[param]\n" + "".join(f"{key}={value}\n" for key, value in param.items()))
        self.name = name
        self.log_path = stage.path(f"{name}.log")
        self.output_path = self.log_path + ".out"
        self.asked = 0
        with open(self.output_path, "wb") as output:
            self.process = stage.start([DRIVER, *files], stdin=subprocess.PIPE, stdout=output, stderr=subprocess.STDOUT, text=True,
                                       env={**stage.env, "KELP_GUI_LOG": self.log_path, "KELP_SETTINGS_DIR": os.path.dirname(folder),
                                            "KELP_GUI_INPROC": str(inproc), "KELP_ENGINE_PACE": "realtime", "QT_QPA_PLATFORM": platform})
        self.send("device " + device)

    def send(self, *lines):
        self.process.stdin.write("".join(line + "\n" for line in lines))
        self.process.stdin.flush()

    def wait_state(self, seconds=support.PATIENCE, **wanted):
        """Asks until the window is in this state; returns it."""
        end = time.monotonic() + seconds
        while True:
            self.asked += 1
            self.send(f"state {self.asked}")
            found = self.wait_log(rf"\[driver\] {self.asked} row=(-?\d+) playing=(\d) runs=(\d) announced=(\d)")
            state = dict(zip(("row", "playing", "runs", "announced"), map(int, found.groups())))
            if wanted.items() <= state.items():
                return state
            if time.monotonic() > end:
                raise AssertionError(f"{self.name}: {state} and not {wanted}:\n{self.log()[-1500:]}")
            time.sleep(0.05)

    def quit(self):
        self.send("quit")
        code = self.wait_end()
        if code:
            raise AssertionError(f"{self.name} ended with {code}:\n{read_text(self.output_path)[-500:]}")


class Album(unittest.TestCase):
    def mixed_album(self, stage):
        tracks = []
        for number in range(10):
            kind, options = MIXED[number % len(MIXED)]
            tracks.append(stage.make(kind, f"{number:02d}.{kind}", seconds=SECONDS, signal="sine", **options)[0])
        return tracks

    def one_session(self, log):
        self.assertEqual(len(re.findall(r"\[进程内 DLL\] 会话参数|播放命令", log)), 1, "one session")
        self.assertNotIn("关闭当前会话", log)
        self.assertNotRegex(log, r"异常退出|未到结尾就结束|crash-guard|按文件对回")

    def test_ten_tracks_of_three_kinds_in_every_order_and_manner(self):
        manners = {"gapless": dict(gapless="true"), "separate": dict(gapless="false"),
                   "crossfade": dict(gapless="true", crossfade_sec=1)}
        with Stage() as stage:
            tracks = self.mixed_album(stage)
            windows = []
            for inproc, kind in KINDS.items():
                for order in (0, 1):
                    for manner, param in manners.items():
                        window = Window(stage, f"{kind}-{('sequential', 'random')[order]}-{manner}", tracks, inproc, "null",
                                        order_axis=order, **param)
                        window.order, window.manner = order, manner
                        window.send("start 0")
                        windows.append(window)
            for window in windows:
                with self.subTest(window.name):
                    window.wait_log("播放列表结束（", 60 + support.PATIENCE)
                    self.check_album(window, tracks)
                    window.wait_state(playing=0, runs=1)
            for window in windows:
                window.quit()

    def check_album(self, window, tracks):
        log = window.log()
        self.one_session(log)
        played = [os.path.basename(path) for path in
                  re.findall(r"^.*(?:\bload |预装下一首 \(|提前装载下一首 \().*?(\d\d\.\w+)\b.*$", log, re.M)]
        rows = [int(row) - 1 for row in re.findall(r"自动换曲（无缝/交叉淡化）: 第 (\d+)/10 首", log)]
        names = [os.path.basename(track) for track in tracks]
        order = list(dict.fromkeys(played))
        self.assertEqual(sorted(order), names, "each track was loaded")
        if window.order == 0:
            self.assertEqual(order, names)
            self.assertIn("播放列表结束（顺序 · 不循环）", log)
        else:
            self.assertIn("播放列表结束（随机 · 不循环）", log)
        if window.manner == "separate":
            self.assertEqual(rows, [])
            self.assertEqual(log.count("播放完成"), 10)
            self.assertEqual(log.count("复用当前会话"), 9)
            self.assertIn("预载窗口 0.0 s", log)
        else:
            # A window that was kept from running for a second hands over too late; that change is then an ordinary one.
            self.assertEqual(len(rows) + log.count("复用当前会话"), 9, "each change is one decision")
            self.assertGreater(len(rows), 0, "but on no machine are all of them late")
            handed = [names[row] for row in rows]
            self.assertEqual(handed, [name for name in order[1:] if name in handed])
            self.assertIn("交叉淡化: 距曲尾" if window.manner == "crossfade" else "无缝: 曲尾前", log)

    def test_a_gapless_album_is_its_joined_source(self):
        with Stage() as stage:
            tracks = [stage.make(("flac", "wav")[number % 2], f"{number:02d}.{('flac', 'wav')[number % 2]}", rate=44100, bits=16,
                                 seconds=SECONDS, signal="noise", seed=number + 1) for number in range(10)]
            joined = without_silence(b"".join(read_bytes(raw) for _, raw in tracks), 4)
            files = [path for path, _ in tracks]
            runs = {kind: iter([self.start_joined(stage, kind, inproc, files)]) for inproc, kind in KINDS.items()}
            for inproc, kind in KINDS.items():
                def play(kind=kind, inproc=inproc):
                    # Both at once at first; what a busy machine disturbed is played again alone.
                    window, captured = next(runs[kind], None) or self.start_joined(stage, kind, inproc, files)
                    window.wait_log("播放列表结束（", 60 + support.PATIENCE)
                    window.quit()
                    log = window.log()
                    if "复用当前会话" in log:
                        raise support.TooLate("a track was handed over late:\n" + log[-3000:])
                    return (log, read_bytes(captured)), log
                with self.subTest(kind):
                    log, captured = support.in_peace(play)
                    self.one_session(log)
                    got = without_silence(captured, 4)
                    self.assertEqual(len(got), len(joined))
                    self.assertEqual(got, joined)

    def start_joined(self, stage, kind, inproc, files):
        name = f"{kind}{time.monotonic_ns()}"
        captured = stage.alsa_capture("cap" + name.replace("-", ""))
        window = Window(stage, "joined-" + name, files, inproc, "cap" + name.replace("-", ""), gapless="true")
        window.send("start 0")
        return window, captured


class Pressed(unittest.TestCase):
    def test_whatever_is_pressed_ends_in_a_defined_state(self):
        with Stage() as stage:
            for inproc, kind in KINDS.items():
                with self.subTest(kind):
                    # Only the one that is to end by itself is short.
                    tracks = [stage.make("flac", f"{kind}-{number:02d}.flac", seconds=8 if number == 23 else 60, signal="sine")[0]
                              for number in range(26)]
                    window = Window(stage, f"pressed-{kind}", tracks, inproc, "null")

                    # A double click while the first one loads: the last one chosen plays.
                    window.send("start 0", "start 1")
                    window.wait_state(row=1, playing=1, runs=1, announced=1)

                    # Next, twenty times in a second: the twentieth plays, in the same session.
                    window.send(*["next"] * 20)
                    window.wait_state(row=21, playing=1, runs=1, announced=1)
                    self.assertEqual(len(re.findall(r"\[进程内 DLL\] 会话参数|播放命令", window.log())), 1)

                    # The device is changed while a track starts: that one plays on, the next one has the new device.
                    window.send("start 22", "device plug:null")
                    window.wait_state(row=22, playing=1, runs=1, announced=1)
                    window.send("start 23")
                    window.wait_log("关闭当前会话")
                    window.wait_state(row=23, playing=1, runs=1, announced=1)

                    # The file is deleted while it plays: it plays to its end, and the list goes on.
                    os.remove(tracks[23])
                    window.wait_state(row=24, playing=1, runs=1, announced=1)
                    self.assertNotIn("跳过（文件不存在）", window.log())

                    # A stop in the middle; then the deleted one is skipped.
                    window.send("stop")
                    window.wait_state(playing=0, runs=0)
                    window.send("start 23")
                    window.wait_state(row=24, playing=1, runs=1, announced=1)
                    self.assertIn("跳过（文件不存在）", window.log())

                    # A stop while loading.
                    window.send("start 25", "stop")
                    window.wait_state(playing=0, runs=0)
                    self.assertNotRegex(window.log(), r"crash-guard|强制结束|异常退出")
                    window.quit()


if __name__ == "__main__":
    support.main()
