#include <QApplication>
#include <QDialog>
#include <QWidget>
#include <QtTest>

// The window manager decides where windows stand; the shell counts on these decisions.
class TestWindowManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setApplicationName(QStringLiteral("mainframe")); }
    void shellTakesTheTopLeftCorner();
    void dialogKeepsItsPlace();
};

void TestWindowManager::shellTakesTheTopLeftCorner()
{
    QWidget shell;
    shell.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    shell.resize(800, 460);
    shell.move(0, 60);
    shell.show();
    QTRY_VERIFY(shell.isActiveWindow());
    QTRY_COMPARE(shell.frameGeometry(), QRect(0, 0, 800, 460));
    QCOMPARE(shell.geometry(), shell.frameGeometry());
}

void TestWindowManager::dialogKeepsItsPlace()
{
    QWidget shell;
    shell.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    shell.resize(800, 460);
    shell.show();
    QTRY_VERIFY(shell.isActiveWindow());
    QDialog dialog(&shell, Qt::FramelessWindowHint);
    dialog.setModal(true);
    dialog.resize(360, 200);
    dialog.move(220, 130);
    dialog.show();
    QTRY_VERIFY(dialog.isActiveWindow());
    QTRY_COMPARE(dialog.frameGeometry(), QRect(220, 130, 360, 200));
}

QTEST_MAIN(TestWindowManager)
#include "tst_windowmanager.moc"
