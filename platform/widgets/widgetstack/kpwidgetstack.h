#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

/**
 * The stack of sub-pages that pages lay over themselves. Pushing shows and raises a page over the one below;
 * popping hides it and shows the one below again. A page that is deleted leaves the stack.
 *
 * One per process. The stack does not own its pages.
 */
class KpWidgetStack : public QObject
{
    Q_OBJECT

public:
    static KpWidgetStack* instance();

    /** Puts a page on top; one that is on the stack already moves up. Null is ignored. */
    void pushPage(QWidget* page);
    /** Hides the top page. @return false when the stack was empty */
    bool popPage();
    /** Hides every page and empties the stack. */
    void popAllPages();
    /** The top page, null when the stack is empty. */
    QWidget* currentPage() const;
    int count() const;

private:
    using QObject::QObject;
    void dropDeleted(QObject* gone);
    void showTop();

    QList<QPointer<QWidget>> m_pages;
};
