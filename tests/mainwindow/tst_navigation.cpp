#include "drivenwindow.h"
#include "focussearch.h"
#include "homepage.h"
#include "powermonitor.h"
#include "startutilwindow.h"
#include "storagemonitor.h"
#include "widgets/keypad/keypaddialog.h"
#include "widgets/messagebox/messagebox.h"
#include "widgets/tabwidget/tabwidget.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QSet>

#include <algorithm>
#include <cstdlib>
#include <functional>

using Search = CFocusSearch;

namespace {

constexpr int PLAIN_DIFFERENCE = 80; // of 255, in the colour channel that differs most

QString nameOf(const QPushButton* button)
{
    return QStringLiteral("%1 %2 \"%3\"")
        .arg(QLatin1String(button->metaObject()->className()), button->objectName(), button->text());
}

/** Pixels that the marker changes so much that a person sees it. */
int changedByMarker(CPushButton* button)
{
    const QImage before = button->grab().toImage().convertToFormat(QImage::Format_RGB32);
    button->setArrowKeyFocus(true);
    const QImage after = button->grab().toImage().convertToFormat(QImage::Format_RGB32);
    button->setArrowKeyFocus(false);
    int changed = 0;
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            const QRgb a = before.pixel(x, y);
            const QRgb b = after.pixel(x, y);
            const int difference = std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                std::abs(qBlue(a) - qBlue(b))});
            changed += difference >= PLAIN_DIFFERENCE;
        }
    }
    return changed;
}

/** The controls that the marker may stand on, the idle ones among them: they lead on too. */
QList<CPushButton*> markable(const QWidget* top)
{
    QList<CPushButton*> found;
    for (auto* button : top->findChildren<CPushButton*>()) {
        if (button->isVisibleTo(top) && !button->testAttribute(Qt::WA_TransparentForMouseEvents))
            found << button;
    }
    return found;
}

QList<CPushButton*> touchable(const QWidget* top)
{
    QList<CPushButton*> found = markable(top);
    found.erase(std::remove_if(found.begin(), found.end(),
                    [](const CPushButton* button) { return !button->isEnabled(); }),
        found.end());
    return found;
}

/** Buttons whose marker a person may overlook: a frame of one pixel all around changes twice as many. */
QString faintMarkers(const QList<CPushButton*>& buttons)
{
    QStringList faint;
    for (CPushButton* button : buttons) {
        button->setArrowKeyFocus(false);
        const int changed = changedByMarker(button);
        if (changed < button->width() + button->height())
            faint << QStringLiteral("%1 (%2 pixels)").arg(nameOf(button)).arg(changed);
    }
    return faint.join(QLatin1String("; "));
}

/** Where each control's four arrow keys lead. */
using Ways = QHash<CPushButton*, QSet<CPushButton*>>;

/** Controls that cannot be reached from each other one: empty when nothing is trapped. */
QString unreached(const Ways& ways)
{
    QStringList missed;
    for (CPushButton* first : ways.keys()) {
        QSet<CPushButton*> reached{first};
        QList<CPushButton*> open{first};
        while (!open.isEmpty()) {
            for (CPushButton* next : ways.value(open.takeLast())) {
                if (!reached.contains(next)) {
                    reached << next;
                    open << next;
                }
            }
        }
        for (CPushButton* button : ways.keys()) {
            if (!reached.contains(button))
                missed << nameOf(button) + QStringLiteral(" from ") + nameOf(first);
        }
    }
    return QStringList(missed.mid(0, 12)).join(QLatin1String("; "));
}

std::unique_ptr<CDialog> messageBox()
{
    return std::make_unique<CMessageBox>(QStringLiteral("Warning"), QStringLiteral("Go on?"),
        CMessageBox::Yes | CMessageBox::No | CMessageBox::Cancel);
}

std::unique_ptr<CDialog> keyPad(CKeyPadFactory::KeyPadType type)
{
    return std::make_unique<CKeyPadDialog>(QStringLiteral("Name"), QString(), type);
}

std::unique_ptr<CDialog> powerPage()
{
    return std::make_unique<CPowerMonitor>();
}

std::unique_ptr<CDialog> storagePage()
{
    auto page = std::make_unique<CStorageMonitor>();
    StorageStatus status;
    status.bIsUSBDisk = status.bIsPlugged = status.bIsMounted = status.bIsUSBDPlugged = true;
    status.diskUsed = status.diskAvail = status.USBDUsed = status.USBDAvail = 1000;
    page->updateStorageStatus(status);
    return page;
}

} // namespace

Q_DECLARE_METATYPE(Search::DetectDirection)
Q_DECLARE_METATYPE(std::function<std::unique_ptr<CDialog>()>)

/** Where the arrow keys lead, on pages and in dialogs, and that their marker is seen there. */
class TestNavigation : public QObject, private CDrivenWindow
{
    Q_OBJECT

private slots:
    void initTestCase() { open(); }
    void init() { reset(); }

    void search_data();
    void search();
    void composedControlWinsInsideItsHolderOnly();
    void hiddenAndPassiveAreNoCandidates();

    void dialogControlsAreReached_data();
    void dialogControlsAreReached();
    void everyControlIsReached_data();
    void everyControlIsReached();

private:
    /** The page in the middle of the working area. */
    QWidget* topPage() const
    {
        QWidget* found
            = m_window->childAt(CWidgetStyle::getScreenRegion(CWidgetStyle::RegionWorkingArea).center());
        while (found && found->parentWidget() != m_window.get())
            found = found->parentWidget();
        return found;
    }
};

void TestNavigation::search_data()
{
    QTest::addColumn<QVector<QRect>>("buttons"); // the search starts at the first
    QTest::addColumn<Search::DetectDirection>("direction");
    QTest::addColumn<int>("linear"); // button found, -1 for none
    QTest::addColumn<int>("radial");
    const auto row
        = [](const char* name, const QVector<QRect>& buttons, Search::DetectDirection direction, int linear,
              int radial) { QTest::newRow(name) << buttons << direction << linear << radial; };
    row("straight right", {{100, 100, 60, 40}, {300, 110, 60, 40}}, Search::DetectRight, 1, 1);
    row("first strip leaves the screen", {{49, 100, 60, 40}, {0, 100, 40, 40}}, Search::DetectLeft, -1, -1);
    row("first strip ends at its edge", {{50, 100, 60, 40}, {0, 100, 40, 40}}, Search::DetectLeft, 1, -1);
    row("radial gap", {{56, 100, 60, 40}, {0, 200, 40, 40}}, Search::DetectLeft, -1, 1);
    row("touched by its last row", {{100, 100, 60, 40}, {100, 250, 60, 40}, {100, 140, 60, 40}},
        Search::DetectDown, 2, 2);
    row("nearest step first", {{100, 300, 60, 40}, {100, 20, 60, 40}, {100, 200, 60, 40}}, Search::DetectUp,
        2, 2);
    // Their middles lie 31 pixels above and below that of either strip.
    row("tie", {{100, 221, 60, 40}, {300, 190, 40, 40}, {300, 252, 40, 40}}, Search::DetectRight, 1, 1);
    row("strip of the bottom bar counts", {{100, 370, 60, 40}, {100, 430, 60, 30}}, Search::DetectDown, 1, 1);
    row("nothing there", {{100, 200, 60, 40}, {10, 200, 40, 40}}, Search::DetectRight, -1, -1);
}

void TestNavigation::search()
{
    QFETCH(QVector<QRect>, buttons);
    QFETCH(Search::DetectDirection, direction);
    QWidget root;
    root.resize(800, 460);
    QVector<QWidget*> made;
    for (const QRect& place : buttons) {
        made << new QPushButton(&root);
        made.last()->setGeometry(place);
    }
    const Search find(&root);
    const auto found = [&](Search::DetectType type) {
        return int(made.indexOf(find.detect(made.first(), direction, type)));
    };
    QTEST(found(Search::LinearDetect), "linear");
    QTEST(found(Search::RadialDetect), "radial");
    QCOMPARE(found(Search::NoDetect), -1);
}

void TestNavigation::composedControlWinsInsideItsHolderOnly()
{
    QWidget root;
    root.resize(800, 460);
    CPushButton from(&root);
    from.setGeometry(100, 100, 60, 40);
    auto* alone = new CToolBox(&root);
    alone->setGeometry(300, 100, 60, 40);
    const Search find(&root);
    QVERIFY(!find.detect(&from, Search::DetectRight, Search::LinearDetect));

    CPushButton holder(&root);
    holder.setGeometry(200, 80, 300, 200);
    auto* inside = new CToolBox(&holder); // nearer to the strip than the middle of its holder
    inside->setGeometry(5, 20, 60, 40);
    QCOMPARE(find.detect(&from, Search::DetectRight, Search::LinearDetect), inside);
    inside->move(230, 150); // not in the strip
    QCOMPARE(find.detect(&from, Search::DetectRight, Search::LinearDetect), &holder);
}

void TestNavigation::hiddenAndPassiveAreNoCandidates()
{
    QWidget root;
    root.resize(800, 460);
    CPushButton from(&root);
    from.setGeometry(100, 100, 60, 40);
    CPushButton hidden(&root);
    hidden.setGeometry(200, 100, 60, 40);
    hidden.hide();
    CPushButton holder(&root);
    holder.setGeometry(300, 100, 200, 40);
    CWidget plain(&holder); // groups others, cannot be touched
    plain.setGeometry(0, 0, 20, 40);
    const Search find(&root);
    QCOMPARE(find.detect(&from, Search::DetectRight, Search::LinearDetect), &holder);
}

void TestNavigation::dialogControlsAreReached_data()
{
    using Make = std::function<std::unique_ptr<CDialog>()>;
    QTest::addColumn<Make>("make");
    const auto pad = [](CKeyPadFactory::KeyPadType type) { return Make([type] { return keyPad(type); }); };
    QTest::newRow("message box") << Make(messageBox);
    QTest::newRow("power page") << Make(powerPage);
    QTest::newRow("storage page") << Make(storagePage);
    QTest::newRow("text pad") << pad(CKeyPadFactory::KeyPadText);
    QTest::newRow("number pad") << pad(CKeyPadFactory::KeyPadNumber);
}

void TestNavigation::dialogControlsAreReached()
{
    QFETCH(std::function<std::unique_ptr<CDialog>()>, make);
    const std::unique_ptr<CDialog> dialog = make();
    dialog->show();
    const QList<CPushButton*> buttons = touchable(dialog.get());
    QVERIFY(!buttons.isEmpty());

    const auto mark = [&dialog](CPushButton* button) {
        if (CPushButton* before = dialog->markedButton())
            before->setArrowKeyFocus(false);
        button->setArrowKeyFocus(true);
    };
    Ways ways;
    for (CPushButton* from : buttons) {
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down}) {
            mark(from);
            QTest::keyClick(dialog.get(), key);
            QVERIFY(dialog->markedButton());
            ways[from] << dialog->markedButton();
        }
    }
    QCOMPARE(unreached(ways), QString());
    QCOMPARE(faintMarkers(buttons), QString());
}

void TestNavigation::everyControlIsReached_data()
{
    QTest::addColumn<int>("toolPage"); // open page of the tool box, -1 for none
    QTest::addColumn<int>("utility");
    QTest::addColumn<int>("tab"); // of the utility's page, if it has any
    for (int page = -1; page < 3; ++page)
        QTest::addRow("home, tool box page %d", page) << page << int(UTILITY_ID_BEGIN) << 0;
    const struct
    {
        const char* name;
        int id;
    } pages[] = {
        {"advanced", UTILITY_ID_ADVTOOL},
        {"settings", UTILITY_ID_SETTINGS},
        {"more settings", UTILITY_ID_SETTING_MORE},
        {"about", UTILITY_ID_ABOUT},
        {"backlight", UTILITY_ID_BACKLIGHT},
        {"ip tools", UTILITY_ID_IP_TOOLS},
    };
    for (const auto& page : pages) {
        for (int tool = -1; tool < 3; ++tool)
            QTest::addRow("%s, tool box page %d", page.name, tool) << tool << page.id << 0;
    }
    for (int tab = 0; tab < 3; ++tab) {
        for (int tool = -1; tool < 3; ++tool)
            QTest::addRow("settings tab %d, tool box page %d", tab, tool)
                << tool << int(UTILITY_ID_GLOBAL) << tab;
    }
}

void TestNavigation::everyControlIsReached()
{
    QFETCH(int, toolPage);
    QFETCH(int, utility);
    QFETCH(int, tab);
    if (utility != UTILITY_ID_BEGIN) {
        m_window->changeCurrentUtil(utility);
        QTRY_VERIFY(!qobject_cast<CHomePage*>(topPage()) && !qobject_cast<CStartUtilWindow*>(topPage()));
        QVERIFY(homeShown());
    }
    toolBox()->setOpenPage(toolPage);
    if (auto* tabs = m_window->findChild<CTabWidget*>())
        tabs->setCurrentIndex(tab);

    const Search search(m_window.get());
    const QList<CPushButton*> buttons = markable(m_window.get());
    Ways ways;
    for (CPushButton* from : buttons) {
        for (const auto direction :
            {Search::DetectLeft, Search::DetectUp, Search::DetectRight, Search::DetectDown}) {
            QWidget* next = search.detect(from, direction, Search::LinearDetect);
            if (!next)
                next = search.detect(from, direction, Search::RadialDetect);
            ways[from] << qobject_cast<CPushButton*>(next);
        }
    }
    QCOMPARE(unreached(ways), QString());
    QCOMPARE(faintMarkers(buttons), QString());
}

QTEST_MAIN(TestNavigation)
#include "tst_navigation.moc"
