#include "innerpages.h"
#include "touchstate.h"
#include "transitions.h"

#include <QStringList>
#include <QTest>

#include <stdexcept>

Q_DECLARE_METATYPE(TouchState)

/** The rules of the window that need no window: one transition at a time, and who gets a touch. */
class TestWindowRules : public QObject
{
    Q_OBJECT

private slots:
    void touchOwner_data();
    void touchOwner();
    void requestsAfterATransition();
    void askingTransitionLetsOthersIn();
    void endAndExceptionLeaveNothingBehind();
    void costlyPageIsMadeOnce();
};

void TestWindowRules::touchOwner_data()
{
    QTest::addColumn<TouchState>("state");
    QTest::addColumn<int>("owner");
    const auto row = [](const char* name, const TouchState& state, TouchOwner owner) {
        QTest::newRow(name) << state << int(owner);
    };
    const auto with = [](auto... flags) {
        TouchState state;
        ((state.*flags = true), ...);
        return state;
    };
    using S = TouchState;
    row("nothing in the way", S(), TouchOwner::AsRequested);
    row("locked", with(&S::isLocked), TouchOwner::Nobody);
    row("lock over a box", with(&S::isLocked, &S::isDialogUp), TouchOwner::Nobody);
    row("lock over a test application", with(&S::isLocked, &S::isTestAppInFront), TouchOwner::Nobody);
    row("box over a test application", with(&S::isDialogUp, &S::isTestAppInFront), TouchOwner::Shell);
    row("box over the calibration", with(&S::isDialogUp, &S::isCalibrating), TouchOwner::Shell);
    row("box over a starting browser", with(&S::isDialogUp, &S::isBrowserStarting), TouchOwner::Shell);
    row("calibration", with(&S::isCalibrating), TouchOwner::Nobody);
    row("test application over the calibration", with(&S::isTestAppInFront, &S::isCalibrating),
        TouchOwner::TestApplication);
    row("browser starts below a test application", with(&S::isBrowserStarting, &S::isTestAppInFront),
        TouchOwner::Nobody);
}

void TestWindowRules::touchOwner()
{
    QFETCH(TouchState, state);
    QTEST(int(::touchOwner(state)), "owner");
}

void TestWindowRules::requestsAfterATransition()
{
    CTransitions transitions;
    QStringList done;
    const auto note = [&done](const char* what) { return [&done, what] { done << QLatin1String(what); }; };
    transitions.perform([&] {
        transitions.request(CTransitions::Utility, note("settings"));
        transitions.request(CTransitions::Visibility, note("away"));
        transitions.request(CTransitions::Language, note("french"));
        transitions.request(CTransitions::Language, note("german"));
        transitions.request(CTransitions::Visibility, note("back"));
        transitions.perform(note("inner")); // a part of the same transition
        transitions.request(CTransitions::Utility, [&] {
            done << QStringLiteral("home");
            transitions.request(CTransitions::PowerPage, note("power")); // none is under way now
        });
        done << QStringLiteral("over");
    });
    QCOMPARE(done.join(QLatin1Char(' ')), QStringLiteral("inner over away back german home power"));
}

void TestWindowRules::askingTransitionLetsOthersIn()
{
    CTransitions transitions;
    QStringList done;
    transitions.request(CTransitions::Utility, [&] {
        // While the box asks, another process changes the page; then the answer is carried out.
        transitions.request(
            CTransitions::Utility, [&] { transitions.perform([&] { done << QStringLiteral("other"); }); });
        transitions.perform([&] { done << QStringLiteral("asked"); });
    });
    QCOMPARE(done, QStringList({QStringLiteral("other"), QStringLiteral("asked")}));
}

void TestWindowRules::endAndExceptionLeaveNothingBehind()
{
    CTransitions transitions;
    QStringList done;
    const auto note = [&done](const char* what) { return [&done, what] { done << QLatin1String(what); }; };
    QVERIFY_EXCEPTION_THROWN(transitions.perform([&] {
        transitions.request(CTransitions::Utility, note("home"));
        throw std::runtime_error("out of a plug-in");
    }),
        std::runtime_error);
    QCOMPARE(done, QStringList(QStringLiteral("home")));
    transitions.perform([&] {
        transitions.request(CTransitions::Visibility, note("waited"));
        transitions.close();
    });
    transitions.request(CTransitions::Utility, note("late"));
    QCOMPARE(done, QStringList(QStringLiteral("home")));
}

void TestWindowRules::costlyPageIsMadeOnce()
{
    CInnerPages pages;
    int made = 0;
    int launched = 0;
    auto* const page = reinterpret_cast<CWidget*>(&pages); // only handed through
    pages.addLater(UTILITY_ID_HELP, [&] {
        ++made;
        return page;
    });
    pages.addLaunchWork([&] { ++launched; });
    QVERIFY(pages.contains(UTILITY_ID_HELP) && !pages.contains(UTILITY_ID_GLOBAL));
    pages.runLaunchWork();
    pages.runLaunchWork();
    QCOMPARE(launched, 1);
    QCOMPARE(made, 0); // the work outside the page needs no page
    QCOMPARE(pages.page(UTILITY_ID_HELP), page);
    QCOMPARE(pages.page(UTILITY_ID_HELP), page);
    QCOMPARE(made, 1);
    QVERIFY(!pages.page(UTILITY_ID_GLOBAL));
}

QTEST_APPLESS_MAIN(TestWindowRules)
#include "tst_windowrules.moc"
