#pragma once

#include "widgets/toolbox/toolboxbutton.h"
#include "widgets/widget/widget.h"

#include <QList>

/**
 * A column of pages that collapse to their headers; at most one page is open. Touching a header opens its
 * page (or closes it), touching an item emits currentItemChanged() with the item's identifier, also for the
 * same item again. Each header's lower edge is a thin line; rows that do not fit are cut off at the bottom.
 */
class CToolBox : public CWidget
{
    Q_OBJECT

public:
    explicit CToolBox(QWidget* parent = nullptr);

    /** Appends a page; iconName is a picture resource. @return the page's index */
    int addPage(const QString& iconName, const QString& text);
    /** Appends an item to a page. @return its index in the page, or -1 for no such page */
    int addItem(int page, const QString& iconName, const QString& text, int id);

    /** Re-labels; an index that does not exist is ignored. */
    void setPageText(int page, const QString& text);
    void setItemText(int page, int item, const QString& text);
    QString itemText(int page, int item) const;
    int itemCount(int page) const;
    bool hasItem(int id) const;

    /** Index of the open page, -1 when all are collapsed. */
    int openPage() const { return m_open; }
    void setOpenPage(int page);
    /** Collapses every page and forgets the chosen item. */
    void collapseAll();
    /** Marks the item with this identifier as chosen without emitting; -1 for none. */
    void setCurrentItem(int id);

signals:
    void currentItemChanged(int id);

public slots:
    void updateWidgetStyle() override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Page
    {
        CToolBoxButton* header = nullptr; // owned by this widget, as the items
        QList<CToolBoxButton*> items;
    };

    CToolBoxButton* addRow(CToolBoxButton::Role role, const QString& iconName, const QString& text, int id);
    void layoutRows();
    void chooseItem(CToolBoxButton* item);
    CToolBoxButton* itemAt(int page, int item) const;

    QList<Page> m_pages;
    int m_open = -1;
};
