#include "player_core/session/help_text.h"

namespace kelp_core {

std::string helpText()
{
    return R"(KelpPlayerEngine plays one track, or the tracks that it is told of, and says what it does to them.

  KelpPlayerEngine -i FILE [options]              play a file
  KelpPlayerEngine -cue SHEET [-track N]          play a track of a CUE sheet, or the whole sheet
  KelpPlayerEngine -iso IMAGE [-track N]          play a track of an SACD image, or the whole image
  KelpPlayerEngine -stream [options]              wait for "load" lines on standard input
  KelpPlayerEngine PROBE [operands]               answer one question and end

Source
  -i FILE              WAV, W64, RF64, AIFF, FLAC, ALAC, WavPack, TTA, APE, DTS, DSF, DFF, WSD
  -cue SHEET           a CUE sheet;  -track N  one track of it
  -iso IMAGE           an SACD image, its stereo area where it has one;  -track N  one track of it
  -start SECONDS       begin there

Output
  -dev ID              a device of -list; without it the system default
  -output-path WAY     auto (default), exclusive, shared
  -dop WAY             auto (default), force, native: how DSD goes out
  -resample            let the device run at another rate;  -src-quality fast|standard|best
  -vol 0..100          software volume; 100 leaves the samples untouched
  -replaygain WAY      off (default), track, album: level by the file's tags, never above its peak
  -peak-guard on|off   bring peaks down that would pass full scale; else nothing is touched (default off)
  -speed 0.5..3.0      play slower or faster;  -pitch-lock on|off  keep the pitch (default on)

DSD as PCM
  -pcm                 always decode DSD
  -pcm-bits DEPTH      16, 24 (default), 32, float32
  -pcm-filter NAME     fast, standard (default), best

Between tracks
  -gapless on|off      join tracks without a gap (default on)
  -crossfade SECONDS   mix the end of a track into the next one

Telemetry
  -spectrum on|off     SPC lines        -scope on|off       WVF lines

For a host program
  -parent-pid PID      stay up between tracks, end with that process
  -inproc-host, -inproc-ctl ADDRESS, -inproc-ctl-fn ADDRESS
                       control lines come from a queue in the same process

Understood, but not in this engine yet (said in one line when it would be heard)
  -mode -devs -xo -rig -dsp-plugins-on -denoise -keep-harmonics
  -pcm2dsd -pcm2dsd-target -pcm2dsd-taps -ext-decoder
  -prefetch on|off     this engine always reads ahead

Probes
  -list                output devices            -list-devices        the same, for machines
  -cue-list SHEET      tracks of a CUE sheet     -iso-list IMAGE      tracks of an SACD image
  -cover FILE -out IMAGE [-track N]              the cover of a file
  -analyze FILE        tempo and key
  -vol-get -dev ID     the device's own volume   -reset-device        free a device that hangs
  Not in this engine yet: -dsd-caps -fingerprint -scan -check-ext -rig-info

Lines on standard input
  stop | pause | resume | play | vol N | report | spectrum on|off | scope on|off
  speed RATIO | ab A B | ab off (seconds of the present track) | guard on|off | verify
  load PATH | loadat SECONDS PATH | load-cue TRACK SHEET | load-iso TRACK IMAGE

Ends with 0 after a natural end, 1 when the only source could not be played, 2 for a command line that
cannot be understood, 3 after "stop", 4 when no device could be opened or it vanished.
The file named by the environment variable KELP_ENGINE_LOG gets a copy of all lines with times.
)";
}

std::string versionText()
{
    return "KelpPlayerEngine " KELP_ENGINE_VERSION "\n";
}

} // namespace kelp_core
