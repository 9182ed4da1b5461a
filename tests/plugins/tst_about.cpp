#include "pluginhost.h"
#include "widgets/pushbutton/pushbutton.h"

#include <QMap>

#include <arpa/inet.h>
#include <ifaddrs.h>
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

class CPaintCounter : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints[watched];
        return false;
    }
    QHash<QObject*, int> paints;
};

} // namespace

class TestAbout : public QObject
{
    Q_OBJECT

private slots:
    void pageRules();
    void trueValues();
    void addresses();
    void furtherPages();
    void readsOnlyWhileVisible();
    void repaintsOnlyWhatChanged();
    void longTexts();

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

void TestAbout::pageRules()
{
    CPluginHost host(PLUGIN_FILE);
    checkPageRules(host);
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

void TestAbout::addresses()
{
    QStringList expected;
    ifaddrs* first = nullptr;
    QCOMPARE(::getifaddrs(&first), 0);
    QSet<QString> withAddress;
    QSet<QString> up;
    for (const ifaddrs* entry = first; entry; entry = entry->ifa_next) {
        if (!(entry->ifa_flags & IFF_UP))
            continue;
        const QString name = QString::fromLatin1(entry->ifa_name);
        up << name;
        const int family = entry->ifa_addr ? entry->ifa_addr->sa_family : AF_UNSPEC;
        if (family != AF_INET && family != AF_INET6)
            continue;
        withAddress << name;
        char text[INET6_ADDRSTRLEN];
        const void* bytes = family == AF_INET
            ? static_cast<void*>(&reinterpret_cast<sockaddr_in*>(entry->ifa_addr)->sin_addr)
            : static_cast<void*>(&reinterpret_cast<sockaddr_in6*>(entry->ifa_addr)->sin6_addr);
        expected << QStringLiteral("Address of %1").arg(name) + QLatin1Char('=')
                + QString::fromLatin1(::inet_ntop(family, bytes, text, sizeof text));
    }
    ::freeifaddrs(first);
    for (const QString& name : up - withAddress)
        expected << QStringLiteral("Address of %1=none").arg(name);

    CPluginHost host(PLUGIN_FILE);
    open(host);
    QStringList shown;
    for (const auto& row : allRows(host.page())) {
        if (row.first.startsWith(QLatin1String("Address of ")))
            shown << row.first + QLatin1Char('=') + row.second;
    }
    keepPicture(host.page(), QStringLiteral("about-last-page"));
    expected.sort();
    shown.sort();
    QCOMPARE(shown, expected);
}

void TestAbout::furtherPages()
{
    CPluginHost host(PLUGIN_FILE);
    open(host);
    CWidget* page = host.page();
    const auto namesOf = [](const Rows& rows) {
        QStringList names;
        for (const auto& row : rows)
            names << row.first;
        return names;
    };
    const QStringList names = namesOf(allRows(page));
    page->resize(640, 170); // as if there were many more rows
    goToFirstPage(page);
    QCOMPARE(visibleRows(page).size(), 4);
    checkLayout(page);
    auto* up = page->findChild<CPushButton*>(QStringLiteral("up"));
    auto* down = page->findChild<CPushButton*>(QStringLiteral("down"));
    QVERIFY(up->isVisible() && down->isVisible());
    QVERIFY(!up->isEnabled());
    QTest::mouseClick(down, Qt::LeftButton);
    QCOMPARE(visibleRows(page).first().first, names.at(4));
    QVERIFY(up->isEnabled());
    keepPicture(page, QStringLiteral("about-second-page"));
    QTest::mouseClick(up, Qt::LeftButton);
    QCOMPARE(visibleRows(page).first().first, names.at(0));
    QCOMPARE(namesOf(allRows(page)), names);
    QVERIFY(!down->isEnabled());
    page->resize(640, 1000); // the last page is no longer there
    QCOMPARE(namesOf(visibleRows(page)), names);
    QVERIFY(!up->isVisible() && !down->isVisible());
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

void TestAbout::repaintsOnlyWhatChanged()
{
    CPluginHost host(PLUGIN_FILE);
    open(host);
    QCoreApplication::processEvents();
    CPaintCounter counter;
    QHash<QObject*, QString> texts;
    for (CLabel* label : host.page()->findChildren<CLabel*>()) {
        label->installEventFilter(&counter);
        texts[label] = label->text();
    }
    const qint64 start = uptime();
    QTRY_VERIFY_WITH_TIMEOUT(uptime() >= start + 3, 10000);
    int repainted = 0;
    for (auto label = texts.constBegin(); label != texts.constEnd(); ++label) {
        const bool isUnchanged = static_cast<CLabel*>(label.key())->text() == label.value();
        // Memory may have changed and come back; what never changes must not be painted again.
        if (isUnchanged && !label.value().contains(QLatin1String(" MiB")))
            QVERIFY2(counter.paints.value(label.key()) == 0, qPrintable(label.value()));
        repainted += counter.paints.value(label.key()) > 0;
    }
    QVERIFY(repainted >= 1); // the time since start-up
}

void TestAbout::longTexts()
{
    CPluginHost host(PLUGIN_FILE);
    open(host);
    keepPicture(host.page(), QStringLiteral("about"));
    checkLayout(host.page());
    CLongTexts translator; // also removes itself
    QCoreApplication::installTranslator(&translator);
    host.plugin->update();
    keepPicture(host.page(), QStringLiteral("about-long"));
    checkLayout(host.page());
    const Rows rows = visibleRows(host.page());
    QVERIFY(rows.first().first.endsWith(QLatin1String("Text"))); // taken over while open
    QCoreApplication::removeTranslator(&translator);
    host.plugin->update();
    QCOMPARE(visibleRows(host.page()).first().first, QStringLiteral("Shell version"));
}

QTEST_MAIN(TestAbout)
#include "tst_about.moc"
