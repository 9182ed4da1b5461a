#include "infopage.h"
#include "storagecapacity.h"
#include "storagemeter.h"
#include "storagemonitor.h"
#include "storageview.h"
#include "widgets/label/label.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <limits>
#include <pthread.h>

namespace {

QString operator""_s(const char* text, size_t size)
{
    return QString::fromUtf8(text, static_cast<int>(size));
}

constexpr int Most = std::numeric_limits<int>::max();

StorageStatus record(int diskUsed, int diskAvail, bool hasUsb = false, int usbUsed = 0, int usbAvail = 0)
{
    StorageStatus status;
    status.diskUsed = diskUsed;
    status.diskAvail = diskAvail;
    status.bIsUSBDPlugged = hasUsb;
    status.USBDUsed = usbUsed;
    status.USBDAvail = usbAvail;
    return status;
}

QStringList listOf(const StorageFigures& figures)
{
    return {figures.blocks, figures.used, figures.avail, figures.usedRatio};
}

/** Used and available blocks as the system's own tool counts them. */
QStringList df(const QString& path, int blockSize)
{
    QProcess tool;
    tool.start("df"_s, {"--block-size=%1"_s.arg(blockSize), "--output=used,avail"_s, path});
    tool.waitForFinished();
    return QString::fromLatin1(tool.readAllStandardOutput())
        .section(QLatin1Char('\n'), 1)
        .simplified()
        .split(QLatin1Char(' '));
}

} // namespace

class tst_Storage : public QObject
{
    Q_OBJECT

private:
    static void lookAt(CStorageMonitor& page);

private slots:
    void initTestCase();
    void view_data();
    void view();
    void measuredAsTheSystemDoes();
    void mountedDriveIsInUseMeasuredOrNot();
    void slowDriveHoldsNobodyUp();
    void deadStorageStopsOnlyItsOwnFigures_data();
    void deadStorageStopsOnlyItsOwnFigures();
    void nextDriveDoesNotWaitForADeadOne();
    void figuresAreNotThoseOfADriveThatWent();
    void noThreadNoEnd();
    void meterMayGoFirst();
    void page();
    void usbButton();
};

void tst_Storage::initTestCase()
{
    QApplication::setFont(QFont("Arial"_s)); // as the shell does
}

/** Everything shown has its place and room for its text. */
void tst_Storage::lookAt(CStorageMonitor& page)
{
    QCOMPARE(misplacedParts(page), QString());
    QCOMPARE(cutTexts(page), QString());
}

void tst_Storage::view_data()
{
    QTest::addColumn<StorageStatus>("status");
    QTest::addColumn<QStringList>("disk");
    QTest::addColumn<QStringList>("usbd");
    QTest::addColumn<QByteArray>("state");
    const QStringList none = {""_s, ""_s, ""_s, ""_s};
    const QByteArray absent = "NO USB Drive detected";
    const QByteArray inUse = "USB Drive is in use";
    QTest::newRow("nothing") << record(0, 0) << QStringList{"0"_s, "0"_s, "0"_s, "0 %"_s} << none << absent;
    QTest::newRow("truncated") << record(1, 2) << QStringList{"3"_s, "1"_s, "2"_s, "33 %"_s} << none
                               << absent;
    QTest::newRow("nearly full") << record(999, 1) << QStringList{"1000"_s, "999"_s, "1"_s, "99 %"_s} << none
                                 << absent;
    QTest::newRow("figures of a drive that is away")
        << record(1, 1, false, 7, 7) << QStringList{"2"_s, "1"_s, "1"_s, "50 %"_s} << none << absent;
    QTest::newRow("USB drive") << record(0, 5, true, 2, 1) << QStringList{"5"_s, "0"_s, "5"_s, "0 %"_s}
                               << QStringList{"3"_s, "2"_s, "1"_s, "66 %"_s} << inUse;
    QTest::newRow("empty USB drive") << record(5, 0, true) << QStringList{"5"_s, "5"_s, "0"_s, "100 %"_s}
                                     << QStringList{"0"_s, "0"_s, "0"_s, "0 %"_s} << inUse;
    const QStringList unknown = {"---"_s, "---"_s, "---"_s, "---"_s};
    QTest::newRow("USB drive that cannot be measured")
        << record(1, 1, true, -1, -1) << QStringList{"2"_s, "1"_s, "1"_s, "50 %"_s} << unknown << inUse;
    QTest::newRow("nothing measured yet") << record(-1, -1) << unknown << none << absent;
    QTest::newRow("largest") << record(Most, Most, true, Most, 0)
                             << QStringList{"4294967294"_s, "2147483647"_s, "2147483647"_s, "50 %"_s}
                             << QStringList{"2147483647"_s, "2147483647"_s, "0"_s, "100 %"_s} << inUse;
}

void tst_Storage::view()
{
    QFETCH(StorageStatus, status);
    const StorageView shown = storageView(status);
    QTEST(listOf(shown.disk), "disk");
    QTEST(listOf(shown.usbd), "usbd");
    QTEST(QByteArray(shown.usbdState), "state");
    QCOMPARE(shown.bIsUSBDShown, status.bIsUSBDPlugged);
}

void tst_Storage::measuredAsTheSystemDoes()
{
    for (const int blockSize : {DiskBlock, USBDriveBlock}) {
        const StorageCapacity home = measureCapacity("/home"_s, blockSize);
        QCOMPARE(
            QStringList({QString::number(home.used), QString::number(home.avail)}), df("/home"_s, blockSize));
        QVERIFY(home.avail > 0);
    }
    const StorageCapacity nowhere = measureCapacity("/home/nobody/here"_s, DiskBlock);
    QCOMPARE(nowhere.used, UnknownBlocks);
    QCOMPARE(nowhere.avail, UnknownBlocks);
}

/** A storage that answers when it is let. Shared with the measuring thread. */
struct SlowStorage
{
    QSemaphore asked;
    QSemaphore answers;
    std::atomic<int> used{0};
};

static CStorageMeter::Measure measureOf(const std::shared_ptr<SlowStorage>& storage)
{
    return [storage] {
        storage->asked.release();
        storage->answers.acquire();
        return StorageCapacity{storage->used, 1};
    };
}

static CStorageMeter::Measure always(int used)
{
    return [used] { return StorageCapacity{used, 1}; };
}

static StorageStatus mountedDrive(bool isMounted = true)
{
    StorageStatus status;
    status.bIsPlugged = true;
    status.bIsMounted = isMounted;
    return status;
}

/** What was told last of the drive, 0 if nothing was. */
static int lateFigures(const QSignalSpy& measured)
{
    return measured.isEmpty() ? 0 : measured.last().at(0).value<StorageStatus>().USBDUsed;
}

constexpr int LongWait = 60000; // ms, that nobody ever waits

void tst_Storage::mountedDriveIsInUseMeasuredOrNot()
{
    QVERIFY(!QFile::exists("/home/usbd/gone"_s));
    CStorageMeter meter(nullptr, {}, [] { return measureCapacity("/home/usbd/gone"_s, USBDriveBlock); });
    StorageStatus status = meter.measureWithin(mountedDrive(), LongWait);
    QVERIFY(status.diskAvail > 0);
    QVERIFY(status.bIsUSBDPlugged && status.bIsPlugged && status.bIsMounted);
    QCOMPARE(status.USBDUsed, UnknownBlocks);

    CStorageMonitor page;
    page.show();
    page.updateStorageStatus(status);
    QCOMPARE(textOf(page, "usbd"), "USB Drive is in use"_s);
    QCOMPARE(textOf(page, "usbdUsedRatio"), "---"_s);
    QVERIFY(page.findChild<CPushButton*>("usbDrive"_s)->isVisible());
    lookAt(page);
    keepPicture(page, "storage drive that cannot be measured"_s);

    status = meter.measureWithin(mountedDrive(false), LongWait); // plugged only
    QVERIFY(status.diskAvail > 0);
    QVERIFY(!status.bIsUSBDPlugged);
    QCOMPARE(status.USBDUsed, 0);
}

void tst_Storage::slowDriveHoldsNobodyUp()
{
    const auto drive = std::make_shared<SlowStorage>();
    CStorageMeter meter(nullptr, always(5), measureOf(drive));
    QSignalSpy measured(&meter, &CStorageMeter::measured);

    drive->used = 7;
    drive->answers.release(); // quick enough
    QCOMPARE(meter.measureWithin(mountedDrive(), LongWait).USBDUsed, 7);
    QVERIFY(drive->asked.tryAcquire());

    // Slow: the figures of last time. The next record asks nobody a second time, nor waits.
    drive->used = 8;
    QCOMPARE(meter.measureWithin(mountedDrive(), 0).USBDUsed, 7);
    drive->asked.acquire();
    QCOMPARE(meter.measureWithin(mountedDrive(), LongWait).USBDUsed, 7);
    QVERIFY(!drive->asked.tryAcquire());
    drive->answers.release();
    QTRY_COMPARE(lateFigures(measured), 8);
}

void tst_Storage::deadStorageStopsOnlyItsOwnFigures_data()
{
    QTest::addColumn<bool>("isDiskDead");
    QTest::newRow("drive") << false;
    QTest::newRow("internal") << true;
}

void tst_Storage::deadStorageStopsOnlyItsOwnFigures()
{
    QFETCH(bool, isDiskDead);
    const auto dead = std::make_shared<SlowStorage>();
    const auto measurings = std::make_shared<std::atomic<int>>(0);
    const CStorageMeter::Measure living = [measurings] { return StorageCapacity{++*measurings, 1}; };
    {
        CStorageMeter meter(
            nullptr, isDiskDead ? measureOf(dead) : living, isDiskDead ? living : measureOf(dead));
        StorageStatus status = meter.measureWithin(mountedDrive(), 0);
        dead->asked.acquire();
        for (int i = 0; i < 3; ++i) {
            const int before = *measurings;
            QTRY_VERIFY((status = meter.measureWithin(mountedDrive(), LongWait),
                (isDiskDead ? status.USBDUsed : status.diskUsed) > before));
            QCOMPARE(isDiskDead ? status.diskUsed : status.USBDUsed, UnknownBlocks);
            QVERIFY(status.bIsUSBDPlugged);
        }
    }
    dead->answers.release();
    QTRY_COMPARE(dead.use_count(), 1L);
}

void tst_Storage::nextDriveDoesNotWaitForADeadOne()
{
    constexpr int most = 8;
    const auto drives = std::make_shared<SlowStorage>(); // that never say a word
    const auto nextDrive = [](CStorageMeter& meter) {
        meter.note(mountedDrive(false));
        return meter.measureWithin(mountedDrive(), 0);
    };
    {
        CStorageMeter meter(nullptr, always(5), measureOf(drives));
        nextDrive(meter);
        drives->asked.acquire();
        nextDrive(meter);
        QVERIFY(drives->asked.tryAcquire(1, LongWait));

        // A mark that comes and goes does not pile threads up for ever.
        constexpr int inVain = 5;
        for (int i = 0; i < inVain; ++i)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("measurings hang"_s));
        for (int i = 2; i < most + inVain; ++i)
            nextDrive(meter);
        QTRY_COMPARE(
            meter.measureWithin(mountedDrive(false), LongWait).diskUsed, 5); // the internal storage goes on
    }
    drives->answers.release(most);
    QTRY_COMPARE(drives.use_count(), 1L); // the threads have ended, and let go
    QCOMPARE(drives->asked.available(), most - 2);
}

void tst_Storage::figuresAreNotThoseOfADriveThatWent()
{
    const auto drive = std::make_shared<SlowStorage>();
    CStorageMeter meter(nullptr, always(5), measureOf(drive));
    QSignalSpy measured(&meter, &CStorageMeter::measured);
    drive->used = 7;
    drive->answers.release();
    QCOMPARE(meter.measureWithin(mountedDrive(), LongWait).USBDUsed, 7);
    meter.measureWithin(mountedDrive(), 0); // asked, and pulled before it answers
    meter.note(mountedDrive(false));
    drive->answers.release();
    QTRY_COMPARE(drive.use_count(), 2L); // nobody measures any more
    QCOMPARE(meter.measureWithin(mountedDrive(), 0).USBDUsed, UnknownBlocks);
    drive->used = 9;
    drive->answers.release();
    QTRY_COMPARE(lateFigures(measured), 9);
}

void tst_Storage::noThreadNoEnd()
{
    CStorageMeter meter(nullptr, always(5), always(6));
    QCOMPARE(meter.measureWithin(mountedDrive(), LongWait).diskUsed, 5);
    pthread_attr_t before;
    pthread_attr_t tooLarge;
    QCOMPARE(pthread_getattr_default_np(&before), 0);
    QCOMPARE(pthread_attr_init(&tooLarge), 0);
    QCOMPARE(pthread_attr_setstacksize(&tooLarge, size_t(1) << 56), 0); // no machine has that much
    QCOMPARE(pthread_setattr_default_np(&tooLarge), 0);
    for (int i = 0; i < 2; ++i)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be measured"_s));
    const StorageStatus status = meter.measureWithin(mountedDrive(), LongWait);
    QCOMPARE(pthread_setattr_default_np(&before), 0);
    QCOMPARE(status.diskUsed, 5); // what is there
    QVERIFY(status.bIsUSBDPlugged);
    meter.note(mountedDrive(false));
    QCOMPARE(meter.measureWithin(mountedDrive(), LongWait).USBDUsed, 6); // tried again
}

void tst_Storage::meterMayGoFirst()
{
    const auto drive = std::make_shared<SlowStorage>();
    {
        CStorageMeter meter(nullptr, measureOf(drive));
        meter.measureWithin(StorageStatus(), 0);
        drive->asked.acquire();
    }
    drive->answers.release();
    QTRY_COMPARE(drive.use_count(), 1L); // the thread has ended, and let go
}

void tst_Storage::page()
{
    const char* const usbParts[] = {"usbdBlocksName", "usbdBlocks", "usbdUsedName", "usbdUsed",
        "usbdAvailName", "usbdAvail", "usbdUsedRatioName", "usbdUsedRatio", "usbDrive"};
    CStorageMonitor page;
    const auto isShown = [&page](const char* name) {
        return page.findChild<QWidget*>(QLatin1String(name))->isVisibleTo(&page);
    };
    page.show();
    page.updateStorageStatus(record(2144321, 5120003, true, Most, Most));
    for (const char* part : usbParts)
        QVERIFY2(isShown(part), part);
    QCOMPARE(textOf(page, "diskBlocksName"), "1K blocks"_s);
    QCOMPARE(textOf(page, "usbdBlocksName"), "4K blocks"_s);
    QCOMPARE(textOf(page, "diskBlocks"), "7264324"_s);
    QCOMPARE(textOf(page, "diskUsed"), "2144321"_s);
    QCOMPARE(textOf(page, "diskAvail"), "5120003"_s);
    QCOMPARE(textOf(page, "diskUsedRatio"), "29 %"_s);
    QCOMPARE(textOf(page, "usbdBlocks"), "4294967294"_s);
    QCOMPARE(textOf(page, "usbdUsedRatio"), "50 %"_s);
    QCOMPARE(textOf(page, "usbd"), "USB Drive is in use"_s);
    lookAt(page);

    page.updateStorageStatus(record(2144321, 5120003));
    for (const char* part : usbParts)
        QVERIFY2(!isShown(part), part);
    QCOMPARE(textOf(page, "usbdBlocks"), QString());
    QCOMPARE(textOf(page, "usbd"), "NO USB Drive detected"_s);
    QVERIFY(isShown("diskUsedRatio") && isShown("ok"));
    const QSize room = CWidgetStyle::getScreenRegion(CWidgetStyle::RegionWorkingArea).size();
    QVERIFY(page.width() <= room.width() && page.height() <= room.height());
}

void tst_Storage::usbButton()
{
    CStorageMonitor page;
    QSignalSpy install(&page, &CStorageMonitor::installUSBDriveSig);
    QSignalSpy remove(&page, &CStorageMonitor::removeUSBDriveSig);
    page.updateStorageStatus(record(1, 2, true, 3, 4));
    page.findChild<CPushButton*>("usbDrive"_s)->click();
    QCOMPARE(remove.count(), 1);
    QCOMPARE(textOf(page, "usbd"), "USB Drive is in use"_s); // until the next record
    page.updateStorageStatus(record(1, 2));
    page.onUSBDrive();
    QCOMPARE(install.count(), 1);
    QCOMPARE(remove.count(), 1);
}

QTEST_MAIN(tst_Storage)
#include "tst_storage.moc"
