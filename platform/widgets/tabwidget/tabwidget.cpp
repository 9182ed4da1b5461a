#include "widgets/tabwidget/tabwidget.h"

#include "widgets/tabwidget/tabbutton.h"

namespace {

constexpr int TabHeight = 44;
constexpr int TabGap = 6;
constexpr int PageGap = 10; // below the tabs

} // namespace

CTabWidget::CTabWidget(QWidget* parent)
    : CWidget(parent)
{ }

int CTabWidget::addTab(QWidget* page, const QString& text)
{
    const int index = m_tabs.size();
    auto* button = new CTabButton(text, this);
    page->setParent(this);
    page->hide();
    m_tabs.append({button, page});
    connect(button, &QAbstractButton::clicked, this, [this, index] { setCurrentIndex(index); });
    button->setVisible(true);
    layoutTabs();
    if (index == 0)
        setCurrentIndex(0);
    return index;
}

void CTabWidget::setTabText(int index, const QString& text)
{
    if (index >= 0 && index < m_tabs.size())
        m_tabs.at(index).button->setText(text);
}

QString CTabWidget::tabText(int index) const
{
    return index >= 0 && index < m_tabs.size() ? m_tabs.at(index).button->text() : QString();
}

QWidget* CTabWidget::widget(int index) const
{
    return index >= 0 && index < m_tabs.size() ? m_tabs.at(index).page : nullptr;
}

void CTabWidget::setCurrentIndex(int index)
{
    if (index < 0 || index >= m_tabs.size() || index == m_current)
        return;
    m_current = index;
    for (int i = 0; i < m_tabs.size(); ++i) {
        m_tabs.at(i).button->setChecked(i == index);
        m_tabs.at(i).page->setVisible(i == index);
    }
    emit currentChanged(index);
}

void CTabWidget::resizeEvent(QResizeEvent* event)
{
    CWidget::resizeEvent(event);
    layoutTabs();
}

void CTabWidget::layoutTabs()
{
    const QRect inner = innerRect();
    const int count = m_tabs.size();
    for (int i = 0; i < count; ++i) {
        const int left = inner.left() + i * (inner.width() + TabGap) / count;
        const int next = inner.left() + (i + 1) * (inner.width() + TabGap) / count;
        m_tabs.at(i).button->setGeometry(left, inner.top(), next - TabGap - left, TabHeight);
        m_tabs.at(i).page->setGeometry(inner.adjusted(0, TabHeight + PageGap, 0, 0));
    }
}
