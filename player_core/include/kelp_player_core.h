/* The two entries of an audio engine. This is all that a front end may know of one as code: the rest is
 * text, a command line on the way in, control lines, and output lines on descriptors 1 and 2. */
#ifndef KELP_PLAYER_CORE_H
#define KELP_PLAYER_CORE_H

#if defined(__GNUC__)
#define KELP_PLAYER_CORE_EXPORT __attribute__((visibility("default")))
#else
#define KELP_PLAYER_CORE_EXPORT
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Runs one session and returns when it has ended.
 *
 * argv holds argc strings, the program's name first, and a null pointer behind them; it is not changed.
 * Blocks the calling thread, which may be any; at most one session may run in a process at a time.
 * Returns 0 after a natural end, 1 when the only source could not be played, 2 for a command line that
 * cannot be understood, 3 after `stop`, 4 when no output device could be opened or the device vanished. */
KELP_PLAYER_CORE_EXPORT int kelp_player_main(int argc, char **argv);

/* Answers one question (`-list`, `-cue-list` …) without a session.
 *
 * argv holds argc strings, the program's name first. The answer is written to buffer as UTF-8 text with a
 * terminating zero, cut at size bytes. Returns what the program form would return as its exit code, or -1
 * when buffer is null or size is below 1. May run on any thread, also beside a session. */
KELP_PLAYER_CORE_EXPORT int kelp_player_probe(char **argv, int argc, char *buffer, int size);

/* Hands the engine one control line: copies the oldest line of queue, without its line end and with a
 * terminating zero, to buffer and returns its length; blocks until there is one. Returns 0 when the queue
 * is closed and empty, -1 for a missing buffer or a line that did not fit (that line is lost).
 * The host passes such a function with `-inproc-ctl-fn` and the queue with `-inproc-ctl`, both as decimal
 * addresses. */
typedef int (*kelp_player_ctl_read)(void *queue, char *buffer, int size);

#ifdef __cplusplus
}
#endif

#endif
