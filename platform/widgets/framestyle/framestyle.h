#pragma once

#include "widgets/widgetstyle/themecolor.h"

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
    /** No colour paints nothing. @return whether it changed; so the next two */
    bool setBackgroundColor(const CThemeColor& color);
    bool setBorderColor(const CThemeColor& color);
    /** Picture drawn at the top-left corner over the background colour; a null picture removes it. */
    bool setBackgroundPicture(const QPixmap& picture);

    /** Width of each side in pixels; negative widths count as 0. */
    void setBorderWidths(const QMargins& widths);
    QMargins borderWidths() const { return m_widths; }

    enum Corners { TopCorners, AllCorners };
    /** Rounds corners of the background, at the inside of the border, whose colour fills what they leave. */
    void setRounded(int radius, Corners corners);

    QColor backgroundColor() const { return m_background.color(); }
    QColor borderColor() const { return m_border.color(); }

    /** Fills `rect` and draws the border just inside it. */
    void paint(QPainter& painter, const QRect& rect) const;

private:
    CThemeColor m_background;
    CThemeColor m_border;
    QPixmap m_picture;
    QMargins m_widths;
    int m_radius = 0;
    Corners m_rounded = AllCorners;
};
