#pragma once

#include "widgets/dialog/dialog.h"
#include "widgets/keypad/keypadfactory.h"
#include "widgets/keypad/keypadkey.h"

#include <QVector>

#include <functional>

class CCheckBox;
class CLabel;
class CPadValidator;
class QLineEdit;

/**
 * The soft key pad: title, the text with its cursor, the keys, Cancel and OK. It fills the page frame; the
 * pad for numbers is narrower.
 *
 * A hardware keyboard types into the same text. Arrow keys move the focus marker over the keys, Enter presses
 * the marked one, or OK while none is marked. OK and Cancel end it, and so does hiding its parent, which
 * cancels it: a pad does not outlive the page whose field it edits.
 *
 * Object names: "text" the text, "ok", "cancel", "clear", "showPassword", "backspace", "left", "right",
 * "shift", "page", and "key" followed by its character for a key that types.
 */
class CKeyPadDialog : public CDialog
{
    Q_OBJECT

public:
    /** Says why a text cannot be accepted; empty when it can. */
    using Check = std::function<QString(const QString& text)>;

    CKeyPadDialog(const QString& title, const QString& text, CKeyPadFactory::KeyPadType type,
        QWidget* parent = nullptr);

    /** Most characters, 0 for no limit; a longer text is cut. The count is shown beside the title. */
    void setMaxLength(int characters);
    /** Most bytes of the text in UTF-8, 0 for no limit; as setMaxLength() else, which counts the same way
     * then.
     */
    void setMaxBytes(int bytes);
    /** Says beside the title what can be typed, in place of a count. */
    void setHint(const QString& hint);
    /** Takes no other characters than these, and disables the keys of others. */
    void setAllowedCharacters(const QString& characters);
    /** Asked at OK. A refused text gets a message, and the pad stays with it. */
    void setCheck(const Check& check) { m_check = check; }
    /** Whether the password pad shows the text; it starts hidden. */
    void setPasswordShown(bool shown);

    QString text() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    void updateWidgetStyle() override;
    void accept() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum ShiftState { ShiftOff, ShiftOnce, ShiftLocked };

    void makeKeys();
    CKeyPadKey* makeKey(QChar sign);
    void pressKey(const CKeyPadKey* key);
    void nextPage();
    void setShift(ShiftState state);
    void labelKeys();
    void enableKeys();
    void showCount();
    void styleText();
    void layoutParts();

    CKeyPadFactory::KeyPadType m_type;
    Check m_check;
    QString m_allowed; // empty: whatever can be printed
    ShiftState m_shift = ShiftOff;
    int m_page = 0;
    QVector<QVector<CKeyPadKey*>> m_keys; // by page, in the order of its rows
    CLabel* m_pTitle;
    CLabel* m_pCount;
    QLineEdit* m_pText;
    CPadValidator* m_pValidator; // of m_pText
    CKeyPadKey* m_pClear = nullptr;
    CCheckBox* m_pShowPassword = nullptr; // password pad only
    CPushButton* m_pCancel = nullptr;
    CPushButton* m_pOk = nullptr;
};
