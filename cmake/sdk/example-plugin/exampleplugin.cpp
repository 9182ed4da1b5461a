#include "exampleplugin.h"

#include "systemsettings.h"
#include "widgets/label/label.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/widget/widget.h"
#include "widgets/widgetstyle/widgetstyle.h"

CExamplePlugin::~CExamplePlugin()
{
    delete m_page;
}

bool CExamplePlugin::start(QWidget* parent)
{
    delete m_page;
    m_page = new CWidget(parent);
    m_page->setBackgroundColor(CWidgetStyle::ColorScreen);
    m_page->setBorderColor(CWidgetStyle::ColorFrame);
    m_page->setBorderWidth(0, 1, 1, 1);
    m_page->setGeometry(CWidgetStyle::getScreenRegion(CWidgetStyle::RegionWorkingArea));

    m_label = new CLabel(QString(), m_page);
    m_label->setGeometry(24, 24, 592, 40);
    m_close = new CPushButton(QString(), m_page);
    m_close->setGeometry(24, 80, 160, 44);
    connect(m_close, &CPushButton::clicked, this, &CExamplePlugin::requestToClose);
    update();

    m_page->show();
    m_page->raise();
    bIsStarted = true;
    return true;
}

bool CExamplePlugin::stop()
{
    bIsStarted = false;
    if (!m_page)
        return false;
    delete m_page; // and with it what is on it
    return true;
}

void CExamplePlugin::show()
{
    if (m_page)
        m_page->show();
}

void CExamplePlugin::hide()
{
    if (m_page)
        m_page->hide();
}

void CExamplePlugin::update()
{
    if (!m_page)
        return;
    const int brightness
        = CSystemSettings::globalSettings()->getAttribute(CSystemSettings::ACBrightness).toInt();
    m_label->setText(tr("The brightness on external power is %1.").arg(brightness));
    m_close->setText(tr("Close"));
}
