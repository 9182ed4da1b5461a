#pragma once

#include "widgets/entrywidget/entryitem.h"
#include "widgets/widget/widget.h"

#include <QVector>

/**
 * A grid of entry tiles, two columns of 288 by 80 pixels in the working area. Touching a tile emits
 * currentItemChanged() with the identifier it was added with. The grid is centred across the widget.
 */
class CEntryWidget : public CWidget
{
    Q_OBJECT

public:
    explicit CEntryWidget(QWidget* parent = nullptr);

    /** Adds a tile and takes ownership; a tile already at the place is deleted. A null tile is ignored. */
    void addItem(int row, int column, CEntryItem* item, int id);
    /** The tile at a place, null if there is none. */
    CEntryItem* itemAt(int row, int column) const;
    /** Removes the arrow-key focus marker from every tile. */
    void clearFocus();

signals:
    void currentItemChanged(int id);

public slots:
    void updateWidgetStyle() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Cell
    {
        int row;
        int column;
        CEntryItem* item; // owned by this widget
    };

    void layoutCells();

    QVector<Cell> m_cells;
};
