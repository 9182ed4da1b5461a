#pragma once

#include <QByteArray>

#include <cstddef>

/**
 * Standard output and standard error as a log that never makes this process wait, whatever stands at its
 * other end: a pipe, a terminal or a socket whose reader stands still, or that nobody reads any more, or a
 * full disk.
 *
 * What the reader does not take at once is kept, up to 64 KiB a stream, and goes out, in order and ahead of
 * what follows, with the next text that finds room. What does not fit is dropped, and "N log lines lost"
 * stands in its place. The end of the process waits for a slow reader for at most a second.
 */
namespace standardstreams {

/**
 * Opens what is closed of the descriptors 0 to 2 on /dev/null, so that nothing else gets these numbers, and
 * gives this process descriptors of its own that do not block; the flags of the inherited ones, which others
 * share, stay as they are. Where that is refused (a terminal or pipe of another user), a text is written only
 * when poll() finds room, which holds for pipes. Once, before anything else in main().
 */
void prepare();

/**
 * Writes a text as it is.
 * @param fd STDOUT_FILENO or STDERR_FILENO
 * @param text whole lines, with their line ends; counted as one when lost
 * Any thread, not in signal context.
 */
void write(int fd, const QByteArray& text);

/** For signal context: the text goes out at once and ahead of what is kept, or it is lost. */
void writeInSignal(int fd, const char* text, std::size_t size);

/** Gives the reader up to a second to take what is kept. Done by itself at the end of the process. */
void drain();

} // namespace standardstreams
