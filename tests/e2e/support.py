"""The real counterparts of the end-to-end tests: a display, a session bus, a sound server, ALSA devices, the built
programs. Each lives in a private home and runtime folder and is ended by its own process id."""
import contextlib
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time
import unittest

sys.dont_write_bytecode = True
BUILD = os.environ.get("KELP_BUILD", os.path.join(os.path.dirname(__file__), "..", "..", "build"))
PROGRAM = os.path.join(BUILD, "KelpPlayer")
ENGINE = os.path.join(BUILD, "KelpPlayerEngine")
MAKER = os.path.join(BUILD, "tests", "make_test_audio")
# How long is waited for what is sure to come. A passing test does not wait; a slow and busy machine may need it.
PATIENCE = 90


def need(*tools):
    """Skips a test, with a sentence, when a program it talks to is not installed."""
    for tool in tools:
        if not shutil.which(tool):
            raise unittest.SkipTest(f"{tool} is not installed, so this cannot be shown here")


def wait_until(condition, seconds=PATIENCE, what="the condition"):
    """Polls until the condition gives something true and returns it; fails the test by name otherwise."""
    end = time.monotonic() + seconds
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError(f"{what} did not come true within {seconds:.0f} s")
        time.sleep(0.02)


class Stage(contextlib.ExitStack):
    """A private world for one test: home, runtime folder, settings, and whatever is started on it."""

    def __enter__(self):
        super().__enter__()
        self.root = self.enter_context(tempfile.TemporaryDirectory(prefix="kelp-e2e-"))
        self.home = self.folder("home")
        self.runtime = self.folder("runtime", 0o700)
        self.env = {k: v for k, v in os.environ.items()
                    if not k.startswith(("KELP_", "PULSE", "XDG_", "DBUS_", "ALSA_", "DISPLAY", "WAYLAND", "QT_", "LC_", "LANG"))}
        self.env.update(HOME=self.home, XDG_RUNTIME_DIR=self.runtime, TMPDIR=self.folder("tmp"), LC_ALL="C.UTF-8",
                        XDG_CONFIG_HOME=self.folder("home/.config"), XDG_DATA_HOME=self.folder("home/.local/share"),
                        XDG_CACHE_HOME=self.folder("home/.cache"), KELP_SETTINGS_DIR=self.folder("settings"),
                        KELP_LANG="en", KELP_NO_UPDATE_CHECK="1", QT_QPA_PLATFORM="offscreen",
                        KELP_PLAYER_CONF=self.path("player.conf"),
                        DBUS_SESSION_BUS_ADDRESS="unix:path=" + self.path("no-bus"))
        return self

    def path(self, name):
        return os.path.join(self.root, name)

    def folder(self, name, mode=0o755):
        path = self.path(name)
        os.makedirs(path, mode, exist_ok=True)
        return path

    def start(self, command, **options):
        """Starts a process that is ended, by its own id, with the stage."""
        options.setdefault("env", self.env)
        process = subprocess.Popen(command, **options)
        self.callback(end_process, process)
        return process

    def display(self, size="1600x1200"):
        """A virtual display with a small window manager."""
        need("Xvfb", "openbox", "xprop")
        reading, writing = os.pipe()
        self.start(["Xvfb", "-displayfd", str(writing), "-screen", "0", size + "x24", "-nolisten", "tcp"],
                   pass_fds=[writing], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            number = answer.readline().strip()
        if not number:
            raise AssertionError("the virtual display did not start")
        self.env.update(DISPLAY=":" + number, QT_QPA_PLATFORM="xcb")
        # A window that comes up while the manager is just taking over is lost to it; and now and then a manager
        # that is started with its display ends at once.
        manager = None

        def managed():
            nonlocal manager
            if manager is None or manager.poll() is not None:
                manager = self.start(["openbox"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            return self._is_managed()
        wait_until(managed, what="the window manager")

    def _is_managed(self):
        answer = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], env=self.env, capture_output=True, text=True)
        return "window id" in answer.stdout

    def bus(self):
        """A session bus."""
        need("dbus-daemon")
        process = self.start(["dbus-daemon", "--session", "--nofork", "--print-address=1"], stdout=subprocess.PIPE,
                             stderr=subprocess.DEVNULL, text=True)
        self.env["DBUS_SESSION_BUS_ADDRESS"] = process.stdout.readline().strip()

    def sound_server(self, rate=44100, sample_format="s16le", sink="n1"):
        """A sound server of our own with a null sink; what its monitor records is what reached the device."""
        need("pulseaudio", "parecord", "pactl")
        self.start(["pulseaudio", "--daemonize=no", "--exit-idle-time=-1", "-n", "-L", "module-native-protocol-unix",
                    "-L", f"module-null-sink sink_name={sink} rate={rate} format={sample_format}"],
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until(lambda: subprocess.run(["pactl", "info"], env=self.env, capture_output=True).returncode == 0,
                   what="the sound server")

    @contextlib.contextmanager
    def recording(self, rate, sample_format, sink="n1"):
        """Records the sink's monitor while the block runs; the yielded object is a file name to read afterwards."""
        path = self.path(f"monitor-{time.monotonic_ns()}.raw")
        recorder = self.start(["parecord", "-d", f"{sink}.monitor", "--raw", f"--rate={rate}", f"--format={sample_format}",
                               "--channels=2", path], stderr=subprocess.DEVNULL)
        wait_until(lambda: os.path.exists(path) and os.path.getsize(path) > 0, what="the recorder")
        yield path
        recorder.send_signal(signal.SIGINT)
        recorder.wait(PATIENCE)

    def alsa_capture(self, name="cap", target=None):
        """An ALSA device that writes what it is given to a file; returns the file's name."""
        target = target or self.path(f"{name}.raw")
        with open(os.path.join(self.home, ".asoundrc"), "a", encoding="utf-8") as config:
            config.write(f'pcm.{name} {{ type file slave.pcm "null" file "{target}" format "raw" }}\n')
        return target

    def make(self, kind, name, **options):
        """Makes a file with known samples; returns its path and that of its raw samples."""
        path = self.path(name)
        raw = path + ".raw"
        subprocess.run([MAKER, kind, path, f"raw={raw}"] + [f"{k}={v}" for k, v in options.items()], check=True)
        return path, raw

    def engine(self, *arguments, timeout=PATIENCE, **env):
        """One run of the engine in console use; returns the completed process with its text."""
        return subprocess.run([ENGINE, *arguments], env={**self.env, **env}, capture_output=True, timeout=timeout,
                              encoding="utf-8", errors="replace", stdin=subprocess.DEVNULL)

    def player(self, *arguments, **env):
        return Player(self, arguments, env)

    def player_to_its_end(self, *arguments, quit_after, done, **env):
        """Runs the program, which ends itself after a time, until its log has what is wanted. A machine that is busy
        with other tests may need more of that time; then it is run again, from the same settings. Returns the player."""
        before = self.path("settings-before")
        shutil.copytree(self.path("settings"), before, dirs_exist_ok=True)
        for factor in (1, 3, 10):
            player = self.player(*arguments, KELP_GUI_QUIT_AFTER=quit_after * factor, **env)
            code = player.wait_end(quit_after * factor + PATIENCE)
            if code != 0:
                raise AssertionError(f"the program ended with {code}:\n{player.log()[-1500:]}\n{read_text(player.output_path)[-500:]}")
            if done(player.log()):
                return player
            shutil.rmtree(self.path("settings"))
            shutil.copytree(before, self.path("settings"))
        raise AssertionError(f"the program did not get there in {quit_after * factor} s:\n{player.log()[-1500:]}")


class Player:
    """The running program, seen through its log."""

    def __init__(self, stage, arguments, env):
        self.log_path = stage.path(f"gui-{time.monotonic_ns()}.log")
        self.output_path = self.log_path + ".out"
        with open(self.output_path, "wb") as output:
            self.process = stage.start([PROGRAM, *arguments], stdout=output, stderr=subprocess.STDOUT,
                                       stdin=subprocess.DEVNULL,
                                       env={**stage.env, "KELP_GUI_LOG": self.log_path, **{k: str(v) for k, v in env.items()}})

    def log(self):
        return read_text(self.log_path)

    def wait_log(self, pattern, seconds=PATIENCE, count=1):
        """Waits until the log holds the pattern so many times; returns the last match."""
        def found():
            if self.process.poll() is not None and len(re.findall(pattern, self.log())) < count:
                raise AssertionError(f"the program ended ({self.process.returncode}) before {pattern!r}:\n{self.log()[-1500:]}"
                                     f"\n{read_text(self.output_path)[-500:]}")
            matches = list(re.finditer(pattern, self.log()))
            return matches[-1] if len(matches) >= count else None
        try:
            return wait_until(found, seconds, f"the line {pattern!r}")
        except AssertionError as failure:
            raise AssertionError(f"{failure}\nThe log:\n{self.log()[-1500:]}") from None

    def wait_end(self, seconds=PATIENCE):
        return self.process.wait(seconds)


class EngineSession:
    """A streaming session of the engine as a child process, as the window runs it."""

    def __init__(self, stage, *arguments, **env):
        self.lines = []
        self.changed = threading.Condition()
        self.process = stage.start([ENGINE, "-stream", "-parent-pid", str(os.getpid()), *arguments],
                                   env={**stage.env, **env}, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                   stderr=subprocess.STDOUT)
        self.reader = threading.Thread(target=self._read, daemon=True)
        self.reader.start()

    def _read(self):
        for line in self.process.stdout:
            with self.changed:
                self.lines.append(line.decode("utf-8", "replace").rstrip("\r\n"))
                self.changed.notify_all()
        with self.changed:
            self.lines.append("(end of output)")
            self.changed.notify_all()

    def send(self, line):
        self.process.stdin.write(os.fsencode(line) + b"\n")
        self.process.stdin.flush()

    def wait_for(self, found, seconds, what):
        with self.changed:
            if not self.changed.wait_for(lambda: found() or "(end of output)" in self.lines, seconds) or not found():
                raise AssertionError(f"{what} did not come; the engine said:\n" + "\n".join(self.lines[-40:]))
            return found()

    def matching(self, start):
        return [line for line in self.lines if line.startswith(start)]

    def wait_line(self, start, count=1, seconds=PATIENCE):
        """Waits for so many lines that begin so; returns the last."""
        return self.wait_for(lambda: len(self.matching(start)) >= count and self.matching(start)[-1], seconds, f"line {count} of {start!r}")

    def wait_position(self, seconds):
        """Waits until the track that began last has come so far."""
        def there():
            for line in reversed(self.lines):
                if line.startswith("PG "):
                    return float(line.split()[2]) >= seconds
                if line.startswith("SRC "):
                    return False
            return False
        self.wait_for(there, seconds + PATIENCE, f"position {seconds} s")

    def stop(self):
        self.send("stop")
        return self.process.wait(PATIENCE)


def read_text(path):
    try:
        with open(path, encoding="utf-8", errors="replace") as file:
            return file.read()
    except FileNotFoundError:
        return ""


def read_bytes(path):
    with open(path, "rb") as file:
        return file.read()


def end_process(process):
    if process.poll() is None:
        process.terminate()
        try:
            process.wait(5)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()
    for stream in (process.stdin, process.stdout, process.stderr):
        if stream:
            stream.close()


class TooLate(AssertionError):
    """A busy machine kept a test from doing something in its time; or nothing does it in time."""


def in_peace(play, tries=4):
    """What play() returns first, from a run in which no device ran dry. A machine that is busy with other tests may
    leave a gap, which the engine tells; a gap that nobody told of is for the caller to find. play() returns a pair:
    its result and what was said; or it raises TooLate, and is given another try."""
    for attempt in range(tries):
        try:
            result, said = play()
        except TooLate:
            if attempt == tries - 1:
                raise
            continue
        if "The device ran dry" not in said:
            return result
    raise unittest.SkipTest(f"This machine is too busy to play without a gap: {tries} tries all had one.")


def without_silence(samples, frame_bytes):
    """What lies between leading and trailing digital silence, cut at whole frames."""
    start = len(samples) - len(samples.lstrip(b"\0"))
    start -= start % frame_bytes
    end = len(samples.rstrip(b"\0"))
    end += -end % frame_bytes
    return samples[start:end]


def main():
    """Runs the tests of the calling file; a skip of all of them is told to CTest as such."""
    program = unittest.main(exit=False, verbosity=2)
    result = program.result
    if not result.wasSuccessful():
        sys.exit(1)
    sys.exit(77 if result.testsRun > 0 and len(result.skipped) == result.testsRun else 0)
