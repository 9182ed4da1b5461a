#include "infopage.h"
#include "storagecapacity.h"
#include "storagemeter.h"
#include "storagemonitor.h"
#include "storageview.h"
#include "widgets/label/label.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QApplication>
#include <QProcess>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>

#include <limits>

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
    void measuredRecord_data();
    void measuredRecord();
    void slowDriveHoldsNobodyUp();
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
        int used = -1;
        int avail = -1;
        QVERIFY(measureCapacity("/home"_s, blockSize, used, avail));
        QCOMPARE(QStringList({QString::number(used), QString::number(avail)}), df("/home"_s, blockSize));
        QVERIFY(avail > 0);
    }
    int used = -1;
    int avail = -1;
    QVERIFY(!measureCapacity("/home/nobody/here"_s, DiskBlock, used, avail));
    QCOMPARE(used, 0);
    QCOMPARE(avail, 0);
}

void tst_Storage::measuredRecord_data()
{
    QTest::addColumn<bool>("mounted");
    QTest::addColumn<QString>("mountPoint");
    QTest::addColumn<bool>("hasFigures");
    QTest::newRow("plugged only") << false << "/tmp"_s << false;
    QTest::newRow("mounted") << true << "/tmp"_s << true;
    QTest::newRow("gone in the meantime") << true << "/nowhere"_s << false;
}

/** A drive that answers when it is let. Shared with the measuring thread. */
struct SlowDrive
{
    QSemaphore asked;
    QSemaphore answers;
};

static CStorageMeter::Measure measureOf(const std::shared_ptr<SlowDrive>& drive)
{
    return [drive](StorageStatus& status) {
        drive->asked.release();
        drive->answers.acquire();
        status.diskUsed = status.bIsMounted ? 2 : 1;
        status.bIsUSBDPlugged = status.bIsMounted;
        status.USBDUsed = status.bIsMounted ? 7 : 0;
    };
}

void tst_Storage::slowDriveHoldsNobodyUp()
{
    const auto drive = std::make_shared<SlowDrive>();
    CStorageMeter meter(nullptr, measureOf(drive));
    QSignalSpy measured(&meter, &CStorageMeter::measured);
    const auto lastMeasured = [&measured] { return measured.last().at(0).value<StorageStatus>(); };
    StorageStatus mounted;
    mounted.bIsPlugged = mounted.bIsMounted = true;

    drive->answers.release(); // quick enough
    QCOMPARE(meter.measureWithin(mounted, 60000).USBDUsed, 7);
    QTRY_COMPARE(measured.count(), 1);

    // Slow: the figures of last time, and of the records that come meanwhile only the last is measured.
    drive->asked.acquire();
    QCOMPARE(meter.measureWithin(mounted, 0).USBDUsed, 7);
    drive->asked.acquire();
    meter.measure(mounted);
    const StorageStatus pulled
        = meter.measureWithin(StorageStatus(), 60000); // does not wait for another's answer
    QVERIFY(!pulled.bIsUSBDPlugged);
    QCOMPARE(pulled.USBDUsed, 0);
    QCOMPARE(pulled.diskUsed, 2);
    drive->answers.release(2);
    QTRY_COMPARE(measured.count(), 3);
    for (int i = 1; i < 3; ++i) // also the answer about the drive that was there: it has gone since
        QVERIFY(!measured.at(i).at(0).value<StorageStatus>().bIsUSBDPlugged);
    QCOMPARE(lastMeasured().diskUsed, 1);
    drive->asked.acquire();
    QVERIFY(!drive->asked.tryAcquire());
}

void tst_Storage::meterMayGoFirst()
{
    const auto drive = std::make_shared<SlowDrive>();
    {
        CStorageMeter meter(nullptr, measureOf(drive));
        meter.measure(StorageStatus());
        drive->asked.acquire();
    }
    drive->answers.release();
    QTRY_COMPARE(drive.use_count(), 1L); // the thread has ended, and let go
}

void tst_Storage::measuredRecord()
{
    QFETCH(bool, mounted);
    QFETCH(QString, mountPoint);
    QFETCH(bool, hasFigures);
    StorageStatus status = record(0, 0, true, 11, 12); // what an earlier call found
    status.bIsPlugged = true;
    status.bIsMounted = mounted;
    measureStorage(status, "/home"_s, mountPoint);
    QVERIFY(status.diskAvail > 0);
    QCOMPARE(status.bIsUSBDPlugged, hasFigures);
    QCOMPARE(status.USBDAvail > 0, hasFigures);
    QVERIFY(status.USBDUsed != 11);
    QVERIFY(status.bIsPlugged);
    QCOMPARE(status.bIsMounted, mounted);
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
