#pragma once

#include "widgets/pushbutton/pushbutton.h"

#include <QStringList>

/**
 * A named parameter with a list of values: caption on the left, the shown value and a down mark on the right.
 * Touching it opens the list over the page; the list scrolls when it does not fit, and Left, Right, Up, Down and
 * Enter work in it as touches do.
 */
class CParmComboBox : public CPushButton
{
    Q_OBJECT

public:
    /** @param shownText text shown at first; the index is that of the item with this text, else -1 */
    CParmComboBox(const QString &caption, const QStringList &items, const QString &shownText, QWidget *parent = nullptr);

    void setCaption(const QString &caption);
    QString caption() const { return m_caption; }
    /** Replaces the items; the index is kept if it still exists, else it becomes -1. */
    void addItems(const QStringList &items);
    int count() const { return m_items.size(); }
    QString itemText(int index) const { return m_items.value(index); }

    int currentIndex() const { return m_index; }
    QString currentText() const;
    /** Shows item `index`; emits currentIndexChanged() if that changes something. Any other index shows nothing. */
    void setCurrentIndex(int index);

    QSize sizeHint() const override;

signals:
    /** The user chose an item, also the one already shown. */
    void activated(int index);
    /** The index changed, by the user or a call. */
    void currentIndexChanged(int index);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void openList();

    QString m_caption;
    QStringList m_items;
    QString m_shown;
    int m_index = -1;
};
