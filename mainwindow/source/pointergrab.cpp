#include "pointergrab.h"

#include <QDebug>
#include <QX11Info>

#include <cstdlib>
#include <memory>
#include <utility>
#include <xcb/xcb.h>

namespace {

// How often the pointer is looked at, in ms: until it is had, and then, since another client may take it
// later.
constexpr int RETRY_PERIOD = 100;
constexpr int WATCH_PERIOD = 1000;

template <typename T> using XcbPtr = std::unique_ptr<T, decltype(&std::free)>;

/** All buttons on the root window; refused while another client has asked for any of them there. */
bool grabButtons(xcb_connection_t* display, xcb_window_t root)
{
    const auto request = xcb_grab_button_checked(display, 0, root, XCB_EVENT_MASK_BUTTON_PRESS,
        XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_BUTTON_INDEX_ANY, XCB_MOD_MASK_ANY);
    return !XcbPtr<xcb_generic_error_t>(xcb_request_check(display, request), &std::free);
}

/** Whether no other client has the whole pointer, whose touches would go past the buttons' grab. */
bool isPointerFree(xcb_connection_t* display, xcb_window_t root)
{
    const auto request = xcb_grab_pointer(display, 0, root, XCB_EVENT_MASK_BUTTON_PRESS, XCB_GRAB_MODE_ASYNC,
        XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME);
    const XcbPtr<xcb_grab_pointer_reply_t> reply(
        xcb_grab_pointer_reply(display, request, nullptr), &std::free);
    if (!reply || reply->status != XCB_GRAB_STATUS_SUCCESS)
        return false;
    xcb_ungrab_pointer(display, XCB_CURRENT_TIME);
    xcb_flush(display);
    return true;
}

} // namespace

CPointerGrab::CPointerGrab(QObject* parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &CPointerGrab::tryToGrab);
}

void CPointerGrab::set(bool wanted)
{
    xcb_connection_t* display = QX11Info::connection();
    if (!display || wanted == m_timer.isActive())
        return;
    if (wanted) {
        m_isHeld = true; // so that a failure is told
        tryToGrab();
        return;
    }
    m_timer.stop();
    m_isHeld = false;
    // Checked, so that it is done when this returns: the next touch may come at once.
    const auto request = xcb_ungrab_button_checked(
        display, XCB_BUTTON_INDEX_ANY, xcb_window_t(QX11Info::appRootWindow()), XCB_MOD_MASK_ANY);
    const XcbPtr<xcb_generic_error_t> error(xcb_request_check(display, request), &std::free);
    if (error)
        qWarning("Can not let go of the pointer: X error %d", int(error->error_code));
}

void CPointerGrab::tryToGrab()
{
    xcb_connection_t* display = QX11Info::connection();
    const auto root = xcb_window_t(QX11Info::appRootWindow());
    const bool wasHeld = std::exchange(m_isHeld, grabButtons(display, root) && isPointerFree(display, root));
    if (wasHeld && !m_isHeld)
        qWarning("Another client holds the pointer: touches are not locked");
    else if (!wasHeld && m_isHeld)
        qWarning("The pointer is free again: touches are locked");
    m_timer.start(m_isHeld ? WATCH_PERIOD : RETRY_PERIOD);
}
