#include "drivenwindow.h"
#include "pointergrab.h"
#include "powermonitor.h"
#include "sigtransfer.h"
#include "widgets/keypad/keypaddialog.h"
#include "widgets/messagebox/messagebox.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QTimer>

#include <csignal>
#include <sys/resource.h>

#include "boxanswer.h"
#include "withdialog.h"
#include "xscreen.h"

namespace {

const QString MARK = QStringLiteral("/tmp/screen-locked.mark");
const QString SCREENS = QStringLiteral("/home/arvo/screen");
const QString DIALOG_INFO = QStringLiteral("/tmp/var/lib/wmsv/dlg-info");
constexpr rlim_t SMALL_FILE = 512; // bytes, less than any picture of the screen

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

/** What F4 does: the lock against real touches, and screenshots of the real screen. */
class TestLock : public QObject, private CDrivenWindow
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void lockedScreenTakesNoTouch();
    void foreignGrabDelaysTheLock_data();
    void foreignGrabDelaysTheLock();
    void grabTakenLaterIsNoticed();
    void requestedRegionComesBack();
    void lockHoldsInsideDialogs_data();
    void lockHoldsInsideDialogs();
    void pageThatComesUpDoesNotUnlock();
    void lockOutlivesItsSetting();
    void delayedUnlockDoesNotLiftTheLock();

    void pictureIsTheScreen();
    void fullDiskLeavesNoHalfPicture();
    void lostPicturesCount();
    void limitBelowTestApplicationDialog();
    void limitWaitsForTheTestApplication();
    void limitIsToldOnce();
    void dialogOverATestApplicationCanBeAnswered();

    void endDuringTheWaitForTheScreen(); // the last: the application ends with it

private:
    CXScreen m_screen;
    int m_pictures = 0; // asked for so far
};

void TestLock::initTestCase()
{
    // An earlier run has left its mark. While F4 saves screenshots nothing else would ever take it away.
    writeFile(MARK);
    open();
    QVERIFY(!QFile::exists(MARK));
}

void TestLock::init()
{
    reset();
    setSetting(CSystemSettings::LockScreenORSaveScreen, true);
    setSetting(CSystemSettings::SaveScreenMaxNum, 50);
    QDir(SCREENS).removeRecursively();
}

void TestLock::cleanup()
{
    QVERIFY(!QFile::exists(MARK));
    QCOMPARE(region(), QRect());
}

void TestLock::lockedScreenTakesNoTouch()
{
    const QList<CToolBoxButton*> header = headers();
    QSignalSpy locked(header[0], &QAbstractButton::pressed);
    QSignalSpy unlocked(header[1], &QAbstractButton::clicked);
    QSignalSpy told(g_pSigTransfer, &CSigTransfer::lockStateChanged);
    writeFile(MARK); // one that somebody else made does not matter
    press(Qt::Key_F4);
    QVERIFY(QFile::exists(MARK));
    QCOMPARE(region(), WHOLE_SCREEN);
    m_screen.touch(middleOf(header[0]));
    QTest::mouseClick(header[0], Qt::LeftButton); // and one that some other way came to the process
    press(Qt::Key_F4);
    QCOMPARE(told, (QList<QList<QVariant>>{{true}, {false}}));
    // The X server keeps the order: when this one is there, the others have been.
    m_screen.touch(middleOf(header[1]));
    QTRY_COMPARE(unlocked.size(), 1);
    QCOMPARE(locked.size(), 0);
    m_screen.touch(middleOf(header[0]));
    QTRY_COMPARE(locked.size(), 1);
}

void TestLock::foreignGrabDelaysTheLock_data()
{
    QTest::addColumn<int>("grab");
    QTest::newRow("a button of the screen") << int(CXScreen::GrabButton);
    QTest::newRow("the whole pointer") << int(CXScreen::GrabPointer);
}

void TestLock::foreignGrabDelaysTheLock()
{
    QFETCH(int, grab);
    const QPoint below(400, 470);
    const auto* lock = m_window->findChild<CPointerGrab*>();
    QVERIFY(lock);
    auto other = std::make_unique<CXScreen>();
    QVERIFY(other->grab(CXScreen::Grab(grab)));
    QTest::ignoreMessage(QtWarningMsg, "Another client holds the pointer: touches are not locked");
    press(Qt::Key_F4);
    QCOMPARE(region(), WHOLE_SCREEN);
    QTest::ignoreMessage(QtWarningMsg, "The pointer is free again: touches are locked");
    QVERIFY(!lock->isHeld());
    other.reset();
    QTRY_VERIFY(lock->isHeld());
    QVERIFY(!m_screen.isTouchDelivered(below));
    press(Qt::Key_F4);
    QVERIFY(m_screen.isTouchDelivered(below));
    // Unlocked before the other client lets go: nothing is tried any longer.
    other = std::make_unique<CXScreen>();
    QVERIFY(other->grab(CXScreen::Grab(grab)));
    QTest::ignoreMessage(QtWarningMsg, "Another client holds the pointer: touches are not locked");
    press(Qt::Key_F4);
    press(Qt::Key_F4);
    other.reset();
    QVERIFY(m_screen.isTouchDelivered(below));
}

void TestLock::grabTakenLaterIsNoticed()
{
    const auto* lock = m_window->findChild<CPointerGrab*>();
    press(Qt::Key_F4);
    QVERIFY(lock->isHeld());
    auto other = std::make_unique<CXScreen>();
    QTest::ignoreMessage(QtWarningMsg, "Another client holds the pointer: touches are not locked");
    QVERIFY(other->grab(CXScreen::GrabPointer));
    QTRY_VERIFY(!lock->isHeld());
    QTest::ignoreMessage(QtWarningMsg, "The pointer is free again: touches are locked");
    other.reset();
    QTRY_VERIFY(lock->isHeld());
    press(Qt::Key_F4);
}

void TestLock::requestedRegionComesBack()
{
    const QRect own(0, 0, 100, 50);
    m_window->setNonInteractiveRegion(CTouchControl::CutomizeRegion, own);
    QCOMPARE(region(), own);
    press(Qt::Key_F4);
    QCOMPARE(region(), WHOLE_SCREEN);
    press(Qt::Key_F4);
    QCOMPARE(region(), own);
    QVERIFY(m_screen.isTouchDelivered({400, 470})); // the lock's grab is gone
    m_window->setNonInteractiveRegion(CTouchControl::FullScreen, QRect());
    QVERIFY(!m_screen.isTouchDelivered({400, 470}));
    m_window->setNonInteractiveRegion(CTouchControl::RegionNone, QRect());
    QCOMPARE(region(), QRect());
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

void TestLock::pageThatComesUpDoesNotUnlock()
{
    press(Qt::Key_F4);
    CWithDialog page([](CDialog* dialog) {
        QCOMPARE(region(), WHOLE_SCREEN);
        dialog->reject();
    });
    emit g_pSigTransfer->queryPowerInfo();
    QVERIFY(page.isDone());
    press(Qt::Key_F4);
}

void TestLock::lockOutlivesItsSetting()
{
    press(Qt::Key_F4);
    setSetting(CSystemSettings::LockScreenORSaveScreen, false);
    press(Qt::Key_F4);
    QCOMPARE(region(), QRect());
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
    QVERIFY2(
        QRegularExpression(QStringLiteral("^\\d{8}_\\d{6}\\.png$")).match(screens().constFirst()).hasMatch(),
        qPrintable(screens().constFirst()));
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
    writeFile(SCREENS); // where the directory should be
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Can not save the screen")));
    press(Qt::Key_F4);
    ++m_pictures;
    QVERIFY(QFile::remove(SCREENS));
    CBoxAnswer box("ok");
    press(Qt::Key_F4);
    QCOMPARE(box.title(), QStringLiteral("Error saving screen!"));
    QVERIFY(box.text().startsWith(QStringLiteral("Number of saved screenshots already reach\nor exceed")));
}

void TestLock::limitBelowTestApplicationDialog()
{
    setSetting(CSystemSettings::LockScreenORSaveScreen, false);
    setSetting(CSystemSettings::SaveScreenMaxNum, 0);
    QVERIFY(QDir().mkpath(QStringLiteral("/tmp/var/lib/wmsv")));
    writeFile(DIALOG_INFO, "with_dialog: 1\n");
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
    pressAtOnce(Qt::Key_F4);
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
    QCOMPARE(region(), TEST_APP_AREA);
    QVERIFY(m_screen.isTouchDelivered({400, 470})); // and the test application gets touches
    writeFile(FAILURE_MARK);
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
    QVERIFY(!QFile::exists(FAILURE_MARK));
    QCOMPARE(region(), TEST_APP_AREA); // the test application's again
    m_window->setWindowVisible(true);
    QCOMPARE(region(), QRect());
}

void TestLock::endDuringTheWaitForTheScreen()
{
    setSetting(CSystemSettings::LockScreenORSaveScreen, false);
    setSetting(CSystemSettings::SaveScreenMaxNum, 0);
    m_window->setWindowVisible(false);
    QTimer::singleShot(0, this, [] { CMainWindow::signalHandler(SIGTERM); });
    CWithDialog box([](CDialog* dialog) { dialog->reject(); });
    pressAtOnce(Qt::Key_F4); // comes back although the test application stays in front
    QVERIFY(!m_window->isNeedInteractive());
    QVERIFY(!box.isDone());
    setSetting(CSystemSettings::SaveScreenMaxNum, 50);

    // An end while locked leaves no mark that would tell others of a lock nobody can lift.
    setSetting(CSystemSettings::LockScreenORSaveScreen, true);
    press(Qt::Key_F4);
    QVERIFY(QFile::exists(MARK));
    m_window.reset();
    QVERIFY(!QFile::exists(MARK));
    QCOMPARE(region(), TEST_APP_AREA); // its last word
    qApp->setProperty("NonInteractiveRegion", QRect());
}

QTEST_MAIN(TestLock)
#include "tst_lock.moc"
