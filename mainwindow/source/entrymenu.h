#pragma once

#include "utilityid.h"
#include "widgets/widget/widget.h"

#include <QVector>

class CEntryItem;
class CEntryWidget;

/** One tile of an entry menu. */
struct EntryMenuRow
{
    int row;
    int column;
    const char* label; ///< source text, marked for translation in the menu's own context
    const char* picture; ///< picture resource
    int colorType; ///< CEntryItem::ColorType
    UtilityID id;
};

/**
 * A page that is a grid of tiles, each leading to a utility: touching one asks for it through the signal
 * relay. The menus derive from it and differ only in their table.
 */
class CEntryMenu : public CWidget
{
    Q_OBJECT

public:
    /** Removes the arrow-key focus marker from the tiles. */
    void clearFocus();

public slots:
    void translate() override;

protected:
    /** @param rows, count  the menu's table, static; labels are translated by translateLabel() */
    CEntryMenu(const EntryMenuRow* rows, int count, QWidget* parent);

    /** The label in the current language, from the derived menu's context. */
    virtual QString translateLabel(const char* label) const = 0;
    /** Makes the tiles; the derived constructor calls it, since the labels come from the derived class. */
    void initialize();

    void resizeEvent(QResizeEvent* event) override;

private:
    const EntryMenuRow* m_rows;
    int m_count;
    CEntryWidget* m_pEntryWidget;
    QVector<CEntryItem*> m_items; // in table order, owned by the entry widget
};
