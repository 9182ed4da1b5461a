#include "outputview.h"

#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QMouseEvent>
#include <QPainter>

#include <limits>

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
    // Lines that were there keep their rows: wrapping all of them at each new one would take its time.
    const QVector<Line> before = m_lines;
    const int dropped = before.size() + added - lines.size();
    int addedRows = 0;
    m_lines.clear();
    m_rows.clear();
    for (int i = 0; i < lines.size(); ++i) {
        Line line = before.value(i + dropped);
        if (line.rows.isEmpty() || line.text != lines.at(i))
            line = {lines.at(i), rowsOf(lines.at(i))};
        if (i >= lines.size() - added)
            addedRows += line.rows.size();
        m_rows += line.rows;
        m_lines << line;
    }
    // Somebody who reads further back keeps the same lines in view; a new run starts at its end.
    setBack(m_back == 0 || added < 0 ? 0 : m_back + addedRows);
}

void COutputView::updateWidgetStyle()
{
    CWidget::updateWidgetStyle();
    wrapAgain();
}

QStringList COutputView::rowsOf(const QString& text) const
{
    return CStylePainter::textLines(text, CWidgetStyle::getFont(CWidgetStyle::FontTable),
        width() - 2 * MARGIN, std::numeric_limits<int>::max(), true);
}

void COutputView::wrapAgain()
{
    m_rows.clear();
    for (Line& line : m_lines) {
        line.rows = rowsOf(line.text);
        m_rows += line.rows;
    }
    setBack(m_back);
}

void COutputView::scrollPages(int pages)
{
    setBack(m_back - pages * visibleRows());
}

int COutputView::visibleRows() const
{
    return qMax(1, (height() - 2 * MARGIN) / LINE_HEIGHT);
}

int COutputView::firstRow() const
{
    return qMax(0, m_rows.size() - visibleRows() - m_back);
}

void COutputView::setBack(int rows)
{
    m_back = qBound(0, rows, qMax(0, m_rows.size() - visibleRows()));
    update();
    emit scrolled();
}

void COutputView::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    painter.setFont(CWidgetStyle::getFont(CWidgetStyle::FontTable));
    painter.setPen(CWidgetStyle::getColor(CWidgetStyle::ColorTextLight));
    const int first = firstRow();
    const int last = qMin(m_rows.size(), first + visibleRows());
    QRect row(MARGIN, MARGIN, width() - 2 * MARGIN, LINE_HEIGHT);
    for (int i = first; i < last; ++i, row.translate(0, LINE_HEIGHT))
        painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter, m_rows.at(i));
}

void COutputView::resizeEvent(QResizeEvent* event)
{
    CWidget::resizeEvent(event);
    wrapAgain();
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
