#include "widgets/widget/widget.h"

#include "widgets/keywatch/keywatch.h"
#include "widgets/touchregion/touchregion.h"
#include "widgets/widget/treecall.h"
#include "widgets/widgetstyle/stylepainter.h"

#include <QPainter>

CWidget::CWidget(QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
{
    installTouchRegion();
    installKeyWatch();
}

void CWidget::setBackgroundColor(const CThemeColor& color)
{
    if (m_frame.setBackgroundColor(color))
        update();
}

void CWidget::setBackgroundImage(const QPixmap& picture)
{
    if (m_frame.setBackgroundPicture(picture))
        update();
}

void CWidget::setBorderColor(const CThemeColor& color)
{
    if (m_frame.setBorderColor(color))
        update();
}

void CWidget::setBorderWidth(int width)
{
    setBorderWidth(width, width, width, width);
}

void CWidget::setBorderWidth(int left, int top, int right, int bottom)
{
    const QMargins before = m_frame.borderWidths();
    m_frame.setBorderWidths(QMargins(left, top, right, bottom));
    if (before == m_frame.borderWidths())
        return;
    setContentsMargins(m_frame.borderWidths()); // layouts keep off the border
    update();
}

void CWidget::setRounded(int radius, CFrameStyle::Corners corners)
{
    m_frame.setRounded(radius, corners);
    update();
}

QRect CWidget::innerRect() const
{
    return rect().marginsRemoved(m_frame.borderWidths());
}

void CWidget::setArrowKeyFocus(bool on)
{
    if (m_arrowKeyFocus == on)
        return;
    m_arrowKeyFocus = on;
    update();
}

void CWidget::translate()
{
    callInTree(this, "translate()");
}

void CWidget::updateWidgetStyle()
{
    update();
    callInTree(this, "updateWidgetStyle()");
}

void CWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintFrame(painter);
    paintFocusMarker(painter);
}

void CWidget::paintFrame(QPainter& painter) const
{
    m_frame.paint(painter, rect());
}

void CWidget::paintFocusMarker(QPainter& painter) const
{
    if (m_arrowKeyFocus)
        CStylePainter::paintFocusMarker(painter, rect());
}
