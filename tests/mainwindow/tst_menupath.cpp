#include "captionpath.h"
#include "menustack.h"

#include <QTest>

/** The user's menu path: the stack behind Home and Close, and the caption of each utility. */
class TestMenuPath : public QObject
{
    Q_OBJECT

private slots:
    void stackKeepsEachUtilityOnce();
    void caption_data();
    void caption();
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

void TestMenuPath::caption_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("path");
    const struct
    {
        int id;
        const char* path;
    } rows[] = {
        {UTILITY_ID_BEGIN, "Home"},
        {UTILITY_ID_IP_TOOLS, "Home>Tools>IP Tools"},
        {UTILITY_ID_OPM, "Home>Tools>Advanced>Optical Power Meter"},
        {UTILITY_ID_DATE_TIME, "Home>Utilities>Settings>Date & Time"},
        {UTILITY_ID_WIFI_INSSDER, "Home>Tools>WiFi InSSIDer"},
        {UTILITY_ID_PCAP_MANAGER, "Home>Files>Capture"},
        {UTILITY_ID_NETWORK, "Home"},
        {UTILITY_ID_END, "Home"},
        {0, "Home"},
    };
    for (const auto& row : rows)
        QTest::addRow("%d", row.id) << row.id << QString::fromLatin1(row.path);
}

void TestMenuPath::caption()
{
    QFETCH(int, id);
    QFETCH(QString, path);
    QCOMPARE(captionPath(id).join(QLatin1Char('>')), path);
}

QTEST_GUILESS_MAIN(TestMenuPath)
#include "tst_menupath.moc"
