#include "topbar.h"

#include "appfeatureheader.h"
#include "appstatusindicator.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QHBoxLayout>

namespace {

// Not CResourceMan's AppBarBgColor, whose blue is 232: the bar and the application tabs differ on purpose.
const QColor BAR_COLOR(181, 199, 239);

} // namespace

CTopBar::CTopBar(QWidget* parent)
    : CWidget(parent)
{
    initialize();
}

void CTopBar::initialize()
{
    setObjectName(QStringLiteral("topBar"));
    resize(CWidgetStyle::getScreenRegion(CWidgetStyle::RegionTopBar).size());
    setBackgroundColor(BAR_COLOR);

    m_pAppFeatureHeader = new CAppFeatureHeader(this);
    m_pAppStatIndicator = new CAppStatusIndicator(this);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addStretch();
    row->addWidget(m_pAppFeatureHeader);
    row->addWidget(m_pAppStatIndicator);

    connect(m_pAppStatIndicator, &CAppStatusIndicator::homeTriggered, this, &CTopBar::homeTriggered);
    connect(m_pAppStatIndicator, &CAppStatusIndicator::closeTriggered, this, &CTopBar::closeTriggered);
    connect(m_pAppStatIndicator, &CAppStatusIndicator::powerTriggered, this, &CTopBar::powerTriggered);
    connect(m_pAppStatIndicator, &CAppStatusIndicator::storageTriggered, this, &CTopBar::storageTriggered);
    connect(m_pAppStatIndicator, &CAppStatusIndicator::wifiWiziTriggered, this, &CTopBar::wifiWiziTriggered);
}

void CTopBar::setTopText(const QString& text)
{
    m_pAppFeatureHeader->setTopText(text);
}

void CTopBar::setNavigationText(const QString& text)
{
    m_pAppFeatureHeader->setNavigationText(text);
}

void CTopBar::setAppState(const AppInfo&) { }

void CTopBar::translate() { }
