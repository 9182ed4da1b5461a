#include "suites.h"

#include "busymachine.h"
#include "widgets/keypad/keypaddialog.h"
#include "widgets/messagebox/messagebox.h"
#include "widgets/parmcombobox/parmcombobox.h"
#include "widgets/parmcombobox/parmlist.h"
#include "widgets/parmlineedit/parmlineedit.h"
#include "widgets/widget/widget.h"
#include "widgets/widgetstyle/widgetstyle.h"
#include "xscreen.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

#include <X11/keysym.h>

#include <climits>
#include <functional>

namespace {

/** The shell's window as far as a list needs it. */
class CWindow : public CWidget
{
public:
    CWindow()
    {
        setGeometry(0, 0, 800, 480);
        show();
        activateWindow();
    }
    CParmList* list() const
    {
        for (auto* found : findChildren<CParmList*>()) {
            if (found->isVisible()) // a closed one goes a little later
                return found;
        }
        return nullptr;
    }
    void keyPressEvent(QKeyEvent* event) override { keys << event->key(); }
    QList<int> keys;
};

QStringList numbered(int count)
{
    QStringList items;
    for (int i = 0; i < count; ++i)
        items << QStringLiteral("Item %1").arg(i);
    return items;
}

/** Opens the pad of a field, types, touches OK; an expected message is answered, then the pad cancelled. */
QString typeInto(CParmLineEdit& field, const QString& typed)
{
    QString told;
    QTimer::singleShot(0, qApp, [&] {
        auto* pad = qobject_cast<CKeyPadDialog*>(QApplication::activeModalWidget());
        QVERIFY(pad);
        pad->findChild<QLineEdit*>()->setText(typed);
        QTimer::singleShot(0, qApp, [&] {
            auto* box = qobject_cast<CMessageBox*>(QApplication::activeModalWidget());
            if (!box)
                return;
            told = box->text();
            box->findChild<CPushButton*>(QStringLiteral("ok"))->click();
        });
        pad->findChild<CPushButton*>(QStringLiteral("ok"))->click();
        if (pad->isVisible())
            pad->findChild<CPushButton*>(QStringLiteral("cancel"))->click();
    });
    field.click();
    QCoreApplication::processEvents(); // a second timer that found no box
    return told;
}

} // namespace

class CFieldsSuite : public QObject
{
    Q_OBJECT

private slots:
    void rangeIsKept_data()
    {
        QTest::addColumn<int>("min");
        QTest::addColumn<int>("max");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text"); // the field starts with 50
        QTest::newRow("most") << 1 << 1000 << QStringLiteral("1000") << QStringLiteral("1000");
        QTest::newRow("below") << 1 << 1000 << QStringLiteral("0") << QStringLiteral("50");
        QTest::newRow("above") << 1 << 1000 << QStringLiteral("1001") << QStringLiteral("50");
        QTest::newRow("no int") << 1 << INT_MAX << QStringLiteral("99999999999") << QStringLiteral("50");
        QTest::newRow("negative") << -5 << 5 << QStringLiteral("-5") << QStringLiteral("-5");
    }

    void rangeIsKept()
    {
        QFETCH(int, min);
        QFETCH(int, max);
        QFETCH(QString, typed);
        QFETCH(QString, text);
        CParmLineEdit field(QStringLiteral("Number"), QStringLiteral("50"));
        field.setSKPType(CKeyPadFactory::KeyPadNumber);
        field.setRange(min, max);
        QSignalSpy changed(&field, &CParmLineEdit::textChanged);
        const QString told = typeInto(field, typed);
        QCOMPARE(field.text(), text);
        const bool refused = text == QLatin1String("50");
        QCOMPARE(changed.count(), refused ? 0 : 1);
        QCOMPARE(told.isEmpty(), !refused);
        if (refused)
            QVERIFY(told.contains(QString::number(min)) && told.contains(QString::number(max)));
    }

    void everyStateLooksDifferent()
    {
        CParmComboBox box(QStringLiteral("Unit"), {QStringLiteral("Metric")}, QStringLiteral("Metric"));
        CParmLineEdit edit(QStringLiteral("Unit"), QStringLiteral("Metric"));
        for (CParmField* field : QVector<CParmField*>{&box, &edit}) {
            field->resize(600, 44);
            QVERIFY(field->sizeHint().height() >= 40);
            QList<QImage> looks = {field->grab().toImage()};
            const auto add = [&] {
                const QImage look = field->grab().toImage();
                QVERIFY(!looks.contains(look));
                looks << look;
            };
            field->setDown(true);
            add();
            field->setDown(false);
            field->setArrowKeyFocus(true);
            add();
            field->setArrowKeyFocus(false);
            field->setEnabled(false);
            add();
        }
    }

    void keysChoose_data()
    {
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<int>("index"); // starts at 2 of 20
        QTest::addColumn<int>("activations");
        const auto row = [](const char* name, const QList<int>& keys, int index, int activations) {
            QTest::newRow(name) << keys << index << activations;
        };
        row("first key marks the present one", {Qt::Key_Down, Qt::Key_Return}, 2, 1);
        row("down", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Enter}, 3, 1);
        row("not above the first", {Qt::Key_Up, Qt::Key_Left, Qt::Key_Left, Qt::Key_Return}, 0, 1);
        row("not below the last", {Qt::Key_Up, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return},
            19, 1);
        row("Escape", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Escape}, 2, 0);
    }

    void keysChoose()
    {
        QFETCH(QList<int>, keys);
        CWindow window;
        CParmComboBox box(QStringLiteral("Profile"), numbered(20), QStringLiteral("Item 2"), &window);
        box.setGeometry(180, 100, 600, 44);
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QSignalSpy changed(&box, &CParmComboBox::currentIndexChanged),
            activated(&box, &CParmComboBox::activated);
        box.click();
        QVERIFY(window.list());
        for (const int code : keys) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key(code));
            if (window.list() && window.list()->markedRow() >= 0) {
                // The marker is never scrolled out of sight.
                QCOMPARE(window.list()->rowRect(window.list()->markedRow()).height(), 44);
            }
        }
        QTEST(box.currentIndex(), "index");
        QTEST(activated.count(), "activations");
        QCOMPARE(changed.count(), box.currentIndex() == 2 ? 0 : 1);
        const bool closed = keys.size() > 1;
        QCOMPARE(window.list() == nullptr, closed);
        QVERIFY(window.keys.isEmpty());
        if (!closed) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4); // is not the list's
            QCOMPARE(window.keys, QList<int>{Qt::Key_F4});
        }
    }

    void aHeldEnterOpensAndDoesNotChoose()
    {
        CWindow window;
        CParmComboBox box(QStringLiteral("Profile"), numbered(20), QStringLiteral("Item 2"), &window);
        box.show();
        box.setArrowKeyFocus(true); // the list comes up with its marker
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const CXScreen screen;
        const CBusyMachine busy;
        const CHeldKey held(screen, XK_Return);
        QTRY_VERIFY(window.keys.contains(Qt::Key_Return));
        box.click();
        QTRY_VERIFY(busy.unflaggedRepetitions() > 3);
        QVERIFY(window.list());
        QCOMPARE(window.list()->markedRow(), 2);
    }

    void touchesChooseScrollAndClose()
    {
        CWindow window;
        CParmComboBox box(QStringLiteral("Profile"), numbered(20), QStringLiteral("Item 2"), &window);
        box.setGeometry(180, 400, 600, 44); // no room below
        box.show();
        QSignalSpy activated(&box, &CParmComboBox::activated);
        const QRect page = CWidgetStyle::getScreenRegion(CWidgetStyle::RegionPageFrame);

        box.click();
        QVERIFY(page.contains(window.list()->listRect()));
        QTest::mouseClick(window.list(), Qt::LeftButton, {}, window.list()->rowRect(3).center());
        QCOMPARE(box.currentIndex(), 3);
        QVERIFY(!window.list());

        box.click();
        const QPoint start = window.list()->rowRect(5).center();
        const QPoint end = start - QPoint(0, 2 * 44);
        QTest::mousePress(window.list(), Qt::LeftButton, {}, start);
        QTest::mouseMove(window.list(), end);
        QMouseEvent move(QEvent::MouseMove, end, Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(window.list(), &move);
        QTest::mouseRelease(window.list(), Qt::LeftButton, {}, end);
        QVERIFY(window.list()); // scrolled, nothing chosen
        QCOMPARE(window.list()->rowRect(5).center(), end);
        QTest::mouseClick(
            window.list(), Qt::LeftButton, {}, window.list()->listRect().topLeft() - QPoint(20, -20));
        QVERIFY(!window.list());
        QCOMPARE(box.currentIndex(), 3);
        QCOMPARE(activated.count(), 1);

        // Room on either side: below.
        box.move(180, 100);
        box.addItems(numbered(3));
        box.setCurrentIndex(0);
        box.click();
        QVERIFY(window.list()->listRect().top() > box.y());
        QVERIFY(!window.list()->listRect().intersects(box.geometry().adjusted(0, 0, 0, -8)));
        for (int row = 0; row < 3; ++row)
            QCOMPARE(window.list()->rowRect(row).height(), 44); // all of them without scrolling
    }

    void listGoesWithItsBox()
    {
        CWindow window;
        CWidget page(&window);
        page.setGeometry(160, 60, 640, 400);
        page.show();
        auto* box = new CParmComboBox(QStringLiteral("Profile"), numbered(5), QString(), &page);
        box->show();
        box->click();
        QVERIFY(window.list());
        page.hide(); // a key took the shell to another page
        QVERIFY(!window.list());
        page.show();
        QVERIFY(!window.list());

        // Whoever hears of a choice may take the box away.
        QPointer<CParmComboBox> watched(box);
        connect(box, &CParmComboBox::currentIndexChanged, this, [box] { delete box; });
        box->click();
        QTest::mouseClick(window.list(), Qt::LeftButton, {}, window.list()->rowRect(1).center());
        QVERIFY(!watched);
        QVERIFY(!window.list());
    }
};

std::unique_ptr<QObject> fieldsSuite()
{
    return std::make_unique<CFieldsSuite>();
}

#include "fieldssuite.moc"
