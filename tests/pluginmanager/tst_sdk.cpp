#include "pluginman.h"
#include "utilinterface.h"

#include "widgets/pushbutton/pushbutton.h"

#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

namespace {

const QString BUILD = QStringLiteral("/tmp/example-build");

// A plug-in's signals are only known by name.
constexpr const char SIGNAL_OF_CLOSE[] = "2requestToClose()";

/** Runs a command to its end. @return what it printed when it failed, else nothing */
QByteArray failureOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    process.waitForFinished(-1);
    if (process.error() == QProcess::FailedToStart)
        return program.toUtf8() + " did not start";
    return process.exitCode() == 0 ? QByteArray() : process.readAll();
}

} // namespace

/** A plug-in made outside the repository, from what the installation puts down and nothing else. */
class TestSdk : public QObject
{
    Q_OBJECT

private slots:
    void installedExampleBuildsAndRuns();
};

void TestSdk::installedExampleBuildsAndRuns()
{
    const QString prefix = QStringLiteral(SDK_PREFIX);
    QByteArray failure = failureOf(QStringLiteral(CMAKE_PROGRAM),
        {QStringLiteral("-G"), QStringLiteral("Ninja"), QStringLiteral("-S"),
            prefix + QStringLiteral("/share/mainframe/example-plugin"), QStringLiteral("-B"), BUILD,
            QStringLiteral("-DCMAKE_PREFIX_PATH=") + prefix, QStringLiteral("-DCMAKE_CXX_FLAGS=" CXX_FLAGS)});
    QVERIFY2(failure.isEmpty(), failure.constData());
    failure = failureOf(QStringLiteral(CMAKE_PROGRAM), {QStringLiteral("--build"), BUILD});
    QVERIFY2(failure.isEmpty(), failure.constData());

    const QString library = CPluginManager::getPluginDirPath() + QStringLiteral("/libharbor.so");
    QFile::remove(library);
    QVERIFY(QFile::copy(BUILD + QStringLiteral("/libharbor.so"), library));

    CPluginManager manager;
    UtilInterface* plugin = manager.loadPlugin(UTILITY_ID_HARBOR);
    QVERIFY2(plugin, qPrintable(manager.errorString()));
    QCOMPARE(plugin->getPluginID(), QStringLiteral("example"));
    QWidget host;
    host.resize(800, 460);
    QVERIFY(plugin->start(&host));
    auto* button = host.findChild<CPushButton*>(); // the control of this very process
    QVERIFY(button);
    QSignalSpy closed(plugin->getObject(), SIGNAL_OF_CLOSE);
    QVERIFY(closed.isValid());
    button->click();
    QCOMPARE(closed.size(), 1);
    QVERIFY(manager.unloadPlugin());
    QVERIFY(!host.findChild<CPushButton*>());
}

QTEST_MAIN(TestSdk)
#include "tst_sdk.moc"
