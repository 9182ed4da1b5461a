#include "widgets/keywatch/keywatch.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>

namespace {

/** The filter on the application. Sees a key at the native window first, and then at each widget it comes to.
 */
class CKeyWatch : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::KeyRelease)
            m_lastRelease = momentOf(*static_cast<QKeyEvent*>(event));
        else if (event->type() == QEvent::FocusIn && receiver->isWidgetType())
            letApplicationHear(static_cast<QWidget*>(receiver));
        return false;
    }

    const KeyMoment& lastRelease() const { return m_lastRelease; }

private:
    static void letApplicationHear(QWidget* widget)
    {
        // A window hears its keys itself. A dialog has the filter, and is no place to leave unanswered.
        if (!widget->isWindow() && !qobject_cast<QDialog*>(widget->window()))
            widget->installEventFilter(qApp);
    }

    KeyMoment m_lastRelease;
};

// A guarded pointer: programs that make one application after another (tests) get a filter for each.
QPointer<CKeyWatch> installed;

} // namespace

KeyMoment momentOf(const QKeyEvent& event)
{
    return {event.nativeScanCode() ? event.nativeScanCode() : unsigned(event.key()), event.timestamp()};
}

bool isSameMoment(const KeyMoment& one, const KeyMoment& other)
{
    return one.time != 0 && one.time == other.time && one.key == other.key;
}

void installKeyWatch()
{
    if (installed || !qApp)
        return;
    installed = new CKeyWatch(qApp);
    qApp->installEventFilter(installed);
}

bool isKeyRepetition(const QKeyEvent& press)
{
    return installed && isSameMoment(momentOf(press), installed->lastRelease());
}
