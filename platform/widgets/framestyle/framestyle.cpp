#include "widgets/framestyle/framestyle.h"

#include "widgets/widgetstyle/stylepainter.h"

#include <QPainter>

#include <algorithm>
#include <utility>

bool CFrameStyle::setBackgroundColor(const CThemeColor& color)
{
    return std::exchange(m_background, color) != color;
}

bool CFrameStyle::setBorderColor(const CThemeColor& color)
{
    return std::exchange(m_border, color) != color;
}

bool CFrameStyle::setBackgroundPicture(const QPixmap& picture)
{
    const bool changed = m_picture.cacheKey() != picture.cacheKey();
    m_picture = picture;
    return changed;
}

void CFrameStyle::setBorderWidths(const QMargins& widths)
{
    m_widths = QMargins(std::max(0, widths.left()), std::max(0, widths.top()), std::max(0, widths.right()),
        std::max(0, widths.bottom()));
}

void CFrameStyle::setRounded(int radius, Corners corners)
{
    m_radius = std::max(0, radius);
    m_rounded = corners;
}

void CFrameStyle::paint(QPainter& painter, const QRect& rect) const
{
    const QColor ground = backgroundColor();
    const QColor line = borderColor();
    const QRect inner = rect.marginsRemoved(m_widths);
    if (m_radius > 0 && ground.isValid() && line.isValid()) {
        painter.fillRect(rect, line);
        const int below = m_rounded == TopCorners ? m_radius : 0; // where the other corners are out of sight
        painter.save();
        painter.setClipRect(rect, Qt::IntersectClip);
        CStylePainter::paintPlate(painter, inner.adjusted(0, 0, 0, below), m_radius, ground);
        painter.restore();
        return;
    }
    if (ground.isValid())
        painter.fillRect(rect, ground);
    if (!m_picture.isNull())
        painter.drawPixmap(rect.topLeft(), m_picture);
    if (!line.isValid() || m_widths.isNull())
        return;
    const QRect sides[] = {
        QRect(rect.left(), rect.top(), rect.width(), m_widths.top()),
        QRect(rect.left(), rect.bottom() + 1 - m_widths.bottom(), rect.width(), m_widths.bottom()),
        QRect(rect.left(), inner.top(), m_widths.left(), inner.height()),
        QRect(rect.right() + 1 - m_widths.right(), inner.top(), m_widths.right(), inner.height()),
    };
    for (const QRect& side : sides) {
        if (!side.isEmpty())
            painter.fillRect(side, line);
    }
}
