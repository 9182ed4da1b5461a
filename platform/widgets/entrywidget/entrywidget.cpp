#include "widgets/entrywidget/entrywidget.h"

#include "widgets/widgetstyle/widgetstyle.h"

#include <algorithm>

namespace {

constexpr int Columns = 2;

} // namespace

CEntryWidget::CEntryWidget(QWidget* parent)
    : CWidget(parent)
{
    setTypeCode(TypeEntryGrid);
}

void CEntryWidget::addItem(int row, int column, CEntryItem* item, int id)
{
    if (!item)
        return;
    const auto place = std::find_if(m_cells.begin(), m_cells.end(),
        [row, column](const Cell& cell) { return cell.row == row && cell.column == column; });
    if (place != m_cells.end()) {
        if (place->item != item)
            delete place->item;
        m_cells.erase(place);
    }
    item->setParent(this);
    item->show();
    connect(item, &QAbstractButton::clicked, this, [this, id] { emit currentItemChanged(id); });
    m_cells.append({row, column, item});
    layoutCells();
}

CEntryItem* CEntryWidget::itemAt(int row, int column) const
{
    for (const Cell& cell : m_cells) {
        if (cell.row == row && cell.column == column)
            return cell.item;
    }
    return nullptr;
}

void CEntryWidget::clearFocus()
{
    for (const Cell& cell : qAsConst(m_cells))
        cell.item->setArrowKeyFocus(false);
}

void CEntryWidget::updateWidgetStyle()
{
    layoutCells();
    CWidget::updateWidgetStyle();
}

void CEntryWidget::resizeEvent(QResizeEvent* event)
{
    CWidget::resizeEvent(event);
    layoutCells();
}

void CEntryWidget::layoutCells()
{
    const int gapX = CWidgetStyle::getMetric(CWidgetStyle::MetricEntryGapX);
    const int gapY = CWidgetStyle::getMetric(CWidgetStyle::MetricEntryGapY);
    const int top = CWidgetStyle::getMetric(CWidgetStyle::MetricEntryTop);
    for (const Cell& cell : qAsConst(m_cells)) {
        const QSize size = cell.item->sizeHint();
        const int left = (width() - Columns * size.width() - (Columns - 1) * gapX) / 2;
        cell.item->setGeometry(left + cell.column * (size.width() + gapX),
            top + cell.row * (size.height() + gapY), size.width(), size.height());
    }
}
