#include "appindicator.h"

#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QPainter>

namespace {

constexpr int BAR_HEIGHT = 60;
constexpr int PLATE_MARGIN = 10; // above and below
constexpr int PLATE_RADIUS = 8;
constexpr int PADDING = 14; // left and right of the text

} // namespace

CAppIndicator::CAppIndicator(QWidget* parent)
    : CWidget(parent)
{
    setTypeCode(TypeLabel);
}

void CAppIndicator::setText(const QString& text)
{
    if (m_text == text)
        return;
    m_text = text;
    updateGeometry();
    update();
}

QSize CAppIndicator::sizeHint() const
{
    const QFontMetrics metrics(CWidgetStyle::getFont(CWidgetStyle::FontText));
    // One pixel more: the advance is rounded down, and a text elides when a fraction of a pixel is missing.
    return QSize(metrics.horizontalAdvance(m_text) + 1 + 2 * PADDING, BAR_HEIGHT);
}

void CAppIndicator::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    if (m_text.isEmpty())
        return;
    QPainter painter(this);
    const int margin = height() > 3 * PLATE_MARGIN ? PLATE_MARGIN : 0; // a low widget needs all its height
    const QRect plate = rect().adjusted(0, margin, 0, -margin);
    CStylePainter::paintPlate(painter, plate, PLATE_RADIUS, CWidgetStyle::getColor(CWidgetStyle::ColorPlate));
    painter.setFont(CWidgetStyle::getFont(CWidgetStyle::FontText));
    CStylePainter::paintText(painter, plate.adjusted(PADDING, 0, -PADDING, 0),
        Qt::AlignLeft | Qt::AlignVCenter, m_text, CWidgetStyle::getColor(CWidgetStyle::ColorTextLight));
}
