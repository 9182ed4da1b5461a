#include "widgets/statusicon/statusicon.h"

#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QPainter>

namespace {

constexpr qreal DisabledOpacity = 0.4;
constexpr int VeilOpacity = 90;
constexpr int CornerRadius = 6;

} // namespace

CStatusIcon::CStatusIcon(QWidget* parent)
    : CPushButton(parent)
{
    connect(this, &QAbstractButton::clicked, this, &CStatusIcon::triggered);
}

void CStatusIcon::setIcon(const QPixmap& picture)
{
    if (m_icon.cacheKey() == picture.cacheKey())
        return;
    m_icon = picture;
    update();
}

void CStatusIcon::setIconSize(int width, int height)
{
    QPushButton::setIconSize(QSize(width, height));
    setFixedSize(width, height);
}

QSize CStatusIcon::sizeHint() const
{
    return iconSize();
}

void CStatusIcon::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QPixmap picture = statePicture();
    if (picture.isNull())
        picture = backgroundImage().isNull() ? m_icon : backgroundImage();
    CStylePainter::paintPicture(painter, rect(), picture, isEnabled() ? 1.0 : DisabledOpacity);
    if (isDown() && !extraAttribute(PressBackground).isValid()) {
        QColor veil = CWidgetStyle::getColor(CWidgetStyle::ColorAccent);
        veil.setAlpha(VeilOpacity);
        CStylePainter::paintPlate(painter, rect(), CornerRadius, veil);
    }
    paintFocusMarker(painter, CornerRadius);
}
