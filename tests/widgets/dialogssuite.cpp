#include "suites.h"

#include "widgets/messagebox/messagebox.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/widget/widget.h"
#include "widgets/widgetstack/kpwidgetstack.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QtTest>

#include <functional>

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
        CMessageBox box(QStringLiteral("Warning"), QStringLiteral("Go on?"), CMessageBox::Ok);
        box.show();
        QTest::keyClick(&box, Qt::Key_Down);
        QCOMPARE(box.markedButton(), button(box, "ok"));
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(&box, &repeated);
        QVERIFY(!button(box, "ok")->isDown());
        box.hide();
        QVERIFY(!box.markedButton()); // the next time starts unmarked
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
