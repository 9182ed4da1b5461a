#include "suites.h"
#include "windowfocus.h"

#include "busymachine.h"
#include "widgets/keypad/keypaddialog.h"
#include "widgets/label/label.h"
#include "widgets/messagebox/messagebox.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/widget/widget.h"
#include "widgets/widgetstack/kpwidgetstack.h"
#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"
#include "xscreen.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QScreen>
#include <QSet>
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

QColor onScreen(const QPoint& at)
{
    const QPixmap pixel = QGuiApplication::primaryScreen()->grabWindow(0, at.x(), at.y(), 1, 1);
    return pixel.toImage().pixelColor(0, 0);
}

int shownColors(QWidget* part)
{
    const QImage image = part->grab().toImage();
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colors << image.pixel(x, y);
    }
    return colors.size();
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
        auto busy = std::make_unique<CBusyMachine>();
        QWidget opener;
        opener.show();
        QVERIFY(takeFocus(&opener));
        auto held = std::make_unique<CHeldKey>(screen, XK_Return);
        QTRY_VERIFY(busy->unflaggedRepetitions() > 0);

        CMessageBox box(QStringLiteral("Warning"), QStringLiteral("Go on?"), CMessageBox::Ok);
        QSignalSpy answered(button(box, "ok"), &QAbstractButton::pressed);
        box.show();
        QTest::keyClick(&box, Qt::Key_Down);
        QCOMPARE(box.markedButton(), button(box, "ok"));
        busy.reset(); // or the focus comes behind all the repetitions
        QVERIFY(takeFocus(&box));
        busy = std::make_unique<CBusyMachine>();
        const int before = busy->unflaggedRepetitions();
        QTRY_VERIFY(busy->unflaggedRepetitions() > before + 3);
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

    void textsTooLongAreCut_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        const QString title = QStringLiteral("System Error"), text = QStringLiteral("Error Code: 9");
        constexpr int long1 = 100 * 1000, long2 = 20 * 1000 * 1000;
        QTest::newRow("one word") << title << QString(long1, QLatin1Char('W'));
        QTest::newRow("words") << title << QStringLiteral("word ").repeated(long1 / 5);
        QTest::newRow("lines") << title << QStringLiteral("line\n").repeated(long1);
        QTest::newRow("20 MB") << title << QString(long2, QLatin1Char('i'));
        QTest::newRow("long title") << QString(long2, QLatin1Char('t')) << text;
        QTest::newRow("high title") << QStringLiteral("title\n").repeated(long1) << text;
    }

    void textsTooLongAreCut()
    {
        QFETCH(QString, title);
        QFETCH(QString, text);
        CMessageBox box(title, text, CMessageBox::Ok | CMessageBox::Cancel);
        box.setMessageTextSize(20);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QVERIFY(box.text().size() < 10000 && box.title().size() < 10000);
        const QRect room = CWidgetStyle::getScreenRegion(CWidgetStyle::RegionWorkingArea);
        QVERIFY(room.contains(box.geometry()));
        QRegion taken;
        for (const auto* part : box.findChildren<QWidget*>()) {
            QVERIFY(part->isVisible() && box.innerRect().contains(part->geometry()));
            QVERIFY(!taken.intersects(part->geometry()));
            taken += part->geometry();
        }
        QVERIFY(button(box, "ok")->height() >= 40);
        for (auto* label : box.findChildren<CLabel*>())
            QVERIFY2(shownColors(label) > 2, qPrintable(label->text().left(20))); // there is a text to see
    }

    void aBoxHasRoundCorners()
    {
        CMainPage window;
        window.setBackgroundColor(QColor(Qt::darkGreen));
        window.show();
        CMessageBox box(QStringLiteral("Warning"), QStringLiteral("Go on?"), CMessageBox::Ok, &window);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        const QRect place = box.geometry();
        const QColor border(Qt::gray);
        QTRY_COMPARE(onScreen({place.center().x(), place.top()}), border);
        const QColor behind = onScreen(place.topLeft() - QPoint(4, 4));
        QVERIFY(behind != border);
        const auto corners = [&] {
            return QVector<QColor>{onScreen(place.topLeft()), onScreen(place.topRight()),
                onScreen(place.bottomLeft()), onScreen(place.bottomRight())};
        };
        QTRY_COMPARE(corners(), QVector<QColor>(4, behind));
        // Inside the border the title follows the curve.
        QCOMPARE(onScreen(box.mapToGlobal(box.innerRect().topLeft())), border);
        QCOMPARE(onScreen(box.mapToGlobal(box.innerRect().topRight())), border);

        box.setAside(true);
        QTRY_COMPARE(onScreen({place.center().x(), place.top()}), behind);
        box.setAside(false);
        QTRY_COMPARE(onScreen({place.center().x(), place.top()}), border);
        QCOMPARE(corners(), QVector<QColor>(4, behind));

        // What fills the page frame is a page, and has its corners.
        box.resize(CWidgetStyle::getScreenRegion(CWidgetStyle::RegionPageFrame).size());
        QTRY_COMPARE(onScreen(box.geometry().topLeft()), border);
    }

    void yesIsToldFromNo()
    {
        CMessageBox box(QStringLiteral("Warning"), QStringLiteral("Go on?"),
            CMessageBox::Ok | CMessageBox::Yes | CMessageBox::No | CMessageBox::Cancel);
        const auto fill = [&box](const char* name) {
            const QImage image = button(box, name)->grab().toImage();
            return image.pixelColor(12, image.height() / 2);
        };
        QCOMPARE(fill("yes"), fill("ok"));
        QCOMPARE(fill("no"), fill("cancel"));
        QVERIFY(CStylePainter::contrast(fill("ok"), fill("cancel")) >= 1.5);
        CKeyPadDialog pad(QStringLiteral("Name"), QString(), CKeyPadFactory::KeyPadText);
        CPushButton* enter = button(pad, "ok");
        QCOMPARE(enter->grab().toImage().pixelColor(12, enter->height() / 2), fill("ok"));
        const QColor light = CWidgetStyle::getColor(CWidgetStyle::ColorTextLight);
        const QColor dark = CWidgetStyle::getColor(CWidgetStyle::ColorTextDark);
        QVERIFY(CStylePainter::contrast(fill("ok"), light) >= 4.5);
        QVERIFY(CStylePainter::contrast(fill("cancel"), dark) >= 4.5);
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
