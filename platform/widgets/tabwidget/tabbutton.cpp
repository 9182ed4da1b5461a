#include "widgets/tabwidget/tabbutton.h"

#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QPainter>

namespace {

constexpr int TextMargin = 8;
constexpr int LineInset = 10;
constexpr int LineHeight = 3;

} // namespace

CTabButton::CTabButton(const QString& text, QWidget* parent)
    : CPushButton(text, parent)
{
    setCheckable(true);
}

void CTabButton::nextCheckState()
{
    setChecked(true);
}

void CTabButton::paintEvent(QPaintEvent*)
{
    const auto color = [](int code) { return CWidgetStyle::getColor(code); };
    const int radius = CWidgetStyle::getMetric(CWidgetStyle::MetricButtonRadius);
    QPainter painter(this);
    if (isDown())
        CStylePainter::paintChosen(painter, rect(), radius);
    else
        CStylePainter::paintPlate(painter, rect(), radius,
            color(isChecked() ? CWidgetStyle::ColorToolPageOpen : CWidgetStyle::ColorToolBox));
    if (isChecked())
        painter.fillRect(LineInset, height() - LineHeight, width() - 2 * LineInset, LineHeight,
            color(CWidgetStyle::ColorAccent));
    painter.setFont(textFont(CWidgetStyle::FontToolPage));
    CStylePainter::paintText(painter, rect().adjusted(TextMargin, 0, -TextMargin, 0), Qt::AlignCenter, text(),
        color(isChecked() || isDown() ? CWidgetStyle::ColorTextLight : CWidgetStyle::ColorTextMuted), false,
        true);
    paintFocusMarker(painter, radius);
}
