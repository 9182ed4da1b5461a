#pragma once

#include <QString>

class QWidget;

/**
 * Makes the soft key pads. A pad is modal, shows the text it edits in a line of its own above the keys, and
 * never covers a field that has to be read while typing.
 */
class CKeyPadFactory
{
public:
    /** Which keys a pad offers. */
    enum KeyPadType { KeyPadText = 0, KeyPadNumber = 1, KeyPadAddress = 2, KeyPadPassword = 3 };

    /**
     * Runs a pad.
     * @param title what is being typed
     * @param text the initial text; the typed text on return when accepted, else unchanged
     * @param maxLength most characters, 0 for no limit
     * @return true when the user accepted
     */
    static bool accessKeyPad(
        QWidget* parent, const QString& title, QString& text, KeyPadType type, int maxLength = 0);
};
