// The tool box, the menu path and the top bar's caption and buttons.

#include "mainwindow.h"

#include "appstatusindicator.h"
#include "captionpath.h"
#include "homepage.h"
#include "pluginman.h"
#include "services/processutils.h"
#include "shellbox.h"
#include "startutilwindow.h"
#include "switchappwindow.h"
#include "topbar.h"
#include "widgets/toolbox/toolbox.h"
#include "widgets/widgetstack/kpwidgetstack.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QDebug>

namespace {

constexpr int NO_PAGE = -1; // marks the row of a page itself

/** A row is a page of the tool box, or an item of the page above it. */
struct ToolBoxRow
{
    const char* text;
    const char* icon;
    int id;
};

constexpr ToolBoxRow TOOL_BOX[] = {
    {QT_TRANSLATE_NOOP("CMainWindow", "Tools"), ":/images/LEFT_Tools_ntb.png", NO_PAGE},
    {QT_TRANSLATE_NOOP("CMainWindow", "IP Tools"), ":/images/LEFT_Tools_IP.png", UTILITY_ID_IP_TOOLS},
    {QT_TRANSLATE_NOOP("CMainWindow", "Net Wiz"), ":/images/LEFT_Tools_Netwiz.png", UTILITY_ID_NET_WIZARD},
    {QT_TRANSLATE_NOOP("CMainWindow", "WiFi Wiz"), ":/images/LEFT_Tools_WiFiWiz.png", UTILITY_ID_WIFI_WIZARD},
    {QT_TRANSLATE_NOOP("CMainWindow", "Advanced"), ":/images/LEFT_Tools_AdvTools.png", UTILITY_ID_ADVTOOL},
    {QT_TRANSLATE_NOOP("CMainWindow", "Utilities"), ":/images/LEFT_Utilities_ntb.png", NO_PAGE},
    {QT_TRANSLATE_NOOP("CMainWindow", "Settings"), ":/images/LEFT_Utilities_Settings.png",
        UTILITY_ID_SETTINGS},
    {QT_TRANSLATE_NOOP("CMainWindow", "Backlight"), ":/images/LEFT_Utilities_Backlight.png",
        UTILITY_ID_BACKLIGHT},
    {QT_TRANSLATE_NOOP("CMainWindow", "Harbor"), ":/images/LEFT_Utilities_Harbor.png", UTILITY_ID_HARBOR},
    {QT_TRANSLATE_NOOP("CMainWindow", "Files"), ":/images/LEFT_Folder_ntb.png", NO_PAGE},
    {QT_TRANSLATE_NOOP("CMainWindow", "Saved"), ":/images/LEFT_Files_ntb.png", UTILITY_ID_RESULT_MANAGER},
    {QT_TRANSLATE_NOOP("CMainWindow", "USB"), ":/images/LEFT_Folder_USBDBrowse.png", UTILITY_ID_USB_BROWSER},
    // "Capture" has the icon of "Advanced" on purpose.
    {QT_TRANSLATE_NOOP("CMainWindow", "Capture"), ":/images/LEFT_Tools_AdvTools.png",
        UTILITY_ID_PCAP_MANAGER},
};

/**
 * What a language change re-labels. It differs from the tool box as built, and stays so: the fifth item of
 * the first page does not exist, the third of the second page keeps its label, and "Capture" becomes
 * "Manage".
 */
constexpr const char* RELABEL_PAGES[] = {QT_TRANSLATE_NOOP("CMainWindow", "Tools"),
    QT_TRANSLATE_NOOP("CMainWindow", "Utilities"), QT_TRANSLATE_NOOP("CMainWindow", "Files")};
constexpr struct
{
    int page;
    int item;
    const char* text;
} RELABEL_ITEMS[] = {
    {0, 0, QT_TRANSLATE_NOOP("CMainWindow", "IP Tools")},
    {0, 1, QT_TRANSLATE_NOOP("CMainWindow", "Net Wiz")},
    {0, 2, QT_TRANSLATE_NOOP("CMainWindow", "WiFi Wiz")},
    {0, 3, QT_TRANSLATE_NOOP("CMainWindow", "Advanced")},
    {0, 4, QT_TRANSLATE_NOOP("CMainWindow", "Browser")},
    {1, 0, QT_TRANSLATE_NOOP("CMainWindow", "Settings")},
    {1, 1, QT_TRANSLATE_NOOP("CMainWindow", "Backlight")},
    {2, 0, QT_TRANSLATE_NOOP("CMainWindow", "Saved")},
    {2, 1, QT_TRANSLATE_NOOP("CMainWindow", "USB")},
    {2, 2, QT_TRANSLATE_NOOP("CMainWindow", "Manage")},
};

/** Entries whose page has no way back but Home. */
bool isFileEntry(int id)
{
    return id == UTILITY_ID_RESULT_MANAGER || id == UTILITY_ID_PCAP_MANAGER;
}

} // namespace

void CMainWindow::setupToolBox()
{
    m_pToolBox = new CToolBox(this);
    m_pToolBox->setBorderColor(QColor(Qt::white));
    m_pToolBox->setBorderWidth(1);
    m_pToolBox->setGeometry(CWidgetStyle::getScreenRegion(CWidgetStyle::RegionToolBox));
    int page = -1;
    for (const ToolBoxRow& row : TOOL_BOX) {
        const QString icon = QString::fromLatin1(row.icon);
        if (row.id == NO_PAGE)
            page = m_pToolBox->addPage(icon, tr(row.text));
        else
            m_pToolBox->addItem(page, icon, tr(row.text), row.id);
    }
    connect(m_pToolBox, &CToolBox::currentItemChanged, this, &CMainWindow::itemChanged);
}

void CMainWindow::translate()
{
    for (int page = 0; page < int(std::size(RELABEL_PAGES)); ++page)
        m_pToolBox->setPageText(page, tr(RELABEL_PAGES[page]));
    for (const auto& item : RELABEL_ITEMS)
        m_pToolBox->setItemText(item.page, item.item, tr(item.text));
    CWidget::translate();
    // A page that offers no way back has the caption of the home page.
    if (m_pTopBar->getAppStateInidcator()->isStatusVisible(StatusHome))
        updateNavigateInfo(m_prevUtilID);
    else
        m_pTopBar->setNavigationText(tr("Home"));
    if (m_pStartUtilWnd->isVisible())
        m_pStartUtilWnd->showMessage(m_pPluginMan->getPluginName(m_prevUtilID));
    if (m_pSwitchAppWnd->isVisible())
        m_pSwitchAppWnd->showMessage(switchMessage());
    updateCurrentUtilPage();
}

void CMainWindow::itemChanged(int id)
{
    m_transitions.request(CTransitions::Utility, [this, id] { chooseItem(id); });
}

void CMainWindow::chooseItem(int id)
{
    if (id == UTILITY_ID_USB_BROWSER) {
        if (isCaptureRunning()) {
            markToolBoxItem();
            return;
        }
        if (!m_storeStat.bIsPlugged) {
            execShellBox(
                ShellBox::NoUsbDrive, *this, tr("Error"), tr("Cannot find USB drive attached to the unit!"));
            triggerHome();
            return;
        }
    }
    if (isUtilAvailable(UtilityID(id)))
        pushMenuEntry(id, isFileEntry(id) ? 1 : 0);
    changeCurrentUtil(id);
    markToolBoxItem();
}

void CMainWindow::markToolBoxItem()
{
    int marked = -1;
    for (const MenuEntry& entry : m_pMenuStack->entries()) {
        if (m_pToolBox->hasItem(entry.entryID))
            marked = entry.entryID;
    }
    m_pToolBox->setCurrentItem(marked);
}

bool CMainWindow::isFSCaptureRunning()
{
    return miscutils::CCommUtils::IsProcessExist(QStringLiteral("fscapture"));
}

bool CMainWindow::isWSARunning()
{
    return miscutils::CCommUtils::IsProcessExist(QStringLiteral("wsa_raw"));
}

void CMainWindow::updateNavigateInfo(UtilityID id)
{
    m_pTopBar->setNavigationText(captionPath(id).join(QLatin1Char('>')));
}

void CMainWindow::pushMenuEntry(int id, int level)
{
    m_pMenuStack->push(id, level);
    updateTopBarButtonState();
}

void CMainWindow::popMenuEntry()
{
    m_pMenuStack->pop();
    updateTopBarButtonState();
}

void CMainWindow::popAllMenuEntry()
{
    m_pMenuStack->clear();
    updateTopBarButtonState();
}

void CMainWindow::updateTopBarButtonState()
{
    markToolBoxItem();
    if (m_pMenuStack->isEmpty())
        setTopBarButtonStatus(false, false);
    else if (m_pMenuStack->top().menuLevel == 0)
        setTopBarButtonStatus(true, false);
    else if (m_pMenuStack->top().menuLevel == 1)
        setTopBarButtonStatus(true, true);
}

void CMainWindow::setTopBarButtonStatus(bool home, bool close)
{
    if (!home && !close)
        m_pTopBar->setNavigationText(tr("Home"));
    CAppStatusIndicator* indicator = m_pTopBar->getAppStateInidcator();
    indicator->setStatusVisible(StatusHome, home);
    indicator->setStatusVisible(StatusClose, close);
}

void CMainWindow::triggerHome()
{
    m_transitions.request(CTransitions::Utility, [this] { m_transitions.perform([this] { goHome(); }); });
}

void CMainWindow::goHome()
{
    if (m_pPluginMan->isPlugin(m_prevUtilID))
        leavePlugin();
    clearFocusWidget();
    m_pToolBox->collapseAll();
    KpWidgetStack::instance()->popAllPages();
    m_pSwitchAppWnd->finish(); // else the part of it beside the page would stay
    showHomePage();
    popAllMenuEntry();
}

void CMainWindow::triggerClose()
{
    m_transitions.request(CTransitions::Utility, [this] {
        // The calibration below asks before anything is left: refused, all stays as it is.
        const int steps = m_pMenuStack->count();
        if (steps > 1 && !isFileEntry(m_pMenuStack->top().entryID)
            && m_pMenuStack->entries().at(steps - 2).entryID == UTILITY_ID_SCREEN) {
            const int top = m_pMenuStack->top().entryID;
            if (!confirmCalibration() || m_pMenuStack->count() != steps || m_pMenuStack->top().entryID != top)
                return;
        }
        m_transitions.perform([this] { closeCurrent(); });
    });
}

void CMainWindow::closeCurrent()
{
    if (!m_pMenuStack->isEmpty() && isFileEntry(m_pMenuStack->top().entryID)) {
        goHome();
        return;
    }
    if (m_pPluginMan->isPlugin(m_prevUtilID)) {
        leavePlugin();
        m_prevUtilID = UTILITY_ID_BEGIN;
    } else {
        KpWidgetStack::instance()->popPage();
    }
    popMenuEntry();
    clearFocusWidget();
    if (!m_pMenuStack->isEmpty()) {
        const auto below = UtilityID(m_pMenuStack->top().entryID);
        m_curUtilID = below;
        switchTo(below);
        if (below != UTILITY_ID_SETTINGS)
            return;
    } else {
        m_pToolBox->collapseAll();
        m_pSwitchAppWnd->finish();
        showHomePage();
    }
    setTopBarButtonStatus(false, false);
}
