#include "captionpath.h"
#include "menustack.h"
#include "pluginman.h"
#include "testfiles.h"

namespace {

/**
 * Every utility by number: its caption, how it is reached (plug-in, built in, or a plug-in that is not
 * released yet), its library and the name that its start shows.
 */
const char UTILITIES[] = R"(
Home|built in
Home|plug-in
Home>Tools>IP Tools|plug-in|libIPtool.so|IP Tools
Home>Tools>Net Wiz|plug-in|libnetwiz.so|Network Wizard
Home>Tools>WiFi Wiz|plug-in|libwifiwiz.so|WIFI Wizard
Home>Tools>Advanced|built in
Home>Tools>Browser|plug-in|libwebbrowser.so|Web Browser
Home>Utilities>Settings|built in
Home>Utilities>Help|built in
Home>Utilities>Backlight|plug-in|libsettingBacklight.so|Backlight
Home>Files>Saved|plug-in|libresultman.so|Result Manager
Home>Files>USB|built in
Home>Files>Manage|built in
Home|unreleased
Home>Tools>Advanced>Scopex|unreleased
Home>Tools>Advanced>Fiber Scope|plug-in|libFiberScope.so|Fiber Scope
Home>Tools>Advanced>WiFi SA|plug-in|libwsa.so|WIFI SA
Home|unreleased|libhighPrecisionClockSource.so
Home|plug-in|libdataCard.so
Home>Tools>Advanced>Signature Pad|plug-in|libsignaturepad.so|Signature Pad
Home>Tools>Advanced>Optical Power Meter|plug-in|libOpm.so|Optical Power Meter
Home>Utilities>Settings>About|plug-in|libsettingAbout.so|About
Home>Utilities>Settings>Screen|plug-in|libsettingscreen.so|Screen Calibration
Home>Utilities>Settings>Bluetooth|plug-in|libbluetooth.so|Bluetooth Settings
Home>Utilities>Settings>Power|plug-in|libsettingPower.so|Power Settings
Home>Utilities>Settings>Global|built in
Home>Utilities>Settings>Date & Time|plug-in|libdateTime.so|Date & Time Settings
Home>Utilities>Settings>Remote Access|built in
Home|built in
Home>Utilities>Ostrel|plug-in|libostrel.so|ostrel
Home>Utilities>Harbor|plug-in|libharbor.so|Harbor
Home|plug-in|libodmtool.so
Home>Tools>WiFi InSSIDer|plug-in|libwifiinssider.so|WIFI inSSIDer
Home>Files>Capture|plug-in|libpcapman.so|Pcap Manager
Home>Tools>Advanced>VFL|plug-in|libvfl.so|VFL
Home|built in
)";

} // namespace

/** The user's menu path: the stack behind Home and Close, and the caption of each utility. */
class TestMenuPath : public QObject
{
    Q_OBJECT

private slots:
    void stackKeepsEachUtilityOnce();
    void utilities();
};

void TestMenuPath::stackKeepsEachUtilityOnce()
{
    CMenuStack stack;
    stack.push(UTILITY_ID_ADVTOOL, 0);
    stack.push(UTILITY_ID_OPM, 1);
    stack.push(UTILITY_ID_ADVTOOL, 1); // comes to the top with the level it had first
    QCOMPARE(stack.count(), 2);
    QCOMPARE(stack.top().entryID, int(UTILITY_ID_ADVTOOL));
    QCOMPARE(stack.top().menuLevel, 0);
    stack.pop();
    QCOMPARE(stack.top().entryID, int(UTILITY_ID_OPM));
    QCOMPARE(stack.top().menuLevel, 1);
}

void TestMenuPath::utilities()
{
    CPluginManager plugins;
    QStringList found{QString()};
    for (int id = 65535; id <= 65570; ++id) {
        const auto util = UtilityID(id);
        const bool isPlugin = plugins.isPlugin(util);
        QStringList line{captionPath(id).join(">"_s),
            !isPlugin                            ? "built in"_s
                : plugins.isPluginReleased(util) ? "plug-in"_s
                                                 : "unreleased"_s,
            QFileInfo(plugins.getPluginFileName(util)).fileName(), plugins.getPluginName(util)};
        while (line.last().isEmpty())
            line.removeLast();
        found << line.join("|"_s);
        QCOMPARE(plugins.hasSubPlugin(util), id == UTILITY_ID_ADVTOOL);
    }
    QCOMPARE(found, QString::fromLatin1(UTILITIES).chopped(1).split("\n"_s));
    QCOMPARE(captionPath(0), QStringList{"Home"_s});
}

QTEST_GUILESS_MAIN(TestMenuPath)
#include "tst_menupath.moc"
