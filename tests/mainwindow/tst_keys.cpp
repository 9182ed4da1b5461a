#include "advancemenu.h"
#include "fakedesktop.h"
#include "focussearch.h"
#include "mainwindow.h"
#include "powermonitor.h"
#include "sigtransfer.h"
#include "storagemonitor.h"
#include "systemsettings.h"
#include "widgets/entrywidget/entrywidget.h"
#include "widgets/statusicon/statusicon.h"
#include "widgets/toolbox/toolbox.h"
#include "widgets/toolbox/toolboxbutton.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include "boxanswer.h"
#include "withdialog.h"

namespace {

const QString MARK = QStringLiteral("/tmp/screen-locked.mark");
const QString SCREENS = QStringLiteral("/home/arvo/screen");
const QString INDICATOR = QStringLiteral("/tmp/.sysfail_indicator");
constexpr int KEY_PAUSE = 230; // ms; a key that comes sooner counts as a repeat

QRect region()
{
    return qApp->property("NonInteractiveRegion").toRect();
}

void setSetting(CSystemSettings::SystemAttribute attribute, const QVariant& value)
{
    CSystemSettings::globalSettings()->setAttribute(attribute, value, false);
}

void touchFile(const QString& path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

/** Closes the information page that comes up next by its own OK button. */
class CPageCloser : public QObject
{
public:
    explicit CPageCloser(const char* className)
    {
        m_timer.setInterval(10);
        connect(&m_timer, &QTimer::timeout, this, [this, className] {
            QWidget* page = QApplication::activeModalWidget();
            if (!page || !page->inherits(className) || !page->isVisible())
                return;
            m_timer.stop();
            m_region = region();
            m_seen = true;
            page->findChild<CPushButton*>(QStringLiteral("ok"))->click();
        });
        m_timer.start();
    }
    bool wasSeen() const { return m_seen; }
    QRect regionWhileOpen() const { return m_region; }

private:
    QTimer m_timer;
    QRect m_region;
    bool m_seen = false;
};

} // namespace

/** The hardware keys, the lock, screenshots, and what comes up by itself, in a real window. */
class TestKeys : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void firstArrowMarksTheFirstControl();
    void arrowsMoveAndEnterTouches();
    void repeatedKeyIsOne();
    void keysWithTestApplicationInFront();
    void strips_data();
    void strips();
    void everyControlIsReached_data();
    void everyControlIsReached();

    void lockTogglesMarkAndRegion();
    void lockedTouchesDoNothing();
    void staleMarkIsNoTrap();
    void unlockOverTestApplication();
    void screenshot();
    void screenshotLimit();
    void screenshotIntoUnusableDirectory();

    void failureBox();
    void informationPages();
    void storagePageOverTestApplication();
    void pageOpenBeforeTheTestApplication();
    void testApplicationGoesWhileItsPageIsOpen();
    void lockOutlivesItsSetting();
    void changedBacklightTimeIsTakenOver();

private:
    /** Presses a key, no sooner after the last than counts as a press of its own. */
    void press(Qt::Key key)
    {
        QTRY_VERIFY(!m_sinceKey.isValid() || m_sinceKey.elapsed() >= KEY_PAUSE);
        QTest::keyClick(m_window.get(), key);
        m_sinceKey.start();
    }
    QWidget* marked() const
    {
        for (auto* button : m_window->findChildren<CPushButton*>()) {
            if (button->hasArrowKeyFocus())
                return button;
        }
        return nullptr;
    }
    CToolBox* toolBox() const { return m_window->findChild<CToolBox*>(); }

    std::unique_ptr<CMainWindow> m_window;
    QElapsedTimer m_sinceKey;
};

void TestKeys::initTestCase()
{
    touchFile(MARK); // what an earlier run left
    m_window = std::make_unique<CMainWindow>(nullptr);
    m_window->setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    m_window->move(0, 0);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestKeys::init()
{
    m_window->triggerHome();
    setSetting(CSystemSettings::LockScreenORSaveScreen, true);
    setSetting(CSystemSettings::SaveScreenMaxNum, 50);
}

void TestKeys::cleanup()
{
    QCOMPARE(region(), QRect());
}

void TestKeys::firstArrowMarksTheFirstControl()
{
    press(Qt::Key_Return); // nothing is marked, nothing happens
    QCOMPARE(toolBox()->openPage(), -1);
    press(Qt::Key_Down); // the home page is empty: the tool box
    auto* header = qobject_cast<CToolBoxButton*>(marked());
    QVERIFY(header);
    QCOMPARE(header->text(), QStringLiteral("Tools"));
    m_window->changeCurrentUtil(UTILITY_ID_ADVTOOL);
    QVERIFY(!marked());
    press(Qt::Key_Left); // the first tile of the page
    QCOMPARE(marked(), m_window->findChild<CAdvanceMenu*>()->findChild<CEntryWidget*>()->itemAt(0, 0));
}

void TestKeys::arrowsMoveAndEnterTouches()
{
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    QCOMPARE(qobject_cast<CToolBoxButton*>(marked())->text(), QStringLiteral("Utilities"));
    const QImage markedLook = marked()->grab().toImage();
    QWidget* utilities = marked();
    press(Qt::Key_Up);
    QVERIFY(utilities->grab().toImage() != markedLook);
    press(Qt::Key_Return);
    QTRY_COMPARE(toolBox()->openPage(), 0);
    for (int i = 0; i < 4; ++i)
        press(Qt::Key_Down);
    press(Qt::Key_Return);
    QTRY_COMPARE(m_window->currentUtil(), UTILITY_ID_ADVTOOL);
    // From a tile up to the top bar, which no strip of the tile's own width reaches, and back home.
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    press(Qt::Key_Up);
    QCOMPARE(marked()->objectName(), QStringLiteral("homeButton"));
    press(Qt::Key_Return);
    QTRY_COMPARE(m_window->currentUtil(), UTILITY_ID_BEGIN);
    press(Qt::Key_Down);
    press(Qt::Key_Left); // the screen ends there
    QVERIFY(marked());
    press(Qt::Key_Home);
    QVERIFY(!marked());
}

void TestKeys::repeatedKeyIsOne()
{
    press(Qt::Key_Down);
    QWidget* first = marked();
    QTest::keyClick(m_window.get(), Qt::Key_Down); // at once: a repeat
    m_sinceKey.start();
    QCOMPARE(marked(), first);
    press(Qt::Key_Down);
    QVERIFY(marked() != first);
}

void TestKeys::keysWithTestApplicationInFront()
{
    m_window->setWindowVisible(false);
    press(Qt::Key_Down);
    QVERIFY(!marked());
    m_window->setWindowVisible(true);
}

void TestKeys::strips_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("step");
    QTest::addColumn<QRect>("strip");
    using S = CFocusSearch;
    // Of a widget at (100, 100), 60 by 40: its last column is 159, its last row 139.
    QTest::newRow("linear left") << int(S::DetectLeft) << int(S::LinearDetect) << 1 << QRect(50, 100, 50, 40);
    QTest::newRow("linear up") << int(S::DetectUp) << int(S::LinearDetect) << 2 << QRect(100, 0, 60, 100);
    QTest::newRow("linear right") << int(S::DetectRight) << int(S::LinearDetect) << 1
                                  << QRect(159, 100, 50, 40);
    QTest::newRow("linear down") << int(S::DetectDown) << int(S::LinearDetect) << 3
                                 << QRect(100, 139, 60, 150);
    QTest::newRow("radial left") << int(S::DetectLeft) << int(S::RadialDetect) << 1 << QRect(45, 1, 50, 479);
    QTest::newRow("radial up") << int(S::DetectUp) << int(S::RadialDetect) << 1 << QRect(1, 45, 798, 50);
    QTest::newRow("radial right") << int(S::DetectRight) << int(S::RadialDetect) << 2
                                  << QRect(164, 1, 100, 479);
    QTest::newRow("radial down") << int(S::DetectDown) << int(S::RadialDetect) << 1 << QRect(1, 144, 798, 50);
    QTest::newRow("none") << int(S::DetectDown) << int(S::NoDetect) << 1 << QRect(-1, -1, 801, 481);
}

void TestKeys::strips()
{
    QFETCH(int, direction);
    QFETCH(int, type);
    QFETCH(int, step);
    QWidget root;
    root.resize(800, 460);
    auto* widget = new CPushButton(&root);
    widget->setGeometry(100, 100, 60, 40);
    const CFocusSearch search(&root);
    QTEST(search.getDetectRect(
              widget, step, CFocusSearch::DetectDirection(direction), CFocusSearch::DetectType(type)),
        "strip");
}

void TestKeys::everyControlIsReached_data()
{
    QTest::addColumn<int>("toolPage"); // open page of the tool box, -1 for none
    QTest::addColumn<int>("utility");
    for (int page = -1; page < 3; ++page)
        QTest::addRow("home, tool box page %d", page) << page << int(UTILITY_ID_BEGIN);
    const struct
    {
        const char* name;
        int id;
    } pages[] = {
        {"advanced", UTILITY_ID_ADVTOOL},
        {"settings", UTILITY_ID_SETTINGS},
        {"more settings", UTILITY_ID_SETTING_MORE},
        {"about", UTILITY_ID_ABOUT},
        {"backlight", UTILITY_ID_BACKLIGHT},
        {"ip tools", UTILITY_ID_IP_TOOLS},
    };
    for (const auto& page : pages) {
        for (int tool = -1; tool < 3; ++tool)
            QTest::addRow("%s, tool box page %d", page.name, tool) << tool << page.id;
    }
}

void TestKeys::everyControlIsReached()
{
    QFETCH(int, toolPage);
    QFETCH(int, utility);
    const auto buttons = [this] {
        QVector<QPushButton*> found;
        for (QObject* child : CFocusSearch(m_window.get()).allChildren(m_window.get())) {
            auto* button = qobject_cast<QPushButton*>(child);
            if (button && button->isVisibleTo(m_window.get()))
                found.append(button);
        }
        return found;
    };
    if (utility != UTILITY_ID_BEGIN) {
        const int before = buttons().size();
        m_window->changeCurrentUtil(utility);
        QTRY_VERIFY(buttons().size() > before + 2); // more than Home and Close: the page is up
    }
    toolBox()->setOpenPage(toolPage);

    const CFocusSearch search(m_window.get());
    const auto reachedFrom = [&search](QWidget* first) {
        QSet<QWidget*> reached{first};
        QVector<QWidget*> open{first};
        while (!open.isEmpty()) {
            QWidget* from = open.takeLast();
            for (int d = CFocusSearch::DetectLeft; d <= CFocusSearch::DetectDown; ++d) {
                const auto direction = CFocusSearch::DetectDirection(d);
                QWidget* next = search.detect(from, direction, CFocusSearch::LinearDetect);
                if (!next)
                    next = search.detect(from, direction, CFocusSearch::RadialDetect);
                if (next && !reached.contains(next)) {
                    reached.insert(next);
                    open.append(next);
                }
            }
        }
        return reached;
    };
    // From whichever control one starts, every other can be reached: nothing is trapped.
    QStringList missed;
    for (QPushButton* first : buttons()) {
        const QSet<QWidget*> reached = reachedFrom(first);
        for (QPushButton* button : buttons()) {
            if (button->isEnabled() && !reached.contains(button))
                missed << QStringLiteral("%1 \"%2\" %3,%4 from \"%5\" %6")
                              .arg(QLatin1String(button->metaObject()->className()), button->text())
                              .arg(search.globalRect(button).x())
                              .arg(search.globalRect(button).y())
                              .arg(first->text(), first->objectName());
        }
    }
    QVERIFY2(missed.isEmpty(), qPrintable(QStringList(missed.mid(0, 12)).join(QLatin1String("; "))));
}

void TestKeys::lockTogglesMarkAndRegion()
{
    QFile::remove(MARK);
    QSignalSpy relayed(g_pSigTransfer, &CSigTransfer::lockStateChanged);
    press(Qt::Key_F4);
    QVERIFY(QFile::exists(MARK));
    QCOMPARE(region(), QRect(0, 0, 800, 480));
    press(Qt::Key_F4);
    QVERIFY(!QFile::exists(MARK));
    QCOMPARE(region(), QRect());
    QCOMPARE(relayed.size(), 2);
    QCOMPARE(relayed.at(0).at(0).toBool(), true);
    QCOMPARE(relayed.at(1).at(0).toBool(), false);
}

void TestKeys::lockedTouchesDoNothing()
{
    auto* header = toolBox()->findChild<CToolBoxButton*>();
    press(Qt::Key_F4);
    QTest::mouseClick(header, Qt::LeftButton);
    QCOMPARE(toolBox()->openPage(), -1);
    QVERIFY(!header->isDown());
    {
        CPageCloser closer("CPowerMonitor"); // its own click is no touch
        emit g_pSigTransfer->queryPowerInfo();
        QVERIFY(closer.wasSeen());
        QCOMPARE(closer.regionWhileOpen(), QRect(0, 0, 800, 480));
    }
    press(Qt::Key_F4);
    QTest::mouseClick(header, Qt::LeftButton);
    QCOMPARE(toolBox()->openPage(), 0);
}

void TestKeys::staleMarkIsNoTrap()
{
    touchFile(MARK);
    QCOMPARE(region(), QRect());
    press(Qt::Key_F4);
    QVERIFY(QFile::exists(MARK));
    press(Qt::Key_F4);
    QVERIFY(!QFile::exists(MARK));
}

void TestKeys::unlockOverTestApplication()
{
    m_window->setWindowVisible(false);
    press(Qt::Key_F4);
    QCOMPARE(region(), QRect(0, 0, 800, 480));
    press(Qt::Key_F4);
    QCOMPARE(region(), QRect(0, 0, 800, 460));
    m_window->setWindowVisible(true);
    QCOMPARE(region(), QRect());
}

void TestKeys::screenshot()
{
    QDir(SCREENS).removeRecursively();
    setSetting(CSystemSettings::LockScreenORSaveScreen, false);
    press(Qt::Key_F4);
    const QStringList files = QDir(SCREENS).entryList(QDir::Files);
    QCOMPARE(files.size(), 1);
    QVERIFY2(QRegularExpression(QStringLiteral("^\\d{8}_\\d{6}\\.png$")).match(files.first()).hasMatch(),
        qPrintable(files.first()));
    const QImage picture(SCREENS + QLatin1Char('/') + files.first(), "PNG");
    QCOMPARE(picture.size(), QSize(800, 480));
    QCOMPARE(picture.pixelColor(560, 2), QColor(181, 199, 239)); // the top bar, as it stands on the screen
}

void TestKeys::screenshotLimit()
{
    setSetting(CSystemSettings::LockScreenORSaveScreen, false);
    setSetting(CSystemSettings::SaveScreenMaxNum, 0);
    CBoxAnswer box("ok");
    press(Qt::Key_F4);
    QCOMPARE(box.title(), QStringLiteral("Error saving screen!"));
    QVERIFY(box.text().startsWith(QStringLiteral("Number of saved screenshots already reach\nor exceed")));
}

void TestKeys::screenshotIntoUnusableDirectory()
{
    QDir(SCREENS).removeRecursively();
    touchFile(SCREENS); // a file stands where the directory should be
    setSetting(CSystemSettings::LockScreenORSaveScreen, false);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Can not save the screen")));
    press(Qt::Key_F4);
    QVERIFY(QFile::remove(SCREENS));
}

void TestKeys::failureBox()
{
    touchFile(INDICATOR);
    CBoxAnswer box("ok");
    QVERIFY(QMetaObject::invokeMethod(m_window.get(), "selftestPopup"));
    QCOMPARE(box.title(), QStringLiteral("System Error"));
    QVERIFY(box.text().startsWith(QStringLiteral("Error Code: ")));
    QVERIFY(box.text().endsWith(QStringLiteral("Please contact customer service!")));
    QVERIFY(!QFile::exists(INDICATOR));
}

void TestKeys::informationPages()
{
    CPageCloser power("CPowerMonitor");
    emit g_pSigTransfer->queryPowerInfo();
    QVERIFY(power.wasSeen());
    CPageCloser storage("CStorageMonitor");
    emit g_pSigTransfer->queryStorageInfo();
    QVERIFY(storage.wasSeen());
}

void TestKeys::storagePageOverTestApplication()
{
    m_window->setWindowVisible(false);
    emit g_pSigTransfer->queryPowerInfo(); // noted only, and never shown
    m_window->inquireSystemState();
    QVERIFY(!QApplication::activeModalWidget());
    emit g_pSigTransfer->queryStorageInfo();
    QVERIFY(!QApplication::activeModalWidget());
    CPageCloser storage("CStorageMonitor");
    m_window->inquireSystemState();
    QVERIFY(storage.wasSeen());
    QCOMPARE(storage.regionWhileOpen(), QRect());
    QVERIFY(!m_window->isNeedInteractive()); // the test application has the screen again
    QCOMPARE(region(), QRect(0, 0, 800, 460));
    m_window->setWindowVisible(true);
    QCOMPARE(region(), QRect());
}

void TestKeys::pageOpenBeforeTheTestApplication()
{
    CWithDialog page([this](CDialog* dialog) {
        m_window->setWindowVisible(false);
        emit g_pSigTransfer->queryStorageInfo(); // noted, and not served before the shell comes back
        m_window->setWindowVisible(true);
        dialog->findChild<CPushButton*>(QStringLiteral("ok"))->click();
    });
    emit g_pSigTransfer->queryPowerInfo();
    QVERIFY(page.isDone());
    QVERIFY(m_window->isNeedInteractive()); // closing it did not send the shell away
    QCOMPARE(region(), QRect());
}

void TestKeys::testApplicationGoesWhileItsPageIsOpen()
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

void TestKeys::lockOutlivesItsSetting()
{
    press(Qt::Key_F4);
    setSetting(CSystemSettings::LockScreenORSaveScreen, false);
    press(Qt::Key_F4);
    QCOMPARE(region(), QRect());
}

void TestKeys::changedBacklightTimeIsTakenOver()
{
    setSetting(CSystemSettings::ACBacklightEnabled, true);
    setSetting(CSystemSettings::ACBacklightTime, 77);
    setSetting(CSystemSettings::ACBacklightChanged, true);
    const auto runsFor = [this](int interval) {
        for (const auto* timer : m_window->findChildren<QTimer*>()) {
            if (timer->isActive() && timer->isSingleShot() && timer->interval() == interval)
                return true;
        }
        return false;
    };
    m_window->checkSystemSettings();
    QVERIFY(runsFor(77000));
    QVERIFY(!CSystemSettings::globalSettings()->getAttribute(CSystemSettings::ACBacklightChanged).toBool());
    setSetting(CSystemSettings::ACBacklightTime, 88); // without its flag
    m_window->checkSystemSettings();
    QVERIFY(!runsFor(88000));
    setSetting(CSystemSettings::ACBacklightEnabled, false);
    m_window->checkSystemSettings();
    QVERIFY(!runsFor(77000));
}

QTEST_MAIN(TestKeys)
#include "tst_keys.moc"
