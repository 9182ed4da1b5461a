#pragma once

/**
 * Makes sure that the configuration directories and the four configuration files exist and are readable; a
 * file that is not is replaced by its built-in default. What could not be read is kept beside it under the
 * name with
 * ".rejected" appended.
 * @return false when a directory cannot be made or a file stays unreadable after five attempts (100 ms
 * apart); the files after that one are then not examined
 */
bool initConfiguration();

/**
 * Makes the process independent of how it was started: standard streams that are open and never wait
 * (standardstreams), Qt's messages into them, files of mode 0644 and directories of mode 0755, no end by a
 * broken pipe. First in main().
 */
void prepareProcess();

/**
 * Takes the instrument for this shell, until the process ends. Another shell gets two seconds to end.
 * @return false when it does not (logged); an instrument without a usable lock file is taken all the same
 * (logged)
 */
bool lockInstrument();

/** Routes SIGHUP and SIGTERM to CMainWindow::signalHandler; held back until the window can take them. */
void setup_unix_signal_handlers();

/** From now on the process ends by force, with status 1, when it still runs 5 s after the first of the two
 * signals. */
void limitEnd();

/** SIGCHLD handler: reaps children until none is left, waiting for those that still run. */
void child_handler(int sig);

/** Fills the framebuffer with one byte value; a unit without one is left alone. */
void clearScreen(int value);
/** Clears the screen and ends the process at once. Not installed by the start-up. */
void exit_sig_handler(int sig);
/** Prints the signal number. Not installed by the start-up. */
void poweroff_sig_handler(int sig);
