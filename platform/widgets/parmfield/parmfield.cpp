#include "widgets/parmfield/parmfield.h"

#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int Padding = 12;
constexpr int FieldInset = 6;
constexpr int FieldRadius = 5;
constexpr int SignWidth = 36;
constexpr int SideBySide = 2; // caption and value have half the width each
constexpr int AloneInset = 2; // above and below a value that has no caption

int rowRadius()
{
    return CWidgetStyle::getMetric(CWidgetStyle::MetricButtonRadius);
}

} // namespace

CParmField::CParmField(const QString& caption, QWidget* parent)
    : CPushButton(parent)
    , m_caption(caption)
{ }

void CParmField::setCaption(const QString& caption)
{
    if (m_caption == caption)
        return;
    m_caption = caption;
    updateGeometry();
    update();
}

QSize CParmField::sizeHint() const
{
    const QFontMetrics metrics(textFont(CWidgetStyle::FontText));
    const int captionWidth = 2 * Padding + metrics.horizontalAdvance(m_caption);
    const int valueWidth = 2 * Padding + metrics.horizontalAdvance(longestValue()) + SignWidth;
    return QSize(m_caption.isEmpty() ? valueWidth : SideBySide * std::max(captionWidth, valueWidth),
        CWidgetStyle::getMetric(CWidgetStyle::MetricFieldHeight));
}

void CParmField::valueChanged()
{
    updateGeometry();
    update();
}

QRect CParmField::valueRect() const
{
    if (m_caption.isEmpty())
        return rect().adjusted(0, AloneInset, 0, -AloneInset);
    return rect().adjusted(width() / SideBySide, FieldInset, -FieldInset, -FieldInset);
}

void CParmField::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const auto color = [](int code) { return CWidgetStyle::getColor(code); };
    const bool pressed = isEnabled() && isDown();
    const int row = !isEnabled() ? CWidgetStyle::ColorDisabled
        : pressed                ? CWidgetStyle::ColorPressed
                                 : CWidgetStyle::ColorToolBox;
    const QRect field = valueRect();
    const bool isAlone = m_caption.isEmpty();
    if (!isAlone || !isEnabled())
        CStylePainter::paintPlate(painter, isAlone ? field : rect(), rowRadius(), color(row));
    if (isEnabled())
        CStylePainter::paintPlate(painter, field, FieldRadius, color(CWidgetStyle::ColorField),
            color(pressed ? CWidgetStyle::ColorAccent : CWidgetStyle::ColorTextMuted), 1);

    const QColor text = isEnabled() ? textColorOr(color(CWidgetStyle::ColorTextLight))
                                    : color(CWidgetStyle::ColorTextDisabled);
    painter.setFont(textFont(CWidgetStyle::FontText));
    constexpr auto Left = Qt::AlignLeft | Qt::AlignVCenter;
    CStylePainter::paintText(
        painter, QRect(Padding, 0, field.left() - 2 * Padding, height()), Left, m_caption, text, true, true);
    CStylePainter::paintText(
        painter, field.adjusted(Padding, 0, -SignWidth, 0), Left, shownValue(), text, false, true);

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(
        pressed ? color(CWidgetStyle::ColorAccent) : text, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    paintSign(painter, QRect(field.right() + 1 - SignWidth, field.top(), SignWidth, field.height()));
    paintFocusMarker(painter, rowRadius());
}
