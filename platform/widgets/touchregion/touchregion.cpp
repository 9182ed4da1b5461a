#include "widgets/touchregion/touchregion.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QRect>
#include <QTouchEvent>
#include <QVariant>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace {

constexpr const char RegionName[] = "NonInteractiveRegion";

/** The filter on the application. Sees every event twice: at the window, then at the widget. */
class CTouchRegion : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (m_cancelling)
            return false;
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseMove:
            return filterMouse(receiver, static_cast<QMouseEvent*>(event));
        case QEvent::Wheel:
            return drop(
                event, region().contains(static_cast<QWheelEvent*>(event)->globalPosition().toPoint()));
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
            return filterTouch(static_cast<QTouchEvent*>(event));
        case QEvent::DynamicPropertyChange:
            if (receiver == qApp
                && static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName() == RegionName) {
                const QWidgetList widgets = QApplication::allWidgets();
                for (QWidget* widget : widgets) {
                    if (isTouchDropped(widget))
                        letGo(qobject_cast<QAbstractButton*>(widget));
                }
            }
            return false;
        case QEvent::Hide:
            letGo(qobject_cast<QAbstractButton*>(receiver));
            return false;
        case QEvent::WindowBlocked:
            if (receiver->isWindowType()) {
                const QWidget* window = QWidget::find(static_cast<QWindow*>(receiver)->winId());
                for (auto* button : window ? window->findChildren<QAbstractButton*>() : Buttons())
                    letGo(button);
            }
            return false;
        default:
            return false;
        }
    }

private:
    using Buttons = QList<QAbstractButton*>;

    /** A button that is out of reach now: the touch that holds it ends elsewhere, and means nothing. */
    void letGo(QAbstractButton* button)
    {
        // Not only setDown(): a finger that moves would press it again.
        if (button && button->isDown())
            cancelPress(button, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    }

    static QRect region() { return qApp->property(RegionName).toRect(); }

    static bool drop(QEvent* event, bool dropped)
    {
        // Accepted, or it would be offered to the parent, or come again as a mouse event.
        if (dropped)
            event->accept();
        return dropped;
    }

    /** Where the event is on the screen. Events made by the program carry the cursor's place in globalPos().
     */
    static bool globalPosition(QObject* receiver, const QMouseEvent* event, QPoint& position)
    {
        if (receiver->isWidgetType())
            position = static_cast<QWidget*>(receiver)->mapToGlobal(event->pos());
        else if (receiver->isWindowType())
            position = static_cast<QWindow*>(receiver)->mapToGlobal(event->pos());
        else
            return false;
        return true;
    }

    bool filterMouse(QObject* receiver, QMouseEvent* event)
    {
        QPoint position;
        if (!globalPosition(receiver, event, position))
            return false;
        const bool inside = region().contains(position);
        const bool press
            = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
        if (press)
            m_swallowing = inside;
        if (m_swallowing) {
            // The whole touch is dropped with its press, wherever it goes and even if the region is lifted.
            if (event->type() == QEvent::MouseButtonRelease
                && (event->buttons() & ~Qt::MouseButtons(event->button())) == 0)
                m_swallowing = false;
            return drop(event, true);
        }
        if (!inside)
            return false;
        if (event->type() == QEvent::MouseButtonRelease) {
            if (!receiver->isWidgetType())
                return false; // Qt's own books need it; the widget's copy is dealt with next
            cancelPress(
                static_cast<QWidget*>(receiver), event->button(), event->buttons(), event->modifiers());
        }
        return drop(event, receiver->isWidgetType() || event->buttons() == Qt::NoButton);
    }

    /** A touch that began outside ends inside: the control must let go without counting it as a touch. */
    void cancelPress(
        QWidget* widget, Qt::MouseButton button, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
    {
        const QPointF away(-32000, -32000);
        QMouseEvent release(QEvent::MouseButtonRelease, away, away, button, buttons, modifiers);
        m_cancelling = true;
        QCoreApplication::sendEvent(widget, &release);
        m_cancelling = false;
    }

    bool filterTouch(QTouchEvent* event)
    {
        const QRect dropped = region();
        const auto points = event->touchPoints();
        if (event->type() == QEvent::TouchBegin) {
            m_swallowingTouch
                = std::any_of(points.begin(), points.end(), [&dropped](const QTouchEvent::TouchPoint& point) {
                      return dropped.contains(point.screenPos().toPoint());
                  });
            return drop(event, m_swallowingTouch);
        }
        const bool swallowed = m_swallowingTouch;
        if (event->type() == QEvent::TouchEnd)
            m_swallowingTouch = false;
        return drop(event, swallowed);
    }

    bool m_swallowing = false;
    bool m_swallowingTouch = false;
    bool m_cancelling = false;
};

} // namespace

void installTouchRegion()
{
    // A guarded pointer: programs that make one application after another (tests) get a filter for each.
    static QPointer<CTouchRegion> installed;
    if (installed || !qApp)
        return;
    installed = new CTouchRegion(qApp);
    qApp->installEventFilter(installed);
}

bool isTouchDropped(const QWidget* widget)
{
    return qApp->property(RegionName).toRect().contains(widget->mapToGlobal(widget->rect().center()));
}
