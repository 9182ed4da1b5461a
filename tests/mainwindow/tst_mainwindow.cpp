#include "advancemenu.h"
#include "appfeatureheader.h"
#include "appstatusindicator.h"
#include "homepage.h"
#include "mainwindow.h"
#include "settingmoremenu.h"
#include "sigtransfer.h"
#include "startutilwindow.h"
#include "switchappwindow.h"
#include "systemsettings.h"
#include "systemsettingsmenu.h"
#include "topbar.h"
#include "widgets/entrywidget/entrywidget.h"
#include "widgets/keypad/keypaddialog.h"
#include "widgets/messagebox/messagebox.h"
#include "widgets/statusicon/statusicon.h"
#include "widgets/toolbox/toolbox.h"
#include "widgets/toolbox/toolboxbutton.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <atomic>
#include <thread>

#include "boxanswer.h"
#include "withdialog.h"
#include "xscreen.h"

namespace {

const QString PLUGIN_DIR = QStringLiteral("/usr/local/arvo/plugins/");
constexpr qint64 LAUNCH_BLOCK = 1900; // ms; the launch stands still for two seconds
const QString PLUGIN_LOG = QStringLiteral("/tmp/fixture-plugin.log");

QStringList pluginCalls()
{
    QFile file(PLUGIN_LOG);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void installFixture(const char* fixture, const QString& libraryName)
{
    QFile::remove(PLUGIN_DIR + libraryName);
    const QString from = QStringLiteral(FIXTURE_DIR "/") + QLatin1String(fixture);
    QVERIFY2(QFile::copy(from, PLUGIN_DIR + libraryName), qPrintable(from));
}

} // namespace

/** The main window on a real X screen, driven as a person drives it. */
class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void firstFrameIsOnTheScreenBeforeTheLaunchBlocks();
    void toolBoxAsBuilt();
    void defaultsAreInTheStore();
    void applicationIndexIsMarked();

    void menuItemsAndCaption();
    void menuTileOffersClose();
    void closeStepsBackThroughThePath();
    void sameItemTwiceIsOneStep();
    void unavailableUtilityKeepsThePage();
    void identifierOutOfRangeIsIgnored();

    void usbWithoutDriveGoesHome();
    void missingLibraryShowsTheLoadersText();
    void calibrationNeedsConsent();
    void calibrationGivesTheInputBack();

    void pluginLifeCycle();
    void closeOnSavedIsHome();
    void failedStartIsReported();
    void homeDuringTheWaitLoadsNothing();
    void comingBackDuringTheWaitStartsOnce();
    void browserLocksInputForAWhile();

    void testApplicationInFront();
    void dialogStepsAsideForATestApplication();
    void errorBehindATestApplicationWaits();
    void pageStartedBehindATestApplicationIsPainted();
    void switchOverlay();
    void relabelAfterLanguageChange();
    void captionAfterLanguageChange();
    void closeRequestIsIgnored();
    void placement();

private:
    QString caption() const { return m_window->findChild<CAppFeatureHeader*>()->navigationText(); }
    bool homeShown() const { return icon("homeButton")->isVisible(); }
    bool closeShown() const { return icon("closeButton")->isVisible(); }
    CStatusIcon* icon(const char* name) const
    {
        return m_window->findChild<CStatusIcon*>(QLatin1String(name));
    }
    void choose(int id)
    {
        for (auto* button : m_window->findChildren<CToolBoxButton*>()) {
            if (button->id() == id) {
                button->click();
                return;
            }
        }
        QFAIL("no such tool box item");
    }
    /** The tool box item that is marked as chosen, -1 for none. */
    int markedItem() const
    {
        for (const auto* button : m_window->findChildren<CToolBoxButton*>()) {
            if (button->isActive() && button->id() != -1)
                return button->id();
        }
        return -1;
    }
    QRect region() const { return qApp->property("NonInteractiveRegion").toRect(); }
    template <typename Page> Page* page() const { return m_window->findChild<Page*>(); }

    std::unique_ptr<CMainWindow> m_window;
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

void TestMainWindow::init()
{
    m_window->triggerHome();
    QFile::remove(PLUGIN_LOG);
    for (const char* name : {"libIPtool.so", "libnetwiz.so", "libresultman.so", "libwebbrowser.so"})
        QFile::remove(PLUGIN_DIR + QLatin1String(name));
}

void TestMainWindow::firstFrameIsOnTheScreenBeforeTheLaunchBlocks()
{
    QVERIFY(m_shownAt >= 0);
    QVERIFY2(m_shownAt < m_blockedAt + LAUNCH_BLOCK / 2,
        qPrintable(QStringLiteral("shown at %1 ms, blocked from %2 ms").arg(m_shownAt).arg(m_blockedAt)));
}

void TestMainWindow::toolBoxAsBuilt()
{
    const auto* box = m_window->findChild<CToolBox*>();
    QStringList rows;
    for (int p = 0; p < box->pageCount(); ++p) {
        rows << box->pageText(p);
        for (int i = 0; i < box->itemCount(p); ++i)
            rows << QLatin1Char(' ') + box->itemText(p, i);
    }
    QCOMPARE(rows.join(QLatin1Char('|')),
        QStringLiteral("Tools| IP Tools| Net Wiz| WiFi Wiz| Advanced|"
                       "Utilities| Settings| Backlight| Harbor|Files| Saved| USB| Capture"));
    QCOMPARE(box->geometry(), QRect(0, 60, 160, 400));
}

void TestMainWindow::defaultsAreInTheStore()
{
    const CSystemSettings* settings = CSystemSettings::globalSettings();
    QCOMPARE(settings->getAttribute(CSystemSettings::ACBrightness).toInt(), 63);
    QCOMPARE(settings->getAttribute(CSystemSettings::BatteryBacklightTime).toInt(), 10);
    QCOMPARE(settings->getAttribute(CSystemSettings::ClkSrc5).toString(), QStringLiteral("tcxo"));
    QCOMPARE(settings->getAttribute(CSystemSettings::SaveScreenCompressLevel).toInt(), 65001);
}

void TestMainWindow::applicationIndexIsMarked()
{
    const auto marked = [this] { return CXScreen().appIndexOf(m_window->winId()); };
    m_window->markAppIndex(1);
    QCOMPARE(marked(), 1);
    // A new X window starts with index 0.
    m_window->setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    m_window->setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    m_window->show();
    QTRY_COMPARE(marked(), 0);
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
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
    QCOMPARE(m_window->findChild<CToolBox*>()->openPage(), -1);
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

void TestMainWindow::sameItemTwiceIsOneStep()
{
    choose(UTILITY_ID_ADVTOOL);
    choose(UTILITY_ID_ADVTOOL);
    QVERIFY(page<CAdvanceMenu>()->isVisible());
    m_window->triggerClose();
    QVERIFY(page<CHomePage>()->isVisible());
    QVERIFY(!homeShown());
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
    choose(UTILITY_ID_USB_BROWSER);
    QVERIFY(QMetaObject::invokeMethod(
        m_window.get(), "updateStorageStatus", Q_ARG(StorageStatus, StorageStatus())));
    QVERIFY(page<CAdvanceMenu>()->isVisible());
    QCOMPARE(markedItem(), int(UTILITY_ID_ADVTOOL));
}

void TestMainWindow::identifierOutOfRangeIsIgnored()
{
    choose(UTILITY_ID_ADVTOOL);
    for (const int id : {-1, 0, UTILITY_ID_BEGIN - 1, UTILITY_ID_END + 1, INT_MAX})
        m_window->changeCurrentUtil(id);
    QVERIFY(page<CAdvanceMenu>()->isVisible());
    QCOMPARE(m_window->currentUtil(), UTILITY_ID_ADVTOOL);
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

void TestMainWindow::missingLibraryShowsTheLoadersText()
{
    {
        CBoxAnswer none("ok"); // one without a library, whose error must not stay for the next
        m_window->changeCurrentUtil(UTILITY_ID_TOOLS);
        QTRY_COMPARE(none.text(), QStringLiteral("Invalid plugin ID."));
    }
    CBoxAnswer box("ok");
    choose(UTILITY_ID_NET_WIZARD);
    QVERIFY(m_window->findChild<CStartUtilWindow*>()->isVisible());
    QCOMPARE(m_window->findChild<CStartUtilWindow*>()->message(), QStringLiteral("Network Wizard"));
    QTRY_VERIFY(box.isAnswered());
    QCOMPARE(box.title(), QStringLiteral("Load plugin"));
    QVERIFY(!box.text().isEmpty() && !box.text().startsWith(QStringLiteral("Invalid")));
    QVERIFY(m_window->findChild<CStartUtilWindow*>()->isVisible());
    QCOMPARE(m_window->currentUtil(), UTILITY_ID_NET_WIZARD);
    // The box stands in the working area, a little right of its centre.
    QVERIFY(QRect(160, 60, 640, 400).contains(box.geometry()));
    QCOMPARE(box.geometry().x(), 160 + 320 - box.geometry().width() / 2 + 4);
}

void TestMainWindow::calibrationNeedsConsent()
{
    choose(UTILITY_ID_ADVTOOL);
    CBoxAnswer box("cancel");
    m_window->changeCurrentUtil(UTILITY_ID_SCREEN);
    QCOMPARE(box.title(), QStringLiteral("Warning"));
    QCOMPARE(box.text(), QStringLiteral("Proceed with touch screen calibration?"));
    QVERIFY(page<CAdvanceMenu>()->isVisible());
    QCOMPARE(m_window->currentUtil(), UTILITY_ID_ADVTOOL);
    QVERIFY(!closeShown());
}

void TestMainWindow::calibrationGivesTheInputBack()
{
    const QString library = QStringLiteral("libsettingscreen.so");
    installFixture("libfixture_recorder.so", library);
    CBoxAnswer consent("ok");
    m_window->changeCurrentUtil(UTILITY_ID_SCREEN);
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("start")));
    QTRY_COMPARE(region(), QRect(0, 0, 800, 480));
    // A reported failure can be answered meanwhile.
    QFile indicator(QStringLiteral("/tmp/.sysfail_indicator"));
    QVERIFY(indicator.open(QIODevice::WriteOnly));
    CWithDialog failure([this](CDialog* dialog) {
        QCOMPARE(region(), QRect());
        dialog->findChild<CPushButton*>(QStringLiteral("ok"))->click();
    });
    QVERIFY(QMetaObject::invokeMethod(m_window.get(), "selftestPopup"));
    QVERIFY(failure.isDone());
    QCOMPARE(region(), QRect(0, 0, 800, 480));
    m_window->triggerHome();
    QCOMPARE(region(), QRect());

    QFile refuse(QStringLiteral("/tmp/fixture-refuses")); // the library stays loaded, so it is the same one
    QVERIFY(refuse.open(QIODevice::WriteOnly));
    CBoxAnswer again("ok");
    m_window->changeCurrentUtil(UTILITY_ID_SCREEN);
    CBoxAnswer failed("ok");
    QTRY_VERIFY(failed.isAnswered());
    QCOMPARE(failed.title(), QStringLiteral("Load plugin"));
    QCOMPARE(region(), QRect());
    QVERIFY(
        pluginCalls().indexOf(QStringLiteral("refused")) < pluginCalls().lastIndexOf(QStringLiteral("stop")));
    QVERIFY(refuse.remove());
    QFile::remove(PLUGIN_DIR + library);
}

void TestMainWindow::pluginLifeCycle()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libnetwiz.so"));
    choose(UTILITY_ID_ADVTOOL);
    choose(UTILITY_ID_NET_WIZARD);
    QVERIFY(page<CAdvanceMenu>()->isHidden());
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("start")));
    const QStringList started = pluginCalls();
    QVERIFY(started.indexOf(QStringLiteral("setCallerID 65540")) >= 0);
    QVERIFY(started.indexOf(QStringLiteral("setCallerID 65540")) < started.indexOf(QStringLiteral("start")));

    choose(UTILITY_ID_NET_WIZARD); // already up
    m_window->setWindowVisible(false);
    m_window->setWindowVisible(true);
    QCOMPARE(
        pluginCalls().mid(started.size()), QStringList({QStringLiteral("hide"), QStringLiteral("show")}));

    QObject* object = m_window->findChild<QWidget*>(QStringLiteral("fixturePage"));
    QVERIFY(object);
    const QPointer<QObject> pluginPage(object);
    QVERIFY(QMetaObject::invokeMethod(object, "askToClose"));
    QTRY_VERIFY(page<CHomePage>()->isVisible());
    QVERIFY(!pluginPage);
    QCOMPARE(m_window->currentUtil(), UTILITY_ID_BEGIN);
}

void TestMainWindow::closeOnSavedIsHome()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libresultman.so"));
    choose(UTILITY_ID_ADVTOOL);
    choose(UTILITY_ID_RESULT_MANAGER);
    QVERIFY(homeShown() && closeShown());
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("start")));
    icon("closeButton")->click();
    QVERIFY(page<CHomePage>()->isVisible());
    QVERIFY(!homeShown() && !closeShown());
    QVERIFY(pluginCalls().contains(QStringLiteral("stop")));
}

void TestMainWindow::failedStartIsReported()
{
    installFixture("libfixture_failstart.so", QStringLiteral("libharbor.so"));
    CBoxAnswer box("ok");
    choose(UTILITY_ID_HARBOR);
    QTRY_VERIFY(box.isAnswered());
    QCOMPARE(box.title(), QStringLiteral("Load plugin"));
    QVERIFY(!box.text().isEmpty());
    m_window->triggerHome();
    QVERIFY(page<CHomePage>()->isVisible());
}

void TestMainWindow::homeDuringTheWaitLoadsNothing()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libnetwiz.so"));
    choose(UTILITY_ID_NET_WIZARD);
    m_window->triggerHome();
    // Another utility that does start tells that the first one's turn has passed.
    installFixture("libfixture_recorder.so", QStringLiteral("libresultman.so"));
    QFile::remove(PLUGIN_LOG);
    choose(UTILITY_ID_RESULT_MANAGER);
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("start")));
    QCOMPARE(pluginCalls().count(QStringLiteral("start")), 1);
}

void TestMainWindow::comingBackDuringTheWaitStartsOnce()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libnetwiz.so"));
    choose(UTILITY_ID_NET_WIZARD);
    m_window->triggerHome();
    choose(UTILITY_ID_NET_WIZARD);
    // The word of the first request, which was on its way, and then that of the second.
    for (int word = 0; word < 2; ++word)
        QVERIFY(QMetaObject::invokeMethod(m_window.get(), "utilReady", Q_ARG(int, UTILITY_ID_NET_WIZARD)));
    QCOMPARE(pluginCalls().count(QStringLiteral("start")), 1);
}

void TestMainWindow::browserLocksInputForAWhile()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libwebbrowser.so"));
    m_window->changeCurrentUtil(UTILITY_ID_BROWSER);
    QCOMPARE(region(), QRect(0, 0, 800, 480));
    QTRY_COMPARE_WITH_TIMEOUT(region(), QRect(), 5000);
}

void TestMainWindow::testApplicationInFront()
{
    choose(UTILITY_ID_SETTINGS);
    emit m_window->windowVisibleChanged(false);
    QVERIFY(m_window->isVisible());
    QVERIFY(page<CTopBar>()->isHidden());
    QVERIFY(page<CToolBox>()->isHidden());
    QVERIFY(page<CSystemSettingsMenu>()->isHidden());
    QVERIFY(!m_window->isNeedInteractive());
    QVERIFY(!m_window->mask().isEmpty());
    QVERIFY(!m_window->mask().intersects(QRect(0, 0, 800, 459)));
    QTRY_COMPARE(CXScreen().pixel({400, 30}), QColor(Qt::black)); // the root window shows through

    emit m_window->windowVisibleChanged(true);
    QVERIFY(page<CTopBar>()->isVisible());
    QVERIFY(page<CToolBox>()->isVisible());
    QVERIFY(page<CSystemSettingsMenu>()->isVisible());
    QVERIFY(m_window->isNeedInteractive());
    QVERIFY(QRegion(m_window->rect()).subtracted(m_window->mask()).isEmpty());
    QVERIFY(page<CSwitchAppWindow>()->isHidden()); // nothing is being loaded or released
    QTRY_COMPARE(CXScreen().pixel({560, 2}), QColor(181, 199, 239));
}

void TestMainWindow::dialogStepsAsideForATestApplication()
{
    CKeyPadDialog pad(
        QStringLiteral("Name"), QStringLiteral("half a"), CKeyPadFactory::KeyPadText, m_window.get());
    pad.show();
    QVERIFY(QTest::qWaitForWindowExposed(&pad));
    const QPoint place = pad.geometry().topLeft() + QPoint(30, 30);
    const CXScreen screen;
    const QColor shown = screen.pixel(place);
    m_window->setWindowVisible(false);
    QTRY_COMPARE(screen.pixel(place), QColor(Qt::black)); // the root window
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Return, Qt::Key_Return})
        QTest::keyClick(pad.windowHandle(), key);
    QVERIFY(pad.isVisible()); // it is not answered
    QVERIFY(!pad.markedButton());
    m_window->setWindowVisible(true);
    QTRY_COMPARE(screen.pixel(place), shown);
    auto* cancel = pad.findChild<CPushButton*>(QStringLiteral("cancel"));
    QVERIFY(cancel);
    screen.touch(cancel->mapToGlobal(cancel->rect().center()));
    QTRY_VERIFY(!pad.isVisible());
}

void TestMainWindow::errorBehindATestApplicationWaits()
{
    choose(UTILITY_ID_NET_WIZARD); // there is none
    m_window->setWindowVisible(false);
    bool isAside = false;
    CWithDialog box([&](CDialog* dialog) {
        isAside = dialog->isAside();
        m_window->setWindowVisible(true);
        QVERIFY(!dialog->isAside());
        dialog->findChild<CPushButton*>(QStringLiteral("ok"))->click();
    });
    QTRY_VERIFY(box.isDone());
    QVERIFY(isAside);
}

void TestMainWindow::pageStartedBehindATestApplicationIsPainted()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libnetwiz.so"));
    m_window->setWindowVisible(false);
    m_window->changeCurrentUtil(UTILITY_ID_NET_WIZARD);
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("start")));
    m_window->setWindowVisible(true);
    QTRY_COMPARE(CXScreen().pixel({400, 300}), QColor(0x5c, 0x78, 0x5f));
}

void TestMainWindow::switchOverlay()
{
    auto* overlay = page<CSwitchAppWindow>();
    QCOMPARE(overlay->geometry(), QRect(0, 60, 800, 400));
    QVERIFY(overlay->isFinished());
    overlay->start(QStringLiteral("Loading"));
    QVERIFY(overlay->isVisible() && !overlay->isFinished());
    const QImage withText = overlay->grab().toImage();
    overlay->clearMessage();
    const QImage without = overlay->grab().toImage();
    // The message is in the lowest 114 pixels and nowhere else.
    QCOMPARE(withText.copy(0, 0, 800, 280), without.copy(0, 0, 800, 280));
    QVERIFY(withText.copy(0, 285, 800, 114) != without.copy(0, 285, 800, 114));
    overlay->finish();
    QVERIFY(overlay->isHidden() && overlay->isFinished());
}

void TestMainWindow::relabelAfterLanguageChange()
{
    m_window->translate();
    const auto* box = page<CToolBox>();
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
