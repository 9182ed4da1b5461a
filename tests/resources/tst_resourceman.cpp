// The resource manager: which part of which strip a state shows, which level a figure is, which address is
// ours.

#include "resourceman.h"

#include <QGuiApplication>
#include <QtTest>

#include <limits>
#include <sys/socket.h>

using R = CResourceMan;

namespace {

/** The states of a strip in the order of their numbers, the last one a number that is none. */
struct Strip
{
    const char* name;
    QPixmap (*get)(int state);
    QSize size;
    QVector<QPoint> places; // left and top in the strip; `none` for no picture
    QHash<int, int> wider = {}; // pixels by which a state is
};

const QPoint none(-1, -1);
constexpr QSize button(60, 60), small(20, 20);

template <typename State, QPixmap (*get)(State)> QPixmap of(int state)
{
    return get(State(state));
}

const Strip strips[] = {
    {"TB_HOME_3states", of<R::HomeStatus, R::getHomeStatus>, button, {{60, 0}, {0, 0}, {120, 0}, {0, 0}}},
    {"TB_close_3states", of<R::CloseStatus, R::getCloseStatus>, button, {{60, 0}, {0, 0}, {120, 0}, {0, 0}}},
    {"app_status-280X180", of<R::AppStatus, R::getAppStatus>, {70, 60},
        {{0, 0}, {70, 0}, {0, 120}, {70, 120}, {0, 60}, {70, 60}, {140, 0}, {210, 0}, none, {0, 0}}},
    {"BB_PORTBTN_3states", of<R::PortStatus, R::getPortStatus>, {138, 17},
        {{1, 1}, {141, 1}, {281, 1}, {1, 1}}, {{0, 1}, {3, 1}}},
    {"TB_DIG_LOCK_2states", [](int state) { return R::getUIStatus(R::UIStatus(state)).pixmap(44); }, {44, 44},
        {{0, 0}, {44, 0}, {0, 0}}},
    {"status-TB_lock", of<R::SystemUIStatus, R::getSystemUIStatus>, small, {{20, 0}, {0, 0}, none}},
    {"BB_ManNET_2states", of<R::SystemIPStatus, R::getSystemIPStatus>, small, {{0, 20}, {0, 0}, none}},
    {"BB_CLIAcc_2states", of<R::SystemCLIStatus, R::getSystemCLIStatus>, small, {{0, 20}, {0, 0}, none}},
    {"status-TB_bluetooth", of<R::SystemBluetoothStatus, R::getSystemBluetoothStatus>, small,
        {{0, 0}, {20, 0}, none}},
    {"status-TB_GPS", of<SystemGPSStatus, R::getSystemGPSStatus>, small,
        {{0, 0}, {20, 0}, {40, 0}, {60, 0}, none}, {{1, 2}}},
    {"MAIN_DataCard_ntb", of<SystemDataCardStatus, R::getSystemDataCardStatus>, {22, 22},
        {{0, 0}, {22, 0}, none}},
    {"status-TB_help", of<R::SystemHelpStatus, R::getSystemHelpStatus>, {22, 22}, {{0, 0}, none}},
    {"status-TB_atomic-clock", of<R::SystemAtomicClockStatus, R::getSystemAtomicClockStatus>, small,
        {{0, 0}, {20, 0}, {20, 0}, none}},
    {"status-TB_OPM", of<R::SystemOPMStatus, R::getSystemOPMStatus>, small, {{0, 0}, {20, 0}, {40, 0}, none}},
    {"status-TB_USB-disk", of<R::SystemUSBDiskStatus, R::getSystemUSBDiskStatus>, small,
        {{0, 0}, {20, 0}, none}},
    {"status-TB_Wifi", of<R::SystemWIFIStatus, R::getSystemWIFIStatus>, small,
        {{0, 0}, {20, 0}, {40, 0}, none}},
    {"status-TB_battery", of<R::BatteryStatus, R::getSystemBatteryStatus>, small,
        {{0, 0}, {20, 0}, {40, 0}, {60, 0}, {80, 0}, {100, 0}, {120, 0}, {140, 0}, {160, 0}, {180, 0},
            {200, 0}, {220, 0}, {0, 0}}},
};

/** The tops of the rows that the touch buttons of the states show: released, pressed, selected. */
struct ButtonStrip
{
    const char* name;
    R::IconStatus (*get)(int state);
    QVector<int> tops;
};

const ButtonStrip buttonStrips[] = {
    {"TB_BATT_12states", [](int state) { return R::getBatteryStatus(R::BatteryStatus(state)); },
        {0, 60, 120, 180, 240, 300, 360, 420, 480, 540, 600, 660, 0}},
    {"TB_STORAGE_8states", [](int state) { return R::getStorageStatus(R::StorageStatus(state)); },
        {360, 420, 240, 300, 120, 180, 0, 60, 0, 60, 0}},
};

QImage plain(const QImage& image)
{
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage strip(const char* name)
{
    return plain(QImage(QStringLiteral(":/images/%1.png").arg(QString::fromLatin1(name))));
}

using Addresses = QVector<CResourceMan::InterfaceAddress>;

CResourceMan::InterfaceAddress ip4(const char* name, const char* address)
{
    return {QString::fromLatin1(name), AF_INET, QString::fromLatin1(address)};
}

} // namespace

Q_DECLARE_METATYPE(Addresses)

class TestResourceMan : public QObject
{
    Q_OBJECT

private slots:
    void everyStateShowsItsPart()
    {
        for (const Strip& each : strips) {
            const QImage whole = strip(each.name);
            for (int state = 0; state < each.places.size(); ++state) {
                const QImage shown = plain(each.get(state).toImage());
                const QByteArray what = each.name + QByteArray(" ") + QByteArray::number(state);
                QVERIFY2(shown.isNull() == (each.places[state] == none), what);
                if (shown.isNull())
                    continue;
                const QRect part(each.places[state], each.size + QSize(each.wider.value(state), 0));
                QVERIFY2(whole.rect().contains(part) && shown == whole.copy(part), what);
            }
        }
        for (const ButtonStrip& each : buttonStrips) {
            const QImage whole = strip(each.name);
            for (int state = 0; state < each.tops.size(); ++state) {
                const R::IconStatus icons = each.get(state);
                int left = 0;
                for (const QPixmap& shown : {icons.icoNormal, icons.icoPress, icons.icoSelect}) {
                    QVERIFY2(plain(shown.toImage()) == whole.copy(left, each.tops[state], 60, 60), each.name);
                    left += 60;
                }
            }
        }
    }

    void otherPictures()
    {
        const char* folders[] = {"folder-blue", "Lock_status", "Unlock_status", "folder-blue"};
        for (int state = 0; state < 4; ++state)
            QCOMPARE(plain(R::getFolderStatus(R::FolderStatus(state)).toImage()), strip(folders[state]));
        QStringList colors;
        for (int code = 0; R::getColor(R::ColorCode(code)).isValid(); ++code)
            colors << R::getColor(R::ColorCode(code)).name();
        QCOMPARE(colors.join(QLatin1Char(' ')),
            QStringLiteral("#635e80 #777777 #777777 #b5c7e8 #b0b0b0 #000000 #ffffff #a0a0a4"));
        QCOMPARE(R::getBatteryStatus(50, 100, true).icoNormal.toImage(),
            R::getBatteryStatus(R::BAT_50PER_DISCHARGED).icoNormal.toImage());
        QCOMPARE(R::getStorageStatus(76, 100, true).icoNormal.toImage(),
            R::getStorageStatus(R::USB_DISK_USED_RATIO_100).icoNormal.toImage());
    }

    void batteryLevel_data()
    {
        QTest::addColumn<int>("remain");
        QTest::addColumn<int>("full");
        QTest::addColumn<int>("charged");
        constexpr int most = std::numeric_limits<int>::max();
        QTest::newRow("100") << 100 << 100 << int(R::BAT_FULLY_CHARGED);
        QTest::newRow("99") << 99 << 100 << int(R::BAT_80PER_CHARGED);
        QTest::newRow("40") << 40 << 100 << int(R::BAT_50PER_CHARGED);
        QTest::newRow("39") << 39 << 100 << int(R::BAT_20PER_CHARGED);
        QTest::newRow("8") << 8 << 100 << int(R::BAT_LT20PER_CHARGED);
        QTest::newRow("7") << 7 << 100 << int(R::BAT_EMPTY_CHARGED);
        QTest::newRow("large") << most / 2 + 1 << most << int(R::BAT_50PER_CHARGED);
    }

    void batteryLevel()
    {
        QFETCH(int, remain);
        QFETCH(int, full);
        QFETCH(int, charged);
        QCOMPARE(int(R::getSystemBatteryStatus(remain, full, false)), charged);
        QCOMPARE(int(R::getSystemBatteryStatus(remain, full, true)), charged + 1);
    }

    void batteryOfUnknownCapacity()
    {
        for (int full : {0, -1}) {
            QCOMPARE(R::getSystemBatteryStatus(50, full, true), R::BAT_EMPTY_DISCHARGED);
            QCOMPARE(R::getSystemBatteryStatus(50, full, false), R::BAT_FULLY_CHARGED);
        }
    }

    void storageLevel_data()
    {
        QTest::addColumn<int>("used");
        QTest::addColumn<int>("total");
        QTest::addColumn<int>("internal");
        QTest::newRow("0") << 0 << 100 << int(R::DISK_USED_RATIO_0);
        QTest::newRow("25.9 truncates") << 259 << 1000 << int(R::DISK_USED_RATIO_0);
        QTest::newRow("50") << 50 << 100 << int(R::DISK_USED_RATIO_50);
        QTest::newRow("51") << 51 << 100 << int(R::DISK_USED_RATIO_75);
        QTest::newRow("64 GB disk") << 20000000 << 64000000 << int(R::DISK_USED_RATIO_50);
        QTest::newRow("no total") << 10 << 0 << int(R::DISK_USED_RATIO_100);
    }

    void storageLevel()
    {
        QFETCH(int, used);
        QFETCH(int, total);
        QFETCH(int, internal);
        QCOMPARE(int(R::storageLevel(used, total, false)), internal);
        QCOMPARE(int(R::storageLevel(used, total, true)), internal + 1);
    }

    void localAddress_data()
    {
        QTest::addColumn<Addresses>("addresses");
        QTest::addColumn<QString>("expected");
        const QString local = QStringLiteral("127.0.0.1");
        const auto lo = ip4("lo", "127.0.0.1");
        const auto wired = ip4("eth0", "192.168.1.20");
        const auto wireless = ip4("wlan0", "10.0.0.7");
        QTest::newRow("nothing") << Addresses() << local;
        QTest::newRow("loopback and USB link") << Addresses{lo, ip4("usb0", "10.1.1.1")} << local;
        QTest::newRow("tunnel") << Addresses{ip4("tap0", "10.8.0.1"), ip4("vtap", "10.8.0.2")} << local;
        QTest::newRow("wired first") << Addresses{lo, wired, wireless} << QStringLiteral("192.168.1.20");
        QTest::newRow("wireless first") << Addresses{lo, wireless, wired} << QStringLiteral("10.0.0.7");
        QTest::newRow("only IPv4") << Addresses{{QStringLiteral("eth0"), AF_PACKET, QString()},
            {QStringLiteral("eth0"), AF_INET6, QStringLiteral("fe80::1")}, wireless}
                                   << QStringLiteral("10.0.0.7");
    }

    void localAddress()
    {
        QFETCH(Addresses, addresses);
        QFETCH(QString, expected);
        QCOMPARE(R::chooseLocalAddress(addresses), expected);
    }

    void localAddressOfThisMachine()
    {
        const QRegularExpression dotted(QStringLiteral("^\\d{1,3}(\\.\\d{1,3}){3}$"));
        QVERIFY(dotted.match(R::getLocalIP()).hasMatch());
    }
};

// Pictures need a platform, but no display.
int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    TestResourceMan test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_resourceman.moc"
