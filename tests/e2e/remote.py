"""The whole player with its phone remote on, playing an album into a null sink."""
import contextlib
import os
import random
import re
import socket


def free_port():
    """None of those that the system gives to whoever connects, as other tests do at the same time."""
    while True:
        with socket.socket() as probe, contextlib.suppress(OSError):
            port = random.randrange(20_000, 32_000)
            probe.bind(("0.0.0.0", port))
            return port


def msf(seconds):
    return f"{seconds // 60:02d}:{seconds % 60:02d}:00"


def make_album(stage, titles, seconds, rate=44100):
    """One file and its sheet; returns the sheet."""
    wave, _ = stage.make("wav", "album.wav", seconds=seconds * len(titles), rate=rate)
    sheet = stage.path("album.cue")
    with open(sheet, "w", encoding="utf-8") as file:
        file.write(f'TITLE "海带"\nPERFORMER "Someone"\nFILE "{os.path.basename(wave)}" WAVE\n')
        for number, title in enumerate(titles):
            file.write(f'  TRACK {number + 1:02d} AUDIO\n    TITLE "{title}"\n    INDEX 01 {msf(number * seconds)}\n')
    return sheet


class RemotePlayer:
    """The running program and the way to its remote."""

    def __init__(self, stage, *arguments, port=None, **env):
        self.port = port or free_port()
        settings = os.path.join(stage.folder("settings/KELP"), "KelpPlayer.ini")
        with open(settings, "w", encoding="utf-8") as file:
            file.write(f"[param]\nremote_on=true\nremote_port={self.port}\nvol=80\n")
        self.player = stage.player(*arguments, **env)
        self.token = self.player.wait_log(rf"Phone remote: enabled, port {self.port}, token ([0-9a-f]{{8}})").group(1)
        self.base = f"http://127.0.0.1:{self.port}"

    def url(self, path, **query):
        return f"{self.base}{path}?" + "&".join(f"{key}={value}" for key, value in {**query, "t": self.token}.items())

    def addresses(self):
        return re.findall(r"Phone remote address: (\S+)", self.player.log())
