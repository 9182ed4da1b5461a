#include "drivenwindow.h"
#include "fakedesktop.h"
#include "sigtransfer.h"
#include "widgets/label/label.h"

#include <functional>

#include "boxanswer.h"
#include "withdialog.h"

namespace {

constexpr int FAILURE_PERIOD = 5000; // ms

} // namespace

/** What comes up by itself: information pages, reported failures, and the end of the backlight's time. */
class TestStatus : public QObject, private CDrivenWindow
{
    Q_OBJECT

private slots:
    void initTestCase() { open(); }
    void init() { reset(); }
    void cleanup() { QCOMPARE(region(), QRect()); }
    void pageClosedBelowABoxOpensAgain();

    void failureDismissedComesBack();
    void storagePageOverTestApplication();
    void testApplicationGoesWhileItsPageIsOpen();
    void fakeDesktopGoesWithItsPage();
    void touchStartsTheBacklightTime(); // before a time has been taken over
    void changedBacklightTimeIsTakenOver();
    void backlightTimeBeyondATimer_data();
    void backlightTimeBeyondATimer();

private:
    int running(int interval) const
    {
        int found = 0;
        for (const auto* timer : m_window->findChildren<QTimer*>())
            found += timer->isActive() && timer->interval() == interval;
        return found;
    }
};

void TestStatus::failureDismissedComesBack()
{
    writeFile(FAILURE_MARK);
    int polling = 1;
    CWithDialog dismissed([this, &polling](CDialog* dialog) {
        polling = running(FAILURE_PERIOD);
        dialog->reject();
    });
    QVERIFY(QMetaObject::invokeMethod(m_window.get(), "selftestPopup"));
    QVERIFY(dismissed.isDone());
    QCOMPARE(polling, 0); // no second box over the first
    QCOMPARE(running(FAILURE_PERIOD), 1);
    QVERIFY(QFile::exists(FAILURE_MARK));
    CBoxAnswer answered("ok");
    QVERIFY(QMetaObject::invokeMethod(m_window.get(), "selftestPopup"));
    QCOMPARE(answered.title(), QStringLiteral("System Error"));
    QVERIFY(answered.text().startsWith(QStringLiteral("Error Code: ")));
    QVERIFY(answered.text().endsWith(QStringLiteral("Please contact customer service!")));
    QVERIFY(!QFile::exists(FAILURE_MARK));
}

void TestStatus::storagePageOverTestApplication()
{
    m_window->setWindowVisible(false);
    emit g_pSigTransfer->queryPowerInfo(); // noted only, and never shown
    m_window->inquireSystemState();
    QVERIFY(!QApplication::activeModalWidget());
    emit g_pSigTransfer->queryStorageInfo();
    QVERIFY(!QApplication::activeModalWidget());
    CWithDialog storage([](CDialog* dialog) {
        QCOMPARE(dialog->metaObject()->className(), "CStorageMonitor");
        QCOMPARE(region(), QRect());
        dialog->findChild<CPushButton*>(QStringLiteral("ok"))->click();
    });
    m_window->inquireSystemState();
    QVERIFY(storage.isDone());
    QVERIFY(!m_window->isNeedInteractive()); // the test application has the screen again
    QCOMPARE(region(), TEST_APP_AREA);
    m_window->setWindowVisible(true);
    QCOMPARE(region(), QRect());
}

void TestStatus::testApplicationGoesWhileItsPageIsOpen()
{
    m_window->setWindowVisible(false);
    emit g_pSigTransfer->queryStorageInfo();
    CWithDialog page([this](CDialog* dialog) {
        m_window->setWindowVisible(true);
        dialog->findChild<CPushButton*>(QStringLiteral("ok"))->click();
    });
    m_window->inquireSystemState();
    QVERIFY(page.isDone());
    QVERIFY(m_window->isNeedInteractive());
    QCOMPARE(region(), QRect());
    QVERIFY(m_window->findChild<CFakeDesktop*>()->isHidden());
}

void TestStatus::fakeDesktopGoesWithItsPage()
{
    const auto* desktop = m_window->findChild<CFakeDesktop*>();
    const auto askFromTestApplication = [this] {
        m_window->setWindowVisible(false);
        emit g_pSigTransfer->queryStorageInfo();
        m_window->setWindowVisible(true);
    };
    const auto close
        = [](CDialog* dialog) { dialog->findChild<CPushButton*>(QStringLiteral("ok"))->click(); };
    CWithDialog openAlready([&](CDialog* dialog) {
        askFromTestApplication();
        m_window->inquireSystemState();
        QVERIFY(desktop->isHidden());
        close(dialog);
    });
    emit g_pSigTransfer->queryStorageInfo();
    QVERIFY(openAlready.isDone());

    askFromTestApplication();
    CWithDialog anotherOnTop([&](CDialog* dialog) {
        QVERIFY(desktop->isVisible());
        CWithDialog power(close);
        emit g_pSigTransfer->queryPowerInfo();
        QVERIFY(power.isDone());
        close(dialog);
    });
    m_window->inquireSystemState();
    QVERIFY(anotherOnTop.isDone());
    QVERIFY(desktop->isHidden());
    QVERIFY(m_window->isNeedInteractive());
}

void TestStatus::touchStartsTheBacklightTime()
{
    setSetting(CSystemSettings::ACBacklightTime, 900);
    setSetting(CSystemSettings::ACBacklightChanged, false); // the time has not been taken over yet
    setSetting(CSystemSettings::ACBacklightEnabled, false);
    QTest::mouseClick(headers().constFirst(), Qt::LeftButton);
    QCOMPARE(running(900000), 0);
    setSetting(CSystemSettings::ACBacklightEnabled, true);
    QTest::mouseClick(headers().constFirst(), Qt::LeftButton); // on a control, not the window itself
    QCOMPARE(running(900000), 1);
    setSetting(CSystemSettings::ACBacklightEnabled, false);
    m_window->checkSystemSettings();
    QCOMPARE(running(900000), 0);
}

void TestStatus::changedBacklightTimeIsTakenOver()
{
    setSetting(CSystemSettings::ACBacklightEnabled, true);
    setSetting(CSystemSettings::ACBacklightTime, 77);
    setSetting(CSystemSettings::ACBacklightChanged, true);
    m_window->checkSystemSettings();
    QCOMPARE(running(77000), 1);
    QVERIFY(!CSystemSettings::globalSettings()->getAttribute(CSystemSettings::ACBacklightChanged).toBool());
    setSetting(CSystemSettings::ACBacklightTime, 88); // without its flag
    m_window->checkSystemSettings();
    QCOMPARE(running(88000), 0);
    setSetting(CSystemSettings::ACBacklightEnabled, false);
    m_window->checkSystemSettings();
    QCOMPARE(running(77000), 0);
}

void TestStatus::backlightTimeBeyondATimer_data()
{
    QTest::addColumn<QVariant>("seconds");
    QTest::addColumn<int>("interval");
    QTest::newRow("longest") << QVariant(2147483) << 2147483000;
    QTest::newRow("one more") << QVariant(2147484) << 2147483000;
    QTest::newRow("more than an int") << QVariant(QStringLiteral("9999999999")) << 2147483000;
    QTest::newRow("negative") << QVariant(-5) << 0;
}

void TestStatus::backlightTimeBeyondATimer()
{
    QFETCH(QVariant, seconds);
    QFETCH(int, interval);
    const int before = running(interval);
    setSetting(CSystemSettings::ACBacklightEnabled, true);
    setSetting(CSystemSettings::ACBacklightTime, seconds);
    setSetting(CSystemSettings::ACBacklightChanged, true);
    m_window->checkSystemSettings();
    QCOMPARE(running(interval), before + 1);
    setSetting(CSystemSettings::ACBacklightEnabled, false);
    m_window->checkSystemSettings();
}

void TestStatus::pageClosedBelowABoxOpensAgain()
{
    CWithDialog page([this](CDialog* power) {
        CWithDialog above([this, power](CDialog* box) {
            power->reject(); // its event loop ends after the box's
            m_window->showPowerInfo();
            QVERIFY(power->isVisible());
            power->reject();
            box->reject();
        });
        CMessageBox box(QString(), QStringLiteral("above"), CMessageBox::Ok, m_window.get());
        box.exec();
        QVERIFY(above.isDone());
    });
    m_window->showPowerInfo();
    QVERIFY(page.isDone());
}

QTEST_MAIN(TestStatus)
#include "tst_status.moc"
