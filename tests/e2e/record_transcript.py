#!/usr/bin/env python3
"""Records what the engine says in one session: a FLAC, a chain report and a check, then a DSF with another report and
check, on a device that keeps nothing. Prints it for tests/engine/transcripts, with neutral paths in place of this
machine's. Of the frames of telemetry only the first of each kind are kept.

usage: record_transcript.py > tests/engine/transcripts/session.txt"""
import sys

from support import EngineSession, Stage

FRAMES = ("LVL ", "SPC ", "WVF ", "PG ")
KEPT = 3


def play(session, path, number):
    session.send("load " + path)
    session.wait_line("SIGNAL CHAIN END", count=2 * number - 1)
    session.wait_position(0.5)
    session.send("report")
    session.wait_line("SIGNAL CHAIN END", count=2 * number)
    session.send("verify")
    session.wait_line("verify: verdict", count=number)
    session.wait_line("DONE ", count=number)


def thinned(lines):
    seen = {}
    for line in lines:
        if line.startswith("SRC "):
            seen = {}
        kind = next((frame for frame in FRAMES if line.startswith(frame) and " cfg " not in line), None)
        seen[kind] = seen.get(kind, 0) + 1
        if kind is None or seen[kind] <= KEPT:
            yield line


with Stage() as stage:
    stage.alsa_capture("device", "/dev/null")
    flac, _ = stage.make("flac", "first.flac", seconds=2, signal="noise")
    dsf, _ = stage.make("dsf", "second.dsf", seconds=2, signal="noise")
    session = EngineSession(stage, "-dev", "device", "-spectrum", "on", "-scope", "on", "-replaygain", "track",
                            "-peak-guard", "on", KELP_ENGINE_PACE="realtime")
    play(session, flac, 1)
    play(session, dsf, 2)
    session.stop()
    for line in thinned(session.lines):
        if line != "(end of output)":
            sys.stdout.write(line.replace(stage.root, "/music") + "\n")
