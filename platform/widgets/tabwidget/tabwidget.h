#pragma once

#include "widgets/widget/widget.h"

#include <QVector>

class CTabButton;

/**
 * Pages of which one is seen, below a row of tabs that share the width. A page fills the room below the row;
 * those that are not seen are hidden.
 */
class CTabWidget : public CWidget
{
    Q_OBJECT

public:
    explicit CTabWidget(QWidget* parent = nullptr);

    /** Appends a page and takes ownership; the first one is seen at once. @return the page's index */
    int addTab(QWidget* page, const QString& text);
    /** Re-labels; an index that does not exist is ignored. */
    void setTabText(int index, const QString& text);
    QString tabText(int index) const;

    int count() const { return m_tabs.size(); }
    /** The page at an index, null if there is none. */
    QWidget* widget(int index) const;
    /** Index of the page that is seen, -1 without pages. */
    int currentIndex() const { return m_current; }

public slots:
    /** Shows a page; an index that does not exist is ignored. */
    void setCurrentIndex(int index);

signals:
    /** Another page is seen, by the user or a call. */
    void currentChanged(int index);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Tab
    {
        CTabButton* button; // both owned by this widget
        QWidget* page;
    };

    void layoutTabs();

    QVector<Tab> m_tabs;
    int m_current = -1;
};
