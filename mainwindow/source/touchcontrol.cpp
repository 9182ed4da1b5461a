#include "touchcontrol.h"

#include "commutils.h"
#include "filedescriptor.h"
#include "pointergrab.h"
#include "screenarea.h"
#include "touchwatch.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

QRect regionOf(CTouchControl::NonInteractiveRegionType type, const QRect& custom)
{
    switch (type) {
    case CTouchControl::FullScreen:
        return screenArea();
    case CTouchControl::ExcludeBottomBar:
        return areaAboveBottomBar();
    case CTouchControl::CutomizeRegion:
        return custom;
    default:
        return {};
    }
}

} // namespace

CTouchControl::CTouchControl(QObject* parent)
    : QObject(parent)
    , m_pWatch(new CTouchWatch(this))
    , m_pGrab(new CPointerGrab(this))
{
    QCoreApplication::instance()->installEventFilter(m_pWatch);
    connect(m_pWatch, &CTouchWatch::touched, this, &CTouchControl::touched);
    connect(m_pWatch, &CTouchWatch::dialogsChanged, this, &CTouchControl::update);
}

void CTouchControl::set(bool TouchState::*field, bool on)
{
    m_state.*field = on;
    update();
}

void CTouchControl::setLocked(bool locked)
{
    const QByteArray mark = QFile::encodeName(CUICommUtils::getLockScreenMarkFileName());
    if (!locked) {
        ::unlink(mark.constData()); // mostly it is there
    } else {
        // A link of the name must not lead elsewhere, and a pipe must not hold this thread.
        const CFileDescriptor file(::open(
            mark.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY, 0644));
        if (!file.isValid())
            qWarning().noquote() << "Can not create" << mark << '-' << qt_error_string(errno);
    }
    set(&TouchState::isLocked, locked);
}

void CTouchControl::request(NonInteractiveRegionType type, const QRect& region)
{
    m_requestedType = type;
    m_requestedRegion = region;
    if (type != ExcludeBottomBar && type != CutomizeRegion) // these two leave the grab as it was asked for
        m_isGrabRequested = type == FullScreen;
    update();
}

void CTouchControl::update()
{
    m_state.isDialogUp = m_pWatch->isDialogUp();
    switch (touchOwner(m_state)) {
    case TouchOwner::Nobody:
        publish(FullScreen, true);
        break;
    case TouchOwner::Shell:
        publish(RegionNone, false);
        break;
    case TouchOwner::TestApplication:
        publish(ExcludeBottomBar, false);
        break;
    case TouchOwner::AsRequested:
        publish(m_requestedType, m_isGrabRequested);
        break;
    }
}

void CTouchControl::publish(NonInteractiveRegionType type, bool isGrabbed)
{
    m_pGrab->set(isGrabbed);
    const QRect region = regionOf(type, m_requestedRegion);
    QCoreApplication::instance()->setProperty("NonInteractiveRegion", region);
    emit regionChanged(type, region);
}
