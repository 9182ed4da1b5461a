#include "busymachine.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QSemaphore>
#include <QX11Info>

#include <dlfcn.h>
#include <xcb/xcb.h>

#include <atomic>

namespace {

constexpr int MOST_WAIT = 2000; // ms

std::atomic<xcb_connection_t*> s_heldUp{nullptr}; // whose reader is held up
QSemaphore s_releasesHandled;
bool s_isReleaseOut = false; // reader thread: handed out and not known to be handled

using ReadEvent = xcb_generic_event_t*(xcb_connection_t*);

ReadEvent* original(const char* name)
{
    return reinterpret_cast<ReadEvent*>(dlsym(RTLD_NEXT, name));
}

} // namespace

// These two stand before the library's own, for every caller in the process.

xcb_generic_event_t* xcb_poll_for_queued_event(xcb_connection_t* connection)
{
    static ReadEvent* const next = original("xcb_poll_for_queued_event");
    return connection == s_heldUp ? nullptr : next(connection);
}

xcb_generic_event_t* xcb_wait_for_event(xcb_connection_t* connection)
{
    static ReadEvent* const next = original("xcb_wait_for_event");
    if (connection == s_heldUp && s_isReleaseOut)
        s_releasesHandled.tryAcquire(1, MOST_WAIT);
    xcb_generic_event_t* event = next(connection);
    if (connection == s_heldUp) {
        s_isReleaseOut = event && (event->response_type & 0x7f) == XCB_KEY_RELEASE;
        s_releasesHandled.tryAcquire(s_releasesHandled.available()); // of earlier ones
    }
    return event;
}

CBusyMachine::CBusyMachine()
{
    qApp->installEventFilter(this);
    s_heldUp = QX11Info::connection();
}

CBusyMachine::~CBusyMachine()
{
    s_heldUp = nullptr;
    s_releasesHandled.release(); // a reader that still waits
}

bool CBusyMachine::eventFilter(QObject* receiver, QEvent* event)
{
    if (!receiver->isWindowType())
        return false;
    if (event->type() == QEvent::KeyRelease) {
        m_releaseTime = static_cast<QKeyEvent*>(event)->timestamp();
        s_releasesHandled.release();
    } else if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        m_unflagged += key->timestamp() == m_releaseTime && !key->isAutoRepeat() ? 1 : 0;
    }
    return false;
}
