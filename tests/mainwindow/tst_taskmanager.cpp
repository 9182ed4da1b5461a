#include "taskmanager.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

#include <sys/stat.h>

namespace {

const QString MARK_DIR = QStringLiteral("/tmp/var/lib/vnc");
const QString MARK_FILE = MARK_DIR + QStringLiteral("/srv-sessions");

void writeMark(const QByteArray& content)
{
    QFile file(MARK_FILE);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(content);
}

} // namespace

class TestTaskManager : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void startsOneUtility();
    void laterRequestTakesThePlace();
    void requestRightAfterTheSignalIsNotLost();
    void sessionCount_data();
    void sessionCount();
    void directoryChangeReportsTheCount();
    void pipeInPlaceOfTheMark();
    void directoryThatComesAgain_data();
    void directoryThatComesAgain();
};

void TestTaskManager::init()
{
    QDir(MARK_DIR).removeRecursively();
    QDir().mkpath(MARK_DIR);
}

void TestTaskManager::startsOneUtility()
{
    CTaskManager manager(nullptr);
    QSignalSpy started(&manager, &CTaskManager::utilStarted);
    manager.startUtil(65537);
    QVERIFY(started.isEmpty()); // the start window has its time first
    QVERIFY(started.wait());
    QCOMPARE(started.takeFirst().at(0).toInt(), 65537);
    QTRY_VERIFY(manager.isFinished());
    manager.startUtil(65538);
    QVERIFY(started.wait());
    QCOMPARE(started.takeFirst().at(0).toInt(), 65538);
}

void TestTaskManager::laterRequestTakesThePlace()
{
    CTaskManager manager(nullptr);
    QSignalSpy started(&manager, &CTaskManager::utilStarted);
    manager.startUtil(65537);
    manager.startUtil(65544);
    QVERIFY(started.wait());
    QTRY_VERIFY(manager.isFinished());
    QCOMPARE(started.size(), 1);
    QCOMPARE(started.first().at(0).toInt(), 65544);
}

void TestTaskManager::requestRightAfterTheSignalIsNotLost()
{
    CTaskManager manager(nullptr);
    QSignalSpy started(&manager, &CTaskManager::utilStarted);
    // From the worker thread, at the moment the first signal goes out: the thread has not ended then.
    QMetaObject::Connection once;
    once = connect(
        &manager, &CTaskManager::utilStarted, &manager,
        [&](int id) {
            if (id == 65537)
                manager.startUtil(65545);
        },
        Qt::DirectConnection);
    manager.startUtil(65537);
    QTRY_COMPARE(started.size(), 2);
    QCOMPARE(started.at(1).at(0).toInt(), 65545);
    disconnect(once);
}

void TestTaskManager::sessionCount_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("count");
    QTest::newRow("two") << QByteArray("2\n") << 2;
    QTest::newRow("first line only") << QByteArray("1\n7\n") << 1;
    QTest::newRow("no number") << QByteArray("many\n") << 0;
    QTest::newRow("binary") << QByteArray("\0\xff\x01", 3) << 0;
    QTest::newRow("one endless line") << QByteArray(1 << 20, '9') << 0;
}

void TestTaskManager::sessionCount()
{
    QFETCH(QByteArray, content);
    QFETCH(int, count);
    writeMark(content);
    CTaskManager manager(nullptr);
    QCOMPARE(manager.isVNCClientAttached(), count >= 1);
    QCOMPARE(manager.vncSessionCount(), count);
}

void TestTaskManager::directoryChangeReportsTheCount()
{
    CTaskManager manager(nullptr);
    QSignalSpy changed(&manager, &CTaskManager::vncSessionChanged);
    QFile written(MARK_DIR + QStringLiteral("/new"));
    QVERIFY(written.open(QIODevice::WriteOnly));
    written.write("1\n");
    written.close();
    QVERIFY(written.rename(MARK_FILE));
    QTRY_VERIFY(!changed.isEmpty() && changed.last().at(0).toInt() == 1);
    QFile::remove(MARK_FILE);
    QTRY_COMPARE(changed.last().at(0).toInt(), 0);
}

void TestTaskManager::pipeInPlaceOfTheMark()
{
    CTaskManager manager(nullptr);
    writeMark("2\n");
    QVERIFY(manager.isVNCClientAttached());
    QVERIFY(QFile::remove(MARK_FILE));
    QCOMPARE(::mkfifo(qPrintable(MARK_FILE), 0600), 0);
    QVERIFY(manager.isVNCClientAttached()); // cannot be told: as before
    QSignalSpy changed(&manager, &CTaskManager::vncSessionChanged);
    manager.dirChanged(MARK_DIR);
    QCOMPARE(changed, (QList<QList<QVariant>>{{0}}));
}

void TestTaskManager::directoryThatComesAgain_data()
{
    QTest::addColumn<QString>("gone");
    QTest::addColumn<bool>("isMoved");
    QTest::newRow("itself") << MARK_DIR << false;
    QTest::newRow("with its parent") << QStringLiteral("/tmp/var/lib") << false;
    QTest::newRow("with all that is below /tmp") << QStringLiteral("/tmp/var") << false;
    QTest::newRow("moved away") << MARK_DIR << true;
    QTest::newRow("moved away with its parents") << QStringLiteral("/tmp/var") << true;
}

void TestTaskManager::directoryThatComesAgain()
{
    QFETCH(QString, gone);
    QFETCH(bool, isMoved);
    writeMark("3\n");
    CTaskManager manager(nullptr);
    QVERIFY(manager.isVNCClientAttached());
    QSignalSpy changed(&manager, &CTaskManager::vncSessionChanged);
    const auto count = [&changed] { return changed.isEmpty() ? -1 : changed.last().at(0).toInt(); };
    const QString aside = QStringLiteral("/tmp/aside");
    const auto cleared = qScopeGuard([&aside] { QDir(aside).removeRecursively(); });
    for (int round = 0; round < 2; ++round) {
        if (isMoved) {
            QDir(aside).removeRecursively();
            QVERIFY(QFile::rename(gone, aside));
        } else {
            QVERIFY(QDir(gone).removeRecursively());
        }
        QTRY_COMPARE(count(), 0);
        QVERIFY(QDir().mkpath(MARK_DIR));
        QCoreApplication::processEvents(); // sometimes it finds the empty directory first
        writeMark("1\n");
        QTRY_COMPARE(count(), 1);
        // At once, before anybody has looked.
        QVERIFY(QDir(gone).removeRecursively());
        QVERIFY(QDir().mkpath(MARK_DIR));
        writeMark("4\n");
        QTRY_COMPARE(count(), 4);
        QFile::remove(MARK_FILE);
        QTRY_COMPARE(count(), 0);
        writeMark("5\n");
        QTRY_COMPARE(count(), 5);
    }
}

QTEST_GUILESS_MAIN(TestTaskManager)
#include "tst_taskmanager.moc"
