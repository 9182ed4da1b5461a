#pragma once

#include <QColor>
#include <QHash>
#include <QMargins>
#include <QPointF>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QXmlStreamReader>

/** One glyph drawn into a cell, or one glyph's widened outline cut out of the layers below it. */
struct Layer
{
    enum Kind { Draw, Gap };
    QString glyph;
    Kind kind = Draw;
    QColor tint = Qt::white;
};

/** What lies under the glyphs of a cell: a rounded rectangle. */
struct Ground
{
    QColor fill; ///< invalid: not filled
    QColor frame;
    qreal frameWidth = 0; ///< 0: no frame
    QColor edge; ///< of a line of one pixel along both sides of the frame; invalid: none
    Qt::PenStyle line = Qt::SolidLine;
    QMargins inset; ///< distance from the cell's edges
    qreal radius = 0;
};

/** A rectangle of a picture; glyphs are centred in it, moved by `shift`, and clipped to it. */
struct Cell
{
    QRect rect;
    QString ground; ///< empty: transparent
    QVector<Layer> layers;
    qreal glyphSize = 28; ///< longer side of the glyph in pixels
    QPointF shift;
};

struct Picture
{
    QString name;
    QSize size;
    QVector<Cell> cells;
};

/**
 * The declarative table of all pictures (pictures.xml):
 *
 *   color   name value                             a name for a colour (#rrggbb or #aarrggbb)
 *   ground  name [fill] [frame frame-width dashed edge] [inset="left,top,right,bottom"] [radius]
 *   look    x ground                               one look of a touch button, for every <button>
 *   picture name width height [glyph-size]
 *     cell    rect="x,y,w,h" [ground] [glyphs] [glyph-size] [shift="x,y"]
 *     button  y glyphs                             a row of 60 x 60 cells, one per look
 *
 * `glyphs` lists layers from the lowest to the highest, each "name", "name:color" or "name:gap".
 */
class CPictureTable
{
public:
    /** Reads the file. @return one line per fault, empty when the table is sound */
    QStringList read(const QString& fileName);

    const QVector<Picture>& pictures() const { return m_pictures; }
    Ground ground(const QString& name) const { return m_grounds.value(name); }

private:
    struct Look
    {
        int x;
        QString ground;
    };

    void readElement(const QXmlStreamReader& xml);
    void readGround(const QXmlStreamAttributes& attributes);
    void readPicture(const QXmlStreamAttributes& attributes);
    void readCell(const QXmlStreamAttributes& attributes);
    void readButton(const QXmlStreamAttributes& attributes);
    void addCell(const Cell& cell);
    QVector<Layer> layers(const QString& text);
    QColor color(const QString& name);
    qreal number(const QXmlStreamAttributes& attributes, const char* name, qreal absent);
    QVector<int> numbers(const QString& text, int count);
    void fault(const QString& text);

    QHash<QString, QColor> m_colors;
    QHash<QString, Ground> m_grounds;
    QVector<Look> m_looks;
    QVector<Picture> m_pictures;
    qreal m_glyphSize = 28;
    qint64 m_line = 0;
    QStringList m_errors;
};
