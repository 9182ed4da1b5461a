#include "../system/shellprocess.h"
#include "xscreen.h"

#include <QFile>
#include <QTest>

#include <csignal>

namespace {

const QString TOOL = QStringLiteral("/usr/local/arvo/bin/orlo-clocksrc");

// What a person sees of the page: the accent line below a chosen tab.
const QColor ACCENT(102, 175, 255);
constexpr QPoint GENERAL_LINE(277, 115);
constexpr QPoint STORAGE_LINE(480, 115);
constexpr QPoint LIST_EDGE(481, 350); // of the open list, to its left

} // namespace

/** The real shell with a clock tool that takes its time. */
class TestSlowClock : public QObject
{
    Q_OBJECT

private slots:
    void touchesGoOn();
};

void TestSlowClock::touchesGoOn()
{
    const CXScreen screen;
    CShellProcess shell;
    QVERIFY2(shell.waitForHome(), qPrintable(shell.log()));
    QTRY_VERIFY(QFile::exists(QStringLiteral("/tmp/var/sim/clock-calls"))); // the start's own call
    QVERIFY(QFile::remove(TOOL));
    QFile tool(TOOL);
    QVERIFY(tool.open(QIODevice::WriteOnly));
    tool.write("#!/bin/sh\necho $$ >/tmp/tool-pid\nexec sleep 1000\n");
    QVERIFY(tool.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    tool.close();

    const auto touch = [&screen](const QPoint& at, const QPoint& shown) {
        const QColor before = screen.pixel(shown);
        screen.touch(at);
        QTRY_VERIFY_WITH_TIMEOUT(screen.pixel(shown) != before, 20000);
    };
    touch({80, 131}, {20, 179}); // Utilities
    touch({80, 179}, {500, 214}); // Settings
    touch({632, 214}, GENERAL_LINE); // Global
    touch({620, 420}, LIST_EDGE); // the clock source
    screen.touch({620, 380}); // its second row
    pid_t running = 0;
    const auto isStarted = [&running] {
        QFile file(QStringLiteral("/tmp/tool-pid"));
        running = file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toInt() : 0;
        return running > 0;
    };
    QTRY_VERIFY2(isStarted(), qPrintable(shell.log()));
    QTRY_VERIFY(screen.pixel(LIST_EDGE) != ACCENT);
    touch({480, 95}, STORAGE_LINE); // the next tab
    QCOMPARE(screen.pixel(STORAGE_LINE), ACCENT);
    QCOMPARE(::kill(running, 0), 0); // the shell did not wait for it
}

QTEST_GUILESS_MAIN(TestSlowClock)
#include "tst_slowclock.moc"
