#pragma once

#include "widgets/widget/widget.h"

#include <QStringList>
#include <QVector>

/**
 * The last lines of a command, newest at the bottom; long ones go on in the next row. It follows new lines
 * until somebody scrolls back, by dragging or by pages, and again when the end is reached.
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
    bool canScrollBack() const { return firstRow() > 0; }
    bool canScrollOn() const { return m_back > 0; }

signals:
    /** What can be scrolled changed. */
    void scrolled();

public slots:
    /** Takes over a changed theme. */
    void updateWidgetStyle() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    struct Line
    {
        QString text;
        QStringList rows; // at the present width
    };

    QStringList rowsOf(const QString& text) const;
    void wrapAgain();
    int visibleRows() const;
    int firstRow() const;
    void setBack(int rows);

    QVector<Line> m_lines;
    QStringList m_rows; // of all lines
    int m_total = 0;
    int m_back = 0; // rows between the view and the end
    int m_dragY = 0;
    int m_dragBack = 0;
};
