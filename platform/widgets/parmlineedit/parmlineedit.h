#pragma once

#include "widgets/keypad/keypadfactory.h"
#include "widgets/pushbutton/pushbutton.h"

#include <QLineEdit>

/** A named parameter that is typed: caption on the left, the value on the right; touching it opens a soft key pad. */
class CParmLineEdit : public CPushButton
{
    Q_OBJECT

public:
    CParmLineEdit(const QString &caption, const QString &text, QWidget *parent = nullptr);

    void setCaption(const QString &caption);
    QString caption() const { return m_caption; }
    QString text() const { return m_text; }
    void setText(const QString &text);

    /** Kind of soft key pad. */
    void setSKPType(CKeyPadFactory::KeyPadType type) { m_keyPad = type; }
    /** Whole numbers only, within these limits; a number typed outside them is refused with a message. */
    void setRange(int min, int max);
    void setMaxLength(int characters) { m_maxLength = characters; }
    /** QLineEdit::Password shows dots. */
    void setEchoMode(QLineEdit::EchoMode mode);

    QSize sizeHint() const override;

signals:
    void textChanged(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void edit();

    QString m_caption;
    QString m_text;
    CKeyPadFactory::KeyPadType m_keyPad = CKeyPadFactory::KeyPadText;
    QLineEdit::EchoMode m_echo = QLineEdit::Normal;
    int m_maxLength = 0;
    int m_min = 0;
    int m_max = -1; // below m_min: no range set
};
