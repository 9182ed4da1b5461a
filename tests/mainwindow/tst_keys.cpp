#include "advancemenu.h"
#include "backend.h"
#include "busymachine.h"
#include "drivenwindow.h"
#include "mainapplication.h"
#include "widgets/entrywidget/entrywidget.h"
#include "widgets/keypad/keypaddialog.h"
#include "widgets/parmcombobox/parmcombobox.h"
#include "widgets/parmcombobox/parmlist.h"
#include "widgets/parmlineedit/parmlineedit.h"
#include "windowfocus.h"
#include "withdialog.h"
#include "xscreen.h"

#include <QLineEdit>
#include <QScopeGuard>
#include <QSignalSpy>

#include <X11/keysym.h>

namespace {

// Keys that the window has seen, and the time since: it writes a line for each.
int s_keysSeen = 0;
QElapsedTimer* s_sinceKey = nullptr;
QtMessageHandler s_log = nullptr;

void countKeys(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (text.startsWith(QLatin1String("Key:"))) {
        ++s_keysSeen;
        s_sinceKey->start();
    }
    s_log(type, context, text);
}

} // namespace

/** What the arrow keys, Enter and Home do. */
class TestKeys : public QObject, private CDrivenWindow
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        open();
        static_cast<CMainApplication*>(qApp)->setMainWindowInstance(m_window.get());
        s_sinceKey = &m_sinceKey;
        s_log = qInstallMessageHandler(countKeys);
    }
    void cleanupTestCase() { qInstallMessageHandler(s_log); }
    void init() { reset(); }

    void firstArrowMarksTheFirstControl();
    void arrowsMoveAndEnterTouches();
    void repeatedKeyIsOne();
    void heldKeyLocksOnce();
    void heldEnterOpensThePadOnly();
    void homeActsOnce_data();
    void homeActsOnce();
    void aDialogHearsF3NotHome_data();
    void aDialogHearsF3NotHome();
    void aPadWaitsForTheTestApplication();
    void keysWithTestApplicationInFront();
    void enterOnADisabledControl();
    void enterOnAHiddenControl();
    void markedControlGoes();

private:
    /** The X server's keys come to the window; none that a test pressed before makes the next one a repeat.
     */
    void takeKeyboard()
    {
        QVERIFY(takeFocus(m_window.get()));
        QTRY_VERIFY(!m_sinceKey.isValid() || m_sinceKey.elapsed() >= KEY_PAUSE);
    }

    /** A real key, pressed and released, with the window's time for a press of its own before it. */
    void tap(unsigned long keysym)
    {
        QTRY_VERIFY(!m_sinceKey.isValid() || m_sinceKey.elapsed() >= KEY_PAUSE);
        s_keysSeen = 0;
        const CHeldKey key(m_screen, keysym);
    }
    /** Opens a field's key pad and presses Home in it. */
    void homeInThePadOf(CParmLineEdit& field)
    {
        CWithDialog withPad([this](CDialog* dialog) {
            const QPointer<CDialog> pad(dialog);
            const auto closed = qScopeGuard([&pad] {
                if (pad)
                    pad->reject(); // or a fault would keep the test in it
            });
            QVERIFY(takeFocus(pad));
            tap(XK_Home);
            QTRY_VERIFY(!pad || !pad->isVisible());
        });
        field.click();
        QVERIFY(withPad.isDone());
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
        const auto closed = qScopeGuard([pad] { pad->reject(); });
        QVERIFY(takeFocus(pad));
        const int before = busy.unflaggedRepetitions();
        QTRY_VERIFY(busy.unflaggedRepetitions() >= before + 5);
        for (const auto* button : pad->findChildren<CPushButton*>())
            QVERIFY(!button->isDown());
        QVERIFY(pad->isVisible());
    });
    QTRY_VERIFY(withPad.isDone());
    held.reset();
}

void TestKeys::homeActsOnce_data()
{
    QTest::addColumn<int>("util");
    QTest::addColumn<QString>("keyboard"); // what has it
    const auto row = [](int util, const char* keyboard) {
        QTest::newRow(keyboard) << util << QString::fromLatin1(keyboard);
    };
    row(UTILITY_ID_ADVTOOL, "window");
    row(UTILITY_ID_ADVTOOL, "text field"); // keeps Home for itself
    row(UTILITY_ID_ADVTOOL, "list"); // passes Home on to the window
    row(UTILITY_ID_ADVTOOL, "key pad");
    row(UTILITY_ID_IP_TOOLS, "key pad of a plug-in"); // goes with the plug-in's page
}

void TestKeys::homeActsOnce()
{
    QFETCH(int, util);
    QFETCH(QString, keyboard);
    if (keyboard.startsWith(QLatin1String("key pad")))
        SKIP_UNDER_PROOT("the focus comes later than the key");
    m_window->changeCurrentUtil(util);
    QTRY_VERIFY(util == UTILITY_ID_ADVTOOL || page<CParmLineEdit>()); // the plug-in's own
    takeKeyboard();
    if (keyboard == QLatin1String("key pad of a plug-in"))
        homeInThePadOf(*page<CParmLineEdit>());

    auto* menu = page<CAdvanceMenu>();
    CParmLineEdit field(QStringLiteral("Name"), QString(), menu);
    CParmComboBox box(QStringLiteral("Name"), {QStringLiteral("a")}, QString(), menu);
    QLineEdit text(menu);
    for (QWidget* control : QVector<QWidget*>{&field, &box, &text})
        control->show();
    if (keyboard == QLatin1String("text field"))
        text.setFocus();
    else if (keyboard == QLatin1String("list"))
        box.click();
    if (keyboard == QLatin1String("key pad"))
        homeInThePadOf(field);
    else if (util == UTILITY_ID_ADVTOOL)
        tap(XK_Home);
    QTRY_COMPARE(m_window->currentUtil(), UTILITY_ID_BEGIN);
    QCOMPARE(s_keysSeen, 1);
}

void TestKeys::aDialogHearsF3NotHome_data()
{
    QTest::addColumn<bool>("inPad");
    QTest::newRow("dialog") << false;
    QTest::newRow("key pad of a field in a dialog") << true;
}

void TestKeys::aDialogHearsF3NotHome()
{
    QFETCH(bool, inPad);
    m_window->changeCurrentUtil(UTILITY_ID_ADVTOOL);
    CDialog outer; // without a window behind that it could pass its keys on to
    CParmLineEdit field(QStringLiteral("Name"), QString(), &outer);
    CDialog box(&outer);
    CKeyPadDialog pad(QStringLiteral("Name"), QString(), CKeyPadFactory::KeyPadText, &field);
    outer.show();
    CDialog& inner = inPad ? pad : box;
    inner.show();
    QVERIFY(takeFocus(&inner));
    tap(XK_Home);
    tap(XK_F3); // forwarded at both dialogs, and passed on by one to the other
    QTRY_COMPARE(s_keysSeen, 1);
    QCOMPARE(m_window->currentUtil(), UTILITY_ID_ADVTOOL);
}

void TestKeys::aPadWaitsForTheTestApplication()
{
    m_window->changeCurrentUtil(UTILITY_ID_ADVTOOL);
    CParmLineEdit field(QStringLiteral("Name"), QString(), page<CAdvanceMenu>());
    field.show();
    CWithDialog withPad([this](CDialog* pad) {
        const auto closed = qScopeGuard([pad] { pad->reject(); });
        m_window->setWindowVisible(false); // hides the page of the field
        QVERIFY(pad->isVisible() && pad->isAside());
        m_window->setWindowVisible(true);
        QVERIFY(pad->isVisible() && !pad->isAside());
    });
    field.click();
    QVERIFY(withPad.isDone());
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

int main(int argc, char** argv)
{
    const CMainApplication application(argc, argv);
    TestKeys test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_keys.moc"
