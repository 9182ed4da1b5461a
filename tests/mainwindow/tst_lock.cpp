#include "mainwindow.h"
#include "powermonitor.h"
#include "sigtransfer.h"
#include "storagemonitor.h"
#include "systemsettings.h"
#include "widgets/keypad/keypaddialog.h"
#include "widgets/label/label.h"
#include "widgets/messagebox/messagebox.h"
#include "widgets/toolbox/toolbox.h"
#include "widgets/toolbox/toolboxbutton.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <csignal>
#include <functional>
#include <sys/resource.h>

#include "boxanswer.h"
#include "withdialog.h"
#include "xscreen.h"

namespace {

const QString MARK = QStringLiteral("/tmp/screen-locked.mark");
const QString SCREENS = QStringLiteral("/home/arvo/screen");
const QString INDICATOR = QStringLiteral("/tmp/.sysfail_indicator");
const QString DIALOG_INFO = QStringLiteral("/tmp/var/lib/wmsv/dlg-info");
const QRect WHOLE_SCREEN(0, 0, 800, 480);
constexpr int KEY_PAUSE = 230; // ms; a key that comes sooner counts as a repeat
constexpr int FAILURE_PERIOD = 5000; // ms
constexpr rlim_t SMALL_FILE = 512; // bytes, less than any picture of the screen

QRect region()
{
    return qApp->property("NonInteractiveRegion").toRect();
}

void setSetting(CSystemSettings::SystemAttribute attribute, const QVariant& value)
{
    CSystemSettings::globalSettings()->setAttribute(attribute, value, false);
}

void write(const QString& path, const QByteArray& content = QByteArray())
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QPoint middleOf(const QWidget* widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

QStringList screens()
{
    return QDir(SCREENS).entryList(QDir::Files | QDir::Hidden);
}

/** No file of this process grows beyond a few bytes while this lives: what a full disk does. */
class CFullDisk
{
public:
    CFullDisk()
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit small = m_before;
        small.rlim_cur = SMALL_FILE;
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~CFullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    CFullDisk(const CFullDisk&) = delete;
    CFullDisk& operator=(const CFullDisk&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int);
};

} // namespace

/** The lock against real touches, screenshots of the real screen, and what comes up by itself. */
class TestLock : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void markOfAnEarlierRunIsGone();
    void lockedScreenTakesNoTouch();
    void lockedEnterDoesNothing();
    void lockHoldsInsideDialogs_data();
    void lockHoldsInsideDialogs();
    void delayedUnlockDoesNotLiftTheLock();

    void pictureIsTheScreen();
    void fullDiskLeavesNoHalfPicture();
    void lostPicturesCount();
    void limitBelowTestApplicationDialog();
    void limitWaitsForTheTestApplication();
    void limitIsToldOnce();
    void dialogOverATestApplicationCanBeAnswered();
    void heldKeyIsOnePress();
    void hiddenControlIsNotTapped();

    void failureDismissedComesBack();
    void pagesFollowWhileOpen();
    void touchStartsTheBacklightTime();
    void endDuringTheWaitForTheScreen(); // the last: the application ends with it

private:
    void press(Qt::Key key, QWidget* receiver = nullptr)
    {
        QTRY_VERIFY(!m_sinceKey.isValid() || m_sinceKey.elapsed() >= KEY_PAUSE);
        QTest::keyClick(receiver ? receiver : m_window.get(), key);
        m_sinceKey.start();
    }
    /** The headers of the tool box, from the top. */
    QList<CToolBoxButton*> headers() const
    {
        QList<CToolBoxButton*> found;
        for (auto* button : m_window->findChildren<CToolBoxButton*>()) {
            if (button->isVisible())
                found << button;
        }
        return found;
    }
    bool isRunning(int interval) const
    {
        for (const auto* timer : m_window->findChildren<QTimer*>()) {
            if (timer->isActive() && timer->interval() == interval)
                return true;
        }
        return false;
    }

    std::unique_ptr<CMainWindow> m_window;
    CXScreen m_screen;
    QElapsedTimer m_sinceKey;
    int m_pictures = 0; // asked for so far
};

void TestLock::initTestCase()
{
    write(MARK);
    m_window = std::make_unique<CMainWindow>(nullptr);
    m_window->setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    m_window->move(0, 0);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestLock::init()
{
    m_window->triggerHome();
    m_window->findChild<CToolBox*>()->setOpenPage(-1);
    setSetting(CSystemSettings::LockScreenORSaveScreen, true);
    setSetting(CSystemSettings::SaveScreenMaxNum, 50);
    QDir(SCREENS).removeRecursively();
}

void TestLock::cleanup()
{
    QVERIFY(!QFile::exists(MARK));
    QCOMPARE(region(), QRect());
}

void TestLock::markOfAnEarlierRunIsGone()
{
    // While F4 saves screenshots nothing else would ever take it away.
    QVERIFY(!QFile::exists(MARK));
}

void TestLock::lockedScreenTakesNoTouch()
{
    const QList<CToolBoxButton*> header = headers();
    QVERIFY(header.size() > 1);
    QSignalSpy locked(header[0], &QAbstractButton::pressed);
    QSignalSpy unlocked(header[1], &QAbstractButton::clicked);
    press(Qt::Key_F4);
    m_screen.touch(middleOf(header[0]));
    QTest::mouseClick(header[0], Qt::LeftButton); // and one that some other way came to the process
    press(Qt::Key_F4);
    // The X server keeps the order: when this one is there, the others have been.
    m_screen.touch(middleOf(header[1]));
    QTRY_COMPARE(unlocked.size(), 1);
    QCOMPARE(locked.size(), 0);
    m_screen.touch(middleOf(header[0]));
    QTRY_COMPARE(locked.size(), 1);
}

void TestLock::lockedEnterDoesNothing()
{
    press(Qt::Key_Down);
    CToolBoxButton* header = headers().constFirst();
    QVERIFY(header->hasArrowKeyFocus());
    QSignalSpy pressed(header, &QAbstractButton::pressed);
    press(Qt::Key_F4);
    press(Qt::Key_Return);
    QCoreApplication::processEvents();
    QVERIFY(!header->isDown());
    press(Qt::Key_F4);
    QCOMPARE(pressed.size(), 0);
    press(Qt::Key_Return);
    QTRY_COMPARE(pressed.size(), 1);
}

void TestLock::lockHoldsInsideDialogs_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("message box") << 0;
    QTest::newRow("key pad") << 1;
    QTest::newRow("power page") << 2;
}

void TestLock::lockHoldsInsideDialogs()
{
    QFETCH(int, kind);
    std::unique_ptr<CDialog> dialog;
    if (kind == 0)
        dialog = std::make_unique<CMessageBox>(
            QStringLiteral("Warning"), QStringLiteral("Go on?"), CMessageBox::Ok, m_window.get());
    else if (kind == 1)
        dialog = std::make_unique<CKeyPadDialog>(
            QStringLiteral("Name"), QString(), CKeyPadFactory::KeyPadText, m_window.get());
    else
        dialog = std::make_unique<CPowerMonitor>(m_window.get());
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
    auto* ok = dialog->findChild<CPushButton*>(QStringLiteral("ok"));
    QVERIFY(ok);
    QSignalSpy pressed(ok, &QAbstractButton::pressed);

    press(Qt::Key_F4, dialog.get());
    QCOMPARE(region(), WHOLE_SCREEN);
    m_screen.touch(middleOf(ok));
    QTest::mouseClick(ok, Qt::LeftButton);
    ok->setArrowKeyFocus(true);
    press(Qt::Key_Return, dialog.get());
    ok->setArrowKeyFocus(false);
    press(Qt::Key_Return, dialog.get()); // means OK in a key pad
    press(Qt::Key_F4, dialog.get());
    QCOMPARE(region(), QRect());
    QVERIFY(dialog->isVisible());
    QCOMPARE(pressed.size(), 0);
    m_screen.touch(middleOf(ok));
    QTRY_VERIFY(!dialog->isVisible());
    QCOMPARE(pressed.size(), 1);
}

void TestLock::delayedUnlockDoesNotLiftTheLock()
{
    press(Qt::Key_F4);
    QVERIFY(QMetaObject::invokeMethod(m_window.get(), "procDelayUnlock")); // the browser is up by now
    QCOMPARE(region(), WHOLE_SCREEN);
    press(Qt::Key_F4);
}

void TestLock::pictureIsTheScreen()
{
    // Something of another program stands over the shell and below it.
    QWidget other(nullptr, Qt::Window | Qt::X11BypassWindowManagerHint);
    other.setGeometry(100, 300, 500, 180);
    other.setStyleSheet(QStringLiteral("background: #c04080"));
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    QTRY_COMPARE(m_screen.pixel({300, 470}), QColor(0xc0, 0x40, 0x80));

    setSetting(CSystemSettings::LockScreenORSaveScreen, false);
    press(Qt::Key_F4);
    ++m_pictures;
    QCOMPARE(screens().size(), 1);
    const QImage picture(SCREENS + QLatin1Char('/') + screens().constFirst(), "PNG");
    QCOMPARE(picture.size(), WHOLE_SCREEN.size());
    QSet<QRgb> colors;
    for (int y = 5; y < WHOLE_SCREEN.height(); y += 10) {
        for (int x = 5; x < WHOLE_SCREEN.width(); x += 40) {
            colors.insert(picture.pixel(x, y));
            QCOMPARE(picture.pixelColor(x, y).rgb(), m_screen.pixel({x, y}).rgb());
        }
    }
    QVERIFY(colors.size() > 5);
}

void TestLock::fullDiskLeavesNoHalfPicture()
{
    setSetting(CSystemSettings::LockScreenORSaveScreen, false);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Can not save the screen")));
    {
        const CFullDisk full;
        press(Qt::Key_F4);
        ++m_pictures;
    }
    QCOMPARE(screens(), QStringList());
    press(Qt::Key_F4); // there is room again
    ++m_pictures;
    QCOMPARE(screens().size(), 1);
}

void TestLock::lostPicturesCount()
{
    setSetting(CSystemSettings::LockScreenORSaveScreen, false);
    setSetting(CSystemSettings::SaveScreenMaxNum, m_pictures + 1);
    write(SCREENS); // where the directory should be
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Can not save the screen")));
    press(Qt::Key_F4);
    ++m_pictures;
    QVERIFY(QFile::remove(SCREENS));
    CBoxAnswer box("ok");
    press(Qt::Key_F4);
    QCOMPARE(box.title(), QStringLiteral("Error saving screen!"));
}

void TestLock::limitBelowTestApplicationDialog()
{
    setSetting(CSystemSettings::LockScreenORSaveScreen, false);
    setSetting(CSystemSettings::SaveScreenMaxNum, 0);
    QVERIFY(QDir().mkpath(QStringLiteral("/tmp/var/lib/wmsv")));
    write(DIALOG_INFO, "with_dialog: 1\n");
    press(Qt::Key_F4); // would not come back from a box
    QVERIFY(QFile::remove(DIALOG_INFO));
}

void TestLock::limitWaitsForTheTestApplication()
{
    setSetting(CSystemSettings::LockScreenORSaveScreen, false);
    setSetting(CSystemSettings::SaveScreenMaxNum, 0);
    m_window->setWindowVisible(false);
    bool wasInFront = false;
    QTimer::singleShot(0, this, [this, &wasInFront] {
        wasInFront = !m_window->isNeedInteractive() && !QApplication::activeModalWidget();
        m_window->setWindowVisible(true);
    });
    bool isShellInFront = false;
    CWithDialog box([this, &isShellInFront](CDialog* dialog) {
        isShellInFront = m_window->isNeedInteractive();
        dialog->findChild<CPushButton*>(QStringLiteral("ok"))->click();
    });
    // Not press(): it runs the event loop, and so the single shot, before the key.
    QTest::keyClick(m_window.get(), Qt::Key_F4);
    m_sinceKey.start();
    QVERIFY(box.isDone());
    QVERIFY(wasInFront);
    QVERIFY(isShellInFront);
}

void TestLock::limitIsToldOnce()
{
    setSetting(CSystemSettings::LockScreenORSaveScreen, false);
    setSetting(CSystemSettings::SaveScreenMaxNum, 0);
    int above = 0;
    CWithDialog box([this, &above](CDialog* dialog) {
        QTRY_VERIFY(m_sinceKey.elapsed() >= KEY_PAUSE);
        CWithDialog second([&above](CDialog* other) {
            ++above;
            other->reject();
        });
        press(Qt::Key_F4, dialog);
        dialog->reject();
    });
    press(Qt::Key_F4);
    QVERIFY(box.isDone());
    QCOMPARE(above, 0);
}

void TestLock::dialogOverATestApplicationCanBeAnswered()
{
    m_window->setWindowVisible(false);
    press(Qt::Key_F4);
    press(Qt::Key_F4);
    QCOMPARE(region(), QRect(0, 0, 800, 460));
    QVERIFY(m_screen.isTouchDelivered({400, 470})); // and the test application gets touches
    write(INDICATOR);
    CWithDialog box([this](CDialog* dialog) {
        QCOMPARE(region(), QRect());
        press(Qt::Key_F4, dialog);
        QCOMPARE(region(), WHOLE_SCREEN);
        press(Qt::Key_F4, dialog);
        const auto* ok = dialog->findChild<CPushButton*>(QStringLiteral("ok"));
        m_screen.touch(middleOf(ok));
        QTRY_VERIFY(!dialog->isVisible());
    });
    QVERIFY(QMetaObject::invokeMethod(m_window.get(), "selftestPopup"));
    QVERIFY(box.isDone());
    QVERIFY(!QFile::exists(INDICATOR));
    QCOMPARE(region(), QRect(0, 0, 800, 460)); // the test application's again
    m_window->setWindowVisible(true);
    QCOMPARE(region(), QRect());
}

void TestLock::heldKeyIsOnePress()
{
    press(Qt::Key_F4);
    QTRY_VERIFY(m_sinceKey.elapsed() >= KEY_PAUSE); // the first repetition comes late
    QKeyEvent repetition(QEvent::KeyPress, Qt::Key_F4, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(m_window.get(), &repetition);
    m_sinceKey.start();
    QCOMPARE(region(), WHOLE_SCREEN);
    press(Qt::Key_F4);
}

void TestLock::hiddenControlIsNotTapped()
{
    auto* box = m_window->findChild<CToolBox*>();
    box->setOpenPage(0);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    QSignalSpy chosen(box, &CToolBox::currentItemChanged);
    box->setOpenPage(-1);
    press(Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(chosen.size(), 0);
    box->setOpenPage(0);
    press(Qt::Key_Return);
    QTRY_COMPARE(chosen.size(), 1); // it was the marked one
}

void TestLock::failureDismissedComesBack()
{
    write(INDICATOR);
    bool isPolling = true;
    CWithDialog dismissed([this, &isPolling](CDialog* dialog) {
        isPolling = isRunning(FAILURE_PERIOD);
        dialog->reject();
    });
    QVERIFY(QMetaObject::invokeMethod(m_window.get(), "selftestPopup"));
    QVERIFY(dismissed.isDone());
    QVERIFY(!isPolling); // no second box over the first
    QVERIFY(isRunning(FAILURE_PERIOD));
    QVERIFY(QFile::exists(INDICATOR));
    CBoxAnswer answered("ok");
    QVERIFY(QMetaObject::invokeMethod(m_window.get(), "selftestPopup"));
    QVERIFY(answered.isAnswered());
    QVERIFY(!QFile::exists(INDICATOR));
}

void TestLock::pagesFollowWhileOpen()
{
    const auto textOf = [](CDialog* page, const char* name) {
        const auto* label = page->findChild<CLabel*>(QLatin1String(name));
        return label ? label->text() : QString();
    };
    const auto followed = [this](const char* slot, QGenericArgument status,
                              const std::function<QStringList(CDialog*)>& texts) {
        QStringList before;
        QStringList after;
        CWithDialog page([&](CDialog* dialog) {
            before = texts(dialog);
            QMetaObject::invokeMethod(m_window.get(), slot, status);
            QTRY_VERIFY((after = texts(dialog)) != before); // the figures are measured aside
            dialog->findChild<CPushButton*>(QStringLiteral("ok"))->click();
        });
        if (qstrcmp(slot, "updatePowerStatus") == 0)
            emit g_pSigTransfer->queryPowerInfo();
        else
            emit g_pSigTransfer->queryStorageInfo();
        return page.isDone() && before != after;
    };
    PowerStatus battery;
    battery.bIsBat = true;
    battery.fullCap = 100;
    battery.remainCap = 37;
    QVERIFY(followed("updatePowerStatus", Q_ARG(PowerStatus, battery), [&](CDialog* page) {
        return QStringList{textOf(page, "state"), textOf(page, "capacity"), textOf(page, "time")};
    }));
    StorageStatus mounted;
    mounted.bIsUSBDisk = mounted.bIsPlugged = mounted.bIsMounted = mounted.bIsUSBDPlugged = true;
    mounted.USBDUsed = mounted.USBDAvail = 1000;
    QVERIFY(followed("updateStorageStatus", Q_ARG(StorageStatus, mounted),
        [&](CDialog* page) { return QStringList{textOf(page, "usbd")}; }));
    // Back on mains, for the tests that follow.
    QVERIFY(
        QMetaObject::invokeMethod(m_window.get(), "updatePowerStatus", Q_ARG(PowerStatus, PowerStatus())));
}

void TestLock::touchStartsTheBacklightTime()
{
    const auto running = [this] {
        int found = 0;
        for (const auto* timer : m_window->findChildren<QTimer*>())
            found += timer->isActive() && timer->isSingleShot() && timer->interval() == 900000;
        return found;
    };
    setSetting(CSystemSettings::ACBacklightTime, 900);
    setSetting(CSystemSettings::ACBacklightChanged, false); // the time has not been taken over yet
    setSetting(CSystemSettings::ACBacklightEnabled, false);
    QTest::mouseClick(headers().constFirst(), Qt::LeftButton);
    QCOMPARE(running(), 0);
    setSetting(CSystemSettings::ACBacklightEnabled, true);
    QTest::mouseClick(headers().constFirst(), Qt::LeftButton); // on a control, not the window itself
    QCOMPARE(running(), 1);
    setSetting(CSystemSettings::ACBacklightEnabled, false);
    m_window->checkSystemSettings();
    QCOMPARE(running(), 0);
}

void TestLock::endDuringTheWaitForTheScreen()
{
    setSetting(CSystemSettings::LockScreenORSaveScreen, false);
    setSetting(CSystemSettings::SaveScreenMaxNum, 0);
    m_window->setWindowVisible(false);
    QTimer::singleShot(0, this, [] { CMainWindow::signalHandler(SIGTERM); });
    CWithDialog box([](CDialog* dialog) { dialog->reject(); });
    QTest::keyClick(m_window.get(), Qt::Key_F4); // comes back although the test application stays in front
    QVERIFY(!m_window->isNeedInteractive());
    QVERIFY(!box.isDone());
    setSetting(CSystemSettings::SaveScreenMaxNum, 50);

    // An end while locked leaves no mark that would tell others of a lock nobody can lift.
    setSetting(CSystemSettings::LockScreenORSaveScreen, true);
    press(Qt::Key_F4);
    QVERIFY(QFile::exists(MARK));
    m_window.reset();
    QVERIFY(!QFile::exists(MARK));
    QCOMPARE(region(), QRect(0, 0, 800, 460)); // its last word
    qApp->setProperty("NonInteractiveRegion", QRect());
}

QTEST_MAIN(TestLock)
#include "tst_lock.moc"
