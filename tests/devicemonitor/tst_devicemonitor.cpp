#include "childreaper.h"
#include "devicemonitor.h"
#include "systemsettings.h"
#include "testfiles.h"
#include "usbdmonitor.h"

#include <csignal>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>

#include "backend.h"

namespace {

// A sanitizer makes every fork slow and keeps freed memory for a while.
#ifdef __SANITIZE_ADDRESS__
constexpr int ManyCycles = 300;
constexpr long PageLimit = 65536;
#else
constexpr int ManyCycles = 10000;
constexpr long PageLimit = 256; // 1 MiB
#endif

constexpr int FreeRun = 1 << 20; // more permits than any test has cycles

const QStringList AllSignals = {"power"_s, "bluetooth"_s, "storage"_s, "wifi"_s, "opm"_s, "gps"_s, "card"_s};

/** What a monitor has told, in the order in which it did. */
class CRecord : public QObject
{
public:
    explicit CRecord(CDeviceMonitor* monitor)
    {
        using Monitor = CDeviceMonitor;
        note(monitor, &Monitor::powerStatusChanged, "power"_s, power);
        note(monitor, &Monitor::bluetoothStatusChanged, "bluetooth"_s, bluetooth);
        note(monitor, &Monitor::storageStatusChanged, "storage"_s, storage);
        note(monitor, &Monitor::wifiStatusChanged, "wifi"_s, wifi);
        note(monitor, &Monitor::opmStatusChanged, "opm"_s, opm);
        note(monitor, &Monitor::gpsStatusChanged, "gps"_s, gps);
        note(monitor, &Monitor::dataCardStatusChanged, "card"_s, card);
    }

    QStringList names;
    PowerStatus power;
    BluetoothStatus bluetooth;
    StorageStatus storage;
    WIFIStatus wifi;
    OPMStatus opm;
    GPSStatus gps;
    DataCardStatus card;

private:
    template <typename Status>
    void note(CDeviceMonitor* monitor, void (CDeviceMonitor::*changed)(const Status&), const QString& name,
        Status& last)
    {
        connect(monitor, changed, this, [this, name, &last](const Status& status) {
            names << name;
            last = status;
        });
    }
};

/** A unit on which some inquiries fail, and which notes what is asked of the USB disk. */
class CTroubledMonitor : public CDeviceMonitor
{
public:
    QStringList failing;
    QStringList hookCalls;
    std::function<void()> duringHook = [] {};

    bool inquirePowerStatus(PowerStatus*) override { return works("power"_s); }
    bool inquireBluetoothStatus(BluetoothStatus*) override { return works("bluetooth"_s); }
    bool inquireStorageStatus(StorageStatus*) override { return works("storage"_s); }
    bool inquireWIFIStatus(WIFIStatus*) override { return works("wifi"_s); }
    bool inquireOPMStatus(OPMStatus*) override { return works("opm"_s); }
    bool inquireGPSStatus(GPSStatus*) override { return works("gps"_s); }
    bool inquireDataCardStatus(DataCardStatus*) override { return works("card"_s); }
    void onMountUSBDisk(bool mount) override
    {
        hookCalls << (mount ? "mount"_s : "umount"_s);
        duringHook();
    }

private:
    bool works(const QString& name) const { return !failing.contains(name); }
};

/** Puts a program of its own in front of the real "iwconfig". */
class CFakeIwconfig
{
public:
    explicit CFakeIwconfig(const QByteArray& script)
        : m_path(qgetenv("PATH"))
    {
        const QString program = m_directory.filePath("iwconfig"_s);
        writeFile(program, script);
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", QFile::encodeName(m_directory.path()) + ':' + m_path);
    }
    ~CFakeIwconfig() { qputenv("PATH", m_path); }
    CFakeIwconfig(const CFakeIwconfig&) = delete;
    CFakeIwconfig& operator=(const CFakeIwconfig&) = delete;

private:
    QTemporaryDir m_directory;
    QByteArray m_path;
};

long residentPages()
{
    return readFile("/proc/self/statm"_s).split(' ').value(1).toLong();
}

} // namespace

class tst_DeviceMonitor : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void oneCycle();
    void settings_data();
    void settings();
    void failures_data();
    void failures();
    void requests_data();
    void requests();
    void requestDuringTheHook();
    void usbDaemonAway();
    void laterUsbRequestCounts();
    void iwconfigOutput_data();
    void iwconfigOutput();
    void stopEndsTheWait();
    void manyCycles();
};

void tst_DeviceMonitor::initTestCase()
{
    REQUIRE_INSTRUMENT();
    QCoreApplication::setOrganizationName("tst_devicemonitor"_s);
    CSystemSettings::globalSettings();
    registerStatusTypes();
}

void tst_DeviceMonitor::cleanup()
{
    QVERIFY(simctl("usb unplug"_s));
    QVERIFY(simctl("wifi off"_s));
    QFile::remove(QLatin1String(CUsbdMonitor::MountRequest));
    QFile::remove(QLatin1String(CUsbdMonitor::UmountRequest));
}

void tst_DeviceMonitor::oneCycle()
{
    QVERIFY(simctl("wifi link 63"_s));
    QVERIFY(simctl("usb mount"_s));
    CDeviceMonitor monitor;
    CRecord record(&monitor);
    monitor.runCycle();
    QCOMPARE(record.names, AllSignals);
    QVERIFY(!record.power.bIsBat && !record.power.bNotBatAndNotAC);
    QCOMPARE(record.power.fullCap, -1);
    QCOMPARE(record.power.remainCap, -1);
    QVERIFY(record.wifi.bIsPlugged && record.wifi.bIsConnected);
    QCOMPARE(record.wifi.signalStrength, 63);
    QCOMPARE(record.wifi.mode, "Managed"_s);
    QVERIFY(record.storage.bIsPlugged && record.storage.bIsMounted);

    QVERIFY(simctl("wifi idle"_s));
    monitor.runCycle();
    QCOMPARE(record.names, AllSignals + AllSignals);
    QVERIFY(record.wifi.bIsPlugged && !record.wifi.bIsConnected);
    QCOMPARE(record.wifi.signalStrength, 0);
    QCOMPARE(record.wifi.bssid, QString());

    QVERIFY(simctl("wifi off"_s));
    monitor.runCycle();
    QVERIFY(!record.wifi.bIsPlugged && !record.wifi.bIsConnected);
    QCOMPARE(record.wifi.mode, QString());
}

void tst_DeviceMonitor::settings_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("gps");
    QTest::addColumn<int>("card");
    const int gpsOff = SysStsGPSOff;
    const int cardOff = SysStsDataCardOff;
    QTest::newRow("1") << QVariant(1) << 1 << 1;
    QTest::newRow("3, off only for the GPS") << QVariant(3) << 3 << cardOff;
    QTest::newRow("below") << QVariant(-1) << gpsOff << cardOff;
    QTest::newRow("no number") << QVariant("on"_s) << gpsOff << cardOff;
}

void tst_DeviceMonitor::settings()
{
    QFETCH(QVariant, value);
    CSystemSettings::globalSettings()->setAttribute(CSystemSettings::GPS_State_ON, value, false);
    CSystemSettings::globalSettings()->setAttribute(CSystemSettings::AttrDataCard, value, false);
    CDeviceMonitor monitor;
    GPSStatus gpsStatus;
    DataCardStatus cardStatus;
    QVERIFY(monitor.inquireGPSStatus(&gpsStatus));
    QVERIFY(monitor.inquireDataCardStatus(&cardStatus));
    QTEST(static_cast<int>(gpsStatus.m_eGPSStatus), "gps");
    QTEST(static_cast<int>(cardStatus.m_eDataCardStatus), "card");
}

void tst_DeviceMonitor::failures_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("power") << QByteArray();
    QTest::newRow("bluetooth") << QByteArray("Inquire bluetooth status failed");
    QTest::newRow("storage") << QByteArray("Inquire storage status failed");
    QTest::newRow("wifi") << QByteArray("Inquire WIFI status failed");
    QTest::newRow("opm") << QByteArray("Inquire OPM status failed");
    QTest::newRow("gps") << QByteArray();
    QTest::newRow("card") << QByteArray("Inquire GPS status failed");
}

void tst_DeviceMonitor::failures()
{
    QFETCH(QByteArray, message);
    const QString device = QString::fromLatin1(QTest::currentDataTag());
    CTroubledMonitor monitor;
    monitor.failing << device;
    CRecord record(&monitor);
    if (!message.isEmpty())
        QTest::ignoreMessage(QtDebugMsg, message.constData());
    monitor.runCycle();
    QStringList expected = AllSignals;
    expected.removeAll(device);
    QCOMPARE(record.names, expected);
}

void tst_DeviceMonitor::requests_data()
{
    QTest::addColumn<QStringList>("requests");
    QTest::addColumn<QString>("call");
    QTest::newRow("mount") << QStringList{"mount"_s} << "mount"_s;
    QTest::newRow("release") << QStringList{"umount"_s} << "umount"_s;
    QTest::newRow("mount twice") << QStringList{"mount"_s, "mount"_s} << "mount"_s;
    QTest::newRow("mount over release") << QStringList{"umount"_s, "mount"_s} << "mount"_s;
}

void tst_DeviceMonitor::requests()
{
    QFETCH(QStringList, requests);
    QFETCH(QString, call);
    CTroubledMonitor monitor;
    CRecord record(&monitor);
    for (const QString& request : qAsConst(requests)) {
        if (request == "mount"_s)
            monitor.mountUSBDisk();
        else
            monitor.umountUSBDisk();
    }
    QCOMPARE(monitor.hookCalls, QStringList());
    monitor.runCycle();
    QCOMPARE(monitor.hookCalls, QStringList{call});
    QCOMPARE(record.names, QStringList());
    monitor.runCycle();
    QCOMPARE(monitor.hookCalls, QStringList{call});
    QCOMPARE(record.names, AllSignals);
}

void tst_DeviceMonitor::requestDuringTheHook()
{
    CTroubledMonitor monitor;
    monitor.duringHook = [&monitor] {
        if (monitor.hookCalls.size() == 1)
            monitor.umountUSBDisk();
    };
    monitor.mountUSBDisk();
    monitor.runCycle();
    monitor.runCycle();
    const QStringList both = {"mount"_s, "umount"_s};
    QCOMPARE(monitor.hookCalls, both);
}

void tst_DeviceMonitor::usbDaemonAway()
{
    const QString directory = QLatin1String(CUsbdMonitor::Directory);
    const QString aside = directory + "-aside"_s;
    QVERIFY(QDir().rename(directory, aside));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Can not ask the USB daemon: .*req-mount"_s));
    CUsbdMonitor().onMountUSBDisk(true);
    QVERIFY(QDir().rename(aside, directory));

    // A link left in the directory does not make the shell write elsewhere.
    const QString elsewhere = "/tmp/elsewhere"_s;
    QVERIFY(QFile::link(elsewhere, QLatin1String(CUsbdMonitor::MountRequest)));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Can not ask the USB daemon: .*req-mount"_s));
    CUsbdMonitor().onMountUSBDisk(true);
    QVERIFY(!QFile::exists(elsewhere));
    // A pipe that nobody reads does not hold the thread.
    const QByteArray request = CUsbdMonitor::UmountRequest;
    QCOMPARE(::mkfifo(request.constData(), 0600), 0);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Can not ask the USB daemon: .*req-umount"_s));
    CUsbdMonitor().onMountUSBDisk(false);
    QVERIFY(QFile::remove(QString::fromLatin1(request)));
}

void tst_DeviceMonitor::laterUsbRequestCounts()
{
    // Asked for while the daemon takes up nothing: it must not find both.
    const QString requests[]
        = {QLatin1String(CUsbdMonitor::MountRequest), QLatin1String(CUsbdMonitor::UmountRequest)};
    CUsbdMonitor monitor;
    for (const bool mount : {true, false, true}) {
        monitor.onMountUSBDisk(mount);
        QCOMPARE(QFile::exists(requests[0]), mount);
        QCOMPARE(QFile::exists(requests[1]), !mount);
    }
}

void tst_DeviceMonitor::iwconfigOutput_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<bool>("plugged");
    QTest::addColumn<bool>("connected");
    QTest::addColumn<int>("strength");
    const QByteArray sh = "#!/bin/sh\n";
    QTest::newRow("nothing") << sh + "exit 3\n" << false << false << 0;
    QTest::newRow("killed") << sh + "echo 'Access Point: 02:1A'; kill -9 $$\n" << true << true << 0;
    QTest::newRow("on standard error")
        << sh + "echo 'Link Quality=9/100' >&2; echo 'wlan0 No such device' >&2; echo 'Link Quality=8/100'\n"
        << false << false << 9;
    QTest::newRow("no line end") << sh + "printf 'Link Quality=41/70'\n" << false << false << 41;
    QTest::newRow("binary") << sh
            + "printf '\\000\\377\\376\\000'; head -c 65536 /dev/urandom | tr 'A-Za-z' '\\000'; "
              "printf '\\nLink Quality=12/70\\000\\n'; exit 0\n"
                            << false << false << 12;
    QTest::newRow("a megabyte in one line") << sh
            + "printf 'Access Point: Not-Associated '; head -c 1048576 /dev/zero | tr '\\000' x; "
              "printf ' Link Quality=5/70\\nLink Quality=33/70'\n"
                                            << true << false << 33;
    QTest::newRow("hangs after the answer") << sh + "echo 'wlan0 No such device'; exec sleep 1000\n"
                                            << false << false << 0;
    QTest::newRow("closes its output and stays")
        << sh + "echo $$ >/tmp/stays; echo 'Access Point: x'; exec 1>&- 2>&-; exec sleep 1000\n"
        << true << true << 0;
    QTest::newRow("asks for a password")
        << sh + "read word && echo \"Link Quality=$word/70\"; echo 'Access Point: x'\n"
        << true << true << 0;
}

void tst_DeviceMonitor::iwconfigOutput()
{
    QFETCH(QByteArray, script);
    const CFakeIwconfig fake(script);
    CDeviceMonitor monitor;
    CRecord record(&monitor);
    monitor.runCycle();
    QCOMPARE(record.names, AllSignals);
    QTEST(record.wifi.bIsPlugged, "plugged");
    QTEST(record.wifi.bIsConnected, "connected");
    QTEST(record.wifi.signalStrength, "strength");
    // What stays would be one process more in each cycle.
    QFile stays("/tmp/stays"_s);
    if (stays.open(QIODevice::ReadOnly)) {
        const pid_t process = stays.readAll().trimmed().toInt();
        QVERIFY(process > 0);
        QTRY_VERIFY(::kill(process, 0) != 0);
        QVERIFY(stays.remove());
    }
}

void tst_DeviceMonitor::stopEndsTheWait()
{
    const ChildReaper reaper;
    auto monitor = std::make_unique<CTroubledMonitor>();
    QSignalSpy last(monitor.get(), &CDeviceMonitor::dataCardStatusChanged);
    monitor->start();
    QVERIFY(last.wait());
    QElapsedTimer timer;
    timer.start();
    monitor->stop();
    QVERIFY(monitor->isFinished());
    QVERIFY2(timer.elapsed() < qint64(CDeviceMonitor::CycleMs), "stop() sat out the wait between cycles");
    monitor->stop(); // once more does no harm

    monitor = std::make_unique<CTroubledMonitor>(); // one that was never started
    monitor->stop();
}

void tst_DeviceMonitor::manyCycles()
{
    SKIP_UNDER_PROOT("so many processes take minutes");
    constexpr int WarmUp = 200;
    QVERIFY(simctl("wifi link 63"_s));
    const ChildReaper reaper; // after simctl(): it needs the exit status
    std::atomic<int> cycles{0};
    QSemaphore mayGoOn;
    CDeviceMonitor monitor(nullptr, [&](unsigned long) {
        const int done = ++cycles;
        if (done == WarmUp || done == WarmUp + ManyCycles)
            mayGoOn.acquire();
    });
    const auto freed = qScopeGuard([&mayGoOn] { mayGoOn.release(FreeRun); });
    int told = 0;
    connect(&monitor, &CDeviceMonitor::wifiStatusChanged, this, [&told](const WIFIStatus& status) {
        if (status.signalStrength == 63)
            ++told;
    });
    monitor.start();
    QTRY_COMPARE_WITH_TIMEOUT(cycles.load(), WarmUp, 60000);
    const int descriptors = openDescriptors();
    const long pages = residentPages();
    rusage before = {}, after = {};
    ::getrusage(RUSAGE_SELF, &before);

    mayGoOn.release();
    QTRY_COMPARE_WITH_TIMEOUT(cycles.load(), WarmUp + ManyCycles, 240000);
    ::getrusage(RUSAGE_SELF, &after);
    QCOMPARE(openDescriptors(), descriptors);
    QVERIFY2(
        residentPages() - pages < PageLimit, qPrintable("grew by %1 pages"_s.arg(residentPages() - pages)));
    const auto micros = [](const timeval& time) { return time.tv_sec * 1000000.0 + time.tv_usec; };
    qInfo("%.0f us of processor time a cycle",
        (micros(after.ru_utime) + micros(after.ru_stime) - micros(before.ru_utime) - micros(before.ru_stime))
            / ManyCycles);
    mayGoOn.release(FreeRun);
    monitor.stop();
    QCoreApplication::processEvents();
    QVERIFY(told >= WarmUp + ManyCycles);
}

QTEST_GUILESS_MAIN(tst_DeviceMonitor)
#include "tst_devicemonitor.moc"
