#include "pointergrab.h"

#include <QDebug>
#include <QX11Info>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace {

constexpr int RETRY_PERIOD = 100; // ms

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
    return true;
}

} // namespace

CPointerGrab::CPointerGrab(QObject* parent)
    : QObject(parent)
{
    m_retry.setInterval(RETRY_PERIOD);
    connect(&m_retry, &QTimer::timeout, this, &CPointerGrab::tryToGrab);
}

void CPointerGrab::set(bool wanted)
{
    xcb_connection_t* display = QX11Info::connection();
    if (!display || wanted == (m_isHeld || m_retry.isActive()))
        return;
    if (wanted) {
        tryToGrab();
        if (!m_isHeld) {
            qWarning("Another client holds the pointer: touches are not locked yet");
            m_retry.start();
        }
        return;
    }
    m_retry.stop();
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
    m_isHeld = grabButtons(display, root) && isPointerFree(display, root);
    if (m_isHeld && m_retry.isActive()) {
        m_retry.stop();
        qWarning("The pointer is free again: touches are locked");
    }
}
