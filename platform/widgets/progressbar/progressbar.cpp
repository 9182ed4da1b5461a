#include "widgets/progressbar/progressbar.h"

#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int Border = 1;
constexpr int Gap = 2; // between border and bar, so that a full bar still shows its border

QColor colorOr(const CThemeColor& color, int code)
{
    const QColor own = color.color();
    return own.isValid() ? own : CWidgetStyle::getColor(code);
}

} // namespace

CProgressBar::CProgressBar(QWidget* parent)
    : QProgressBar(parent)
{
    setTextVisible(false);
}

void CProgressBar::setBorderColor(const CThemeColor& color)
{
    if (m_border == color)
        return;
    m_border = color;
    update();
}

void CProgressBar::setBarColor(const CThemeColor& color)
{
    if (m_bar == color)
        return;
    m_bar = color;
    update();
}

void CProgressBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QColor color = colorOr(m_bar, CWidgetStyle::ColorAccent);
    const QColor light = CWidgetStyle::getColor(CWidgetStyle::ColorDialog);
    const QColor dark = CWidgetStyle::getColor(CWidgetStyle::ColorField);
    painter.fillRect(rect(), colorOr(m_border, CWidgetStyle::ColorFrame));
    const QRect inner = rect().adjusted(Border, Border, -Border, -Border);
    painter.fillRect(
        inner, CStylePainter::contrast(color, dark) >= CStylePainter::contrast(color, light) ? dark : light);

    QRect bar = inner.adjusted(Gap, Gap, -Gap, -Gap);
    // In 64 bits: the whole range of int is allowed. A value below the range (nothing yet) is an empty bar.
    const qint64 range = qint64(maximum()) - minimum();
    const qint64 done = std::max<qint64>(0, qint64(value()) - minimum());
    bar.setWidth(range > 0 ? static_cast<int>(bar.width() * done / range) : 0);
    painter.fillRect(bar, color);
}
