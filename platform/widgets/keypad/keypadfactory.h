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
    /** Which keys a pad offers. The numbers of the pads for numbers and texts are fixed. */
    enum KeyPadType { KeyPadNumber = 3, KeyPadAddress = 4, KeyPadText = 5, KeyPadPassword = 6 };

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
