#pragma once

#include "widgets/parmfield/parmfield.h"

#include <QPointer>
#include <QStringList>

class CParmList;

/**
 * A named parameter with a list of values: caption on the left, the shown value and a down mark on the right.
 * Touching it opens the list over the page; the list scrolls when it does not fit, and Left, Right, Up, Down
 * and Enter work in it as touches do. A touch beside the list closes it.
 */
class CParmComboBox : public CParmField
{
    Q_OBJECT

public:
    /** @param shownText text shown at first; the index is that of the item with this text, else -1 */
    CParmComboBox(const QString& caption, const QStringList& items, const QString& shownText,
        QWidget* parent = nullptr);
    ~CParmComboBox() override;

    /** Replaces the items; the index is kept if it still exists, else it becomes -1. */
    void addItems(const QStringList& items);
    int count() const { return m_items.size(); }
    QString itemText(int index) const { return m_items.value(index); }

    int currentIndex() const { return m_index; }
    /** Text of the current item; without one, the text given at first until another index is set. */
    QString currentText() const;
    /** Shows item `index`; emits currentIndexChanged() if that changes something. Any other index shows
     * nothing. */
    void setCurrentIndex(int index);
    /** Shows a text that is none of the items, until an index is set. */
    void setShownText(const QString& text);

signals:
    /** The user chose an item, also the one already shown. */
    void activated(int index);
    /** The index changed, by the user or a call. */
    void currentIndexChanged(int index);

protected:
    QString shownValue() const override { return currentText(); }
    QString longestValue() const override;
    void paintSign(QPainter& painter, const QRect& area) const override;
    void hideEvent(QHideEvent* event) override;

private:
    void openList();
    void closeList();
    void choose(int index);

    QStringList m_items;
    QString m_shown; // while there is no index
    int m_index = -1;
    QPointer<CParmList> m_list; // child of the window, there while it is open
};
