#include "widgets/keypad/keypadkey.h"

#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int CharacterSize = 21;
constexpr qreal SignWidth = 2.4;

// Signs are drawn around the origin in a box of 28 by 20 pixels, lines of one width.
QPainterPath signOf(CKeyPadKey::Action action)
{
    QPainterPath path;
    switch (action) {
    case CKeyPadKey::ToggleShift:
        path.moveTo(0, -9);
        path.lineTo(9, 0);
        path.lineTo(4.5, 0);
        path.lineTo(4.5, 8);
        path.lineTo(-4.5, 8);
        path.lineTo(-4.5, 0);
        path.lineTo(-9, 0);
        path.closeSubpath();
        break;
    case CKeyPadKey::Backspace:
        path.moveTo(-14, 0);
        path.lineTo(-6, -9);
        path.lineTo(13, -9);
        path.lineTo(13, 9);
        path.lineTo(-6, 9);
        path.closeSubpath();
        path.moveTo(-0.5, -4);
        path.lineTo(7.5, 4);
        path.moveTo(7.5, -4);
        path.lineTo(-0.5, 4);
        break;
    case CKeyPadKey::CursorLeft:
        path.moveTo(4, -8);
        path.lineTo(-4, 0);
        path.lineTo(4, 8);
        break;
    case CKeyPadKey::CursorRight:
        path.moveTo(-4, -8);
        path.lineTo(4, 0);
        path.lineTo(-4, 8);
        break;
    case CKeyPadKey::TypeCharacter:
    case CKeyPadKey::ChangePage:
    case CKeyPadKey::ClearText:
        break;
    }
    return path;
}

} // namespace

CKeyPadKey::CKeyPadKey(QChar character, QWidget* parent)
    : CPushButton(parent)
    , m_character(character)
{
    setObjectName(QLatin1String("key") + character);
    setTextSize(CharacterSize);
}

CKeyPadKey::CKeyPadKey(Action action, QWidget* parent)
    : CPushButton(parent)
    , m_action(action)
{
    setHeld(false);
    setExtraAttribute(PressBackground, CWidgetStyle::getButtonPixmap(CWidgetStyle::ButtonPressed));
    setExtraAttribute(PressColor, int(CWidgetStyle::ColorAccent));
    setAutoRepeat(action == Backspace || action == CursorLeft || action == CursorRight);
}

void CKeyPadKey::setHeld(bool held, bool locked)
{
    if (m_locked != locked) {
        m_locked = locked;
        update();
    }
    setExtraAttribute(
        ReleaseBackground, int(held ? CWidgetStyle::ColorPressed : CWidgetStyle::ColorToolPage));
}

void CKeyPadKey::paintEvent(QPaintEvent* event)
{
    const QPainterPath sign = signOf(m_action);
    if (sign.isEmpty()) {
        CPushButton::paintEvent(event);
        return;
    }
    QPainter painter(this);
    paintGround(painter);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    painter.setPen(QPen(currentTextColor(), SignWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(sign);
    if (m_locked)
        painter.drawLine(QPointF(-6, 13), QPointF(6, 13));
    painter.restore();
    paintFocusMarker(painter, CWidgetStyle::getMetric(CWidgetStyle::MetricButtonRadius));
}
