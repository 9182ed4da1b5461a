#include "drivenwindow.h"
#include "homepage.h"

#include <QScopeGuard>

#include "boxanswer.h"

#include <pthread.h>

/** What a user sees of the window when a plug-in fails badly, or the system has nothing left to give. */
class TestTrouble : public QObject, private CDrivenWindow
{
    Q_OBJECT

private slots:
    void initTestCase() { open(); }
    void init() { reset(); }

    void throwingPluginIsReported_data();
    void throwingPluginIsReported();
    void utilityOpensWithoutAThread();
};

void TestTrouble::throwingPluginIsReported_data()
{
    QTest::addColumn<QByteArray>("trouble");
    for (const char* call : {"constructor", "setCallerID", "start"})
        QTest::newRow(call) << QByteArray(call) + " throw";
}

void TestTrouble::throwingPluginIsReported()
{
    QFETCH(QByteArray, trouble);
    installFixture("libfixture_trouble.so", QStringLiteral("libnetwiz.so"));
    writeFile(QStringLiteral("/tmp/fixture-trouble"), trouble);
    const QString expected = QStringLiteral("Exception out of plug-in libnetwiz.so: trouble in %1")
                                 .arg(QString::fromLatin1(trouble.split(' ').first()));
    QTest::ignoreMessage(QtCriticalMsg, qPrintable(expected));
    CBoxAnswer box("ok");
    choose(UTILITY_ID_NET_WIZARD);
    QTRY_VERIFY(box.isAnswered());
    QCOMPARE(box.title(), QStringLiteral("Load plugin"));
    QCOMPARE(box.text(), QStringLiteral("The utility could not be started."));
    m_window->triggerHome();
    QVERIFY(page<CHomePage>()->isVisible());
}

void TestTrouble::utilityOpensWithoutAThread()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libresultman.so"));
    pthread_attr_t before;
    pthread_attr_t hugeStack; // more than there are addresses: no thread can be made
    QCOMPARE(pthread_getattr_default_np(&before), 0);
    QCOMPARE(pthread_getattr_default_np(&hugeStack), 0);
    QCOMPARE(pthread_attr_setstacksize(&hugeStack, size_t(1) << 60), 0);
    QCOMPARE(pthread_setattr_default_np(&hugeStack), 0);
    const auto restored = qScopeGuard([&before] { pthread_setattr_default_np(&before); });
    choose(UTILITY_ID_RESULT_MANAGER);
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("start")));
    m_window->triggerHome();
    choose(UTILITY_ID_RESULT_MANAGER); // and once more
    QTRY_COMPARE(pluginCalls().count(QStringLiteral("start")), 2);
    QCOMPARE(m_window->currentUtil(), UTILITY_ID_RESULT_MANAGER);
}

QTEST_MAIN(TestTrouble)
#include "tst_trouble.moc"
