#pragma once

#include <QList>
#include <QRect>

class QObject;
class QWidget;

/**
 * The spatial search behind the arrow keys: which control of a window lies nearest in a direction. It looks
 * through strips that start at the widget and widen step by step until they would leave the screen; a linear
 * strip is as wide as the widget, a radial one spans the whole screen across the direction.
 *
 * Candidates are the visible push buttons below the root, and composed controls (CWidget) that lie inside a
 * candidate found before them. Changes nothing; a value that lives for one search. Interface thread.
 */
class CFocusSearch
{
public:
    enum DetectDirection { DetectLeft = 0, DetectUp = 1, DetectRight = 2, DetectDown = 3 };
    enum DetectType { LinearDetect = 0, RadialDetect = 1, NoDetect = 2 };

    /**
     * @param root the window; rectangles are in its coordinates
     * @param stepLength pixels by which a strip widens with each step
     */
    explicit CFocusSearch(QWidget* root, int stepLength = 50)
        : m_pRoot(root)
        , m_stepLength(stepLength)
    { }

    /** The control to go to from `from`; null when there is none that way. `from` must not be null. */
    QWidget* detect(QWidget* from, DetectDirection direction, DetectType type) const;
    /** The strip of one step, counted from 1. */
    QRect getDetectRect(QWidget* widget, int step, DetectDirection direction, DetectType type) const;
    /** The best candidate in a strip, `from` left out; null without one. */
    QWidget* findChildAt(const QRect& strip, const QWidget* from) const;
    /** True while the strip lies wholly on the screen. */
    bool canDetectTo(const QRect& strip) const;
    /** A widget's rectangle in the root's coordinates; the widget must not be null. */
    QRect globalRect(QWidget* widget) const;
    /** All widgets below `parent` but windows of their own, depth first, each before its own children. */
    QList<QObject*> allChildren(QObject* parent) const;

    static float distance(const QPoint& from, const QPoint& to);

private:
    QWidget* m_pRoot; // not owned
    int m_stepLength;
};
