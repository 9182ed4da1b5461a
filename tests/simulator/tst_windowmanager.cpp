#include <QApplication>
#include <QDialog>
#include <QWidget>
#include <QtTest>

// The window manager decides where windows stand; the shell counts on these decisions.
class TestWindowManager : public QObject
{
    Q_OBJECT

private slots:
    void shellTakesTheTopLeftCorner();
    void dialogKeepsItsPlace();
    void otherProgramsAreNotMoved();
};

void TestWindowManager::shellTakesTheTopLeftCorner()
{
    QCoreApplication::setApplicationName(QStringLiteral("mainframe"));
    QWidget shell;
    shell.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    shell.resize(800, 460);
    shell.move(0, 60);
    shell.show();
    QVERIFY(QTest::qWaitForWindowActive(&shell));
    QTRY_COMPARE(shell.frameGeometry(), QRect(0, 0, 800, 460));
    QCOMPARE(shell.geometry(), shell.frameGeometry());
}

void TestWindowManager::dialogKeepsItsPlace()
{
    QCoreApplication::setApplicationName(QStringLiteral("mainframe"));
    QWidget shell;
    shell.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    shell.resize(800, 460);
    shell.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shell));
    QDialog dialog(&shell, Qt::FramelessWindowHint);
    dialog.setModal(true);
    dialog.resize(360, 200);
    dialog.move(220, 130);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTRY_COMPARE(dialog.frameGeometry(), QRect(220, 130, 360, 200));
}

void TestWindowManager::otherProgramsAreNotMoved()
{
    QCoreApplication::setApplicationName(QStringLiteral("testapp"));
    QWidget window;
    window.resize(300, 200);
    window.move(40, 90);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTRY_COMPARE(window.geometry(), QRect(40, 90, 300, 200)); // and it has no frame
    QCOMPARE(window.geometry(), window.frameGeometry());
}

QTEST_MAIN(TestWindowManager)
#include "tst_windowmanager.moc"
