#include "outputview.h"

#include "widgets/widgetstyle/widgetstyle.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int LINE_HEIGHT = 18;
constexpr int MARGIN = 8;

} // namespace

COutputView::COutputView(QWidget* parent)
    : CWidget(parent)
{
    setBackgroundColor(CWidgetStyle::ColorPlate);
    setBorderColor(CWidgetStyle::ColorTextMuted);
    setBorderWidth(1);
}

void COutputView::setLines(const QStringList& lines, int total)
{
    const int added = total - m_total;
    m_total = total;
    m_lines = lines;
    // Somebody who reads further back keeps the same lines in view; a new run starts at its end.
    setBack(m_back == 0 || added < 0 ? 0 : m_back + added);
}

void COutputView::scrollPages(int pages)
{
    setBack(m_back - pages * visibleLines());
}

int COutputView::visibleLines() const
{
    return qMax(1, (height() - 2 * MARGIN) / LINE_HEIGHT);
}

int COutputView::firstLine() const
{
    return qMax(0, m_lines.size() - visibleLines() - m_back);
}

void COutputView::setBack(int lines)
{
    m_back = qBound(0, lines, qMax(0, m_lines.size() - visibleLines()));
    update();
    emit scrolled();
}

void COutputView::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    const QFont font = CWidgetStyle::getFont(CWidgetStyle::FontTable);
    const QFontMetrics metrics(font);
    painter.setFont(font);
    painter.setPen(CWidgetStyle::getColor(CWidgetStyle::ColorTextLight));
    const int first = firstLine();
    const int last = qMin(m_lines.size(), first + visibleLines());
    QRect row(MARGIN, MARGIN, width() - 2 * MARGIN, LINE_HEIGHT);
    for (int i = first; i < last; ++i, row.translate(0, LINE_HEIGHT))
        painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter,
            metrics.elidedText(m_lines.at(i), Qt::ElideRight, row.width()));
}

void COutputView::mousePressEvent(QMouseEvent* event)
{
    m_dragY = event->y();
    m_dragBack = m_back;
}

void COutputView::mouseMoveEvent(QMouseEvent* event)
{
    setBack(m_dragBack + (event->y() - m_dragY) / LINE_HEIGHT);
}
