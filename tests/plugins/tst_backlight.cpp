#include "globalsetting.h"
#include "pluginhost.h"
#include "systemsettings.h"
#include "widgets/checkbox/checkbox.h"
#include "widgets/parmcombobox/parmcombobox.h"
#include "widgets/progressbar/progressbar.h"
#include "widgets/pushbutton/pushbutton.h"

#include <sys/ipc.h>
#include <sys/shm.h>

using S = CSystemSettings;

namespace {

/** The block as another process of the instrument has it. */
class CBlock
{
public:
    CBlock()
    {
        const key_t key = ::ftok("/usr/local/arvo/share/res/keys/global", 86);
        void* address = ::shmat(::shmget(key, 0, 0), nullptr, 0);
        if (address != reinterpret_cast<void*>(-1)) // NOLINT(performance-no-int-to-ptr)
            setting = static_cast<stArvo_global_setting*>(address);
    }
    ~CBlock()
    {
        if (setting)
            ::shmdt(setting);
    }
    Q_DISABLE_COPY(CBlock)

    QVector<int> fields() const
    {
        const stArvo_screen_setting& screen = setting->screen_setting;
        return {screen.bl_off_battery_on, screen.bl_off_battery_time, screen.br_level_battery,
            screen.bl_off_AC_on, screen.bl_off_AC_time, screen.br_level_AC};
    }

    stArvo_global_setting* setting = nullptr;
};

struct Source
{
    const char* group;
    S::SystemAttribute enabled;
    S::SystemAttribute time;
    S::SystemAttribute brightness;
    S::SystemAttribute changed;
    int firstField; // in CBlock::fields()
};

const Source Sources[] = {
    {"battery", S::BatteryBacklightEnabled, S::BatteryBacklightTime, S::BatteryBrightness,
        S::BatteryBacklightChanged, 0},
    {"external", S::ACBacklightEnabled, S::ACBacklightTime, S::ACBrightness, S::ACBacklightChanged, 3},
};

S* store()
{
    return S::globalSettings();
}

/** The controls of one power source. */
struct Group
{
    Group(CWidget* page, const Source& source)
    {
        auto* group = page->findChild<CWidget*>(QLatin1String(source.group));
        enabled = group->findChild<CCheckBox*>();
        time = group->findChild<CParmComboBox*>();
        bar = group->findChild<CProgressBar*>();
        level = group->findChild<CLabel*>(QStringLiteral("brightness"));
        darker = group->findChild<CPushButton*>(QStringLiteral("darker"));
        brighter = group->findChild<CPushButton*>(QStringLiteral("brighter"));
    }
    /** What choosing the item in the list does; -1 when there is no such item. */
    int choose(const QString& text)
    {
        for (int i = 0; i < time->count(); ++i) {
            if (time->itemText(i) == text) {
                time->setCurrentIndex(i);
                emit time->activated(i);
                return i;
            }
        }
        return -1;
    }

    CCheckBox* enabled;
    CParmComboBox* time;
    CProgressBar* bar;
    CLabel* level;
    CPushButton* darker;
    CPushButton* brighter;
};

} // namespace

class TestBacklight : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void pageRules();
    void showingWritesNothing();
    void changesAreWritten_data();
    void changesAreWritten();
    void brightnessSteps_data();
    void brightnessSteps();
    void levelFollowsTheTouch();
    void idleTimeLooksIdle();
    void followsChangesElsewhere();

private:
    static void open(CPluginHost& host);
};

void TestBacklight::initTestCase()
{
    if (!qEnvironmentVariableIsSet("INSTRUMENT_SOURCE"))
        qFatal("This test writes settings; run it through simulator/instrument.");
    QCoreApplication::setOrganizationName(QStringLiteral("test"));
    QCoreApplication::setApplicationName(QStringLiteral("backlight"));
    qRegisterMetaType<S::SystemAttribute>();
}

void TestBacklight::init()
{
    for (const Source& source : Sources) {
        store()->setAttribute(source.enabled, false);
        store()->setAttribute(source.time, 60);
        store()->setAttribute(source.brightness, 50);
        store()->setAttribute(source.changed, false);
    }
}

void TestBacklight::open(CPluginHost& host)
{
    QVERIFY2(host.plugin, host.error().constData());
    QVERIFY(host.plugin->start(&host.window));
    host.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host.window));
}

void TestBacklight::pageRules()
{
    CPluginHost host(PLUGIN_FILE);
    checkPageRules(host);
}

void TestBacklight::showingWritesNothing()
{
    const QSignalSpy changed(store(), &S::attributeChanged);
    CPluginHost host(PLUGIN_FILE);
    open(host);
    host.plugin->update();
    host.plugin->hide();
    host.plugin->show();
    QCOMPARE(changed.count(), 0);
}

void TestBacklight::changesAreWritten_data()
{
    QTest::addColumn<int>("source");
    QTest::newRow("battery") << 0;
    QTest::newRow("external") << 1;
}

void TestBacklight::changesAreWritten()
{
    QFETCH(int, source);
    const Source& own = Sources[source];
    const Source& other = Sources[1 - source];
    const CBlock block;
    QVERIFY(block.setting);
    CPluginHost host(PLUGIN_FILE);
    open(host);
    Group group(host.page(), own);
    // Nobody has written the block yet; the first change brings all settings of its source.
    block.setting->screen_setting = {};
    QVector<int> expected = block.fields();
    expected[own.firstField + 1] = 60;
    expected[own.firstField + 2] = 50;

    const auto check = [&](S::SystemAttribute attribute, int value, int field) {
        expected[own.firstField + field] = value;
        QCOMPARE(block.fields(), expected);
        QCOMPARE(store()->getAttribute(attribute).toInt(), value);
        QCOMPARE(store()->getAttribute(own.changed).toBool(), true);
        QCOMPARE(store()->getAttribute(other.changed).toBool(), false);
    };
    QSignalSpy changed(store(), &S::attributeChanged);
    const auto announced = [&changed] {
        QVector<int> attributes;
        for (const auto& arguments : changed)
            attributes << int(arguments.at(0).value<S::SystemAttribute>());
        changed.clear();
        store()->blockSignals(true);
        for (const Source& each : Sources)
            store()->setAttribute(each.changed, false); // as the shell does when it has taken over
        store()->blockSignals(false);
        return attributes;
    };

    QTest::mouseClick(group.enabled, Qt::LeftButton);
    check(own.enabled, 1, 0);
    QCOMPARE(announced(), QVector<int>({own.enabled, own.time, own.brightness, own.changed}));
    QTest::mouseClick(group.enabled, Qt::LeftButton);
    check(own.enabled, 0, 0);
    QCOMPARE(announced(), QVector<int>({own.enabled, own.time, own.brightness, own.changed}));

    QVERIFY(group.choose(QStringLiteral("30 s")) >= 0);
    check(own.time, 30, 1);
    QCOMPARE(announced(), QVector<int>({own.time, own.enabled, own.brightness, own.changed}));
    QVERIFY(group.choose(QStringLiteral("10 min")) >= 0);
    check(own.time, 600, 1);
    QCOMPARE(announced(), QVector<int>({own.time, own.enabled, own.brightness, own.changed}));
    QVERIFY(group.choose(QStringLiteral("10 min")) >= 0); // no change
    QCOMPARE(announced(), QVector<int>());

    QTest::mouseClick(group.brighter, Qt::LeftButton);
    check(own.brightness, 55, 2);
    QCOMPARE(announced(), QVector<int>({own.brightness, own.enabled, own.time, own.changed}));
}

void TestBacklight::brightnessSteps_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QVariant>("darker");
    QTest::addColumn<QVariant>("brighter");
    const auto row = [](const char* name, const QVariant& stored, const QVariant& darker,
                         const QVariant& brighter) { QTest::newRow(name) << stored << darker << brighter; };
    row("on a step", 50, 45, 55);
    row("between steps", 63, 60, 65);
    row("brightest", 100, 95, 100);
    row("darkest", 0, 0, 5);
    row("too bright", 150, 95, 150);
}

void TestBacklight::brightnessSteps()
{
    QFETCH(QVariant, stored);
    QFETCH(QVariant, darker);
    QFETCH(QVariant, brighter);
    CPluginHost host(PLUGIN_FILE);
    open(host);
    for (const Source& source : Sources) {
        const Group group(host.page(), source);
        store()->setAttribute(source.brightness, stored);
        QCOMPARE(group.level->text(), stored.toString() + QStringLiteral(" %"));
        QCOMPARE(group.bar->value(), qBound(0, stored.toInt(), 100));
        QTest::mouseClick(group.darker, Qt::LeftButton);
        QCOMPARE(store()->getAttribute(source.brightness), darker);
        store()->setAttribute(source.brightness, stored);
        QTest::mouseClick(group.brighter, Qt::LeftButton);
        QCOMPARE(store()->getAttribute(source.brightness), brighter);
        QCOMPARE(group.level->text(), brighter.toString() + QStringLiteral(" %"));
    }
}

void TestBacklight::levelFollowsTheTouch()
{
    CPluginHost host(PLUGIN_FILE);
    open(host);
    const Group group(host.page(), Sources[0]);
    auto* area = group.bar->parentWidget();
    const auto at = [&group](int percent) {
        const QRect bar = group.bar->geometry();
        return QPoint(bar.left() + bar.width() * percent / 100, bar.top() - 10); // a finger's width beside it
    };
    const auto level = [] { return store()->getAttribute(S::BatteryBrightness).toInt(); };
    QTest::mousePress(area, Qt::LeftButton, {}, at(31));
    QCOMPARE(level(), 30);
    for (const int percent : {77, 140}) {
        QMouseEvent move(QEvent::MouseMove, at(percent), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(area, &move);
        QCOMPARE(level(), percent > 100 ? 100 : 75);
    }
    QTest::mouseRelease(area, Qt::LeftButton, {}, at(100));
    QTest::mousePress(area, Qt::LeftButton, {}, QPoint(100, 20)); // elsewhere
    QCOMPARE(level(), 100);
}

void TestBacklight::idleTimeLooksIdle()
{
    CPluginHost host(PLUGIN_FILE);
    open(host);
    const Group group(host.page(), Sources[1]);
    QVERIFY(!group.time->isEnabled());
    const QImage idle = group.time->grab().toImage();
    QTest::mouseClick(group.enabled, Qt::LeftButton);
    QVERIFY(group.time->isEnabled());
    QVERIFY(group.time->grab().toImage() != idle);
}

void TestBacklight::followsChangesElsewhere()
{
    CPluginHost host(PLUGIN_FILE);
    open(host);
    const Group battery(host.page(), Sources[0]);
    const Group external(host.page(), Sources[1]);
    store()->setAttribute(S::ACBacklightEnabled, QStringLiteral("true")); // as read from the file
    store()->setAttribute(S::ACBacklightTime, QStringLiteral("20"));
    store()->setAttribute(S::ACBrightness, 63, false);
    QVERIFY(external.enabled->isChecked());
    QCOMPARE(external.time->currentText(), QStringLiteral("20 s"));
    QCOMPARE(external.bar->value(), 63);
    QVERIFY(!battery.enabled->isChecked());
    QCOMPARE(battery.time->currentText(), QStringLiteral("1 min"));
    QCOMPARE(battery.bar->value(), 50);
    // Followed, not written back.
    QCOMPARE(store()->getAttribute(S::ACBacklightTime), QVariant(QStringLiteral("20")));
    QCOMPARE(store()->getAttribute(S::ACBacklightChanged), QVariant(false));

    store()->setAttribute(S::ACBacklightEnabled, QStringLiteral("false"));
    QVERIFY(!external.enabled->isChecked());
    host.plugin->stop();
    store()->setAttribute(S::ACBrightness, 10); // nobody is left to follow
}

QTEST_MAIN(TestBacklight)
#include "tst_backlight.moc"
