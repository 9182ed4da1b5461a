#pragma once

#include "widgets/widget/widget.h"

#include <QStringList>

/**
 * The last lines of a command, newest at the bottom. It follows new lines until somebody scrolls back, by
 * dragging or by pages, and again when the end is reached.
 */
class COutputView : public CWidget
{
    Q_OBJECT

public:
    explicit COutputView(QWidget* parent);

    /** @param total number of lines there were so far; more than `lines` holds when the oldest are dropped */
    void setLines(const QStringList& lines, int total);
    /** Scrolls by whole pages; negative goes back. */
    void scrollPages(int pages);
    bool canScrollBack() const { return firstLine() > 0; }
    bool canScrollOn() const { return m_back > 0; }

signals:
    /** What can be scrolled changed. */
    void scrolled();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    int visibleLines() const;
    int firstLine() const;
    void setBack(int lines);

    QStringList m_lines;
    int m_total = 0;
    int m_back = 0; // lines between the view and the end
    int m_dragY = 0;
    int m_dragBack = 0;
};
