#include "pluginman.h"

#include "utilinterface.h"

#include <QDebug>
#include <QFile>
#include <QPluginLoader>
#include <QScopeGuard>

#include <atomic>
#include <dlfcn.h>
#include <exception>

namespace {

std::atomic<const char*> libraryInCall{nullptr};

struct PluginRow
{
    UtilityID id;
    const char* library;
    const char* name; // display name, may be empty
};

constexpr PluginRow PLUGINS[] = {
    {UTILITY_ID_IP_TOOLS, "libIPtool.so", QT_TRANSLATE_NOOP("CPluginManager", "IP Tools")},
    {UTILITY_ID_NET_WIZARD, "libnetwiz.so", QT_TRANSLATE_NOOP("CPluginManager", "Network Wizard")},
    {UTILITY_ID_WIFI_WIZARD, "libwifiwiz.so", QT_TRANSLATE_NOOP("CPluginManager", "WIFI Wizard")},
    {UTILITY_ID_BROWSER, "libwebbrowser.so", QT_TRANSLATE_NOOP("CPluginManager", "Web Browser")},
    {UTILITY_ID_BACKLIGHT, "libsettingBacklight.so", QT_TRANSLATE_NOOP("CPluginManager", "Backlight")},
    {UTILITY_ID_RESULT_MANAGER, "libresultman.so", QT_TRANSLATE_NOOP("CPluginManager", "Result Manager")},
    {UTILITY_ID_FIBERSCOPE, "libFiberScope.so", QT_TRANSLATE_NOOP("CPluginManager", "Fiber Scope")},
    {UTILITY_ID_WIFI_SA, "libwsa.so", QT_TRANSLATE_NOOP("CPluginManager", "WIFI SA")},
    // The clock source page is served under the identifier of the GPS data card.
    {UTILITY_ID_DATACARD_GPS, "libhighPrecisionClockSource.so", ""},
    {UTILITY_ID_DATACARD_3G, "libdataCard.so", ""},
    {UTILITY_ID_SIGNATURE_PAD, "libsignaturepad.so", QT_TRANSLATE_NOOP("CPluginManager", "Signature Pad")},
    {UTILITY_ID_OPM, "libOpm.so", QT_TRANSLATE_NOOP("CPluginManager", "Optical Power Meter")},
    {UTILITY_ID_ABOUT, "libsettingAbout.so", QT_TRANSLATE_NOOP("CPluginManager", "About")},
    {UTILITY_ID_SCREEN, "libsettingscreen.so", QT_TRANSLATE_NOOP("CPluginManager", "Screen Calibration")},
    {UTILITY_ID_BLUETOOTH, "libbluetooth.so", QT_TRANSLATE_NOOP("CPluginManager", "Bluetooth Settings")},
    {UTILITY_ID_POWER, "libsettingPower.so", QT_TRANSLATE_NOOP("CPluginManager", "Power Settings")},
    {UTILITY_ID_DATE_TIME, "libdateTime.so", QT_TRANSLATE_NOOP("CPluginManager", "Date & Time Settings")},
    {UTILITY_ID_OSTREL, "libostrel.so", QT_TRANSLATE_NOOP("CPluginManager", "ostrel")},
    {UTILITY_ID_HARBOR, "libharbor.so", QT_TRANSLATE_NOOP("CPluginManager", "Harbor")},
    {UTILITY_ID_ODMTOOL, "libodmtool.so", ""},
    {UTILITY_ID_WIFI_INSSDER, "libwifiinssider.so", QT_TRANSLATE_NOOP("CPluginManager", "WIFI inSSIDer")},
    {UTILITY_ID_PCAP_MANAGER, "libpcapman.so", QT_TRANSLATE_NOOP("CPluginManager", "Pcap Manager")},
    {UTILITY_ID_VFL, "libvfl.so", QT_TRANSLATE_NOOP("CPluginManager", "VFL")},
};

/** Plug-ins that may go on working without a page, in the order they are ended. */
constexpr UtilityID BACKGROUND_PLUGINS[] = {UTILITY_ID_OSTREL, UTILITY_ID_IP_TOOLS};

const PluginRow* findRow(UtilityID id)
{
    for (const PluginRow& row : PLUGINS) {
        if (row.id == id)
            return &row;
    }
    return nullptr;
}

/** Calls into a plug-in, whatever it throws. @return false when it threw (logged) */
bool callPlugin(const char* library, const std::function<void()>& call)
{
    const char* before = libraryInCall.exchange(library); // calls nest
    const auto ended = qScopeGuard([before] { libraryInCall = before; });
    try {
        call();
        return true;
    } catch (const std::exception& exception) {
        qCritical("Exception out of plug-in %s: %s", library, exception.what());
    } catch (...) {
        qCritical("Exception out of plug-in %s", library);
    }
    return false;
}

} // namespace

CPluginManager::CPluginManager(QObject* parent)
    : QObject(parent)
    , m_pPluginLoader(new QPluginLoader(this))
    , m_notAccomplishList({UTILITY_ID_NETWORK, UTILITY_ID_SCOPEX, UTILITY_ID_DATACARD_GPS})
    , m_innerModule({UTILITY_ID_BEGIN, UTILITY_ID_ADVTOOL, UTILITY_ID_SETTINGS, UTILITY_ID_HELP,
          UTILITY_ID_GLOBAL, UTILITY_ID_REMOTE_ACCESS, UTILITY_ID_SETTING_MORE, UTILITY_ID_USB_BROWSER,
          UTILITY_ID_DISK_MANAGE, UTILITY_ID_END})
{
    // All symbols at once: a library built against something else fails to load, and not in the middle of a
    // call.
    m_pPluginLoader->setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
}

QString CPluginManager::getPluginDirPath()
{
    return QStringLiteral("/usr/local/arvo/plugins");
}

QString CPluginManager::getPluginFileName(UtilityID id)
{
    const PluginRow* row = findRow(id);
    if (!row) {
        setError(tr("Invalid plugin ID."));
        return {};
    }
    return QStringLiteral("%1/%2").arg(getPluginDirPath(), QString::fromLatin1(row->library));
}

QObject* CPluginManager::instantiate(UtilityID id)
{
    m_pPluginLoader->setFileName(getPluginFileName(id));
    const PluginRow* row = findRow(id);
    QObject* root = nullptr;
    // Runs code of the library: its static objects and its root object are made.
    if (!callPlugin(row ? row->library : "", [&] { root = m_pPluginLoader->instance(); }))
        setError(tr("The utility could not be started.")); // the loader knows of nothing
    return root;
}

QObject* CPluginManager::getPluginInstance(UtilityID id)
{
    return instantiate(id);
}

UtilInterface* CPluginManager::loadPlugin(UtilityID id)
{
    const PluginRow* row = findRow(id);
    if (!row) {
        getPluginFileName(id); // sets the error
        return nullptr;
    }
    QObject* root = instantiate(id);
    m_pCurPlugin = qobject_cast<UtilInterface*>(root);
    m_pCurLibrary = row->library;
    if (root && !m_pCurPlugin) // the loader found nothing wrong and has no better text for the user
        qWarning().noquote() << m_pPluginLoader->fileName() << "does not implement" << UtilInterface_iid;
    return m_pCurPlugin;
}

bool CPluginManager::isPluginLoaded() const
{
    return m_pCurPlugin && m_pPluginLoader->isLoaded();
}

bool CPluginManager::callCurrent(const std::function<void()>& call) const
{
    return isPluginLoaded() && callPlugin(m_pCurLibrary, call);
}

bool CPluginManager::runPluginInBackground(QWidget* host)
{
    bool isDone = false;
    callCurrent([&] { isDone = m_pCurPlugin->bkgRun(host); });
    return isDone;
}

bool CPluginManager::startPlugin(QWidget* host, UtilityID caller)
{
    bool isDone = false;
    callCurrent([&] {
        m_pCurPlugin->setCallerID(caller);
        isDone = m_pCurPlugin->start(host);
    });
    return isDone;
}

QObject* CPluginManager::getPluginObject()
{
    QObject* object = nullptr;
    callCurrent([&] { object = m_pCurPlugin->getObject(); });
    return object;
}

bool CPluginManager::unloadPlugin()
{
    bool isDone = false;
    callCurrent([&] { isDone = m_pCurPlugin->stop(); });
    return isDone;
}

bool CPluginManager::terminatePlugin()
{
    bool allLoaded = true;
    for (const UtilityID id : BACKGROUND_PLUGINS) {
        allLoaded = loadPlugin(id) && allLoaded;
        callCurrent([this] { m_pCurPlugin->terminate(); });
    }
    return allLoaded;
}

void CPluginManager::updatePluginWindow()
{
    callCurrent([this] { m_pCurPlugin->update(); });
}

void CPluginManager::setPluginWindowVisible(bool visible)
{
    callCurrent([&] {
        if (visible)
            m_pCurPlugin->show();
        else
            m_pCurPlugin->hide();
    });
}

QString CPluginManager::libraryOf(const QMetaObject* type)
{
    Dl_info place = {};
    if (!::dladdr(type, &place) || !place.dli_fname)
        return {};
    const QString path = QFile::decodeName(place.dli_fname);
    const QString directory = getPluginDirPath() + QLatin1Char('/');
    return path.startsWith(directory) ? path.mid(directory.size()) : QString();
}

const char* CPluginManager::callInProgress()
{
    return libraryInCall;
}

bool CPluginManager::hasSubPlugin(UtilityID id) const
{
    return id == UTILITY_ID_ADVTOOL;
}

bool CPluginManager::isPluginReleased(UtilityID id) const
{
    return !m_notAccomplishList.contains(id);
}

bool CPluginManager::isPlugin(UtilityID id) const
{
    return !m_innerModule.contains(id);
}

QString CPluginManager::getPluginName(UtilityID id) const
{
    const PluginRow* row = findRow(id);
    return row && *row->name ? tr(row->name) : QString();
}

QString CPluginManager::errorString() const
{
    return bIsError ? m_errorString : m_pPluginLoader->errorString();
}

void CPluginManager::setError(const QString& text)
{
    bIsError = true;
    m_errorString = text;
}

void CPluginManager::clearError()
{
    bIsError = false;
    m_errorString.clear();
}
