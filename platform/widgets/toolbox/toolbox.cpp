#include "widgets/toolbox/toolbox.h"

#include "widgets/widgetstyle/widgetstyle.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int LineHeight = 1; // below a header
constexpr int LineOpacity = 64;

} // namespace

CToolBox::CToolBox(QWidget* parent)
    : CWidget(parent)
{
    setTypeCode(TypeToolBox);
    setBackgroundColor(CWidgetStyle::ColorToolBox);
}

int CToolBox::addPage(const QString& iconName, const QString& text)
{
    Page page;
    page.header = addRow(CToolBoxButton::PageHeader, iconName, text, -1);
    m_pages.append(page);
    const int index = m_pages.size() - 1;
    connect(page.header, &QAbstractButton::clicked, this,
        [this, index] { setOpenPage(m_open == index ? -1 : index); });
    layoutRows();
    return index;
}

int CToolBox::addItem(int page, const QString& iconName, const QString& text, int id)
{
    if (page < 0 || page >= m_pages.size())
        return -1;
    CToolBoxButton* item = addRow(CToolBoxButton::Item, iconName, text, id);
    m_pages[page].items.append(item);
    connect(item, &QAbstractButton::clicked, this, [this, item] { chooseItem(item); });
    layoutRows();
    return m_pages.at(page).items.size() - 1;
}

void CToolBox::setPageText(int page, const QString& text)
{
    if (page >= 0 && page < m_pages.size())
        m_pages.at(page).header->setText(text);
}

void CToolBox::setItemText(int page, int item, const QString& text)
{
    if (CToolBoxButton* row = itemAt(page, item))
        row->setText(text);
}

QString CToolBox::itemText(int page, int item) const
{
    const CToolBoxButton* row = itemAt(page, item);
    return row ? row->text() : QString();
}

int CToolBox::itemCount(int page) const
{
    return page >= 0 && page < m_pages.size() ? m_pages.at(page).items.size() : 0;
}

void CToolBox::setOpenPage(int page)
{
    const int open = page >= 0 && page < m_pages.size() ? page : -1;
    if (m_open == open)
        return;
    m_open = open;
    layoutRows();
}

void CToolBox::collapseAll()
{
    setOpenPage(-1);
    setCurrentItem(-1);
}

bool CToolBox::hasItem(int id) const
{
    return std::any_of(m_pages.begin(), m_pages.end(), [id](const Page& page) {
        return std::any_of(page.items.begin(), page.items.end(),
            [id](const CToolBoxButton* item) { return item->id() == id; });
    });
}

void CToolBox::setCurrentItem(int id)
{
    for (const Page& page : qAsConst(m_pages)) {
        for (CToolBoxButton* item : page.items)
            item->setActive(id != -1 && item->id() == id);
    }
}

void CToolBox::updateWidgetStyle()
{
    layoutRows();
    CWidget::updateWidgetStyle();
}

bool CToolBox::event(QEvent* event)
{
    // The border has changed.
    if (event->type() == QEvent::ContentsRectChange)
        layoutRows();
    return CWidget::event(event);
}

void CToolBox::paintEvent(QPaintEvent* event)
{
    CWidget::paintEvent(event);
    QPainter painter(this);
    QColor line = CWidgetStyle::getColor(CWidgetStyle::ColorFrame);
    line.setAlpha(LineOpacity);
    for (const Page& page : qAsConst(m_pages)) {
        const QRect header = page.header->geometry();
        painter.fillRect(header.left(), header.bottom() + 1, header.width(), LineHeight, line);
    }
}

void CToolBox::resizeEvent(QResizeEvent* event)
{
    CWidget::resizeEvent(event);
    layoutRows();
}

CToolBoxButton* CToolBox::addRow(
    CToolBoxButton::Role role, const QString& iconName, const QString& text, int id)
{
    auto* row = new CToolBoxButton(role, iconName, text, id, this);
    row->setVisible(role == CToolBoxButton::PageHeader);
    return row;
}

void CToolBox::layoutRows()
{
    const QRect inner = innerRect();
    int y = inner.top();
    for (int i = 0; i < m_pages.size(); ++i) {
        const Page& page = m_pages.at(i);
        const bool open = i == m_open;
        page.header->setActive(open);
        page.header->setGeometry(inner.left(), y, inner.width(), page.header->sizeHint().height());
        y += page.header->height() + LineHeight;
        for (CToolBoxButton* item : page.items) {
            if (open) {
                item->setGeometry(inner.left(), y, inner.width(), item->sizeHint().height());
                y += item->height();
            }
            item->setVisible(open);
        }
    }
    update();
}

void CToolBox::chooseItem(CToolBoxButton* item)
{
    setCurrentItem(item->id());
    emit currentItemChanged(item->id());
}

CToolBoxButton* CToolBox::itemAt(int page, int item) const
{
    return page >= 0 && page < m_pages.size() ? m_pages.at(page).items.value(item) : nullptr;
}
