#include "widgets/parmcombobox/parmlist.h"

#include "widgets/keywatch/keywatch.h"
#include "widgets/touchregion/touchregion.h"
#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int RowHeight = 44;
constexpr int Border = 2;
constexpr int Padding = 12;
constexpr int TickWidth = 34;
constexpr int BarWidth = 6;
constexpr int Air = 4; // to the edges of the page
constexpr int DragStart = 12; // pixels that a touch may move and still be a touch
constexpr int RowRadius = 5;
constexpr int ListRadius = 8;

/** The part of the window in which a list may stand. */
QRect pageRect(const QWidget* window)
{
    const QRect page = CWidgetStyle::getScreenRegion(CWidgetStyle::RegionPageFrame) & window->rect();
    // A dialog or a test's window need not reach into the screen's page frame.
    return (page.height() >= 3 * RowHeight ? page : window->rect()).adjusted(Air, Air, -Air, -Air);
}

} // namespace

CParmList::CParmList(const QStringList& items, int current, QWidget* window)
    : CWidget(window)
    , m_items(items)
    , m_current(current)
{
    setObjectName(QStringLiteral("parmList"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFocusPolicy(Qt::StrongFocus);
    window->installEventFilter(this);
}

void CParmList::setMarkerShown(bool shown)
{
    m_marked = shown ? std::max(0, m_current) : -1;
    update();
}

void CParmList::openAt(const QRect& field)
{
    const QRect page = pageRect(parentWidget());
    const QFontMetrics metrics(CWidgetStyle::getFont(CWidgetStyle::FontText));
    int width = field.width();
    for (const QString& item : qAsConst(m_items))
        width = std::max(width, 2 * (Border + Padding) + metrics.horizontalAdvance(item) + TickWidth);
    width = std::min(width, page.width());

    const int wanted = m_items.size() * RowHeight + 2 * Border;
    const int below = page.bottom() - field.bottom(), above = field.top() - page.top();
    int top = field.bottom() + 1;
    if (wanted > below)
        top = wanted <= above ? field.top() - wanted : page.bottom() + 1 - wanted;
    top = std::max(top, page.top());
    const int left = std::max(page.left(), std::min(field.left(), page.right() + 1 - width));
    m_list = QRect(left, top, width, std::min(wanted, page.bottom() + 1 - top));

    setGeometry(parentWidget()->rect());
    scrollTo((std::max(0, m_current) + 1) * RowHeight - m_list.height() / 2 - RowHeight / 2);
    m_focusBefore = parentWidget()->focusWidget();
    show();
    raise();
    setFocus(Qt::PopupFocusReason);
}

QRect CParmList::rowRect(int row) const
{
    const QRect inner = innerList();
    return QRect(inner.left(), inner.top() + row * RowHeight - m_scroll, inner.width(), RowHeight) & inner;
}

void CParmList::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(0, 0, 0, CWidgetStyle::getMetric(CWidgetStyle::MetricScrimOpacity)));
    CStylePainter::paintPlate(painter, m_list, ListRadius, CWidgetStyle::getColor(CWidgetStyle::ColorField),
        CWidgetStyle::getColor(CWidgetStyle::ColorAccent), Border);
    painter.setClipRect(innerList());
    for (int row = 0; row < m_items.size(); ++row) {
        if (!rowRect(row).isEmpty())
            paintRow(painter, row);
    }
    paintScrollBar(painter);
}

void CParmList::mousePressEvent(QMouseEvent* event)
{
    if (!m_list.contains(event->pos())) {
        close();
        return;
    }
    m_pressed = rowAt(event->pos());
    m_pressY = event->y();
    m_pressScroll = m_scroll;
    m_dragging = false;
    update();
}

void CParmList::mouseMoveEvent(QMouseEvent* event)
{
    const int moved = event->y() - m_pressY;
    if (std::abs(moved) >= DragStart && longestScroll() > 0)
        m_dragging = true;
    if (m_dragging) {
        m_pressed = -1;
        scrollTo(m_pressScroll - moved);
    }
}

void CParmList::mouseReleaseEvent(QMouseEvent* event)
{
    const int row = m_pressed;
    m_pressed = -1;
    update();
    if (!m_dragging && row >= 0 && row == rowAt(event->pos()))
        choose(row);
}

void CParmList::wheelEvent(QWheelEvent* event)
{
    scrollTo(m_scroll - event->angleDelta().y() * RowHeight / 120);
    event->accept();
}

void CParmList::keyPressEvent(QKeyEvent* event)
{
    const int seen = std::max(1, innerList().height() / RowHeight);
    switch (event->key()) {
    case Qt::Key_Up:
        moveMarker(-1);
        break;
    case Qt::Key_Down:
        moveMarker(1);
        break;
    case Qt::Key_Left:
        moveMarker(-seen);
        break;
    case Qt::Key_Right:
        moveMarker(seen);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A held key that opened the list must not choose from it as well.
        if (!isKeyRepetition(*event) && m_marked >= 0 && !isTouchDropped(this))
            choose(m_marked);
        break;
    case Qt::Key_Escape:
        close();
        break;
    default:
        CWidget::keyPressEvent(event);
        break;
    }
}

void CParmList::closeEvent(QCloseEvent* event)
{
    if (m_focusBefore)
        m_focusBefore->setFocus();
    else
        clearFocus();
    CWidget::closeEvent(event);
}

bool CParmList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        close();
    return CWidget::eventFilter(watched, event);
}

int CParmList::rowAt(const QPoint& point) const
{
    const QRect inner = innerList();
    const int row = (point.y() - inner.top() + m_scroll) / RowHeight;
    return inner.contains(point) && row < m_items.size() ? row : -1;
}

QRect CParmList::innerList() const
{
    return m_list.adjusted(Border, Border, -Border, -Border);
}

int CParmList::longestScroll() const
{
    return std::max(0, m_items.size() * RowHeight - innerList().height());
}

void CParmList::scrollTo(int pixels)
{
    m_scroll = qBound(0, pixels, longestScroll());
    update();
}

void CParmList::moveMarker(int rows)
{
    if (m_marked < 0)
        m_marked = std::max(0, m_current);
    else
        m_marked = qBound(0, m_marked + rows, m_items.size() - 1);
    scrollTo(qBound((m_marked + 1) * RowHeight - innerList().height(), m_scroll, m_marked * RowHeight));
}

void CParmList::choose(int row)
{
    const QPointer<CParmList> self(this);
    close(); // first: who hears of the choice may open a box
    if (self)
        emit chosen(row);
}

void CParmList::paintRow(QPainter& painter, int row) const
{
    const QRect inner = innerList();
    const int width = inner.width() - (longestScroll() > 0 ? BarWidth + 4 : 0);
    const QRect place(inner.left(), inner.top() + row * RowHeight - m_scroll, width, RowHeight);
    const bool isPressed = row == m_pressed, isCurrent = row == m_current;
    if (isPressed || isCurrent)
        CStylePainter::paintPlate(painter, place.adjusted(2, 2, -2, -2), RowRadius,
            CWidgetStyle::getColor(isPressed ? CWidgetStyle::ColorPlate : CWidgetStyle::ColorPressed),
            CWidgetStyle::getColor(CWidgetStyle::ColorAccent), isPressed ? 2 : 0);
    else if (row > 0 && row - 1 != m_current)
        painter.fillRect(place.left() + Padding, place.top(), place.width() - 2 * Padding, 1,
            CWidgetStyle::getColor(CWidgetStyle::ColorToolPage));

    const QColor color
        = CWidgetStyle::getColor(isPressed ? CWidgetStyle::ColorAccent : CWidgetStyle::ColorTextLight);
    painter.setFont(CWidgetStyle::getFont(CWidgetStyle::FontText));
    CStylePainter::paintText(painter, place.adjusted(Padding, 0, -TickWidth, 0),
        Qt::AlignLeft | Qt::AlignVCenter, m_items.at(row), color, false, true);
    if (isCurrent) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(color, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QPointF center(place.right() - TickWidth / 2.0, place.center().y() + 0.5);
        const QPointF tick[] = {center + QPointF(-7, 0), center + QPointF(-2, 5), center + QPointF(7, -6)};
        painter.drawPolyline(tick, 3);
        painter.restore();
    }
    if (row == m_marked)
        CStylePainter::paintFocusMarker(painter, place, RowRadius);
}

void CParmList::paintScrollBar(QPainter& painter) const
{
    if (longestScroll() == 0)
        return;
    const QRect inner = innerList().adjusted(0, 4, -2, -4);
    const int whole = m_items.size() * RowHeight;
    const int length = std::max(RowHeight / 2, inner.height() * innerList().height() / whole);
    const int top = inner.top() + (inner.height() - length) * m_scroll / longestScroll();
    CStylePainter::paintPlate(painter, QRect(inner.right() + 1 - BarWidth, top, BarWidth, length),
        BarWidth / 2, CWidgetStyle::getColor(CWidgetStyle::ColorTextMuted));
}
