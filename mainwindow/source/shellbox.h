#pragma once

#include <QString>

class CWindowHost;

/** The boxes of the shell's own, by what they are for. */
enum class ShellBox {
    Calibration, ///< asks: goes on, or not
    NoUsbDrive,
    NotAvailable, ///< a utility that this unit does not have
    PluginError, ///< comes up set aside when a test application is in front: it waits for the shell
    ScreenLimit, ///< no further screenshots
    SystemFailure
};

/**
 * Shows a box in the middle of the working area until it is answered; the event loop runs meanwhile.
 * @param title, text in the user's language
 * @return true when the answer is OK
 */
bool execShellBox(ShellBox box, CWindowHost& host, const QString& title, const QString& text);
