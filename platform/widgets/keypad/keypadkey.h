#pragma once

#include "widgets/pushbutton/pushbutton.h"

/**
 * A key of a soft key pad: it types a character, or does something to the text or to the pad. Keys that type
 * look alike, the others are darker and mostly carry a drawn sign.
 */
class CKeyPadKey : public CPushButton
{
    Q_OBJECT

public:
    /** What a key does; the values are no printable characters, so that both fit one layout string. */
    enum Action {
        TypeCharacter = 0,
        ToggleShift = 1,
        ChangePage = 2,
        Backspace = 3,
        CursorLeft = 4,
        CursorRight = 5,
        ClearText = 6
    };

    explicit CKeyPadKey(QChar character, QWidget* parent = nullptr);
    explicit CKeyPadKey(Action action, QWidget* parent = nullptr);

    Action action() const { return m_action; }
    /** The character typed, in the case of the layout; null for the other keys. */
    QChar character() const { return m_character; }

    /** Shows an action key as switched on, or as locked: on until switched off. */
    void setHeld(bool held, bool locked = false);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Action m_action = TypeCharacter;
    QChar m_character;
    bool m_locked = false;
};
