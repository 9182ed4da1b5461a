#include "widgets/entrywidget/entryitem.h"
#include "widgets/picture/picture.h"

#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int TextGap = 18;
constexpr int SquareShade = 41; // black over the ground
constexpr int PressedShade = 155; // as of QColor::darker

} // namespace

CEntryItem::CEntryItem(const QString& pictureName, int colorType, const QString& label, QWidget* parent)
    : CPushButton(label, parent)
    , m_pictureName(pictureName)
    , m_colorType(colorType)
{
    resize(CEntryItem::sizeHint());
}

void CEntryItem::setLabel(const QString& label)
{
    setText(label);
}

QSize CEntryItem::sizeHint() const
{
    return QSize(CWidgetStyle::getMetric(CWidgetStyle::MetricEntryWidth),
        CWidgetStyle::getMetric(CWidgetStyle::MetricEntryHeight));
}

void CEntryItem::paintEvent(QPaintEvent*)
{
    if (!m_pictureName.isEmpty()) {
        m_picture = QPixmap::fromImage(readPicture(m_pictureName));
        m_pictureName.clear();
    }
    const int radius = CWidgetStyle::getMetric(CWidgetStyle::MetricEntryRadius);
    QColor ground = isEnabled() ? CWidgetStyle::getEntryColor(m_colorType)
                                : CWidgetStyle::getColor(CWidgetStyle::ColorDisabled);
    if (isDown())
        ground = ground.darker(PressedShade);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath tile;
    tile.addRoundedRect(rect(), radius, radius);
    painter.fillPath(tile, ground);
    const QRect square(0, 0, height(), height());
    painter.setClipRect(square);
    painter.fillPath(tile, QColor(0, 0, 0, SquareShade));
    painter.setClipping(false);

    CStylePainter::paintPicture(painter, square, m_picture, isEnabled() ? 1.0 : 0.4);
    const int left = square.right() + 1 + TextGap;
    painter.setFont(textFont(CWidgetStyle::FontEntry));
    const QColor color = CWidgetStyle::getColor(
        isEnabled() ? CWidgetStyle::ColorTextLight : CWidgetStyle::ColorTextDisabled);
    CStylePainter::paintText(painter, QRect(left, 6, width() - left - TextGap / 2, height() - 12),
        Qt::AlignLeft | Qt::AlignVCenter, text(), textColorOr(color), true, true);
    if (isDown()) {
        CStylePainter::paintPlate(painter, rect(), radius, QColor(0, 0, 0, 0),
            CWidgetStyle::getColor(CWidgetStyle::ColorAccent), 2);
    }
    paintFocusMarker(painter, radius);
}
