#include "advancemenu.h"
#include "busymachine.h"
#include "drivenwindow.h"
#include "widgets/keypad/keypaddialog.h"
#include "widgets/parmlineedit/parmlineedit.h"
#include "withdialog.h"
#include "xscreen.h"
#include "widgets/entrywidget/entrywidget.h"

#include <QSignalSpy>

#include <X11/keysym.h>

/** What the arrow keys, Enter and Home do. */
class TestKeys : public QObject, private CDrivenWindow
{
    Q_OBJECT

private slots:
    void initTestCase() { open(); }
    void init() { reset(); }

    void firstArrowMarksTheFirstControl();
    void arrowsMoveAndEnterTouches();
    void repeatedKeyIsOne();
    void heldKeyLocksOnce();
    void heldEnterOpensThePadOnly();
    void keysWithTestApplicationInFront();
    void enterOnADisabledControl();
    void enterOnAHiddenControl();
    void markedControlGoes();

private:
    /** The X server's keys come to the window; none that a test pressed before makes the next one a repeat. */
    void takeKeyboard()
    {
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QTRY_VERIFY(!m_sinceKey.isValid() || m_sinceKey.elapsed() >= KEY_PAUSE);
    }

    CXScreen m_screen;
};

void TestKeys::firstArrowMarksTheFirstControl()
{
    press(Qt::Key_Return); // nothing is marked, nothing happens
    QCOMPARE(toolBox()->openPage(), -1);
    press(Qt::Key_Down); // the home page is empty: the tool box
    auto* header = qobject_cast<CToolBoxButton*>(marked());
    QVERIFY(header);
    QCOMPARE(header->text(), QStringLiteral("Tools"));
    m_window->changeCurrentUtil(UTILITY_ID_ADVTOOL);
    QVERIFY(!marked());
    press(Qt::Key_Left); // the first tile of the page
    QCOMPARE(marked(), m_window->findChild<CAdvanceMenu*>()->findChild<CEntryWidget*>()->itemAt(0, 0));
}

void TestKeys::arrowsMoveAndEnterTouches()
{
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    QCOMPARE(qobject_cast<CToolBoxButton*>(marked())->text(), QStringLiteral("Utilities"));
    const QImage markedLook = marked()->grab().toImage();
    QWidget* utilities = marked();
    press(Qt::Key_Up);
    QVERIFY(utilities->grab().toImage() != markedLook);
    press(Qt::Key_Return);
    QTRY_COMPARE(toolBox()->openPage(), 0);
    for (int i = 0; i < 4; ++i)
        press(Qt::Key_Down);
    press(Qt::Key_Return);
    QTRY_COMPARE(m_window->currentUtil(), UTILITY_ID_ADVTOOL);
    // From a tile up to the top bar, which no strip of the tile's own width reaches, and back home.
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    press(Qt::Key_Up);
    QCOMPARE(marked()->objectName(), QStringLiteral("homeButton"));
    press(Qt::Key_Return);
    QTRY_COMPARE(m_window->currentUtil(), UTILITY_ID_BEGIN);
    press(Qt::Key_Down);
    press(Qt::Key_Left); // the screen ends there
    QVERIFY(marked());
    press(Qt::Key_Home);
    QVERIFY(!marked());
}

void TestKeys::repeatedKeyIsOne()
{
    press(Qt::Key_Down);
    QWidget* first = marked();
    pressAtOnce(Qt::Key_Down); // a repeat
    QCOMPARE(marked(), first);
    press(Qt::Key_Down);
    QVERIFY(marked() != first);
}

void TestKeys::heldKeyLocksOnce()
{
    QSignalSpy locked(m_window.get(), &CMainWindow::lockStateChanged);
    const CBusyMachine busy;
    for (int hold = 1; hold <= 2; ++hold) { // locked by the first, unlocked by the second
        takeKeyboard();
        auto held = std::make_unique<CHeldKey>(m_screen, XK_F4);
        QTRY_COMPARE(locked.size(), hold);
        QTRY_VERIFY(busy.unflaggedRepetitions() >= 5 * hold);
        held.reset();
        m_sinceKey.start();
        QCOMPARE(locked.size(), hold);
    }
}

void TestKeys::heldEnterOpensThePadOnly()
{
    CParmLineEdit field(QStringLiteral("Name"), QStringLiteral("a"), m_window.get());
    field.setGeometry(300, 200, 400, 44);
    field.show();
    press(Qt::Key_Down);
    QVERIFY(field.hasArrowKeyFocus());
    takeKeyboard();
    const CBusyMachine busy;
    auto held = std::make_unique<CHeldKey>(m_screen, XK_Return);
    CWithDialog withPad([&](CDialog* pad) {
        pad->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(pad));
        const int before = busy.unflaggedRepetitions();
        QTRY_VERIFY(busy.unflaggedRepetitions() >= before + 5);
        for (const auto* button : pad->findChildren<CPushButton*>())
            QVERIFY(!button->isDown());
        QVERIFY(pad->isVisible());
        pad->reject();
    });
    QTRY_VERIFY(withPad.isDone());
    held.reset();
    m_sinceKey.start();
}

void TestKeys::keysWithTestApplicationInFront()
{
    m_window->setWindowVisible(false);
    press(Qt::Key_Down);
    QVERIFY(!marked());
    m_window->setWindowVisible(true);
}

void TestKeys::enterOnADisabledControl()
{
    press(Qt::Key_Down);
    CPushButton* header = marked();
    QVERIFY(header);
    QSignalSpy clicked(header, &QAbstractButton::clicked);
    header->setEnabled(false);
    press(Qt::Key_Return);
    QCoreApplication::processEvents();
    header->setEnabled(true);
    QVERIFY(!header->isDown());
    QVERIFY(clicked.isEmpty());
}

void TestKeys::enterOnAHiddenControl()
{
    CToolBox* box = toolBox();
    box->setOpenPage(0);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    QSignalSpy chosen(box, &CToolBox::currentItemChanged);
    box->setOpenPage(-1);
    press(Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(chosen.size(), 0);
    box->setOpenPage(0);
    press(Qt::Key_Return);
    QTRY_COMPARE(chosen.size(), 1); // it was the marked one
}

void TestKeys::markedControlGoes()
{
    auto* passing = new CPushButton(QStringLiteral("passing"), m_window.get());
    passing->setGeometry(500, 200, 80, 40);
    passing->show();
    press(Qt::Key_Down);
    QCOMPARE(marked(), passing);
    delete passing;
    press(Qt::Key_Return); // on nothing
    press(Qt::Key_Right); // starts again at the first control
    QVERIFY(marked());
}

QTEST_MAIN(TestKeys)
#include "tst_keys.moc"
