#include "wifistatus.h"

#include <QTest>

class tst_WifiStatus : public QObject
{
    Q_OBJECT

private slots:
    void content_data();
    void content();
    void lines_data();
    void lines();
};

void tst_WifiStatus::content_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* line, const char* key, const char* expected) {
        QTest::newRow(name) << QString::fromLatin1(line) << QString::fromLatin1(key)
                            << QString::fromLatin1(expected);
    };
    row("ends at slash", "Link Quality=70/100  Signal level=-60 dBm", "Link Quality=", "70");
    row("skips spaces, ends at space", "Access Point:   02:1A:11:F3:40:5E  x",
        "Access Point:", "02:1A:11:F3:40:5E");
    row("ends with the line", "Mode:Managed", "Mode:", "Managed");
    row("no key", "Mode:Managed", "Access Point:", "");
    row("nothing after the key", "Mode:", "Mode:", "");
    row("slash first", "Mode:/Managed", "Mode:", "");
}

void tst_WifiStatus::content()
{
    QFETCH(QString, line);
    QFETCH(QString, key);
    QTEST(getContent(line, key), "expected");
}

void tst_WifiStatus::lines_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<bool>("goesOn");
    QTest::addColumn<bool>("plugged");
    QTest::addColumn<bool>("connected");
    QTest::addColumn<int>("strength");
    QTest::addColumn<QString>("bssid");
    QTest::addColumn<QString>("mode");
    const auto row = [](const char* name, const char* text, bool goesOn, bool plugged, bool connected,
                         int strength, const char* bssid, const char* mode) {
        QTest::newRow(name) << QString::fromLatin1(text).split(QLatin1Char('|')) << goesOn << plugged
                            << connected << strength << QString::fromLatin1(bssid)
                            << QString::fromLatin1(mode);
    };
    row("no adapter", "wlan0     No such device", false, false, false, 0, "", "");
    row("not associated", "Mode:Managed  Access Point: Not-Associated", true, true, false, 0, "", "Managed");
    row("name of the driver", "wlan0 ralink sta  ESSID:off", true, true, false, 0, "", "");
    row("linked", "Mode:Managed  Frequency:2.4 GHz  Access Point: 02:1A:11:F3:40:5E|Link Quality=70/100  x",
        true, true, true, 70, "02:1A:11:F3:40:5E", "Managed");
    row("address without colon", "Access Point 02:1A", true, true, false, 0, "", "");
    row("security mode", "Mode:Master|Encryption key:x   Security mode:open", true, false, false, 0, "",
        "Master");
    row("quality is no number", "Link Quality=good/100", true, false, false, 0, "", "");
    row("quality without slash", "Link Quality=55", true, false, false, 55, "", "");
    row("line ends inside", "Mode:Man\raged\r\n", true, false, false, 0, "", "Managed");
    row("nothing", "", true, false, false, 0, "", "");
}

void tst_WifiStatus::lines()
{
    QFETCH(QStringList, lines);
    WIFIStatus status;
    bool goesOn = true;
    for (const QString& line : qAsConst(lines))
        goesOn = applyIwconfigLine(status, line);
    QTEST(goesOn, "goesOn");
    QTEST(status.bIsPlugged, "plugged");
    QTEST(status.bIsConnected, "connected");
    QTEST(status.signalStrength, "strength");
    QTEST(status.bssid, "bssid");
    QTEST(status.mode, "mode");
}

QTEST_GUILESS_MAIN(tst_WifiStatus)
#include "tst_wifistatus.moc"
