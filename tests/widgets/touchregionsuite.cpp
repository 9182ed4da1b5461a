#include "suites.h"

#include "widgets/dialog/dialog.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/widget/widget.h"

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QWheelEvent>
#include <QtTest>

namespace {

class CEventCounter : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        ++counts[event->type()];
        return false;
    }
    QHash<int, int> counts;
};

} // namespace

class CTouchRegionSuite : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_window = std::make_unique<CWidget>();
        m_window->setGeometry(0, 0, 400, 200);
        m_left = new CPushButton(QStringLiteral("left"), m_window.get());
        m_left->setGeometry(10, 50, 150, 60);
        m_right = new CPushButton(QStringLiteral("right"), m_window.get());
        m_right->setGeometry(240, 50, 150, 60);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void cleanup()
    {
        setRegion(QRect());
        m_window.reset();
    }

    void touchInsideIsDropped()
    {
        dropLeftHalf();
        QSignalSpy left(m_left, &QAbstractButton::clicked);
        QSignalSpy right(m_right, &QAbstractButton::clicked);
        QTest::mousePress(m_left, Qt::LeftButton);
        QVERIFY(!m_left->isDown());
        QTest::mouseRelease(m_left, Qt::LeftButton);
        QTest::mouseClick(m_right, Qt::LeftButton);
        QCOMPARE(left.count(), 0);
        QCOMPARE(right.count(), 1);
    }

    void fingerThatSlidesInIsNoTouch()
    {
        QSignalSpy clicked(m_left, &QAbstractButton::clicked);
        const QPoint place = m_left->geometry().center();
        QTest::mousePress(m_window->windowHandle(), Qt::LeftButton, {}, place);
        QVERIFY(m_left->isDown());
        dropLeftHalf(); // the screen is locked under the finger
        QTest::mouseRelease(m_window->windowHandle(), Qt::LeftButton, {}, place);
        QVERIFY(!m_left->isDown());
        QCOMPARE(clicked.count(), 0);
        setRegion(QRect());
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {}, place);
        QCOMPARE(clicked.count(), 1);
    }

    void releaseOfADroppedPressIsDropped()
    {
        CEventCounter counter;
        m_left->installEventFilter(&counter);
        dropLeftHalf();
        QTest::mousePress(m_left, Qt::LeftButton);
        setRegion(QRect());
        QTest::mouseRelease(m_left, Qt::LeftButton);
        QCOMPARE(counter.counts.value(QEvent::MouseButtonPress), 0);
        QCOMPARE(counter.counts.value(QEvent::MouseButtonRelease), 0);
        QVERIFY(!m_left->isDown());
        QSignalSpy clicked(m_left, &QAbstractButton::clicked);
        QTest::mouseClick(m_left, Qt::LeftButton);
        QCOMPARE(clicked.count(), 1);
    }

    void buttonOutOfReachLetsGo()
    {
        QSignalSpy clicked(m_left, &QAbstractButton::clicked);
        QTest::mousePress(m_left, Qt::LeftButton);
        QVERIFY(m_left->isDown());
        m_left->hide();
        m_left->show();
        QMouseEvent move(QEvent::MouseMove, QPoint(5, 5), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_left, &move);
        QVERIFY(!m_left->isDown());
        QTest::mouseRelease(m_left, Qt::LeftButton);

        QTest::mousePress(m_left, Qt::LeftButton);
        dropLeftHalf();
        QVERIFY(!m_left->isDown());
        setRegion(QRect());
        QTest::mouseRelease(m_left, Qt::LeftButton);

        QTest::mousePress(m_left, Qt::LeftButton);
        CDialog dialog(m_window.get());
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QVERIFY(!m_left->isDown());
        QTest::mouseRelease(m_left, Qt::LeftButton);
        dialog.hide();
        QCOMPARE(clicked.count(), 0);
        QTest::mouseClick(m_left, Qt::LeftButton);
        QCOMPARE(clicked.count(), 1);
    }

    void wheelAndFingersAreDropped()
    {
        CEventCounter counter;
        m_window->installEventFilter(&counter);
        m_window->setAttribute(Qt::WA_AcceptTouchEvents);
        QTouchDevice* device = QTest::createTouchDevice(); // belongs to the application
        const auto touchAt = [&](const QPoint& place) {
            QTest::touchEvent(m_window.get(), device).press(1, place, m_window.get());
            QTest::touchEvent(m_window.get(), device).release(1, place, m_window.get());
            QWheelEvent wheel(place, m_window->mapToGlobal(place), QPoint(), QPoint(0, 120), Qt::NoButton,
                Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(m_window.get(), &wheel);
        };
        dropLeftHalf();
        touchAt(QPoint(20, 20));
        QCOMPARE(counter.counts.value(QEvent::TouchBegin), 0);
        QCOMPARE(counter.counts.value(QEvent::TouchEnd), 0);
        QCOMPARE(counter.counts.value(QEvent::Wheel), 0);
        touchAt(QPoint(300, 20));
        QCOMPARE(counter.counts.value(QEvent::TouchBegin), 1);
        QCOMPARE(counter.counts.value(QEvent::Wheel), 1);
    }

private:
    static void setRegion(const QRect& region) { qApp->setProperty("NonInteractiveRegion", region); }
    void dropLeftHalf() { setRegion(QRect(m_window->mapToGlobal(QPoint(0, 0)), QSize(200, 200))); }

    std::unique_ptr<CWidget> m_window;
    CPushButton* m_left = nullptr;
    CPushButton* m_right = nullptr;
};

std::unique_ptr<QObject> touchRegionSuite()
{
    return std::make_unique<CTouchRegionSuite>();
}

#include "touchregionsuite.moc"
