#include "widgets/widgetstack/kpwidgetstack.h"

#include <QCoreApplication>

#include <algorithm>

KpWidgetStack* KpWidgetStack::instance()
{
    static QPointer<KpWidgetStack> stack;
    if (!stack)
        stack = new KpWidgetStack(QCoreApplication::instance());
    return stack;
}

void KpWidgetStack::pushPage(QWidget* page)
{
    if (!page)
        return;
    if (!m_pages.removeOne(page))
        connect(page, &QObject::destroyed, this, &KpWidgetStack::dropDeleted);
    m_pages.append(page);
    page->show();
    page->raise();
}

bool KpWidgetStack::popPage()
{
    if (m_pages.isEmpty())
        return false;
    const QPointer<QWidget> page = m_pages.takeLast();
    disconnect(page, &QObject::destroyed, this, &KpWidgetStack::dropDeleted);
    page->hide();
    showTop();
    return true;
}

void KpWidgetStack::popAllPages()
{
    // Taken off first: hiding a page may run code that looks at the stack.
    const QList<QPointer<QWidget>> pages = m_pages;
    m_pages.clear();
    for (auto page = pages.crbegin(); page != pages.crend(); ++page) {
        if (*page) {
            disconnect(*page, &QObject::destroyed, this, &KpWidgetStack::dropDeleted);
            (*page)->hide();
        }
    }
}

QWidget* KpWidgetStack::currentPage() const
{
    return m_pages.isEmpty() ? nullptr : m_pages.last().data();
}

int KpWidgetStack::count() const
{
    return m_pages.size();
}

void KpWidgetStack::dropDeleted(QObject* gone)
{
    // A widget tells of its end before its guarded pointers are cleared.
    const auto isGone
        = [gone](const QPointer<QWidget>& page) { return page.isNull() || page.data() == gone; };
    const bool topWent = !m_pages.isEmpty() && isGone(m_pages.last());
    m_pages.erase(std::remove_if(m_pages.begin(), m_pages.end(), isGone), m_pages.end());
    if (topWent)
        showTop();
}

void KpWidgetStack::showTop()
{
    if (QWidget* page = currentPage()) {
        page->show();
        page->raise();
    }
}
