#pragma once

#include "widgets/widget/widget.h"

#include <QPointer>
#include <QStringList>

/**
 * The open list of a CParmComboBox: a veil over the window that takes the touches beside the list, and the
 * list with its rows on it. It has the keyboard while it is open, deletes itself when it closes, and closes
 * when a row is chosen, at a touch beside it and when the window changes its size.
 *
 * A touch chooses a row when it ends where it began; moved further, it scrolls. Up and Down move the marker
 * by a row, Left and Right by as many rows as are seen, Enter chooses the marked one, Escape closes. Other
 * keys go on to the window.
 */
class CParmList : public CWidget
{
    Q_OBJECT

public:
    /** @param current the row that is marked as the present value, -1 for none */
    CParmList(const QStringList& items, int current, QWidget* window);

    /** Whether the arrow-key marker is there from the start, or only from the first arrow key on. */
    void setMarkerShown(bool shown);
    /** Opens below `field` (window coordinates), above it, or wherever on the page there is room. */
    void openAt(const QRect& field);
    /** The list without the veil, and a row in it, in own coordinates; a row out of sight is cut away. */
    QRect listRect() const { return m_list; }
    QRect rowRect(int row) const;
    int markedRow() const { return m_marked; }

signals:
    void chosen(int row);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int rowAt(const QPoint& point) const;
    QRect innerList() const;
    int longestScroll() const;
    void scrollTo(int pixels);
    void moveMarker(int rows);
    void choose(int row);
    void paintRow(QPainter& painter, int row) const;
    void paintScrollBar(QPainter& painter) const;

    QStringList m_items;
    int m_current;
    int m_marked = -1;
    int m_pressed = -1;
    int m_scroll = 0; // pixels
    int m_pressY = 0;
    int m_pressScroll = 0;
    bool m_dragging = false;
    QRect m_list;
    QPointer<QWidget> m_focusBefore;
};
