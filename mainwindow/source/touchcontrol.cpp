#include "touchcontrol.h"

#include "commutils.h"
#include "pointergrab.h"
#include "screenarea.h"
#include "touchwatch.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>

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
    QFile mark(CUICommUtils::getLockScreenMarkFileName());
    if (locked && !mark.exists()) {
        if (!mark.open(QIODevice::ReadWrite))
            qWarning().noquote() << "Can not create" << mark.fileName() << '-' << mark.errorString();
    } else if (!locked && mark.exists()) {
        mark.remove();
    }
    set(&TouchState::isLocked, locked);
}

void CTouchControl::request(NonInteractiveRegionType type, const QRect& region)
{
    m_requestedType = type;
    m_requestedRegion = region;
    update();
}

void CTouchControl::update()
{
    m_state.isDialogUp = m_pWatch->isDialogUp();
    switch (touchOwner(m_state)) {
    case TouchOwner::Nobody:
        publish(FullScreen);
        break;
    case TouchOwner::Shell:
        publish(RegionNone);
        break;
    case TouchOwner::TestApplication:
        m_pGrab->set(false); // the grab of the whole screen would keep its touches from it
        publish(ExcludeBottomBar);
        break;
    case TouchOwner::AsRequested:
        publish(m_requestedType);
        break;
    }
}

void CTouchControl::publish(NonInteractiveRegionType type)
{
    if (type == FullScreen)
        m_pGrab->set(true);
    else if (type != ExcludeBottomBar && type != CutomizeRegion) // these two leave the grab as it is
        m_pGrab->set(false);
    const QRect region = regionOf(type, m_requestedRegion);
    QCoreApplication::instance()->setProperty("NonInteractiveRegion", region);
    emit regionChanged(type, region);
}
