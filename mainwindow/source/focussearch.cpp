#include "focussearch.h"

#include "screenarea.h"
#include "widgets/widget/widget.h"

#include <QLineF>
#include <QPushButton>

namespace {

constexpr float FARTHEST = 800.0F; // pixels from strip centre to candidate centre
constexpr int RADIAL_GAP = 5; // pixels between the widget and a radial strip

/** Types of the control library that only group others or cannot be touched. */
bool isPassive(const CWidget* widget)
{
    return widget->typeCode() == CWidget::TypeLabel || widget->typeCode() == CWidget::TypePlain;
}

} // namespace

QWidget* CFocusSearch::detect(QWidget* from, DetectDirection direction, DetectType type) const
{
    for (int step = 1;; ++step) {
        const QRect strip = getDetectRect(from, step, direction, type);
        if (!canDetectTo(strip))
            return nullptr;
        if (QWidget* widget = findChildAt(strip, from))
            return widget;
    }
}

QRect CFocusSearch::getDetectRect(QWidget* widget, int step, DetectDirection direction, DetectType type) const
{
    const QRect g = globalRect(widget);
    const int length = step * m_stepLength;
    const QSize screen = screenArea().size();
    // The right and bottom edges are the last pixels inside: linear strips there overlap the widget by one.
    if (type == LinearDetect) {
        switch (direction) {
        case DetectLeft:
            return {g.left() - length, g.top(), length, g.height()};
        case DetectUp:
            return {g.left(), g.top() - length, g.width(), length};
        case DetectRight:
            return {g.right(), g.top(), length, g.height()};
        case DetectDown:
            return {g.left(), g.bottom(), g.width(), length};
        }
    }
    if (type == RadialDetect) {
        switch (direction) {
        case DetectLeft:
            return {g.left() - length - RADIAL_GAP, 1, length, screen.height() - 1};
        case DetectUp:
            return {1, g.top() - RADIAL_GAP - length, screen.width() - 2, length};
        case DetectRight:
            return {g.right() + RADIAL_GAP, 1, length, screen.height() - 1};
        case DetectDown:
            return {1, g.bottom() + RADIAL_GAP, screen.width() - 2, length};
        }
    }
    return {-1, -1, screen.width() + 1, screen.height() + 1}; // never on the screen: the search ends at once
}

bool CFocusSearch::canDetectTo(const QRect& strip) const
{
    // The window stands for the whole screen, the strip of a bottom bar included: radial strips are that
    // high.
    return m_pRoot->rect().united(screenArea()).contains(strip);
}

QWidget* CFocusSearch::findChildAt(const QRect& strip, const QWidget* from) const
{
    float bestDistance = FARTHEST;
    QWidget* best = nullptr;
    QRect bestRect;

    for (QObject* child : allChildren(m_pRoot)) {
        auto* widget = static_cast<QWidget*>(child);
        const auto* control = qobject_cast<CWidget*>(widget);
        if (widget == from || !widget->isVisibleTo(m_pRoot)
            || (control ? isPassive(control) : !qobject_cast<QPushButton*>(widget)))
            continue;
        const QRect rect = globalRect(widget);
        // A composed control only wins inside a candidate found before it: the marker stays on the enclosing
        // control unless a nested one is nearer.
        if (!rect.intersects(strip) || (control && !bestRect.contains(rect)))
            continue;
        const float length = distance(rect.center(), strip.center());
        if (length < bestDistance) {
            bestDistance = length;
            best = widget;
            bestRect = rect;
        }
    }
    return best;
}

QRect CFocusSearch::globalRect(QWidget* widget) const
{
    Q_ASSERT_X(widget, "CFocusSearch::globalRect", "pWidget != NULL");
    return {widget->mapTo(m_pRoot, widget->rect().topLeft()),
        widget->mapTo(m_pRoot, widget->rect().bottomRight())};
}

float CFocusSearch::distance(const QPoint& from, const QPoint& to)
{
    return float(QLineF(from, to).length());
}

QList<QObject*> CFocusSearch::allChildren(QObject* parent) const
{
    QList<QObject*> all;
    for (QObject* child : parent->children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (!widget || widget->isWindow())
            continue;
        all.append(child);
        all.append(allChildren(child));
    }
    return all;
}
