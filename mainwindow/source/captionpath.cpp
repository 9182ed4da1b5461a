#include "captionpath.h"

#include <QCoreApplication>

namespace {

struct CaptionRow
{
    UtilityID id;
    const char* steps[3]; // after "Home"; unused places are null
};

constexpr const char HOME[] = QT_TRANSLATE_NOOP("CMainWindow", "Home");
constexpr const char TOOLS[] = QT_TRANSLATE_NOOP("CMainWindow", "Tools");
constexpr const char UTILITIES[] = QT_TRANSLATE_NOOP("CMainWindow", "Utilities");
constexpr const char FILES[] = QT_TRANSLATE_NOOP("CMainWindow", "Files");
constexpr const char ADVANCED[] = QT_TRANSLATE_NOOP("CMainWindow", "Advanced");
constexpr const char SETTINGS[] = QT_TRANSLATE_NOOP("CMainWindow", "Settings");

constexpr CaptionRow CAPTIONS[] = {
    {UTILITY_ID_IP_TOOLS, {TOOLS, QT_TRANSLATE_NOOP("CMainWindow", "IP Tools")}},
    {UTILITY_ID_NET_WIZARD, {TOOLS, QT_TRANSLATE_NOOP("CMainWindow", "Net Wiz")}},
    {UTILITY_ID_WIFI_WIZARD, {TOOLS, QT_TRANSLATE_NOOP("CMainWindow", "WiFi Wiz")}},
    {UTILITY_ID_ADVTOOL, {TOOLS, ADVANCED}},
    {UTILITY_ID_BROWSER, {TOOLS, QT_TRANSLATE_NOOP("CMainWindow", "Browser")}},
    {UTILITY_ID_SETTINGS, {UTILITIES, SETTINGS}},
    {UTILITY_ID_HELP, {UTILITIES, QT_TRANSLATE_NOOP("CMainWindow", "Help")}},
    {UTILITY_ID_BACKLIGHT, {UTILITIES, QT_TRANSLATE_NOOP("CMainWindow", "Backlight")}},
    {UTILITY_ID_RESULT_MANAGER, {FILES, QT_TRANSLATE_NOOP("CMainWindow", "Saved")}},
    {UTILITY_ID_USB_BROWSER, {FILES, QT_TRANSLATE_NOOP("CMainWindow", "USB")}},
    {UTILITY_ID_DISK_MANAGE, {FILES, QT_TRANSLATE_NOOP("CMainWindow", "Manage")}},
    {UTILITY_ID_SCOPEX, {TOOLS, ADVANCED, QT_TRANSLATE_NOOP("CMainWindow", "Scopex")}},
    {UTILITY_ID_FIBERSCOPE, {TOOLS, ADVANCED, QT_TRANSLATE_NOOP("CMainWindow", "Fiber Scope")}},
    {UTILITY_ID_WIFI_SA, {TOOLS, ADVANCED, QT_TRANSLATE_NOOP("CMainWindow", "WiFi SA")}},
    {UTILITY_ID_SIGNATURE_PAD, {TOOLS, ADVANCED, QT_TRANSLATE_NOOP("CMainWindow", "Signature Pad")}},
    {UTILITY_ID_OPM, {TOOLS, ADVANCED, QT_TRANSLATE_NOOP("CMainWindow", "Optical Power Meter")}},
    {UTILITY_ID_ABOUT, {UTILITIES, SETTINGS, QT_TRANSLATE_NOOP("CMainWindow", "About")}},
    {UTILITY_ID_SCREEN, {UTILITIES, SETTINGS, QT_TRANSLATE_NOOP("CMainWindow", "Screen")}},
    {UTILITY_ID_BLUETOOTH, {UTILITIES, SETTINGS, QT_TRANSLATE_NOOP("CMainWindow", "Bluetooth")}},
    {UTILITY_ID_POWER, {UTILITIES, SETTINGS, QT_TRANSLATE_NOOP("CMainWindow", "Power")}},
    {UTILITY_ID_GLOBAL, {UTILITIES, SETTINGS, QT_TRANSLATE_NOOP("CMainWindow", "Global")}},
    {UTILITY_ID_DATE_TIME, {UTILITIES, SETTINGS, QT_TRANSLATE_NOOP("CMainWindow", "Date & Time")}},
    {UTILITY_ID_REMOTE_ACCESS, {UTILITIES, SETTINGS, QT_TRANSLATE_NOOP("CMainWindow", "Remote Access")}},
    {UTILITY_ID_OSTREL, {UTILITIES, QT_TRANSLATE_NOOP("CMainWindow", "Ostrel")}},
    {UTILITY_ID_HARBOR, {UTILITIES, QT_TRANSLATE_NOOP("CMainWindow", "Harbor")}},
    {UTILITY_ID_WIFI_INSSDER, {TOOLS, QT_TRANSLATE_NOOP("CMainWindow", "WiFi InSSIDer")}},
    {UTILITY_ID_PCAP_MANAGER, {FILES, QT_TRANSLATE_NOOP("CMainWindow", "Capture")}},
    {UTILITY_ID_VFL, {TOOLS, ADVANCED, QT_TRANSLATE_NOOP("CMainWindow", "VFL")}},
};

QString text(const char* source)
{
    return QCoreApplication::translate("CMainWindow", source);
}

} // namespace

QStringList captionPath(int utilityID)
{
    QStringList path{text(HOME)};
    for (const CaptionRow& row : CAPTIONS) {
        if (row.id != utilityID)
            continue;
        for (const char* step : row.steps) {
            if (step)
                path.append(text(step));
        }
    }
    return path;
}
