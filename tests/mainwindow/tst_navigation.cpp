#include "focussearch.h"
#include "mainwindow.h"
#include "powermonitor.h"
#include "storagemonitor.h"
#include "systemsettings.h"
#include "widgets/keypad/keypaddialog.h"
#include "widgets/messagebox/messagebox.h"
#include "widgets/toolbox/toolbox.h"

#include <QElapsedTimer>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <memory>

using Search = CFocusSearch;

namespace {

constexpr int KEY_PAUSE = 230; // ms; a key that comes sooner counts as a repeat
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

QList<CPushButton*> touchable(const QWidget* top)
{
    QList<CPushButton*> found;
    for (auto* button : top->findChildren<CPushButton*>()) {
        if (button->isVisibleTo(top) && button->isEnabled()
            && !button->testAttribute(Qt::WA_TransparentForMouseEvents))
            found << button;
    }
    return found;
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

Q_DECLARE_METATYPE(CFocusSearch::DetectDirection)
Q_DECLARE_METATYPE(std::function<std::unique_ptr<CDialog>()>)

/** Where the arrow keys lead, in windows and in dialogs, and what Enter does there. */
class TestNavigation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void search_data();
    void search();
    void composedControlWinsInsideItsHolderOnly();
    void hiddenAndPassiveAreNoCandidates();

    void dialogControlsAreReached_data();
    void dialogControlsAreReached();
    void markerIsPlain_data();
    void markerIsPlain();

    void enterTouchesOnce();
    void enterOnADisabledControl();
    void markedControlGoes();

private:
    void press(Qt::Key key)
    {
        QTRY_VERIFY(!m_sinceKey.isValid() || m_sinceKey.elapsed() >= KEY_PAUSE);
        QTest::keyClick(m_window.get(), key);
        m_sinceKey.start();
    }
    CPushButton* marked() const
    {
        for (auto* button : m_window->findChildren<CPushButton*>()) {
            if (button->hasArrowKeyFocus())
                return button;
        }
        return nullptr;
    }

    std::unique_ptr<CMainWindow> m_window;
    QElapsedTimer m_sinceKey;
};

void TestNavigation::initTestCase()
{
    m_window = std::make_unique<CMainWindow>(nullptr);
    m_window->setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    m_window->move(0, 0);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestNavigation::init()
{
    m_window->triggerHome();
    m_window->findChild<CToolBox*>()->setOpenPage(-1);
}

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
    row("upper right", {{100, 200, 60, 40}, {300, 20, 60, 40}}, Search::DetectRight, -1, 1);
    row("first strip leaves the screen", {{49, 100, 60, 40}, {0, 100, 40, 40}}, Search::DetectLeft, -1, -1);
    row("first strip ends at its edge", {{50, 100, 60, 40}, {0, 100, 40, 40}}, Search::DetectLeft, 1, -1);
    row("radial gap", {{56, 100, 60, 40}, {0, 200, 40, 40}}, Search::DetectLeft, -1, 1);
    row("touched by its last row", {{100, 100, 60, 40}, {100, 250, 60, 40}, {100, 140, 60, 40}},
        Search::DetectDown, 2, 2);
    row("nearest step first", {{100, 300, 60, 40}, {100, 20, 60, 40}, {100, 200, 60, 40}}, Search::DetectUp,
        2, 2);
    // Their middles lie 31 pixels above and below that of either strip.
    row("tie", {{100, 221, 60, 40}, {300, 190, 40, 40}, {300, 252, 40, 40}}, Search::DetectRight, 1, 1);
    row("tie the other way round", {{100, 221, 60, 40}, {300, 252, 40, 40}, {300, 190, 40, 40}},
        Search::DetectRight, 1, 1);
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
    QTest::newRow("address pad") << pad(CKeyPadFactory::KeyPadAddress);
    QTest::newRow("password pad") << pad(CKeyPadFactory::KeyPadPassword);
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
    // The real keys, from every control that has been reached; once for each control to start from.
    QHash<CPushButton*, QSet<CPushButton*>> ways;
    for (CPushButton* from : buttons) {
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down}) {
            mark(from);
            QTest::keyClick(dialog.get(), key);
            QVERIFY(dialog->markedButton());
            ways[from].insert(dialog->markedButton());
        }
    }
    QStringList missed;
    for (CPushButton* first : buttons) {
        QSet<CPushButton*> reached{first};
        QList<CPushButton*> open{first};
        while (!open.isEmpty()) {
            for (CPushButton* next : ways.value(open.takeLast())) {
                if (!reached.contains(next)) {
                    reached.insert(next);
                    open << next;
                }
            }
        }
        for (CPushButton* button : buttons) {
            if (!reached.contains(button))
                missed << nameOf(button) + QStringLiteral(" from ") + nameOf(first);
        }
    }
    QVERIFY2(missed.isEmpty(), qPrintable(QStringList(missed.mid(0, 8)).join(QLatin1String("; "))));
    for (CPushButton* button : buttons) {
        button->setArrowKeyFocus(false);
        QVERIFY2(changedByMarker(button) >= button->width() + button->height(), qPrintable(nameOf(button)));
    }
}

void TestNavigation::markerIsPlain_data()
{
    QTest::addColumn<int>("utility");
    QTest::addColumn<int>("toolPage");
    QTest::newRow("home, utilities") << int(UTILITY_ID_BEGIN) << 0;
    QTest::newRow("home, settings") << int(UTILITY_ID_BEGIN) << 1;
    QTest::newRow("home, files") << int(UTILITY_ID_BEGIN) << 2;
    QTest::newRow("advanced") << int(UTILITY_ID_ADVTOOL) << -1;
    QTest::newRow("settings") << int(UTILITY_ID_SETTINGS) << -1;
    QTest::newRow("more settings") << int(UTILITY_ID_SETTING_MORE) << -1;
    QTest::newRow("about") << int(UTILITY_ID_ABOUT) << -1;
    QTest::newRow("backlight") << int(UTILITY_ID_BACKLIGHT) << -1;
    QTest::newRow("ip tools") << int(UTILITY_ID_IP_TOOLS) << -1;
}

void TestNavigation::markerIsPlain()
{
    QFETCH(int, utility);
    QFETCH(int, toolPage);
    if (utility != UTILITY_ID_BEGIN) {
        const int before = touchable(m_window.get()).size();
        m_window->changeCurrentUtil(utility);
        QTRY_VERIFY(touchable(m_window.get()).size() > before + 2); // Home, Close and the page's own
    }
    m_window->findChild<CToolBox*>()->setOpenPage(toolPage);
    QStringList faint;
    for (CPushButton* button : touchable(m_window.get())) {
        // A frame of one pixel all around would be twice that.
        if (changedByMarker(button) < button->width() + button->height())
            faint << QStringLiteral("%1 (%2 pixels)").arg(nameOf(button)).arg(changedByMarker(button));
    }
    QVERIFY2(faint.isEmpty(), qPrintable(faint.join(QLatin1String("; "))));
}

void TestNavigation::enterTouchesOnce()
{
    press(Qt::Key_Down);
    CPushButton* header = marked();
    QVERIFY(header);
    QSignalSpy clicked(header, &QAbstractButton::clicked);
    press(Qt::Key_Return);
    QTRY_COMPARE(clicked.size(), 1);
    QVERIFY(!header->isDown());
    QCOMPARE(marked(), header); // stays where it was
    press(Qt::Key_Return);
    QTRY_COMPARE(clicked.size(), 2);
}

void TestNavigation::enterOnADisabledControl()
{
    press(Qt::Key_Down);
    CPushButton* header = marked();
    QVERIFY(header);
    QSignalSpy clicked(header, &QAbstractButton::clicked);
    header->setEnabled(false);
    press(Qt::Key_Return);
    QCoreApplication::processEvents();
    header->setEnabled(true);
    QVERIFY(!header->isDown());
    QVERIFY(clicked.isEmpty());
}

void TestNavigation::markedControlGoes()
{
    auto* passing = new CPushButton(QStringLiteral("passing"), m_window.get());
    passing->setGeometry(500, 200, 80, 40);
    passing->show();
    press(Qt::Key_Down);
    QCOMPARE(marked(), passing);
    delete passing;
    press(Qt::Key_Return); // on nothing
    press(Qt::Key_Right); // starts again at the first control
    QVERIFY(marked());
}

QTEST_MAIN(TestNavigation)
#include "tst_navigation.moc"
