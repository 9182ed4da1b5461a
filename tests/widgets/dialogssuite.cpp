#include "suites.h"

#include "busymachine.h"
#include "widgets/messagebox/messagebox.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/widget/widget.h"
#include "widgets/widgetstack/kpwidgetstack.h"
#include "xscreen.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

#include <X11/keysym.h>

#include <functional>
#include <memory>

namespace {

class CMainPage : public CWidget
{
public:
    CMainPage() { setGeometry(0, 0, 800, 460); }
    void keyPressEvent(QKeyEvent* event) override { keys.append(event->key()); }
    QList<int> keys;
};

CPushButton* button(const QWidget& box, const char* name)
{
    return box.findChild<CPushButton*>(QLatin1String(name));
}

/** Runs `answer` as soon as the box has come up. */
int execWith(CMessageBox& box, const std::function<void()>& answer)
{
    QObject once;
    QObject::connect(&box, &CDialog::popOn, &once, [answer] { QTimer::singleShot(0, answer); });
    return box.exec();
}

} // namespace

class CDialogsSuite : public QObject
{
    Q_OBJECT

private slots:
    void keysAnswer_data()
    {
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<int>("answer");
        const auto row = [](const char* name, const QList<int>& keys, int answer) {
            QTest::newRow(name) << keys << answer;
        };
        row("first key marks the first button", {Qt::Key_Right, Qt::Key_Return}, CMessageBox::Yes);
        row("right", {Qt::Key_Right, Qt::Key_Right, Qt::Key_Return}, CMessageBox::No);
        row("ends at the last",
            {Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return},
            CMessageBox::Cancel);
        row("Escape and Enter on nothing do not answer",
            {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Down, Qt::Key_Return}, CMessageBox::Yes);
    }

    void keysAnswer()
    {
        QFETCH(QList<int>, keys);
        QFETCH(int, answer);
        CMessageBox box(QStringLiteral("Warning"), QStringLiteral("Go on?"),
            CMessageBox::Yes | CMessageBox::No | CMessageBox::Cancel);
        const int result = execWith(box, [&] {
            for (const int key : keys)
                QTest::keyClick(&box, Qt::Key(key));
        });
        QCOMPARE(result, answer);
        QCOMPARE(int(box.answer()), answer);
    }

    void aHeldEnterDoesNotAnswer()
    {
        const CXScreen screen;
        const CBusyMachine busy;
        QWidget opener;
        opener.show();
        opener.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&opener));
        auto held = std::make_unique<CHeldKey>(screen, XK_Return);
        QTRY_VERIFY(busy.unflaggedRepetitions() > 0);

        CMessageBox box(QStringLiteral("Warning"), QStringLiteral("Go on?"), CMessageBox::Ok);
        QSignalSpy answered(button(box, "ok"), &QAbstractButton::pressed);
        box.show();
        QTest::keyClick(&box, Qt::Key_Down);
        QCOMPARE(box.markedButton(), button(box, "ok"));
        box.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        const int before = busy.unflaggedRepetitions();
        QTRY_VERIFY(busy.unflaggedRepetitions() > before + 3);
        QVERIFY(answered.isEmpty());
        held.reset();
        QElapsedTimer sinceUp;
        sinceUp.start();
        QTRY_VERIFY(sinceUp.elapsed() > 20); // no finger is faster
        held = std::make_unique<CHeldKey>(screen, XK_Return); // a press of its own
        QTRY_COMPARE(answered.size(), 1);
        QTRY_VERIFY(!box.isVisible());
        QVERIFY(!box.markedButton()); // the next time starts unmarked
    }

    void whatIsAPress_data()
    {
        QTest::addColumn<int>("released"); // the key
        QTest::addColumn<int>("at"); // ms
        QTest::addColumn<int>("pressed"); // Enter, ms
        QTest::addColumn<bool>("answers");
        QTest::newRow("later") << int(Qt::Key_Return) << 1000 << 1001 << true;
        QTest::newRow("another key in the same millisecond") << int(Qt::Key_F4) << 1000 << 1000 << true;
        QTest::newRow("no time stamps") << int(Qt::Key_Return) << 0 << 0 << true;
        QTest::newRow("repetition") << int(Qt::Key_Return) << 1000 << 1000 << false;
    }

    void whatIsAPress()
    {
        QFETCH(int, released);
        QFETCH(int, at);
        QFETCH(int, pressed);
        CMessageBox box(QStringLiteral("Warning"), QStringLiteral("Go on?"), CMessageBox::Ok);
        box.show();
        QTest::keyClick(&box, Qt::Key_Down);
        QKeyEvent release(QEvent::KeyRelease, released, Qt::NoModifier);
        release.setTimestamp(ulong(at));
        QCoreApplication::sendEvent(&box, &release);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        press.setTimestamp(ulong(pressed));
        QCoreApplication::sendEvent(&box, &press);
        QTEST(button(box, "ok")->isDown(), "answers");
    }

    void pagesLieOverEachOther()
    {
        KpWidgetStack* stack = KpWidgetStack::instance();
        QWidget window;
        window.show();
        auto *first = new QWidget(&window), *second = new QWidget(&window), *third = new QWidget(&window);
        stack->pushPage(nullptr);
        QCOMPARE(stack->count(), 0);
        for (QWidget* page : {first, second, third})
            stack->pushPage(page);
        QCOMPARE(stack->currentPage(), third);
        first->hide();

        delete second; // out of the middle
        QCOMPARE(stack->count(), 2);
        QVERIFY(stack->popPage());
        QVERIFY(!third->isVisible());
        QCOMPARE(stack->currentPage(), first);
        QVERIFY(first->isVisible());

        stack->pushPage(third);
        first->hide();
        delete third; // the top one: the page below shows again
        QCOMPARE(stack->currentPage(), first);
        QVERIFY(first->isVisible());

        auto* fourth = new QWidget(&window);
        stack->pushPage(fourth);
        stack->pushPage(first); // moves up, is not on it twice
        QCOMPARE(stack->count(), 2);
        QCOMPARE(stack->currentPage(), first);
        stack->popAllPages();
        QCOMPARE(stack->count(), 0);
        QVERIFY(!first->isVisible() && !fourth->isVisible());
        QVERIFY(!stack->popPage());
    }
};

std::unique_ptr<QObject> dialogsSuite()
{
    return std::make_unique<CDialogsSuite>();
}

#include "dialogssuite.moc"
