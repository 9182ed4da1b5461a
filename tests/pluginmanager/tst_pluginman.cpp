#include "fixtureplugins.h"
#include "pluginman.h"
#include "testfiles.h"
#include "utilinterface.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QWidget>

#include <functional>
#include <unistd.h>

#include "backend.h"

Q_DECLARE_METATYPE(std::function<bool(CPluginManager&)>)

namespace {

QString pathOf(const char* library)
{
    return PLUGIN_DIR + QLatin1String(library);
}

QByteArray fixture(const char* name)
{
    QFile file(fixturePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestPluginManager : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void missingOnesAreTold();
    void drivesTheCurrentPlugin();
    void noInterface();
    void unusableFile_data();
    void unusableFile();
    void unreadableFile();
    void terminateReachesBothBackgroundPlugins();
    void manyLoadsKeepTheDescriptors();
    void whatAPluginThrowsEndsHere_data();
    void whatAPluginThrowsEndsHere();
};

void TestPluginManager::init()
{
    QDir directory(PLUGIN_DIR);
    for (const QString& name : directory.entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString path = directory.filePath(name);
        if (!QFile::remove(path))
            QDir(path).removeRecursively();
    }
    clearPluginCalls();
}

void TestPluginManager::missingOnesAreTold()
{
    CPluginManager manager;
    QVERIFY(!manager.loadPlugin(UTILITY_ID_ADVTOOL)); // has a page of the shell's
    QCOMPARE(manager.errorString(), QStringLiteral("Invalid plugin ID."));
    manager.clearError();
    QVERIFY(!manager.loadPlugin(UTILITY_ID_HARBOR)); // is not installed
    QCOMPARE(manager.errorString(), QStringLiteral("The shared library was not found."));
}

void TestPluginManager::drivesTheCurrentPlugin()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libharbor.so"));
    CPluginManager manager;
    QWidget host;
    UtilInterface* plugin = manager.loadPlugin(UTILITY_ID_HARBOR);
    QVERIFY2(plugin, qPrintable(manager.errorString()));
    QVERIFY(plugin->start(&host));
    manager.setPluginWindowVisible(false);
    manager.setPluginWindowVisible(true);
    manager.updatePluginWindow();
    QVERIFY(manager.unloadPlugin());
    QVERIFY(!manager.unloadPlugin()); // the fixture says false when it was not started
    QVERIFY(host.children().isEmpty());
    // The library stays: the same object serves the next start.
    QCOMPARE(manager.loadPlugin(UTILITY_ID_HARBOR), plugin);
    QCOMPARE(pluginCalls().join(QLatin1Char(' ')), QStringLiteral("start hide show update stop stop"));
}

void TestPluginManager::noInterface()
{
    installFixture("libfixture_nointerface.so", QStringLiteral("libodmtool.so"));
    installFixture("libfixture_recorder.so", QStringLiteral("libharbor.so"));
    CPluginManager manager;
    QVERIFY(manager.loadPlugin(UTILITY_ID_HARBOR));
    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression(QStringLiteral("libodmtool.so does not implement")));
    QVERIFY(!manager.loadPlugin(UTILITY_ID_ODMTOOL));
    QVERIFY(!manager.errorString().isEmpty());
    QVERIFY(!manager.unloadPlugin()); // the library is loaded, and there is nothing to stop
    manager.setPluginWindowVisible(true);
    QVERIFY(pluginCalls().isEmpty()); // the one loaded before is no longer driven
}

void TestPluginManager::unusableFile_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray whole = fixture("libfixture_recorder.so");
    QByteArray foreign = whole;
    foreign[18] = 40; // e_machine: ARM
    foreign[19] = 0;
    QByteArray narrow = whole;
    narrow[4] = 1; // 32-bit class
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("header only") << whole.left(64);
    QTest::newRow("half") << whole.left(whole.size() / 2);
    QTest::newRow("another architecture") << foreign;
    QTest::newRow("no plug-in") << fixture("libfixture_noplugin.so");
    QTest::newRow("calls what is not there") << fixture("libfixture_unresolved.so");
}

void TestPluginManager::unusableFile()
{
    QFETCH(QByteArray, content);
    QFile file(pathOf("libvfl.so"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    CPluginManager manager;
    QVERIFY(!manager.loadPlugin(UTILITY_ID_VFL));
    QVERIFY2(manager.errorString().size() > 10, qPrintable(manager.errorString()));
    QVERIFY(!manager.unloadPlugin());
}

void TestPluginManager::unreadableFile()
{
    SKIP_UNDER_PROOT("nobody becomes another user");
    installFixture("libfixture_recorder.so", QStringLiteral("libvfl.so"));
    QVERIFY(QFile::setPermissions(pathOf("libvfl.so"), QFile::Permissions()));
    // root may read everything: look as somebody else for as long as it takes.
    const bool isRoot = ::geteuid() == 0;
    if (isRoot && ::seteuid(65534) != 0)
        QSKIP("no other user in this namespace");
    CPluginManager manager;
    const bool loaded = manager.loadPlugin(UTILITY_ID_VFL);
    if (isRoot)
        QCOMPARE(::seteuid(0), 0);
    QVERIFY(!loaded);
    QVERIFY2(manager.errorString().size() > 10, qPrintable(manager.errorString()));
}

void TestPluginManager::terminateReachesBothBackgroundPlugins()
{
    CPluginManager manager;
    QVERIFY(!manager.terminatePlugin());
    installFixture("libfixture_recorder.so", QStringLiteral("libIPtool.so"));
    QVERIFY(!manager.terminatePlugin()); // one of the two is missing, the other is ended all the same
    QCOMPARE(pluginCalls().count(QStringLiteral("terminate")), 1);
    installFixture("libfixture_recorder.so", QStringLiteral("libostrel.so"));
    QVERIFY(manager.terminatePlugin());
    QCOMPARE(pluginCalls().count(QStringLiteral("terminate")), 3);
}

void TestPluginManager::manyLoadsKeepTheDescriptors()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libharbor.so"));
    installFixture("libfixture_failstart.so", QStringLiteral("libOpm.so"));
    CPluginManager manager;
    QVERIFY(manager.loadPlugin(UTILITY_ID_HARBOR));
    QVERIFY(manager.loadPlugin(UTILITY_ID_OPM));
    const auto before = openDescriptors();
    for (int i = 0; i < 100; ++i) {
        QVERIFY(manager.loadPlugin(UTILITY_ID_HARBOR));
        QVERIFY(manager.loadPlugin(UTILITY_ID_OPM));
        QVERIFY(!manager.loadPlugin(UTILITY_ID_VFL));
    }
    QCOMPARE(openDescriptors(), before);
}

void TestPluginManager::whatAPluginThrowsEndsHere_data()
{
    using Drive = std::function<bool(CPluginManager&)>;
    QTest::addColumn<QByteArray>("call");
    QTest::addColumn<Drive>("drive"); // false: the call counts as failed
    const auto row
        = [](const char* call, const Drive& drive) { QTest::newRow(call) << QByteArray(call) << drive; };
    // First: a root object that could be made serves all rows after it.
    row("constructor", [](CPluginManager& m) { return m.getPluginInstance(UTILITY_ID_WIFI_SA) != nullptr; });
    row("setCallerID", [](CPluginManager& m) { return m.startPlugin(nullptr, UTILITY_ID_BEGIN); });
    row("start", [](CPluginManager& m) { return m.startPlugin(nullptr, UTILITY_ID_BEGIN); });
    row("bkgRun", [](CPluginManager& m) { return m.runPluginInBackground(nullptr); });
    row("getObject", [](CPluginManager& m) { return m.getPluginObject() != nullptr; });
    row("stop", [](CPluginManager& m) { return m.unloadPlugin(); });
    row("update", [](CPluginManager& m) { return m.updatePluginWindow(), false; });
    row("show", [](CPluginManager& m) { return m.setPluginWindowVisible(true), false; });
    row("hide", [](CPluginManager& m) { return m.setPluginWindowVisible(false), false; });
}

void TestPluginManager::whatAPluginThrowsEndsHere()
{
    QFETCH(QByteArray, call);
    QFETCH(std::function<bool(CPluginManager&)>, drive);
    const QString plan = QStringLiteral("/tmp/fixture-trouble");
    QFile::remove(plan);
    installFixture("libfixture_trouble.so", QStringLiteral("libwsa.so"));
    CPluginManager manager;
    if (call != "constructor")
        QVERIFY(manager.loadPlugin(UTILITY_ID_WIFI_SA));
    for (const char* deed : {" throw", " throw-number"}) {
        QFile file(plan);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(call + deed);
        file.close();
        QTest::ignoreMessage(QtCriticalMsg,
            QRegularExpression(QStringLiteral("^Exception out of plug-in libwsa.so(: trouble in %1)?$")
                                   .arg(QString::fromLatin1(call))));
        QVERIFY(!drive(manager));
        QVERIFY(!CPluginManager::callInProgress());
    }
    QVERIFY(QFile::remove(plan));
    QVERIFY(manager.loadPlugin(UTILITY_ID_WIFI_SA)); // and it goes on
    QVERIFY(manager.startPlugin(nullptr, UTILITY_ID_BEGIN));
}

QTEST_MAIN(TestPluginManager)
#include "tst_pluginman.moc"
