#pragma once

#include <QString>

class CWindowHost;

/** The boxes of the shell's own, by what they are for. */
enum class ShellBox {
    Calibration, ///< asks: goes on, or not
    NoUsbDrive,
    NotAvailable, ///< a utility that this unit does not have
    PluginError,
    ScreenLimit, ///< no further screenshots
    SystemFailure
};

/**
 * Shows a box in the middle of the working area until it is answered; the event loop runs meanwhile. Behind a
 * test application it waits for the shell, but for SystemFailure. While one of its kind is up, a further one
 * is a line in the log.
 * @param title, text in the user's language
 * @return true when the answer is OK; false also when it was not shown
 */
bool execShellBox(ShellBox box, CWindowHost& host, const QString& title, const QString& text);
