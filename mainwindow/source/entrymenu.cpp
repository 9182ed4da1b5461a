#include "entrymenu.h"

#include "sigtransfer.h"
#include "widgets/entrywidget/entrywidget.h"
#include "widgets/widgetstyle/widgetstyle.h"

CEntryMenu::CEntryMenu(const EntryMenuRow* rows, int count, QWidget* parent)
    : CWidget(parent)
    , m_rows(rows)
    , m_count(count)
    , m_pEntryWidget(new CEntryWidget(this))
{ }

void CEntryMenu::initialize()
{
    setBackgroundColor(CWidgetStyle::ColorScreen);
    setBorderColor(CWidgetStyle::ColorFrame);
    for (int i = 0; i < m_count; ++i) {
        const EntryMenuRow& row = m_rows[i];
        auto* item = new CEntryItem(
            QString::fromLatin1(row.picture), row.colorType, translateLabel(row.label), m_pEntryWidget);
        m_pEntryWidget->addItem(row.row, row.column, item, row.id);
        m_items.append(item);
    }
    connect(
        m_pEntryWidget, &CEntryWidget::currentItemChanged, g_pSigTransfer, &CSigTransfer::currentUtilChanged);
}

void CEntryMenu::translate()
{
    for (int i = 0; i < m_count; ++i)
        m_items.at(i)->setLabel(translateLabel(m_rows[i].label));
    CWidget::translate();
}

void CEntryMenu::clearFocus()
{
    m_pEntryWidget->clearFocus();
}

void CEntryMenu::resizeEvent(QResizeEvent* event)
{
    CWidget::resizeEvent(event);
    m_pEntryWidget->setGeometry(innerRect());
}
