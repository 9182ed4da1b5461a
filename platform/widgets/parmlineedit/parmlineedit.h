#pragma once

#include "widgets/keypad/keypadfactory.h"
#include "widgets/parmfield/parmfield.h"

#include <QLineEdit>

/**
 * A named parameter that is typed: caption on the left, the value on the right; touching it opens a soft key
 * pad. The text changes when the pad is left with OK.
 */
class CParmLineEdit : public CParmField
{
    Q_OBJECT

public:
    CParmLineEdit(const QString& caption, const QString& text, QWidget* parent = nullptr);

    QString text() const { return m_text; }
    /** Takes any text, also one that could not be typed; emits textChanged() if it is another one. */
    void setText(const QString& text);

    /** Kind of soft key pad. */
    void setSKPType(CKeyPadFactory::KeyPadType type) { m_keyPad = type; }
    /**
     * Whole numbers only, within these limits, which the pad shows; another one is refused with a message
     * that names the limits, and the pad stays open. A maximum below the minimum takes the limits away.
     */
    void setRange(int min, int max);
    /** Most characters that can be typed, 0 for no limit. */
    void setMaxLength(int characters) { m_maxLength = characters; }
    /** Most bytes that can be typed, counted in UTF-8 as they are stored, 0 for no limit. */
    void setMaxBytes(int bytes) { m_maxBytes = bytes; }
    /** Another mode than QLineEdit::Normal shows dots; the pad then hides the text too until asked to show
     * it. */
    void setEchoMode(QLineEdit::EchoMode mode);

signals:
    /** The text changed, by the user or a call. */
    void textChanged(const QString& text);

protected:
    QString shownValue() const override;
    void paintSign(QPainter& painter, const QRect& area) const override;

private:
    bool hasRange() const { return m_min <= m_max; }
    void edit();

    QString m_text;
    CKeyPadFactory::KeyPadType m_keyPad = CKeyPadFactory::KeyPadText;
    QLineEdit::EchoMode m_echo = QLineEdit::Normal;
    int m_maxLength = 0;
    int m_maxBytes = 0;
    int m_min = 0;
    int m_max = -1;
};
