#include "widgets/checkbox/checkbox.h"

#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int BoxSize = 24;
constexpr int Gap = 10;
constexpr int Margin = 8;
constexpr int TileRadius = 6;
constexpr int DisabledOpacity = 150; // of 255; paler, but still readable

} // namespace

CCheckBox::CCheckBox(QWidget* parent)
    : CCheckBox(QString(), parent)
{ }

CCheckBox::CCheckBox(const QString& text, QWidget* parent)
    : CPushButton(text, parent)
{
    setCheckable(true);
    resize(CCheckBox::sizeHint());
    connect(this, &QAbstractButton::toggled, this,
        [this](bool checked) { emit stateChanged(checked ? Qt::Checked : Qt::Unchecked); });
}

void CCheckBox::setExclusive(bool exclusive)
{
    if (m_exclusive == exclusive)
        return;
    m_exclusive = exclusive;
    update();
}

void CCheckBox::setSkinEnabled(bool enabled)
{
    if (m_skin == enabled)
        return;
    m_skin = enabled;
    update();
}

QSize CCheckBox::sizeHint() const
{
    const int target = CWidgetStyle::getMetric(CWidgetStyle::MetricTouchTarget);
    const int textWidth = QFontMetrics(textFont(CWidgetStyle::FontText)).size(0, text()).width();
    return QSize(2 * Margin + BoxSize + (text().isEmpty() ? 0 : Gap + textWidth), target);
}

void CCheckBox::nextCheckState()
{
    if (!m_exclusive || !isChecked())
        setChecked(!isChecked());
}

QColor CCheckBox::markColor() const
{
    QColor color = extraAttribute(ReleaseColor).isValid()
        ? currentTextColor()
        : textColorOr(CWidgetStyle::getColor(CWidgetStyle::ColorTextLight));
    if (!isEnabled())
        color.setAlpha(DisabledOpacity);
    return color;
}

void CCheckBox::paintTile(QPainter& painter) const
{
    // Light or dark tint by the text, so that the tile suits dialogs as well as pages.
    QColor tint = isDown() ? CWidgetStyle::getColor(CWidgetStyle::ColorAccent) : markColor();
    tint.setAlpha(isDown() ? 100 : 22);
    QColor frame = markColor();
    frame.setAlpha(70);
    CStylePainter::paintPlate(
        painter, rect().adjusted(0, 2, 0, -2), TileRadius, tint, m_skin ? frame : QColor(), 1);
}

void CCheckBox::paintBox(QPainter& painter, const QRect& box) const
{
    const QRectF area = QRectF(box).adjusted(1, 1, -1, -1);
    const qreal radius = m_exclusive ? area.width() / 2 : 5;
    QColor fill = CWidgetStyle::getColor(CWidgetStyle::ColorPressed);
    if (!isEnabled())
        fill.setAlpha(140);
    painter.setPen(QPen(markColor(), 2));
    painter.setBrush(isChecked() ? QBrush(fill) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(area, radius, radius);
    if (!isChecked())
        return;
    const QColor light = CWidgetStyle::getColor(CWidgetStyle::ColorTextLight);
    if (m_exclusive) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(light);
        painter.drawEllipse(area.center(), 5, 5);
    } else {
        painter.setPen(QPen(light, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        const QPointF tick[] = {area.topLeft() + QPointF(5, 11.5), area.topLeft() + QPointF(9.5, 16),
            area.topLeft() + QPointF(17.5, 6.5)};
        painter.drawPolyline(tick, 3);
    }
}

void CCheckBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_skin || isDown())
        paintTile(painter);
    // A box without text sits in the middle of whatever room it has.
    const int left = text().isEmpty() ? std::max(0, (width() - BoxSize) / 2) : Margin;
    const QRect box(left, (height() - BoxSize) / 2, BoxSize, BoxSize);
    paintBox(painter, box);
    painter.setFont(textFont(CWidgetStyle::FontText));
    CStylePainter::paintText(painter,
        QRect(box.right() + 1 + Gap, 0, width() - box.right() - 1 - Gap - Margin, height()),
        Qt::AlignLeft | Qt::AlignVCenter, text(), markColor(), false, true);
    paintFocusMarker(painter, TileRadius);
}
