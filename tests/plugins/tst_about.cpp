#include "pluginhost.h"
#include "systemfacts.h"
#include "widgets/pushbutton/pushbutton.h"

#include <QMap>

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <iterator>
#include <list>
#include <net/if.h>
#include <netinet/in.h>

namespace {

using Rows = QVector<QPair<QString, QString>>;

/** The rows seen at present, from top to bottom. */
Rows visibleRows(CWidget* page)
{
    QMap<int, QPair<QString, QString>> byTop;
    for (CLabel* name : page->findChildren<CLabel*>(QStringLiteral("name"))) {
        if (name->isVisible())
            byTop[name->mapTo(page, QPoint()).y()]
                = {name->text(), name->parentWidget()->findChild<CLabel*>(QStringLiteral("value"))->text()};
    }
    return byTop.values().toVector();
}

void goToFirstPage(CWidget* page)
{
    auto* up = page->findChild<CPushButton*>(QStringLiteral("up"));
    while (up->isVisible() && up->isEnabled())
        up->click();
}

/** The rows of all pages, by way of the buttons. */
Rows allRows(CWidget* page)
{
    auto* down = page->findChild<CPushButton*>(QStringLiteral("down"));
    goToFirstPage(page);
    Rows rows = visibleRows(page);
    while (down->isVisible() && down->isEnabled()) {
        down->click();
        rows += visibleRows(page);
    }
    return rows;
}

QString valueOf(const Rows& rows, const char* name)
{
    for (const auto& row : rows) {
        if (row.first == QLatin1String(name))
            return row.second;
    }
    return QStringLiteral("no such row");
}

QByteArray contentOf(const char* fileName)
{
    QFile file(QString::fromLatin1(fileName));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** A number of "/proc/meminfo" in MiB. */
double mebibytes(const char* key)
{
    for (const QByteArray& line : contentOf("/proc/meminfo").split('\n')) {
        if (line.startsWith(key))
            return line.simplified().split(' ').value(1).toDouble() / 1024;
    }
    return -1;
}

/** Seconds of "[D d ]hh:mm:ss". */
qint64 secondsOf(const QString& text)
{
    const QRegularExpression form(QStringLiteral("^(?:(\\d+) d )?(\\d\\d):(\\d\\d):(\\d\\d)$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return -1;
    return ((match.captured(1).toLongLong() * 24 + match.captured(2).toLongLong()) * 60
               + match.captured(3).toLongLong())
        * 60
        + match.captured(4).toLongLong();
}

qint64 uptime()
{
    return static_cast<qint64>(contentOf("/proc/uptime").split(' ').first().toDouble());
}

} // namespace

/** What the system tells about one address. */
struct Entry
{
    const char* name;
    unsigned flags;
    sa_family_t family;
    const char* address;
};

Q_DECLARE_METATYPE(QVector<Entry>)

class TestAbout : public QObject
{
    Q_OBJECT

private slots:
    void trueValues();
    void addresses_data();
    void addresses();
    void rowsOfAddresses();
    void rowsGoToFurtherPages();
    void readsOnlyWhileVisible();

private:
    static void open(CPluginHost& host);
};

void TestAbout::open(CPluginHost& host)
{
    QVERIFY2(host.plugin, host.error().constData());
    QVERIFY(host.plugin->start(&host.window));
    host.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host.window));
}

void TestAbout::trueValues()
{
    CPluginHost host(PLUGIN_FILE);
    open(host);
    const qint64 before = uptime();
    host.plugin->update();
    const Rows rows = allRows(host.page());
    const qint64 shown = secondsOf(valueOf(rows, "Running for"));
    QVERIFY2(shown >= before && shown <= uptime(), qPrintable(valueOf(rows, "Running for")));

    QCOMPARE(valueOf(rows, "Shell version"), QStringLiteral(SHELL_VERSION));
    QCOMPARE(valueOf(rows, "Qt version"), QString::fromLatin1(qVersion()));
    const QByteArray release = contentOf("/proc/sys/kernel/osrelease").trimmed();
    QCOMPARE(valueOf(rows, "Kernel"), QStringLiteral("Linux ") + QString::fromLatin1(release));
    QCOMPARE(valueOf(rows, "Version of this page"), host.plugin->getPluginVersion());

    const struct
    {
        const char* row;
        const char* key;
        double tolerance; // of other processes at work meanwhile
    } memory[] = {{"Memory", "MemTotal:", 1}, {"Memory free", "MemFree:", mebibytes("MemTotal:") / 20},
        {"Memory available", "MemAvailable:", mebibytes("MemTotal:") / 20}};
    for (const auto& entry : memory) {
        const QString text = valueOf(rows, entry.row);
        QVERIFY2(text.endsWith(QLatin1String(" MiB")), qPrintable(text));
        const double difference = text.section(QLatin1Char(' '), 0, 0).toDouble() - mebibytes(entry.key);
        QVERIFY2(std::abs(difference) <= entry.tolerance, qPrintable(text));
    }
}

void TestAbout::addresses_data()
{
    QTest::addColumn<QVector<Entry>>("entries");
    QTest::addColumn<QStringList>("shown");
    const unsigned up = IFF_UP;
    const Entry loopback4{"lo", up | IFF_LOOPBACK, AF_INET, "127.0.0.1"};
    const Entry loopback6{"lo", up | IFF_LOOPBACK, AF_INET6, "::1"};
    QTest::newRow("loopback alone") << QVector<Entry>{loopback4, loopback6} << QStringList();
    QTest::newRow("by interface, and IPv4 first")
        << QVector<Entry>{loopback4, {"eth0", up, AF_INET6, "fe80::1"}, {"wlan0", up, AF_INET, "192.0.2.7"},
               {"eth0", up, AF_PACKET, nullptr}, {"eth0", up, AF_INET, "192.0.2.2"},
               {"eth0", up, AF_INET6, "2001:db8::2"}}
        << QStringList{QStringLiteral("eth0 4 192.0.2.2"), QStringLiteral("eth0 6 fe80::1"),
               QStringLiteral("eth0 6 2001:db8::2"), QStringLiteral("wlan0 4 192.0.2.7")};
    QTest::newRow("without an address, and down") << QVector<Entry>{{"eth0", up, AF_PACKET, nullptr},
        {"wlan0", 0, AF_INET, "192.0.2.7"}} << QStringList{QStringLiteral("eth0 0 ")};
}

void TestAbout::addresses()
{
    QFETCH(QVector<Entry>, entries);
    std::list<sockaddr_storage> places;
    std::list<ifaddrs> list;
    for (const Entry& entry : entries) {
        sockaddr_storage& place = places.emplace_back();
        place.ss_family = entry.family;
        if (entry.family == AF_INET)
            inet_pton(AF_INET, entry.address, &reinterpret_cast<sockaddr_in&>(place).sin_addr);
        else if (entry.family == AF_INET6)
            inet_pton(AF_INET6, entry.address, &reinterpret_cast<sockaddr_in6&>(place).sin6_addr);
        ifaddrs link{};
        link.ifa_name = const_cast<char*>(entry.name);
        link.ifa_flags = entry.flags;
        link.ifa_addr = reinterpret_cast<sockaddr*>(&place);
        list.push_back(link);
        if (list.size() > 1)
            std::prev(list.end(), 2)->ifa_next = &list.back();
    }
    const int numbers[] = {0, 4, 6};
    QStringList shown;
    for (const InterfaceAddress& address : addressesOf(list.empty() ? nullptr : &list.front()))
        shown << QStringLiteral("%1 %2 %3")
                     .arg(address.interfaceName, QString::number(numbers[address.family]), address.address);
    QTEST(shown, "shown");
}

/** Whatever this machine has: its loopback interface alone is enough for a row. */
void TestAbout::rowsOfAddresses()
{
    CPluginHost host(PLUGIN_FILE);
    open(host);
    int found = 0;
    for (const auto& row : allRows(host.page())) {
        const bool is4 = row.first.startsWith(QStringLiteral("IPv4 address of "));
        const bool is6 = row.first.startsWith(QStringLiteral("IPv6 address of "));
        const bool isNone = row.second == QStringLiteral("none");
        found += is4 || is6 || isNone;
        QVERIFY(!is4 || QRegularExpression(QStringLiteral("^[0-9.]+$")).match(row.second).hasMatch());
        QVERIFY(!is6 || row.second.contains(QLatin1Char(':')));
        QVERIFY(!isNone || row.first.contains(QStringLiteral("ddress")));
        QVERIFY2(row.second != QStringLiteral("127.0.0.1") && row.second != QStringLiteral("::1"),
            qPrintable(row.first));
    }
    QVERIFY(found > 0);
}

void TestAbout::rowsGoToFurtherPages()
{
    CPluginHost host(PLUGIN_FILE);
    open(host);
    const auto names = [&host] {
        QStringList found;
        for (const auto& row : allRows(host.page()))
            found << row.first;
        return found;
    };
    const QStringList all = names();
    host.page()->resize(640, 160); // four rows a page
    QVERIFY(visibleRows(host.page()).size() < 5);
    QCOMPARE(names(), all);
}

void TestAbout::readsOnlyWhileVisible()
{
    CPluginHost host(PLUGIN_FILE);
    open(host);
    const auto shown = [&host] { return secondsOf(valueOf(visibleRows(host.page()), "Running for")); };
    const qint64 first = shown();
    QTRY_VERIFY_WITH_TIMEOUT(shown() >= first + 2, 10000);

    // Without the page's timer nothing but a show event reads again.
    host.plugin->hide();
    auto* name = host.page()->findChild<CLabel*>(QStringLiteral("name"));
    name->setText(QStringLiteral("stale"));
    const qint64 hidden = uptime();
    QTRY_VERIFY_WITH_TIMEOUT(uptime() >= hidden + 3, 10000);
    QCOMPARE(name->text(), QStringLiteral("stale"));
    host.plugin->show();
    QCOMPARE(name->text(), QStringLiteral("Shell version"));
    QVERIFY(shown() >= hidden + 3);
}

QTEST_MAIN(TestAbout)
#include "tst_about.moc"
