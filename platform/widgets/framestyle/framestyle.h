#pragma once

#include <QColor>
#include <QMargins>
#include <QPixmap>
#include <QString>

class QPainter;
class QRect;

/**
 * What CWidget and CDialog draw behind their children: a background (colour, colour code or picture) and a
 * border with its own width on each side.
 *
 * A plain value. Colours given as a code are looked up in CWidgetStyle at every paint, so a theme change
 * needs no bookkeeping here.
 */
class CFrameStyle
{
public:
    /** Colour given outright, or by its code in the theme; the later call wins. An invalid colour paints
     * nothing. */
    void setBackgroundColor(const QColor& color);
    void setBackgroundColor(int colorCode);
    void setBackgroundColor(Qt::GlobalColor color)
    {
        setBackgroundColor(QColor(color));
    } // it is no colour code
    void setBorderColor(const QColor& color);
    void setBorderColor(int colorCode);
    void setBorderColor(Qt::GlobalColor color) { setBorderColor(QColor(color)); }

    /** Picture drawn at the top-left corner over the background colour; a null picture removes it. @return
     * whether it changed */
    bool setBackgroundPicture(const QPixmap& picture);

    /** Width of each side in pixels; negative widths count as 0. */
    void setBorderWidths(const QMargins& widths);
    QMargins borderWidths() const { return m_widths; }

    enum Corners { TopCorners, AllCorners };
    /** Rounds corners of the background, at the inside of the border, whose colour fills what they leave. */
    void setRounded(int radius, Corners corners);

    QColor backgroundColor() const;
    QColor borderColor() const;
    bool hasBackground() const;

    /** Fills `rect` and draws the border just inside it. */
    void paint(QPainter& painter, const QRect& rect) const;

private:
    struct Paint
    {
        QColor color;
        int code = -1; // a theme colour code, or -1 for `color`
        QColor resolved() const;
    };

    Paint m_background;
    Paint m_border;
    QPixmap m_picture;
    QMargins m_widths;
    int m_radius = 0;
    Corners m_rounded = AllCorners;
};
