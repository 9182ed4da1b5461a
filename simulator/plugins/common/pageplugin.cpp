#include "pageplugin.h"

#include "widgets/widget/widget.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QDebug>

CPagePlugin::~CPagePlugin()
{
    delete m_page;
}

bool CPagePlugin::start(QWidget* parent)
{
    stop();
    if (!parent) {
        qWarning() << getPluginID() << "cannot start without a window";
        return false;
    }
    m_page = createPage(parent);
    m_page->setBackgroundColor(CWidgetStyle::ColorScreen);
    m_page->setBorderColor(Qt::white);
    m_page->setBorderWidth(0, 1, 1, 1);
    m_page->setGeometry(CWidgetStyle::getScreenRegion(CWidgetStyle::RegionWorkingArea));
    bIsStarted = true;
    show();
    return true;
}

bool CPagePlugin::stop()
{
    bIsStarted = false;
    if (!m_page)
        return false;
    delete m_page;
    return true;
}

void CPagePlugin::show()
{
    if (!m_page)
        return;
    m_page->show();
    m_page->raise();
}

void CPagePlugin::hide()
{
    if (m_page)
        m_page->hide();
}

void CPagePlugin::update()
{
    if (m_page)
        m_page->translate();
}
