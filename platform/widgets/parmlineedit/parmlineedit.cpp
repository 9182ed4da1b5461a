#include "widgets/parmlineedit/parmlineedit.h"

#include "widgets/keypad/keypaddialog.h"

#include <QPainter>
#include <QPointer>

CParmLineEdit::CParmLineEdit(const QString& caption, const QString& text, QWidget* parent)
    : CParmField(caption, parent)
    , m_text(text)
{
    connect(this, &QAbstractButton::clicked, this, &CParmLineEdit::edit);
}

void CParmLineEdit::setText(const QString& text)
{
    if (m_text == text)
        return;
    m_text = text;
    valueChanged();
    emit textChanged(text);
}

void CParmLineEdit::setRange(int min, int max)
{
    m_min = min;
    m_max = max;
}

void CParmLineEdit::setEchoMode(QLineEdit::EchoMode mode)
{
    if (m_echo == mode)
        return;
    m_echo = mode;
    valueChanged();
}

QString CParmLineEdit::shownValue() const
{
    // As many dots whatever the length: that is part of the secret.
    constexpr int Dots = 8;
    if (m_echo == QLineEdit::Normal || m_text.isEmpty())
        return m_text;
    return m_echo == QLineEdit::NoEcho ? QString() : QString(Dots, QChar(0x2022));
}

void CParmLineEdit::paintSign(QPainter& painter, const QRect& area) const
{
    // A pencil.
    painter.save();
    painter.translate(QRectF(area).center());
    painter.rotate(45);
    const QPointF outline[] = {{-3, -9}, {3, -9}, {3, 5}, {0, 10}, {-3, 5}};
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(outline, 5);
    painter.drawLine(QPointF(-3, -5), QPointF(3, -5));
    painter.restore();
}

void CParmLineEdit::edit()
{
    const bool hidden = m_echo != QLineEdit::Normal;
    const bool isText = m_keyPad == CKeyPadFactory::KeyPadText;
    // The pad goes with this field, also while it is up.
    const QPointer<CKeyPadDialog> pad = new CKeyPadDialog(
        caption(), m_text, hidden && isText ? CKeyPadFactory::KeyPadPassword : m_keyPad, this);
    if (m_maxBytes > 0)
        pad->setMaxBytes(m_maxBytes);
    else
        pad->setMaxLength(m_maxLength);
    pad->setPasswordShown(!hidden);
    if (hasRange()) {
        const int min = m_min, max = m_max;
        pad->setHint(tr("%1 to %2", "limits of a number").arg(min).arg(max));
        pad->setAllowedCharacters(QLatin1String(min < 0 ? "-0123456789" : "0123456789"));
        pad->setCheck([min, max](const QString& text) {
            bool isNumber = false;
            const int number = text.toInt(&isNumber);
            return isNumber && number >= min && number <= max
                ? QString()
                : tr("Enter a whole number from %1 to %2.").arg(min).arg(max);
        });
    }
    const bool accepted = pad->exec() == QDialog::Accepted && pad;
    const QString typed = accepted ? pad->text() : QString();
    delete pad;
    if (accepted)
        setText(hasRange() ? QString::number(typed.toInt()) : typed); // without leading zeros
}
