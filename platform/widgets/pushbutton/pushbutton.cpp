#include "widgets/pushbutton/pushbutton.h"

#include "widgets/touchregion/touchregion.h"
#include "widgets/widget/treecall.h"
#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int Padding = 8;
constexpr int PlateInset = 4;
constexpr double ReadableContrast = 4.5;
constexpr qreal DisabledOpacity = 0.4;

int buttonRadius()
{
    return CWidgetStyle::getMetric(CWidgetStyle::MetricButtonRadius);
}

bool sameValue(const QVariant& one, const QVariant& other)
{
    if (one.userType() == QMetaType::QPixmap && other.userType() == QMetaType::QPixmap)
        return one.value<QPixmap>().cacheKey() == other.value<QPixmap>().cacheKey();
    return one == other;
}

} // namespace

CPushButton::CPushButton(QWidget* parent)
    : CPushButton(QString(), parent)
{ }

CPushButton::CPushButton(const QString& text, QWidget* parent)
    : QPushButton(text, parent)
{
    installTouchRegion();
    setFocusPolicy(Qt::NoFocus);
    setAutoDefault(false);
    resize(CWidgetStyle::getMetric(CWidgetStyle::MetricMessageButtonWidth),
        CWidgetStyle::getMetric(CWidgetStyle::MetricMessageButtonHeight));
}

void CPushButton::setExtraAttribute(ExtraAttribute attribute, const QVariant& value)
{
    if (sameValue(m_attributes.value(attribute), value))
        return;
    if (value.isValid())
        m_attributes.insert(attribute, value);
    else
        m_attributes.remove(attribute);
    if (attribute == PressBackground || attribute == ReleaseBackground || attribute == SelectBackground)
        m_grounds.insert(attribute, groundOf(value));
    update();
}

QVariant CPushButton::extraAttribute(ExtraAttribute attribute) const
{
    return m_attributes.value(attribute);
}

void CPushButton::setAffirmative()
{
    setExtraAttribute(ReleaseBackground, int(CWidgetStyle::ColorPressed));
    setExtraAttribute(PressBackground, CWidgetStyle::getButtonPixmap(CWidgetStyle::ButtonPressed));
    setExtraAttribute(PressColor, int(CWidgetStyle::ColorAccent));
}

void CPushButton::setQuiet()
{
    setBackgroundColor(QColor(Qt::gray));
    setExtraAttribute(ReleaseColor, int(CWidgetStyle::ColorTextDark));
    setExtraAttribute(PressColor, int(CWidgetStyle::ColorTextLight));
}

void CPushButton::setBackgroundImage(const QPixmap& picture)
{
    if (m_background.picture.cacheKey() == picture.cacheKey())
        return;
    m_background = groundOf(picture);
    update();
}

void CPushButton::setBackgroundColor(const CThemeColor& color)
{
    if (m_fill == color)
        return;
    m_fill = color;
    update();
}

void CPushButton::setTextColor(const CThemeColor& color)
{
    if (m_textColor == color)
        return;
    m_textColor = color;
    update();
}

void CPushButton::setTextSize(int pixels)
{
    const int size = std::max(0, pixels);
    if (m_textSize == size)
        return;
    m_textSize = size;
    updateGeometry();
    update();
}

void CPushButton::setArrowKeyFocus(bool on)
{
    if (m_arrowKeyFocus == on)
        return;
    m_arrowKeyFocus = on;
    update();
}

QSize CPushButton::sizeHint() const
{
    const int target = CWidgetStyle::getMetric(CWidgetStyle::MetricTouchTarget);
    const QFontMetrics metrics(textFont(CWidgetStyle::FontButton));
    QSize size = metrics.size(0, text());
    if (!icon().isNull()) {
        size.rwidth() += iconSize().width() + (text().isEmpty() ? 0 : Padding);
        size.rheight() = std::max(size.height(), iconSize().height());
    }
    return QSize(size.width() + 2 * (Padding + PlateInset), size.height() + Padding)
        .expandedTo(QSize(
            target, std::max(target, CWidgetStyle::getMetric(CWidgetStyle::MetricMessageButtonHeight))));
}

void CPushButton::updateWidgetStyle()
{
    updateGeometry();
    update();
    callInTree(this, "updateWidgetStyle()");
}

void CPushButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintGround(painter);

    painter.setFont(textFont(CWidgetStyle::FontButton));
    QRect content = rect().adjusted(Padding, 2, -Padding, -2);
    if (!icon().isNull()) {
        const QPixmap picture = icon().pixmap(iconSize(), isEnabled() ? QIcon::Normal : QIcon::Disabled);
        QRect place = content;
        if (!text().isEmpty()) {
            const int wanted = iconSize().width() + Padding + painter.fontMetrics().horizontalAdvance(text());
            place.setLeft(content.left() + std::max(0, (content.width() - wanted) / 2));
            place.setWidth(iconSize().width());
            content.setLeft(place.right() + 1 + Padding);
            CStylePainter::paintText(
                painter, content, Qt::AlignLeft | Qt::AlignVCenter, text(), currentTextColor(), false, true);
        }
        CStylePainter::paintPicture(painter, place, picture);
    } else {
        CStylePainter::paintText(painter, content, Qt::AlignCenter, text(), currentTextColor(), false, true);
    }
    paintFocusMarker(painter, buttonRadius());
}

QFont CPushButton::textFont(int fontKind) const
{
    QFont result = testAttribute(Qt::WA_SetFont) ? font() : CWidgetStyle::getFont(fontKind);
    if (m_textSize > 0)
        result.setPixelSize(m_textSize);
    return result;
}

QColor CPushButton::currentTextColor() const
{
    if (!isEnabled())
        return CWidgetStyle::getButtonLook(CWidgetStyle::ButtonDisabled).text;
    if (isDown()) {
        QColor pressed = attributeColor(PressColor);
        if (pressed.isValid())
            return pressed;
        // On its own pictures a button keeps its own colour; on the pressed look only the look's is readable.
        const bool ownLook = m_grounds.value(PressBackground).isSet() || m_background.isSet();
        const QColor look = CWidgetStyle::getButtonLook(CWidgetStyle::ButtonPressed).text;
        return ownLook ? textColorOr(look) : look;
    }
    QColor released = attributeColor(ReleaseColor);
    if (released.isValid())
        return released;
    const QColor look = isChecked() ? CWidgetStyle::getColor(CWidgetStyle::ColorTextLight)
                                    : CWidgetStyle::getButtonLook(CWidgetStyle::ButtonReleased).text;
    return textColorOr(look);
}

void CPushButton::paintGround(QPainter& painter) const
{
    const int radius = buttonRadius();
    const QColor fill = m_fill.color();
    const Ground ground = currentGround();
    if (ground.isSet()) {
        if (fill.isValid())
            painter.fillRect(rect(), fill);
        paintOne(painter, ground);
        return;
    }
    const int status = !isEnabled() ? CWidgetStyle::ButtonDisabled
        : isDown()                  ? CWidgetStyle::ButtonPressed
                                    : CWidgetStyle::ButtonReleased;
    if (isEnabled() && !isDown() && isChecked()) {
        CStylePainter::paintChosen(painter, rect(), radius);
    } else if (fill.isValid()) {
        CStylePainter::paintPlate(painter, rect(), radius, fill);
        if (status != CWidgetStyle::ButtonReleased || !standsOut(fill))
            CStylePainter::paintButton(
                painter, rect().adjusted(PlateInset, PlateInset, -PlateInset, -PlateInset), status);
    } else {
        CStylePainter::paintButton(painter, rect(), status);
    }
}

void CPushButton::paintFocusMarker(QPainter& painter, int radius) const
{
    // A select picture is a marker itself; a frame around it would be a second one.
    if (m_arrowKeyFocus && m_grounds.value(SelectBackground).picture.isNull())
        CStylePainter::paintFocusMarker(painter, rect(), radius);
}

QPixmap CPushButton::statePicture() const
{
    const Ground pressed = m_grounds.value(PressBackground);
    if (isDown() && pressed.isSet())
        return pressed.picture;
    const Ground selected = m_grounds.value(SelectBackground);
    if (m_arrowKeyFocus && selected.isSet())
        return selected.picture;
    return m_grounds.value(ReleaseBackground).picture;
}

CPushButton::Ground CPushButton::groundOf(const QVariant& value)
{
    Ground ground;
    if (value.userType() == QMetaType::QPixmap) {
        ground.picture = value.value<QPixmap>();
        ground.buttonStatus = CWidgetStyle::buttonStatusOf(ground.picture);
    } else if (value.userType() == QMetaType::QColor) {
        ground.color = value.value<QColor>();
    } else if (value.canConvert<int>()) {
        ground.color = value.toInt();
    }
    return ground;
}

CPushButton::Ground CPushButton::currentGround() const
{
    if (isDown() && m_grounds.value(PressBackground).isSet())
        return m_grounds.value(PressBackground);
    if (m_arrowKeyFocus && !isDown() && m_grounds.value(SelectBackground).isSet())
        return m_grounds.value(SelectBackground);
    if (m_grounds.value(ReleaseBackground).isSet())
        return m_grounds.value(ReleaseBackground);
    return m_background;
}

void CPushButton::paintOne(QPainter& painter, const Ground& ground) const
{
    const bool pressedShown = isDown() && m_grounds.value(PressBackground).isSet();
    if (ground.buttonStatus >= 0) {
        const int status = !isEnabled() ? int(CWidgetStyle::ButtonDisabled)
            : isDown() && !pressedShown ? int(CWidgetStyle::ButtonPressed)
                                        : ground.buttonStatus;
        CStylePainter::paintButton(painter, rect(), status);
        return;
    }
    const QColor color = ground.color.color();
    if (color.isValid())
        CStylePainter::paintPlate(painter, rect(), buttonRadius(), color);
    CStylePainter::paintPicture(painter, rect(), ground.picture, isEnabled() ? 1.0 : DisabledOpacity);
    if (isDown() && !pressedShown) {
        // Pictures without a pressed one: the accent shines through.
        QColor veil = CWidgetStyle::getColor(CWidgetStyle::ColorAccent);
        veil.setAlpha(90);
        CStylePainter::paintPlate(
            painter, rect(), buttonRadius(), veil, CWidgetStyle::getColor(CWidgetStyle::ColorAccent), 2);
    }
}

QColor CPushButton::attributeColor(ExtraAttribute attribute) const
{
    return groundOf(m_attributes.value(attribute)).color.color();
}

bool CPushButton::standsOut(const QColor& fill) const
{
    return text().isEmpty() || CStylePainter::contrast(currentTextColor(), fill) >= ReadableContrast;
}
