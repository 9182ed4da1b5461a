#include "advancemenu.h"
#include "homepage.h"
#include "startutilwindow.h"
#include "switchappwindow.h"
#include "systemsettingsmenu.h"
#include "topbar.h"
#include "widgets/keypad/keypaddialog.h"

#include <QPointer>
#include <QWindow>

#include "boxanswer.h"
#include "drivenwindow.h"
#include "infopage.h"
#include "withdialog.h"
#include "xscreen.h"

/** Plug-ins that come and go, and the test application in front. */
class TestSwitching : public QObject, private CDrivenWindow
{
    Q_OBJECT

private slots:
    void initTestCase() { open(); }
    void init() { reset(); }

    void lastRequestOfATurnWins_data();
    void lastRequestOfATurnWins();
    void requestsWaitForAPluginsOwnEventLoop();
    void calibrationNeedsConsent();
    void refusedCalibrationKeepsThePageThatIsClosed();
    void closeOfAFilePageAsksNothing();
    void boxesOfAKindDoNotPileUp();
    void aStoppedPluginHearsNothing();
    void calibrationGivesTheInputBack();
    void pluginLifeCycle();
    void failedStartIsReported();
    void homeDuringTheWaitLoadsNothing();
    void comingBackDuringTheWaitStartsOnce();
    void browserLocksInputForAWhile();
    void testApplicationInFront();
    void maskFollowsTheWindowsSize();
    void switchOverlay();
    void newPageEndsTheSwitchOverlay();
    void dialogStepsAsideForATestApplication();
    void errorBehindATestApplicationWaits();
    void missingLibraryShowsTheLoadersText();
};

void TestSwitching::lastRequestOfATurnWins_data()
{
    QTest::addColumn<QVector<int>>("requests"); // utilities, and -1 for the plug-in's wish to close
    QTest::addColumn<int>("current");
    QTest::addColumn<bool>("hasButtons");
    QTest::newRow("page, then home") << QVector<int>{UTILITY_ID_SETTINGS, -1} << int(UTILITY_ID_BEGIN)
                                     << false;
    QTest::newRow("home, then page") << QVector<int>{-1, UTILITY_ID_SETTINGS} << int(UTILITY_ID_SETTINGS)
                                     << true;
    QTest::newRow("two pages") << QVector<int>{UTILITY_ID_ADVTOOL, UTILITY_ID_SETTINGS}
                               << int(UTILITY_ID_SETTINGS) << true;
    QTest::newRow("two plug-ins") << QVector<int>{UTILITY_ID_RESULT_MANAGER, UTILITY_ID_NET_WIZARD}
                                  << int(UTILITY_ID_NET_WIZARD) << true;
}

void TestSwitching::lastRequestOfATurnWins()
{
    QFETCH(QVector<int>, requests);
    QFETCH(int, current);
    for (const char* name : {"libnetwiz.so", "libresultman.so"})
        installFixture("libfixture_recorder.so", QLatin1String(name));
    m_window->changeCurrentUtil(UTILITY_ID_NET_WIZARD);
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("start")));
    clearPluginCalls();
    const QPointer<QWidget> pluginPage = m_window->findChild<QWidget*>(QStringLiteral("fixturePage"));
    QVERIFY(pluginPage);
    for (const int id : requests) {
        if (id < 0)
            QVERIFY(QMetaObject::invokeMethod(pluginPage, "askToClose"));
        else
            QVERIFY(QMetaObject::invokeMethod(pluginPage, "askToLaunch", Q_ARG(int, id)));
    }
    QTRY_VERIFY(!pluginPage);
    QTRY_COMPARE(int(m_window->currentUtil()), current);
    if (current == UTILITY_ID_NET_WIZARD)
        QTRY_COMPARE(pluginCalls().count(QStringLiteral("start")), 1);
    QTEST(homeShown(), "hasButtons");
    QTEST(closeShown(), "hasButtons");
    QCOMPARE(page<CHomePage>()->isVisible(), current == UTILITY_ID_BEGIN);
    QCOMPARE(page<CSystemSettingsMenu>()->isVisible(), current == UTILITY_ID_SETTINGS);
    QVERIFY(page<CAdvanceMenu>()->isHidden());
    QVERIFY(page<CStartUtilWindow>()->isHidden());
}

void TestSwitching::requestsWaitForAPluginsOwnEventLoop()
{
    const QString loops = QStringLiteral("/tmp/fixture-loops");
    installFixture("libfixture_recorder.so", QStringLiteral("libnetwiz.so"));
    choose(UTILITY_ID_NET_WIZARD);
    clearPluginCalls();
    writeFile(loops);
    // All that may come in the middle of start(): the user, another process, the switching service twice.
    const auto later = [this](auto work) { QMetaObject::invokeMethod(this, work, Qt::QueuedConnection); };
    later([this, later] {
        later([this] { m_window->changeCurrentUtil(UTILITY_ID_ADVTOOL); });
        later([this] { m_window->triggerHome(); });
        later([this] { emit m_window->windowVisibleChanged(false); });
        later([this] { emit m_window->windowVisibleChanged(true); });
        later([this] { m_window->changeLanguage(LANGUAGE_GERMAN); });
        QMetaObject::invokeMethod(m_window.get(), "utilReady", Q_ARG(int, UTILITY_ID_NET_WIZARD));
    });
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("stop")));
    QVERIFY(QFile::remove(loops));
    QCOMPARE(pluginCalls().mid(pluginCalls().indexOf(QStringLiteral("start"))),
        QStringList({QStringLiteral("start"), QStringLiteral("hide"), QStringLiteral("show"),
            QStringLiteral("update"), QStringLiteral("stop")}));
    QVERIFY(page<CHomePage>()->isVisible());
    QVERIFY(page<CAdvanceMenu>()->isHidden());
    QCOMPARE(m_window->currentUtil(), UTILITY_ID_BEGIN);
    QVERIFY(!homeShown());
    m_window->changeLanguage(LANGUAGE_ENGLISH);
}

void TestSwitching::calibrationNeedsConsent()
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

void TestSwitching::refusedCalibrationKeepsThePageThatIsClosed()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libsettingscreen.so"));
    choose(UTILITY_ID_SETTINGS);
    CBoxAnswer consent("ok");
    m_window->changeCurrentUtil(UTILITY_ID_SCREEN);
    m_window->changeCurrentUtil(UTILITY_ID_ADVTOOL);
    CBoxAnswer refusal("cancel");
    m_window->triggerClose();
    QVERIFY(refusal.isAnswered());
    QVERIFY(page<CAdvanceMenu>()->isVisible());
    QCOMPARE(m_window->currentUtil(), UTILITY_ID_ADVTOOL);
    QVERIFY(closeShown());
    CBoxAnswer again("ok");
    m_window->triggerClose();
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("start")));
    QVERIFY(page<CAdvanceMenu>()->isHidden());
    QFile::remove(PLUGIN_DIR + QStringLiteral("libsettingscreen.so"));
}

void TestSwitching::closeOfAFilePageAsksNothing()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libsettingscreen.so"));
    installFixture("libfixture_recorder.so", QStringLiteral("libresultman.so"));
    CBoxAnswer consent("ok");
    m_window->changeCurrentUtil(UTILITY_ID_SCREEN);
    choose(UTILITY_ID_RESULT_MANAGER);
    CBoxAnswer question("cancel");
    m_window->triggerClose(); // as Home
    QVERIFY(!question.isAnswered());
    QVERIFY(page<CHomePage>()->isVisible());
    QFile::remove(PLUGIN_DIR + QStringLiteral("libsettingscreen.so"));
}

void TestSwitching::boxesOfAKindDoNotPileUp()
{
    int above = 0;
    CWithDialog box([this, &above](CDialog* dialog) {
        CWithDialog second([&above](CDialog* other) {
            ++above;
            other->reject();
        });
        m_window->changeCurrentUtil(UTILITY_ID_HELP); // the same box again
        m_window->changeCurrentUtil(UTILITY_ID_GLOBAL);
        dialog->findChild<CPushButton*>(QStringLiteral("ok"))->click();
    });
    m_window->changeCurrentUtil(UTILITY_ID_HELP);
    QVERIFY(box.isDone());
    QCOMPARE(above, 0);
    CBoxAnswer again("ok");
    m_window->changeCurrentUtil(UTILITY_ID_HELP);
    QVERIFY(again.isAnswered());

    // Behind a test application it waits for the shell.
    m_window->setWindowVisible(false);
    CWithDialog behind([this](CDialog* dialog) {
        QVERIFY(dialog->isAside());
        QCOMPARE(region(), TEST_APP_AREA);
        m_window->setWindowVisible(true);
        dialog->findChild<CPushButton*>(QStringLiteral("ok"))->click();
    });
    m_window->changeCurrentUtil(UTILITY_ID_HELP);
    QVERIFY(behind.isDone());
}

void TestSwitching::aStoppedPluginHearsNothing()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libnetwiz.so"));
    choose(UTILITY_ID_NET_WIZARD);
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("start")));
    installFixture("libfixture_recorder.so", QStringLiteral("libresultman.so"));
    choose(UTILITY_ID_RESULT_MANAGER); // its start window is up, the other page is gone
    clearPluginCalls();
    m_window->setWindowVisible(false);
    m_window->setWindowVisible(true);
    m_window->translate();
    QCOMPARE(pluginCalls(), QStringList());
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("start")));
}

void TestSwitching::calibrationGivesTheInputBack()
{
    const QString library = QStringLiteral("libsettingscreen.so");
    installFixture("libfixture_recorder.so", library);
    CBoxAnswer consent("ok");
    m_window->changeCurrentUtil(UTILITY_ID_SCREEN);
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("start")));
    QTRY_COMPARE(region(), WHOLE_SCREEN);
    // A test application in front has its touches, and the calibration gets them back.
    m_window->setWindowVisible(false);
    QCOMPARE(region(), TEST_APP_AREA);
    QVERIFY(CXScreen().isTouchDelivered({400, 200}));
    m_window->setWindowVisible(true);
    QCOMPARE(region(), WHOLE_SCREEN);
    // A reported failure can be answered meanwhile.
    writeFile(FAILURE_MARK);
    CWithDialog failure([this](CDialog* dialog) {
        QCOMPARE(region(), QRect());
        dialog->findChild<CPushButton*>(QStringLiteral("ok"))->click();
    });
    QVERIFY(QMetaObject::invokeMethod(m_window.get(), "selftestPopup"));
    QVERIFY(failure.isDone());
    QCOMPARE(region(), WHOLE_SCREEN);
    m_window->triggerHome();
    QCOMPARE(region(), QRect());

    const QString refusal = QStringLiteral("/tmp/fixture-refuses");
    writeFile(refusal); // the library stays loaded, so it is the same one
    CBoxAnswer again("ok");
    m_window->changeCurrentUtil(UTILITY_ID_SCREEN);
    CBoxAnswer failed("ok");
    QTRY_VERIFY(failed.isAnswered());
    QCOMPARE(failed.title(), QStringLiteral("Load plugin"));
    QCOMPARE(region(), QRect());
    QVERIFY(
        pluginCalls().indexOf(QStringLiteral("refused")) < pluginCalls().lastIndexOf(QStringLiteral("stop")));
    QVERIFY(QFile::remove(refusal));
    QFile::remove(PLUGIN_DIR + library);
}

void TestSwitching::pluginLifeCycle()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libnetwiz.so"));
    choose(UTILITY_ID_ADVTOOL);
    choose(UTILITY_ID_NET_WIZARD);
    QVERIFY(page<CAdvanceMenu>()->isHidden());
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("start")));
    QVERIFY(page<CStartUtilWindow>()->isHidden()); // nothing of it shines through the page
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

void TestSwitching::failedStartIsReported()
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

void TestSwitching::homeDuringTheWaitLoadsNothing()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libnetwiz.so"));
    choose(UTILITY_ID_NET_WIZARD);
    m_window->triggerHome();
    // Another utility that does start tells that the first one's turn has passed.
    installFixture("libfixture_recorder.so", QStringLiteral("libresultman.so"));
    clearPluginCalls();
    choose(UTILITY_ID_RESULT_MANAGER);
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("start")));
    QCOMPARE(pluginCalls().count(QStringLiteral("start")), 1);
}

void TestSwitching::comingBackDuringTheWaitStartsOnce()
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

void TestSwitching::browserLocksInputForAWhile()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libwebbrowser.so"));
    m_window->changeCurrentUtil(UTILITY_ID_BROWSER);
    QCOMPARE(region(), WHOLE_SCREEN);
    QTRY_COMPARE_WITH_TIMEOUT(region(), QRect(), 5000);
}

void TestSwitching::testApplicationInFront()
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

void TestSwitching::dialogStepsAsideForATestApplication()
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

void TestSwitching::errorBehindATestApplicationWaits()
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

void TestSwitching::maskFollowsTheWindowsSize()
{
    m_window->setWindowVisible(false);
    m_window->resize(400, 300); // a window manager may
    m_window->setWindowVisible(true);
    m_window->resize(800, 460);
    QVERIFY(QRegion(m_window->rect()).subtracted(m_window->mask()).isEmpty());
    m_window->setWindowVisible(false);
    m_window->resize(800, 480);
    QVERIFY(m_window->mask().contains(QPoint(400, 475)));
    m_window->setWindowVisible(true);
    m_window->resize(800, 460);
}

void TestSwitching::newPageEndsTheSwitchOverlay()
{
    auto* overlay = page<CSwitchAppWindow>();
    overlay->start(QStringLiteral("Loading"));
    m_window->triggerHome();
    QVERIFY(overlay->isHidden());
    overlay->start(QStringLiteral("Loading"));
    m_window->changeCurrentUtil(UTILITY_ID_SETTINGS);
    QVERIFY(overlay->isHidden());
}

void TestSwitching::switchOverlay()
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

void TestSwitching::missingLibraryShowsTheLoadersText()
{
    {
        // The loader's own words, too, are in the user's language.
        CBoxAnswer german("ok");
        const CShellLanguage spoken(LANGUAGE_GERMAN);
        QVERIFY(spoken.isLoaded());
        choose(UTILITY_ID_NET_WIZARD);
        QTRY_COMPARE(german.text(), QStringLiteral("Die Bibliothek wurde nicht gefunden."));
        m_window->triggerHome();
    }
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

QTEST_MAIN(TestSwitching)
#include "tst_switching.moc"
