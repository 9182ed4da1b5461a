#include "widgets/toolbox/toolboxbutton.h"
#include "widgets/picture/picture.h"

#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QPainter>

namespace {

constexpr int IconRoom = 32;
constexpr int ItemInset = 3;
constexpr int ItemRadius = 6;

} // namespace

CToolBoxButton::CToolBoxButton(
    Role role, const QString& iconName, const QString& text, int id, QWidget* parent)
    : CPushButton(text, parent)
    , m_role(role)
    , m_iconName(iconName)
    , m_id(role == PageHeader ? -1 : id)
{ }

void CToolBoxButton::setActive(bool active)
{
    if (m_active == active)
        return;
    m_active = active;
    update();
}

QSize CToolBoxButton::sizeHint() const
{
    const int height = m_role == PageHeader ? CWidgetStyle::getMetric(CWidgetStyle::MetricToolPageHeight)
                                            : CWidgetStyle::getMetric(CWidgetStyle::MetricToolItemHeight);
    return QSize(CWidgetStyle::getScreenRegion(CWidgetStyle::RegionToolBox).width(), height);
}

void CToolBoxButton::paintEvent(QPaintEvent*)
{
    if (!m_iconName.isEmpty()) {
        m_icon = QPixmap::fromImage(readPicture(m_iconName));
        m_iconName.clear();
    }
    QPainter painter(this);
    if (m_role == PageHeader)
        paintHeader(painter);
    else
        paintItem(painter);
    paintFocusMarker(painter, m_role == PageHeader ? 0 : ItemRadius);
}

void CToolBoxButton::paintHeader(QPainter& painter) const
{
    const int ground = isDown() ? CWidgetStyle::ColorPlate
        : m_active              ? CWidgetStyle::ColorToolPageOpen
                                : CWidgetStyle::ColorToolPage;
    painter.fillRect(rect(), CWidgetStyle::getColor(ground));
    const QColor color = currentTextColor();
    painter.setFont(textFont(CWidgetStyle::FontToolPage));
    paintCaption(painter, 24, 46, width() - 26, color);
    CStylePainter::paintChevron(
        painter, QPoint(width() - 15, height() / 2), m_active ? Qt::DownArrow : Qt::RightArrow, color);
}

void CToolBoxButton::paintItem(QPainter& painter) const
{
    const QRect plate = rect().adjusted(ItemInset - 1, ItemInset, -ItemInset + 1, -ItemInset);
    if (isDown()) {
        CStylePainter::paintPlate(painter, plate, ItemRadius,
            CWidgetStyle::getColor(CWidgetStyle::ColorPlate),
            CWidgetStyle::getColor(CWidgetStyle::ColorAccent), 1);
    } else if (m_active) {
        CStylePainter::paintChosen(painter, plate, ItemRadius);
    }
    painter.setFont(textFont(CWidgetStyle::FontToolItem));
    paintCaption(painter, 26, 50, width() - 8, currentTextColor());
}

void CToolBoxButton::paintCaption(
    QPainter& painter, int iconCenter, int textLeft, int textRight, const QColor& color) const
{
    const QRect iconPlace(iconCenter - IconRoom / 2, (height() - IconRoom) / 2, IconRoom, IconRoom);
    CStylePainter::paintPicture(painter, iconPlace, m_icon, isEnabled() ? 1.0 : 0.4);
    CStylePainter::paintText(painter, QRect(textLeft, 0, textRight - textLeft, height()),
        Qt::AlignLeft | Qt::AlignVCenter, text(), color, false, true);
}
