#include "suites.h"

#include "widgets/label/label.h"
#include "widgets/messagebox/messagebox.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/widget/widget.h"
#include "widgets/widgetstack/kpwidgetstack.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSignalSpy>
#include <QTimer>
#include <QTranslator>
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

class CGerman : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* source, const char*, int) const override
    {
        return qstrcmp(source, "Cancel") == 0 ? QStringLiteral("Den Vorgang abbrechen") : QString();
    }
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
        row("whichever it is", {Qt::Key_Up, Qt::Key_Enter}, CMessageBox::Yes);
        row("right", {Qt::Key_Right, Qt::Key_Right, Qt::Key_Return}, CMessageBox::No);
        row("down goes right too", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return},
            CMessageBox::Cancel);
        row("ends at the last",
            {Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return},
            CMessageBox::Cancel);
        row("and back", {Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Return}, CMessageBox::Yes);
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

    void touchAnswers()
    {
        CMessageBox box(
            QStringLiteral("Warning"), QStringLiteral("Go on?"), CMessageBox::Ok | CMessageBox::Cancel);
        QCOMPARE(execWith(box, [&] { QTest::mouseClick(button(box, "cancel"), Qt::LeftButton); }),
            int(CMessageBox::Cancel));
        QCOMPARE(execWith(box, [&] { QTest::mouseClick(button(box, "ok"), Qt::LeftButton); }),
            int(CMessageBox::Ok));
        QCOMPARE(execWith(box, [&] { box.close(); }), int(CMessageBox::NoButton));
    }

    void boxFitsItsText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("size");
        QTest::newRow("short") << QStringLiteral("Error") << 16;
        QTest::newRow("two lines") << QStringLiteral(
            "Number of saved screenshots already reach\nor exceed maximum number allowed!")
                                   << 20;
        QTest::newRow("long") << QStringLiteral(
            "Alle Daten auf dem internen Speicher werden unwiderruflich gelöscht. ")
                                     .repeated(5)
                              << 18;
        QTest::newRow("endless") << QStringLiteral("Нет места. ").repeated(300) << 16;
    }

    void boxFitsItsText()
    {
        QFETCH(QString, text);
        QFETCH(int, size);
        CMessageBox box(QStringLiteral("Error"), text, CMessageBox::Ok | CMessageBox::Cancel);
        box.setMessageTextSize(size);
        const QSize room = CWidgetStyle::getScreenRegion(CWidgetStyle::RegionWorkingArea).size();
        QVERIFY(box.width() <= room.width() && box.height() <= room.height());
        const auto labels = box.findChildren<CLabel*>();
        QCOMPARE(labels.size(), 2);
        const QList<CPushButton*> buttons = {button(box, "ok"), button(box, "cancel")};
        for (const CPushButton* each : buttons) {
            QVERIFY(each->width() >= 120 && each->height() >= 42);
            QVERIFY(box.innerRect().contains(each->geometry()));
            for (const CLabel* label : labels)
                QVERIFY(!label->geometry().intersects(each->geometry()));
        }
        QVERIFY(!buttons[0]->geometry().intersects(buttons[1]->geometry()));
        if (text.size() < 1000)
            QVERIFY(labels[1]->heightForWidth(labels[1]->width()) <= labels[1]->height());
    }

    void translateRelabelsTheButtons()
    {
        CMessageBox box(QStringLiteral("Error"), QStringLiteral("x"), CMessageBox::Ok | CMessageBox::Cancel);
        CGerman german;
        QCoreApplication::installTranslator(&german);
        box.translate();
        QCOMPARE(button(box, "cancel")->text(), QStringLiteral("Den Vorgang abbrechen"));
        QVERIFY(button(box, "cancel")->width() >= button(box, "cancel")->sizeHint().width());
        QCoreApplication::removeTranslator(&german);
        box.translate();
        QCOMPARE(button(box, "cancel")->text(), QStringLiteral("Cancel"));
    }

    void dialogDimsTheWindowBehind()
    {
        CMainPage page;
        page.setBackgroundColor(Qt::white);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        CDialog dialog(&page);
        dialog.resize(200, 100);
        QSignalSpy on(&dialog, &CDialog::popOn), off(&dialog, &CDialog::popOff);
        dialog.show();
        QCOMPARE(on.count(), 1);
        const int dimmed = page.grab().toImage().pixelColor(5, 5).lightness();
        QVERIFY(dimmed < 200);
        {
            CDialog second(&page);
            second.show();
            QCOMPARE(page.grab().toImage().pixelColor(5, 5).lightness(), dimmed); // not darker
        }
        QCOMPARE(off.count(), 0);
        dialog.hide();
        QCOMPARE(off.count(), 1);
        QCOMPARE(page.grab().toImage().pixelColor(5, 5), QColor(Qt::white));
        {
            CDialog deleted(&page);
            deleted.show();
        }
        QCOMPARE(page.grab().toImage().pixelColor(5, 5), QColor(Qt::white));
    }

    void dialogStaysWhereItsOwnerPutIt()
    {
        CMainPage page;
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        CDialog centred(&page);
        centred.resize(300, 100);
        centred.show();
        const QRect area = CWidgetStyle::getScreenRegion(CWidgetStyle::RegionWorkingArea);
        QTRY_VERIFY((centred.geometry().center() - page.mapToGlobal(area.center())).manhattanLength() <= 2);
        centred.hide();
        CDialog placed(&page);
        placed.resize(300, 100);
        placed.move(40, 50);
        placed.show();
        QTRY_COMPARE(placed.pos(), QPoint(40, 50));
    }

    void markerMovesByPlace()
    {
        CDialog dialog;
        dialog.resize(300, 300);
        QList<CPushButton*> grid;
        for (int i = 0; i < 6; ++i) {
            grid.append(new CPushButton(&dialog));
            grid.last()->setGeometry(10 + i % 3 * 95, 10 + i / 3 * 60, 90, 42);
        }
        grid[1]->setEnabled(false);
        dialog.show();
        const QList<QPair<Qt::Key, int>> steps = {{Qt::Key_Right, 0}, {Qt::Key_Right, 2}, {Qt::Key_Down, 5},
            {Qt::Key_Left, 4}, {Qt::Key_Left, 3}, {Qt::Key_Left, 3}, {Qt::Key_Up, 0}};
        for (const auto& step : steps) {
            QTest::keyClick(&dialog, step.first);
            QCOMPARE(grid.indexOf(dialog.markedButton()), step.second);
        }
        // Hidden with the marker, it comes back without.
        grid[0]->hide();
        QTest::keyClick(&dialog, Qt::Key_Down);
        QCOMPARE(grid.indexOf(dialog.markedButton()), 2);
        grid[0]->show();
        QVERIFY(!grid[0]->hasArrowKeyFocus());
    }

    void functionKeysReachTheWindowBehind()
    {
        CMainPage page;
        page.show();
        CDialog dialog(&page);
        dialog.show();
        for (const Qt::Key key : {Qt::Key_F4, Qt::Key_Home, Qt::Key_Escape, Qt::Key_A})
            QTest::keyClick(&dialog, key);
        QCOMPARE(page.keys, QList<int>{Qt::Key_F4});
        QVERIFY(dialog.isVisible());
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
