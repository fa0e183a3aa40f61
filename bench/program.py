#!/usr/bin/env python3
"""Figures of the whole program, each beside a baseline of the same run. Nothing here fails on a time.

usage: bench/program.py [start] [list] [idle] [engine] [latency] [instruments]      all of them without a name
"""
import os
import shutil
import sqlite3
import statistics
import subprocess
import sys
import time

sys.dont_write_bytecode = True
ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
sys.path.insert(0, os.path.join(ROOT, "tests", "e2e"))
import support  # noqa: E402
from support import BUILD, ENGINE, PROGRAM, Stage  # noqa: E402

TICKS = os.sysconf("SC_CLK_TCK")
OTHERS = ["audacious", "strawberry"]


def row(name, value, unit, note=""):
    print(f"{name:52s} {value:10.2f} {unit:6s} {note}", flush=True)


def bare_display(stage):
    """A display without a window manager."""
    reading, writing = os.pipe()
    stage.start(["Xvfb", "-displayfd", str(writing), "-screen", "0", "1920x1200x24", "-nolisten", "tcp"], pass_fds=[writing],
                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(writing)
    with os.fdopen(reading) as answer:
        stage.env.update(DISPLAY=":" + answer.readline().strip(), QT_QPA_PLATFORM="xcb", KELP_GUI_ALLOW_MULTI="1")
    if shutil.which("xprop"):
        # Without a client the server begins anew, while the next program is being timed.
        stage.start(["xprop", "-spy", "-root"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        time.sleep(0.5)


FIRST_WINDOW = os.path.join(BUILD, "bench", "first_window")


def first_window(stage, command):
    if not os.path.exists(FIRST_WINDOW):
        sys.exit("bench/program.py: the watcher of windows is not built; it needs the package libxdamage-dev (./test installs it).")
    done = subprocess.run([FIRST_WINDOW, *command], env=stage.env, capture_output=True, text=True)
    return float(done.stdout.split()[-1]) if done.returncode == 0 else None


def bench_start(rounds=21):
    with Stage() as stage:
        bare_display(stage)
        stage.bus()
        programs = {"a bare Qt window of 300 widgets": [os.path.join(BUILD, "bench", "bare_window")], "KelpPlayer": [PROGRAM]}
        programs.update({name: [name] for name in OTHERS if shutil.which(name)})
        times = {name: [] for name in programs}
        for number in range(rounds + 2):
            for name, command in programs.items():
                if number > 4 and name in OTHERS:
                    continue
                took = first_window(stage, command)
                if number >= 2 and took is not None:  # two rounds warm the caches
                    times[name].append(took)
        ours = statistics.median(times["KelpPlayer"])
        for name, took in times.items():
            if took:
                middle = statistics.median(took)
                row(f"start to first painted window, {name}", middle, "ms", f"KelpPlayer is {ours / middle:.2f} of it")


def bench_list(rows=20000, rounds=7):
    """The start with a long saved playlist, beside the start with an empty one."""
    with Stage() as stage:
        bare_display(stage)
        stage.bus()
        music = stage.folder("music")
        paths = [os.path.join(music, f"{number:05d} - A Title of Usual Length.flac") for number in range(rows)]
        for path in paths:
            open(path, "wb").close()
        took = {}
        for name, saved in (("an empty list", []), (f"{rows} saved rows", paths)):
            folder = os.path.join(stage.env["KELP_SETTINGS_DIR"], "KELP")
            os.makedirs(folder, exist_ok=True)
            with open(os.path.join(folder, "KelpPlayer.ini"), "w", encoding="utf-8") as file:
                texts = ("\x1f".join([os.path.basename(path), path, "", "0", "0", "0", ""]) for path in saved)
                file.write("[General]\nplaylist=" + ", ".join(f'"{text}"' for text in texts) + "\n")
            shown = subprocess.run([PROGRAM], env={**stage.env, "KELP_GUI_SMOKE": "1"}, capture_output=True, text=True, check=False).stdout
            assert f"KELP_SMOKE_PLAYLIST n={len(saved)} " in shown, shown
            times = [first_window(stage, [PROGRAM]) for _ in range(rounds + 1)]
            took[name] = statistics.median(times[1:])
            row(f"start to first painted window, {name}", took[name], "ms", f"{took[name] / took['an empty list']:.2f} of an empty one's")
        if other_saved_list(stage, paths):
            times = [first_window(stage, ["strawberry"]) for _ in range(rounds + 1)]
            middle = statistics.median(times[1:])
            row(f"start to first painted window, strawberry, {rows} rows", middle, "ms", f"KelpPlayer is {took[f'{rows} saved rows'] / middle:.2f} of it")


def other_saved_list(stage, paths):
    """Puts the paths into strawberry's saved playlist, where that is installed."""
    if not shutil.which("strawberry"):
        return False
    store = os.path.join(stage.env["XDG_DATA_HOME"], "strawberry", "strawberry", "strawberry.db")
    first = stage.start(["strawberry"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def made():
        try:
            with sqlite3.connect(store) as base:
                return base.execute("select rowid from playlists").fetchone()
        except sqlite3.Error:
            return None
    number = support.wait_until(made, 30, "strawberry's first playlist")[0]
    time.sleep(2)
    support.end_process(first)
    empty = statistics.median(first_window(stage, ["strawberry"]) for _ in range(3))
    row("start to first painted window, strawberry, an empty list", empty, "ms")
    with sqlite3.connect(store) as base:
        base.executemany("insert into playlist_items (playlist, type, title, artist, album, url, length, filetype) values (?, 4, ?, 'Artist', 'Album', ?, 1000000000, 2)",
                         ((number, os.path.basename(path), "file://" + path) for path in paths))
    return True


def cpu_seconds(pid):
    with open(f"/proc/{pid}/stat", encoding="utf-8") as file:
        fields = file.read().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / TICKS


def resident_mib(pid):
    with open(f"/proc/{pid}/smaps_rollup", encoding="utf-8") as file:
        return next(int(line.split()[1]) for line in file if line.startswith("Rss:")) / 1024


def bench_idle(seconds=10):
    with Stage() as stage:
        bare_display(stage)
        stage.bus()
        resident = {}
        for name, command in [("KelpPlayer", [PROGRAM])] + [(other, [other]) for other in OTHERS if shutil.which(other)]:
            process = stage.start(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            time.sleep(5)
            before, began = cpu_seconds(process.pid), time.monotonic()
            time.sleep(seconds)
            share = (cpu_seconds(process.pid) - before) / (time.monotonic() - began) * 100
            resident[name] = resident_mib(process.pid)
            row(f"idle, {name}: CPU", share, "%", "of one core")
            row(f"idle, {name}: resident memory", resident[name], "MiB", f"KelpPlayer is {resident['KelpPlayer'] / resident[name]:.2f} of it")
            support.end_process(process)


def bench_engine():
    with Stage() as stage:
        baseline_path, _ = stage.make("flac", "long.flac", seconds=600, signal="noise", rate=44100, bits=16)
        began = time.monotonic()
        subprocess.run(["ffmpeg", "-v", "error", "-threads", "1", "-i", baseline_path, "-f", "s16le", "-y", "/dev/null"], check=True)
        baseline = 600 / (time.monotonic() - began)
        row("FLAC 44.1/16 decoded by ffmpeg alone", baseline, "x", "real time")
        for name, kind, seconds, options, flags in (
                ("FLAC 44.1/16 decode to null", "flac", 600, dict(rate=44100, bits=16, signal="noise"), []),
                ("DSD64 to PCM to null, standard filter", "dsf", 60, dict(signal="sine"), ["-pcm", "-pcm-filter", "standard"]),
                ("DSD64 to PCM to null, best filter", "dsf", 60, dict(signal="sine"), ["-pcm", "-pcm-filter", "best"])):
            path, _ = stage.make(kind, f"long.{kind}", seconds=seconds, **options)
            before, began = os.times(), time.monotonic()
            done = stage.engine("-i", path, "-dev", "null", *flags)
            took, after = time.monotonic() - began, os.times()
            assert done.returncode == 0, done.stdout
            used = after.children_user + after.children_system - before.children_user - before.children_system
            row(name, seconds / took, "x", f"real time, {seconds / used:.0f} x a core; {seconds / took / baseline:.2f} of ffmpeg alone")
        path, _ = stage.make("flac", "played.flac", seconds=12, signal="noise")
        before = os.times()
        began = time.monotonic()
        stage.engine("-i", path, KELP_ENGINE_PACE="realtime")
        took, after = time.monotonic() - began, os.times()
        used = after.children_user + after.children_system - before.children_user - before.children_system
        row("playing FLAC 44.1/16 in real time: CPU", used / took * 100, "%", "of one core")


def bench_instruments(seconds=12):
    """The program while it plays on a virtual display: meters alone, then with the spectrum, then with the scope too. The
    display's own work of showing the pictures is the other process's and counted apart."""
    with Stage() as stage:
        bare_display(stage)
        stage.bus()
        path, _ = stage.make("flac", "played.flac", seconds=60, signal="noise", rate=96000, bits=24)
        settings = os.path.join(stage.env["KELP_SETTINGS_DIR"], "KELP", "KelpPlayer.ini")
        os.makedirs(os.path.dirname(settings), exist_ok=True)
        baseline = None
        for name, mode in (("meters alone", 0), ("and the spectrum", 1), ("and the scope", 3)):
            with open(settings, "w", encoding="utf-8") as file:
                file.write(f"[param]\nviz_mode={mode}\n")
            process = stage.start([PROGRAM, path], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            time.sleep(5)
            before, began = cpu_seconds(process.pid), time.monotonic()
            time.sleep(seconds)
            share = (cpu_seconds(process.pid) - before) / (time.monotonic() - began) * 100
            baseline = baseline or share
            row(f"playing FLAC 96/24 in a window, {name}: CPU", share, "%", f"of one core; {share / baseline:.2f} of meters alone")
            support.end_process(process)


def bench_latency(rounds=40):
    """From the load line to the SRC line, which comes when the track's first frame is heard at the clocked device."""
    with Stage() as stage:
        path, _ = stage.make("flac", "t.flac", seconds=0.3, signal="noise")
        took = []
        session = support.EngineSession(stage)
        for number in range(rounds):
            began = time.monotonic()
            session.send("load " + path)
            session.wait_line("SRC", count=number + 1)
            took.append((time.monotonic() - began) * 1000)
            session.wait_line("DONE", count=number + 1)
        session.stop()
        row("load line to first sample heard, median", statistics.median(took), "ms", f"largest {max(took):.1f} ms")


def main():
    chosen = sys.argv[1:] or ["start", "list", "idle", "engine", "latency", "instruments"]
    for name in chosen:
        globals()["bench_" + name]()


if __name__ == "__main__":
    main()
