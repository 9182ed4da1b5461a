#include "appindicator.h"
#include "appswitcher.h"
#include "apptab.h"
#include "sigtransfer.h"
#include "systemsettings.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QApplication>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

using Res = CResourceMan;

namespace {

/** One call on a tab: its name, and its argument as a number. */
struct Step
{
    enum Call { Status, Checked, Focus, Module } call;
    int value;
};
using Steps = QVector<Step>;

void run(CAppTab& tab, const Steps& steps)
{
    for (const Step& step : steps) {
        switch (step.call) {
        case Step::Status:
            tab.setStatus(Res::AppStatus(step.value));
            break;
        case Step::Checked:
            tab.setChecked(step.value != 0);
            break;
        case Step::Focus:
            tab.setArrowKeyFocus(step.value != 0);
            break;
        case Step::Module:
            tab.setModuleExists(step.value != 0);
            break;
        }
    }
}

QImage rendered(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/** The part of a tab without number and focus marker. */
QImage pictureArea(const QImage& tab)
{
    return tab.copy(8, 31, 54, 20);
}

QImage expectedPicture(int status)
{
    QImage image(70, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter(&image).drawPixmap(0, 0, Res::getAppStatus(Res::AppStatus(status)));
    return pictureArea(image);
}

int countPixels(const QImage& image, const QRect& area, const QColor& color)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            count += image.pixelColor(x, y) == color;
    }
    return count;
}

void setModules(bool first, bool second)
{
    CSystemSettings* settings = CSystemSettings::globalSettings();
    settings->setAttribute(CSystemSettings::Exist_Module_1, first, false);
    settings->setAttribute(CSystemSettings::Exist_Module_2, second, false);
}

const QColor IDLE(200, 201, 201);
const QColor ACTIVE(233, 161, 26);
const QRect UPPER(0, 0, 70, 30);

} // namespace

Q_DECLARE_METATYPE(Steps)

class TestAppSwitcher : public QObject
{
    Q_OBJECT

private slots:
    void init() { setModules(true, true); }
    void tabRules_data();
    void tabRules();
    void tabNumber_data();
    void tabNumber();
    void captionIsReadableAndInside();
    void buildsTwoTabs();
    void pressChoosesTab_data();
    void pressChoosesTab();
    void doesNotFollowApplications();
    void indicatorElides();
};

void TestAppSwitcher::tabRules_data()
{
    QTest::addColumn<Steps>("steps");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("picture");
    QTest::addColumn<bool>("actived");
    const auto S = [](int value) { return Step{Step::Status, value}; };
    const auto C = [](int value) { return Step{Step::Checked, value}; };
    const auto F = [](int value) { return Step{Step::Focus, value}; };
    const auto M = [](int value) { return Step{Step::Module, value}; };
    const auto row = [](const char* name, const Steps& steps, int status, int picture, bool actived) {
        QTest::newRow(name) << steps << status << picture << actived;
    };
    row("new", {}, Res::AppUnuseRelease, Res::AppUnuseRelease, false);
    row("check unused", {C(1)}, Res::AppUnusePush, Res::AppUnusePush, false);
    row("check running", {S(Res::AppOKRelease), C(1)}, Res::AppOKPush, Res::AppOKPush, true);
    row("check failed", {S(Res::AppErrRelease), C(1)}, Res::AppErrPush, Res::AppErrPush, true);
    row("check a pushed look", {S(Res::AppOKPush), C(1)}, Res::AppUnuseRelease, Res::AppUnuseRelease, false);
    row("uncheck unused", {C(1), C(0)}, Res::AppUnuseRelease, Res::AppUnuseRelease, false);
    row("uncheck running", {S(Res::AppOKRelease), C(1), C(0)}, Res::AppOKRelease, Res::AppOKRelease, true);
    row("uncheck a released look", {C(1), S(Res::AppOKRelease), C(0)}, Res::AppUnuseRelease,
        Res::AppUnuseRelease, false);
    row("focus", {S(Res::AppOKRelease), F(1)}, Res::AppFocus, Res::AppFocus, true);
    row("status under focus is ignored", {F(1), S(Res::AppOKRelease)}, Res::AppFocus, Res::AppFocus, true);
    row("check under focus is ignored", {F(1), C(1)}, Res::AppFocus, Res::AppFocus, true);
    row("remote under focus", {F(1), S(Res::AppRemote)}, Res::AppRemote, Res::AppRemote, true);
    row("lost focus keeps its look", {F(1), F(0)}, Res::AppFocus, Res::AppFocus, true);
    row("absent keeps its status", {S(Res::AppOKRelease), M(0)}, Res::AppOKRelease, Res::AppNoModule, true);
    row("absent ignores status", {M(0), S(Res::AppOKRelease)}, Res::AppUnuseRelease, Res::AppNoModule, false);
    row("absent ignores focus", {M(0), F(1)}, Res::AppUnuseRelease, Res::AppNoModule, false);
    row("module comes", {S(Res::AppOKRelease), M(0), M(1)}, Res::AppOKRelease, Res::AppUnuseRelease, true);
}

void TestAppSwitcher::tabRules()
{
    QFETCH(Steps, steps);
    CAppTab tab;
    bool checked = false, focus = false;
    for (const Step& step : qAsConst(steps)) {
        run(tab, {step});
        checked = step.call == Step::Checked ? step.value : checked;
        focus = step.call == Step::Focus ? step.value : focus;
    }
    if (tab.status() == Res::AppFocus) { // this look is a marker itself; the frame does not come on top
        CAppTab unmarked;
        unmarked.setStatus(Res::AppFocus);
        QCOMPARE(rendered(tab), rendered(unmarked));
    }
    QTEST(int(tab.status()), "status");
    QTEST(tab.isActived(), "actived");
    QCOMPARE(tab.isChecked(), checked);
    QCOMPARE(tab.hasArrowKeyFocus(), focus);
    QFETCH(int, picture);
    if (picture == Res::AppRemote) {
        QVERIFY(Res::getAppStatus(Res::AppRemote).isNull());
        QCOMPARE(rendered(tab).pixelColor(40, 45), CWidgetStyle::getColor(CWidgetStyle::ColorPlate));
    } else {
        QCOMPARE(pictureArea(rendered(tab)), expectedPicture(picture));
    }
}

void TestAppSwitcher::tabNumber_data()
{
    QTest::addColumn<Steps>("steps");
    QTest::addColumn<QColor>("pen");
    QTest::addColumn<bool>("isLeft"); // in the left quarter, else about the middle
    QTest::newRow("unused") << Steps() << IDLE << false;
    QTest::newRow("absent") << Steps{{Step::Status, Res::AppOKRelease}, {Step::Module, 0}} << IDLE << false;
    QTest::newRow("remote") << Steps{{Step::Status, Res::AppRemote}} << ACTIVE << true;
}

void TestAppSwitcher::tabNumber()
{
    QFETCH(Steps, steps);
    QFETCH(QColor, pen);
    QFETCH(bool, isLeft);
    CAppTab tab;
    tab.setIndex(1);
    tab.setSessionNum(1);
    run(tab, steps);
    const QImage image = rendered(tab);
    QVERIFY(countPixels(image, isLeft ? QRect(0, 0, 17, 30) : QRect(26, 0, 18, 30), pen) > 0);
    QCOMPARE(countPixels(image, isLeft ? QRect(18, 0, 52, 30) : QRect(0, 0, 25, 30), pen), 0);
}

void TestAppSwitcher::captionIsReadableAndInside()
{
    CAppTab tab;
    tab.setIndex(1);
    tab.setText(QStringLiteral("BERT"));
    QImage image = rendered(tab);
    QVERIFY(countPixels(image, UPPER, Qt::black) > 0);
    QCOMPARE(countPixels(image, UPPER, IDLE), 0); // the index is covered, not mixed with the caption

    // A long caption stays inside the tab and off the session number.
    tab.setStatus(Res::AppRemote);
    tab.setSessionNum(12);
    tab.setText(QStringLiteral("Fernsteuerung der Anwendung"));
    image = rendered(tab);
    QVERIFY(countPixels(image, UPPER, Qt::black) > 0);
    const int numberWidth = QFontMetrics(CWidgetStyle::getFont(CWidgetStyle::FontTabIndex))
                                .horizontalAdvance(QStringLiteral("12"));
    QCOMPARE(countPixels(image, QRect(0, 0, numberWidth, 30), Qt::black), 0);
    QVERIFY(countPixels(image, QRect(0, 0, numberWidth, 30), ACTIVE) > 0);
    QCOMPARE(countPixels(image, QRect(68, 0, 2, 30), Qt::black), 0);
}

void TestAppSwitcher::buildsTwoTabs()
{
    setModules(false, true);
    CAppSwitcher switcher;
    switcher.show();
    QCOMPARE(switcher.size(), QSize(140, 60));
    CAppTab* first = switcher.getAppButton(0);
    CAppTab* second = switcher.getAppButton(1);
    QCOMPARE(first->geometry(), QRect(0, 0, 70, 60));
    QCOMPARE(second->geometry(), QRect(70, 0, 70, 60));
    QCOMPARE(first->getIndex(), 0u);
    QCOMPARE(second->getIndex(), 1u);
    QVERIFY(first->isModuleExists()); // told by module 2
    QVERIFY(!second->isModuleExists()); // told by module 1
    QCOMPARE(pictureArea(rendered(*second)), expectedPicture(Res::AppNoModule));
    for (int none : {-1, 2})
        QVERIFY(!switcher.getAppButton(none));
}

void TestAppSwitcher::pressChoosesTab_data()
{
    QTest::addColumn<Steps>("steps"); // on the pressed tab
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<bool>("isChosen");
    const auto row = [](const char* name, const Steps& steps, bool enabled, bool chosen) {
        QTest::newRow(name) << steps << enabled << chosen;
    };
    row("free", {}, true, true);
    row("running", {{Step::Status, Res::AppOKRelease}}, true, true);
    row("already checked", {{Step::Checked, 1}}, true, true);
    row("remote", {{Step::Status, Res::AppRemote}}, true, false);
    row("absent", {{Step::Module, 0}}, true, false);
    row("switcher disabled", {}, false, false);
}

void TestAppSwitcher::pressChoosesTab()
{
    QFETCH(Steps, steps);
    QFETCH(bool, isEnabled);
    QFETCH(bool, isChosen);
    for (int pressed : {0, 1}) {
        CAppSwitcher switcher;
        CAppTab* tab = switcher.getAppButton(pressed);
        CAppTab* other = switcher.getAppButton(1 - pressed);
        other->setChecked(true);
        run(*tab, steps);
        switcher.setEnabled(isEnabled);
        switcher.show();
        const bool wasChecked = tab->isChecked();
        QSignalSpy chosen(&switcher, &CAppSwitcher::currentAppChanged);
        QTest::mousePress(tab, Qt::LeftButton);
        QCOMPARE(chosen.count(), int(isChosen));
        QCOMPARE(tab->isChecked(), isChosen || wasChecked);
        QCOMPARE(other->isChecked(), !isChosen);
        if (!isChosen)
            continue;
        QCOMPARE(chosen.at(0).at(0).toInt(), pressed);
        QTest::mousePress(tab, Qt::LeftButton); // again: told again
        QCOMPARE(chosen.count(), 2);
        QTest::mouseDClick(tab, Qt::LeftButton); // the second of two in quick succession
        QCOMPARE(chosen.count(), 3);
        QVERIFY(tab->isChecked());
    }
}

void TestAppSwitcher::doesNotFollowApplications()
{
    CSigTransfer relay;
    g_pSigTransfer = &relay;
    CAppSwitcher switcher;
    g_pSigTransfer = nullptr;
    AppInfo info;
    info.appMsg = QStringLiteral("running");
    info.state = 2;
    info.sessionNum = 3;
    emit relay.appStateChanged(info);
    for (int index : {0, 1}) {
        QCOMPARE(switcher.getAppButton(index)->status(), Res::AppUnuseRelease);
        QVERIFY(!switcher.getAppButton(index)->isChecked());
    }
}

void TestAppSwitcher::indicatorElides()
{
    CAppIndicator indicator;
    indicator.setText(QStringLiteral("Dienstprogramme"));
    indicator.resize(indicator.sizeHint());
    const int whole = countPixels(rendered(indicator), indicator.rect(), Qt::white);
    QVERIFY(whole > 0);
    indicator.resize(90, 60);
    const QImage image = rendered(indicator);
    QVERIFY(countPixels(image, indicator.rect(), Qt::white) > 0);
    QCOMPARE(countPixels(image, QRect(77, 0, 13, 60), Qt::white), 0);
}

QTEST_MAIN(TestAppSwitcher)
#include "tst_appswitcher.moc"
