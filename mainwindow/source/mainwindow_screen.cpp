// Who gets a touch: the window's record of it, and the region of the screen that takes none.

#include "mainwindow.h"

#include "pointergrab.h"
#include "touchwatch.h"

#include <QApplication>

namespace {

QRect regionOf(CMainWindow::NonInteractiveRegionType type, const QRect& custom)
{
    switch (type) {
    case CMainWindow::FullScreen:
        return {0, 0, 800, 480};
    case CMainWindow::ExcludeBottomBar:
        return {0, 0, 800, 460};
    case CMainWindow::CutomizeRegion:
        return custom;
    default:
        return {};
    }
}

} // namespace

void CMainWindow::setNonInteractiveRegion(NonInteractiveRegionType type, const QRect& region)
{
    m_requestedType = type;
    m_requestedRegion = region;
    updateTouchOwner();
}

void CMainWindow::updateTouchOwner()
{
    m_touchState.isDialogUp = m_pTouchWatch->isDialogUp();
    switch (touchOwner(m_touchState)) {
    case TouchOwner::Nobody:
        publishRegion(FullScreen);
        break;
    case TouchOwner::Shell:
        publishRegion(RegionNone);
        break;
    case TouchOwner::TestApplication:
        m_pPointerGrab->set(false); // the grab of the whole screen would keep its touches from it
        publishRegion(ExcludeBottomBar);
        break;
    case TouchOwner::AsRequested:
        publishRegion(m_requestedType);
        break;
    }
}

void CMainWindow::publishRegion(NonInteractiveRegionType type)
{
    m_nonInteractiveType = type;
    m_nonInteractiveRegion = regionOf(type, m_requestedRegion);
    if (type == FullScreen)
        m_pPointerGrab->set(true);
    else if (type != ExcludeBottomBar && type != CutomizeRegion) // these two leave the grab as it is
        m_pPointerGrab->set(false);
    qApp->setProperty("NonInteractiveRegion", m_nonInteractiveRegion);
}
