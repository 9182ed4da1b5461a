#include "pluginhost.h"
#include "widgets/pushbutton/pushbutton.h"

#include <QMap>

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

class TestAbout : public QObject
{
    Q_OBJECT

private slots:
    void trueValues();
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
