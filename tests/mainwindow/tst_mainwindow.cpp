#include "advancemenu.h"
#include "homepage.h"
#include "settingmoremenu.h"
#include "sigtransfer.h"
#include "systemsettingsmenu.h"
#include "widgets/entrywidget/entrywidget.h"

#include <QTimer>

#include <atomic>
#include <thread>

#include "boxanswer.h"
#include "drivenwindow.h"
#include "xscreen.h"

namespace {

constexpr qint64 LAUNCH_BLOCK = 1900; // ms; the launch stands still for two seconds

} // namespace

/** The main window on a real X screen, driven as a person drives it. */
class TestMainWindow : public QObject, private CDrivenWindow
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init() { reset(); }

    void firstFrameIsOnTheScreenBeforeTheLaunchBlocks();

    void menuItemsAndCaption();
    void menuTileOffersClose();
    void closeStepsBackThroughThePath();
    void unavailableUtilityKeepsThePage();

    void usbWithoutDriveGoesHome();
    void relabelAfterLanguageChange();

    void captionAfterLanguageChange();
    void closeRequestIsIgnored();
    void placement();

private:
    qint64 m_shownAt = -1; // ms on m_clock
    qint64 m_blockedAt = -1; // last turn of the event loop before it stood still
    QElapsedTimer m_clock;
};

void TestMainWindow::initTestCase()
{
    m_clock.start();
    m_window = std::make_unique<CMainWindow>(nullptr);
    m_window->setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    m_window->move(0, 0);

    // Another connection watches the screen while this one builds it and then blocks.
    std::atomic<bool> stop{false};
    std::atomic<qint64> shownAt{-1};
    std::thread watcher([&] {
        const CXScreen screen;
        const QColor bar(181, 199, 239);
        while (!stop && shownAt < 0) {
            if (screen.pixel({560, 2}) == bar && screen.pixel({159, 70}) == QColor(Qt::white)
                && screen.pixel({80, 440}) != QColor(Qt::black))
                shownAt = m_clock.elapsed();
        }
    });
    m_window->show();
    // A timer that fires at every turn of the event loop: its longest pause is the blocking part of the
    // launch.
    QTimer turns;
    qint64 lastTurn = m_clock.elapsed();
    connect(&turns, &QTimer::timeout, this, [&] {
        const qint64 now = m_clock.elapsed();
        if (now - lastTurn >= LAUNCH_BLOCK)
            m_blockedAt = lastTurn;
        lastTurn = now;
    });
    turns.start(0);
    QTRY_VERIFY_WITH_TIMEOUT(m_blockedAt >= 0, 10000);
    stop = true;
    watcher.join();
    m_shownAt = shownAt;
}

void TestMainWindow::cleanupTestCase()
{
    m_window.reset();
    QVERIFY(!g_pSigTransfer);
}

void TestMainWindow::firstFrameIsOnTheScreenBeforeTheLaunchBlocks()
{
    QVERIFY(m_shownAt >= 0);
    QVERIFY2(m_shownAt < m_blockedAt + LAUNCH_BLOCK / 2,
        qPrintable(QStringLiteral("shown at %1 ms, blocked from %2 ms").arg(m_shownAt).arg(m_blockedAt)));
}

void TestMainWindow::menuItemsAndCaption()
{
    QCOMPARE(caption(), QStringLiteral("Home"));
    QVERIFY(!homeShown() && !closeShown());
    choose(UTILITY_ID_ADVTOOL);
    QVERIFY(page<CAdvanceMenu>()->isVisible());
    QVERIFY(page<CHomePage>()->isHidden());
    QCOMPARE(caption(), QStringLiteral("Home>Tools>Advanced"));
    QVERIFY(homeShown() && !closeShown());
    QCOMPARE(m_window->currentUtil(), UTILITY_ID_ADVTOOL);
    choose(UTILITY_ID_SETTINGS);
    QVERIFY(page<CAdvanceMenu>()->isHidden());
    QVERIFY(page<CSystemSettingsMenu>()->isVisible());
    icon("homeButton")->click();
    QVERIFY(page<CHomePage>()->isVisible());
    QVERIFY(page<CSystemSettingsMenu>()->isHidden());
    QVERIFY(!homeShown());
    QCOMPARE(toolBox()->openPage(), -1);
}

void TestMainWindow::menuTileOffersClose()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libOpm.so"));
    choose(UTILITY_ID_ADVTOOL);
    page<CAdvanceMenu>()->findChild<CEntryWidget*>()->itemAt(2, 0)->click();
    QCOMPARE(caption(), QStringLiteral("Home>Tools>Advanced>Optical Power Meter"));
    QVERIFY(homeShown() && closeShown());
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("start")));
    QFile::remove(PLUGIN_DIR + QStringLiteral("libOpm.so"));
}

void TestMainWindow::closeStepsBackThroughThePath()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libsettingPower.so"));
    choose(UTILITY_ID_SETTINGS);
    page<CSystemSettingsMenu>()->findChild<CEntryWidget*>()->itemAt(2, 0)->click();
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("start")));
    icon("closeButton")->click();
    QVERIFY(pluginCalls().contains(QStringLiteral("stop")));
    QVERIFY(page<CSystemSettingsMenu>()->isVisible());
    // The way back to the settings menu ends without buttons and with the caption of the home page.
    QVERIFY(!homeShown() && !closeShown());
    QCOMPARE(caption(), QStringLiteral("Home"));
    m_window->triggerClose();
    QVERIFY(page<CHomePage>()->isVisible());
    QCOMPARE(m_window->currentUtil(), UTILITY_ID_BEGIN);
    m_window->triggerClose(); // nothing left to close
    QVERIFY(page<CHomePage>()->isVisible());
    QFile::remove(PLUGIN_DIR + QStringLiteral("libsettingPower.so"));
}

void TestMainWindow::unavailableUtilityKeepsThePage()
{
    choose(UTILITY_ID_ADVTOOL);
    emit g_pSigTransfer->currentUtilChanged(
        UTILITY_ID_END); // counted among the built-in ones, and has no page
    QVERIFY(page<CAdvanceMenu>()->isVisible());
    QCOMPARE(caption(), QStringLiteral("Home>Tools>Advanced"));
    QVERIFY(!closeShown());
    // In the tool box, too: the chosen item is not left marked.
    StorageStatus attached;
    attached.bIsPlugged = true;
    QVERIFY(QMetaObject::invokeMethod(m_window.get(), "updateStorageStatus", Q_ARG(StorageStatus, attached)));
    CBoxAnswer told("ok");
    choose(UTILITY_ID_USB_BROWSER);
    QCOMPARE(told.text(), QStringLiteral("USB is not available on this unit."));
    QVERIFY(QMetaObject::invokeMethod(
        m_window.get(), "updateStorageStatus", Q_ARG(StorageStatus, StorageStatus())));
    QVERIFY(page<CAdvanceMenu>()->isVisible());
    QCOMPARE(markedItem(), int(UTILITY_ID_ADVTOOL));
}

void TestMainWindow::usbWithoutDriveGoesHome()
{
    choose(UTILITY_ID_ADVTOOL);
    CBoxAnswer box("ok");
    choose(UTILITY_ID_USB_BROWSER);
    QCOMPARE(box.title(), QStringLiteral("Error"));
    QCOMPARE(box.text(), QStringLiteral("Cannot find USB drive attached to the unit!"));
    QVERIFY(page<CHomePage>()->isVisible());
    QVERIFY(!homeShown());
}

void TestMainWindow::relabelAfterLanguageChange()
{
    m_window->translate();
    const CToolBox* box = toolBox();
    QCOMPARE(box->itemText(2, 2), QStringLiteral("Manage"));
    QCOMPARE(box->itemText(1, 2), QStringLiteral("Harbor"));
    QCOMPARE(box->itemCount(0), 4);
}

void TestMainWindow::captionAfterLanguageChange()
{
    choose(UTILITY_ID_ADVTOOL);
    m_window->translate();
    QCOMPARE(caption(), QStringLiteral("Home>Tools>Advanced"));
    // The way back to the settings menu ends with the caption of the home page, and stays so.
    choose(UTILITY_ID_SETTINGS);
    choose(UTILITY_ID_BACKLIGHT);
    m_window->triggerClose();
    QVERIFY(page<CSystemSettingsMenu>()->isVisible());
    m_window->translate();
    QCOMPARE(caption(), QStringLiteral("Home"));
}

void TestMainWindow::closeRequestIsIgnored()
{
    QVERIFY(!m_window->close());
    QVERIFY(m_window->isVisible());
}

void TestMainWindow::placement()
{
    QWidget widget;
    widget.resize(101, 51);
    m_window->moveToScreenCenter(&widget);
    QCOMPARE(widget.pos(), QPoint(400 - 50 + 4, 260 - 25));
    m_window->moveToWorkingAreaCenter(&widget);
    QCOMPARE(widget.pos(), QPoint(480 - 50 + 4, 260 - 25));
    m_window->moveToScreenCenter(nullptr);
    QCOMPARE(CMainWindow::screenCenter(), QPoint(400, 240));
    QCOMPARE(m_window->size(), QSize(800, 460));
    CWidget framed;
    m_window->moveToWorkingArea(&framed);
    QCOMPARE(framed.geometry(), QRect(160, 60, 640, 400));
    QCOMPARE(framed.innerRect(), QRect(0, 1, 639, 398));
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
