#pragma once

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QRect>
#include <QStringList>

class QPainter;

/**
 * What the controls draw alike: standard buttons, the focus marker, chevrons, pictures, and texts that elide.
 *
 * Every call leaves the painter's pen, brush, font and hints as they were. Rectangles are in pixels and are
 * painted inside their edges.
 */
class CStylePainter
{
public:
    /** The standard button in a status of CWidgetStyle::ButtonStatus. */
    static void paintButton(QPainter& painter, const QRect& rect, int status);
    /** Fill and accent frame of the chosen one among several. */
    static void paintChosen(QPainter& painter, const QRect& rect, int radius);
    /** Rounded plate with a frame; an invalid frame colour or width 0 draws no frame. */
    static void paintPlate(QPainter& painter, const QRect& rect, int radius, const QColor& fill,
        const QColor& frame = QColor(), int frameWidth = 0);
    /** Accent frame between two dark lines, so that it stands out on dark and on light grounds. */
    static void paintFocusMarker(QPainter& painter, const QRect& rect, int radius = 0);
    /** Small arrow without a shaft, 5 by 10 pixels, around a centre. */
    static void paintChevron(
        QPainter& painter, const QPoint& center, Qt::ArrowType direction, const QColor& color);
    /** The picture centred, made smaller when it does not fit, never larger. */
    static void paintPicture(
        QPainter& painter, const QRect& rect, const QPixmap& picture, qreal opacity = 1.0);

    /**
     * Lines as they will be drawn: split at line feeds, wrapped at words when asked, the last one that fits
     * elided when there are more, each line elided when it is too long.
     */
    static QStringList textLines(const QString& text, const QFont& font, int width, int maxLines, bool wrap);
    /**
     * Draws a text inside `rect` in the painter's font and `color`. With `shrink`, a text that is too wide is
     * drawn up to a fifth smaller before it is elided or broken inside a word.
     */
    static void paintText(QPainter& painter, const QRect& rect, Qt::Alignment alignment, const QString& text,
        const QColor& color, bool wrap = false, bool shrink = false);

    /** Contrast ratio of two opaque colours, 1 to 21. */
    static double contrast(const QColor& one, const QColor& other);
};
