#include "advancemenu.h"
#include "homepage.h"
#include "settingmoremenu.h"
#include "sigtransfer.h"
#include "systemsettingsmenu.h"
#include "widgets/entrywidget/entrywidget.h"

#include <QDir>
#include <QSignalSpy>
#include <QTimer>

#include <atomic>
#include <thread>
#include <utility>

#include "boxanswer.h"
#include "drivenwindow.h"
#include "xscreen.h"

namespace {

constexpr qint64 LAUNCH_BLOCK = 1900; // ms; the launch stands still for two seconds

/** The tool box from the top: text, utility, picture. */
const char TOOL_BOX[] = R"(
Tools|-1|LEFT_Tools_ntb
IP Tools|65537|LEFT_Tools_IP
Net Wiz|65538|LEFT_Tools_Netwiz
WiFi Wiz|65539|LEFT_Tools_WiFiWiz
Advanced|65540|LEFT_Tools_AdvTools
Utilities|-1|LEFT_Utilities_ntb
Settings|65542|LEFT_Utilities_Settings
Backlight|65544|LEFT_Utilities_Backlight
Harbor|65565|LEFT_Utilities_Harbor
Files|-1|LEFT_Folder_ntb
Saved|65545|LEFT_Files_ntb
USB|65546|LEFT_Folder_USBDBrowse
Capture|65568|LEFT_Tools_AdvTools
)";

/** The tiles of the pages, row by row: text, utility, picture, colour. */
const char TILES[] = R"(
Fiber Scope|65550|MAIN_FSCOPE_ntb|7
Data Card|65553|MAIN_DcardGPS_ntb|1
WiFi SA|65551|MAIN_WiFISA_ntb|10
Optical Power Meter|65555|MAIN_FSCOPE_ntb|1
WiFi InSSIDer|65567|MAIN_WiFIinSSIDer_ntb|4
About|65556|MAIN_Utilities_About_ntb|1
Backlight|65544|MAIN_Utilities_Backlight_ntb|5
Remote Access|65562|MAIN_Utilitites_RemoteCtrl_ntb|1
Global|65560|MAIN_Utilitites_Global_ntb|4
Power|65559|MAIN_Utilitites_Power_ntb|2
Date & Time|65561|MAIN_Utilitites_DateTime_ntb|1
High Precision Clock Source|65552|MAIN_Utilitites_PrecClock_ntb|1
High Precision Clock Source|65552|MAIN_Utilitites_PrecClock_ntb|1
)";

/** Whether all that the picture covers wholly is seen in the left part of the widget. */
bool shows(const QImage& widget, const QImage& picture, const QPoint& at)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) == 255
                && widget.pixel(x + at.x(), y + at.y()) != picture.pixel(x, y))
                return false;
        }
    }
    return true;
}

/** The picture that a row or tile shows, without ".png". */
QString pictureIn(QWidget* widget, const QString& names)
{
    const QImage look = widget->grab().toImage();
    QString best;
    int covered = 0;
    for (const QString& name : QDir(":/images"_s).entryList({names})) {
        const QImage picture = QImage(":/images/"_s + name).convertToFormat(QImage::Format_ARGB32);
        const int y = (look.height() - picture.height()) / 2;
        int opaque = 0;
        for (int pixel = 0; pixel < picture.width() * picture.height(); ++pixel)
            opaque += qAlpha(picture.pixel(pixel % picture.width(), pixel / picture.width())) == 255;
        for (int x = 0; x < 40 && opaque > covered && y >= 0; ++x) {
            if (shows(look, picture, {x, y})) {
                best = name.section("."_s, 0, 0);
                covered = opaque;
            }
        }
    }
    return best;
}

} // namespace

/** The main window on a real X screen, driven as a person drives it. */
class TestMainWindow : public QObject, private CDrivenWindow
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init() { reset(); }

    void firstFrameIsOnTheScreenBeforeTheLaunchBlocks();

    void everyEntryLeadsWhereItSays();
    void menuItemsAndCaption();
    void menuTileOffersClose();
    void closeStepsBackThroughThePath();
    void unavailableUtilityKeepsThePage();

    void usbWithoutDriveGoesHome();
    void relabelAfterLanguageChange();

    void captionAfterLanguageChange();
    void closeRequestIsIgnored();
    void placement();

private:
    qint64 m_shownAt = -1; // ms on m_clock
    qint64 m_blockedAt = -1; // last turn of the event loop before it stood still
    QElapsedTimer m_clock;
};

void TestMainWindow::initTestCase()
{
    m_clock.start();
    m_window = std::make_unique<CMainWindow>(nullptr);
    m_window->setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    m_window->move(0, 0);

    // Another connection watches the screen while this one builds it and then blocks.
    std::atomic<bool> stop{false};
    std::atomic<qint64> shownAt{-1};
    std::thread watcher([&] {
        const CXScreen screen;
        const QColor bar(181, 199, 239);
        while (!stop && shownAt < 0) {
            if (screen.pixel({560, 2}) == bar && screen.pixel({159, 70}) == QColor(Qt::white)
                && screen.pixel({80, 440}) != QColor(Qt::black))
                shownAt = m_clock.elapsed();
        }
    });
    m_window->show();
    // A timer that fires at every turn of the event loop: its longest pause is the blocking part of the
    // launch.
    QTimer turns;
    qint64 lastTurn = m_clock.elapsed();
    connect(&turns, &QTimer::timeout, this, [&] {
        const qint64 now = m_clock.elapsed();
        if (now - lastTurn >= LAUNCH_BLOCK)
            m_blockedAt = lastTurn;
        lastTurn = now;
    });
    turns.start(0);
    QTRY_VERIFY_WITH_TIMEOUT(m_blockedAt >= 0, 10000);
    stop = true;
    watcher.join();
    m_shownAt = shownAt;
}

void TestMainWindow::cleanupTestCase()
{
    m_window.reset();
    QVERIFY(!g_pSigTransfer);
}

void TestMainWindow::firstFrameIsOnTheScreenBeforeTheLaunchBlocks()
{
    QVERIFY(m_shownAt >= 0);
    QVERIFY2(m_shownAt < m_blockedAt + LAUNCH_BLOCK / 2,
        qPrintable(QStringLiteral("shown at %1 ms, blocked from %2 ms").arg(m_shownAt).arg(m_blockedAt)));
}

void TestMainWindow::everyEntryLeadsWhereItSays()
{
    QStringList rows;
    for (auto* row : m_window->findChildren<CToolBoxButton*>())
        rows << "%1|%2|%3"_s.arg(row->text()).arg(row->id()).arg(pictureIn(row, "LEFT_*"_s));
    QCOMPARE(rows, QString::fromLatin1(TOOL_BOX).split("\n"_s, Qt::SkipEmptyParts));

    CSigTransfer relay; // these pages lead nowhere
    CSigTransfer* const own = std::exchange(g_pSigTransfer, &relay);
    CAdvanceMenu advanced(nullptr);
    CSystemSettingsMenu settings(nullptr);
    CSettingMoreMenu more(nullptr);
    g_pSigTransfer = own;
    QSignalSpy asked(&relay, &CSigTransfer::currentUtilChanged);
    QStringList tiles;
    for (CEntryMenu* menu : std::initializer_list<CEntryMenu*>{&advanced, &settings, &more}) {
        for (int place = 0; place < 8; ++place) {
            CEntryItem* tile = menu->findChild<CEntryWidget*>()->itemAt(place / 2, place % 2);
            if (!tile)
                continue;
            tile->click();
            tiles << "%1|%2|%3|%4"_s.arg(tile->label().simplified())
                         .arg(asked.takeLast().first().toInt())
                         .arg(pictureIn(tile, "MAIN_*"_s))
                         .arg(tile->colorType());
        }
    }
    QCOMPARE(tiles, QString::fromLatin1(TILES).split("\n"_s, Qt::SkipEmptyParts));
}

void TestMainWindow::menuItemsAndCaption()
{
    QCOMPARE(caption(), QStringLiteral("Home"));
    QVERIFY(!homeShown() && !closeShown());
    choose(UTILITY_ID_ADVTOOL);
    QVERIFY(page<CAdvanceMenu>()->isVisible());
    QVERIFY(page<CHomePage>()->isHidden());
    QCOMPARE(caption(), QStringLiteral("Home>Tools>Advanced"));
    QVERIFY(homeShown() && !closeShown());
    QCOMPARE(m_window->currentUtil(), UTILITY_ID_ADVTOOL);
    choose(UTILITY_ID_SETTINGS);
    QVERIFY(page<CAdvanceMenu>()->isHidden());
    QVERIFY(page<CSystemSettingsMenu>()->isVisible());
    icon("homeButton")->click();
    QVERIFY(page<CHomePage>()->isVisible());
    QVERIFY(page<CSystemSettingsMenu>()->isHidden());
    QVERIFY(!homeShown());
    QCOMPARE(toolBox()->openPage(), -1);
}

void TestMainWindow::menuTileOffersClose()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libOpm.so"));
    choose(UTILITY_ID_ADVTOOL);
    page<CAdvanceMenu>()->findChild<CEntryWidget*>()->itemAt(2, 0)->click();
    QCOMPARE(caption(), QStringLiteral("Home>Tools>Advanced>Optical Power Meter"));
    QVERIFY(homeShown() && closeShown());
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("start")));
    QFile::remove(PLUGIN_DIR + QStringLiteral("libOpm.so"));
}

void TestMainWindow::closeStepsBackThroughThePath()
{
    installFixture("libfixture_recorder.so", QStringLiteral("libsettingPower.so"));
    choose(UTILITY_ID_SETTINGS);
    page<CSystemSettingsMenu>()->findChild<CEntryWidget*>()->itemAt(2, 0)->click();
    QTRY_VERIFY(pluginCalls().contains(QStringLiteral("start")));
    icon("closeButton")->click();
    QVERIFY(pluginCalls().contains(QStringLiteral("stop")));
    QVERIFY(page<CSystemSettingsMenu>()->isVisible());
    // The way back to the settings menu ends without buttons and with the caption of the home page.
    QVERIFY(!homeShown() && !closeShown());
    QCOMPARE(caption(), QStringLiteral("Home"));
    m_window->triggerClose();
    QVERIFY(page<CHomePage>()->isVisible());
    QCOMPARE(m_window->currentUtil(), UTILITY_ID_BEGIN);
    m_window->triggerClose(); // nothing left to close
    QVERIFY(page<CHomePage>()->isVisible());
    QFile::remove(PLUGIN_DIR + QStringLiteral("libsettingPower.so"));
}

void TestMainWindow::unavailableUtilityKeepsThePage()
{
    choose(UTILITY_ID_ADVTOOL);
    emit g_pSigTransfer->currentUtilChanged(
        UTILITY_ID_END); // counted among the built-in ones, and has no page
    QVERIFY(page<CAdvanceMenu>()->isVisible());
    QCOMPARE(caption(), QStringLiteral("Home>Tools>Advanced"));
    QVERIFY(!closeShown());
    // In the tool box, too: the chosen item is not left marked.
    StorageStatus attached;
    attached.bIsPlugged = true;
    QVERIFY(QMetaObject::invokeMethod(m_window.get(), "updateStorageStatus", Q_ARG(StorageStatus, attached)));
    CBoxAnswer told("ok");
    choose(UTILITY_ID_USB_BROWSER);
    QCOMPARE(told.text(), QStringLiteral("USB is not available on this unit."));
    QVERIFY(QMetaObject::invokeMethod(
        m_window.get(), "updateStorageStatus", Q_ARG(StorageStatus, StorageStatus())));
    QVERIFY(page<CAdvanceMenu>()->isVisible());
    QCOMPARE(markedItem(), int(UTILITY_ID_ADVTOOL));
}

void TestMainWindow::usbWithoutDriveGoesHome()
{
    choose(UTILITY_ID_ADVTOOL);
    CBoxAnswer box("ok");
    choose(UTILITY_ID_USB_BROWSER);
    QCOMPARE(box.title(), QStringLiteral("Error"));
    QCOMPARE(box.text(), QStringLiteral("Cannot find USB drive attached to the unit!"));
    const CMessageBox own(box.title(), box.text(), CMessageBox::Ok); // with the air that the library gives it
    QCOMPARE(box.geometry().size(), own.size());
    QCOMPARE(box.geometry().topLeft(), QPoint(160 + 320 - own.width() / 2 + 4, 60 + 200 - own.height() / 2));
    QVERIFY(page<CHomePage>()->isVisible());
    QVERIFY(!homeShown());
}

void TestMainWindow::relabelAfterLanguageChange()
{
    m_window->translate();
    const CToolBox* box = toolBox();
    QCOMPARE(box->itemText(2, 2), QStringLiteral("Manage"));
    QCOMPARE(box->itemText(1, 2), QStringLiteral("Harbor"));
    QCOMPARE(box->itemCount(0), 4);
}

void TestMainWindow::captionAfterLanguageChange()
{
    choose(UTILITY_ID_ADVTOOL);
    m_window->translate();
    QCOMPARE(caption(), QStringLiteral("Home>Tools>Advanced"));
    // The way back to the settings menu ends with the caption of the home page, and stays so.
    choose(UTILITY_ID_SETTINGS);
    choose(UTILITY_ID_BACKLIGHT);
    m_window->triggerClose();
    QVERIFY(page<CSystemSettingsMenu>()->isVisible());
    m_window->translate();
    QCOMPARE(caption(), QStringLiteral("Home"));
}

void TestMainWindow::closeRequestIsIgnored()
{
    QVERIFY(!m_window->close());
    QVERIFY(m_window->isVisible());
}

void TestMainWindow::placement()
{
    QWidget widget;
    widget.resize(101, 51);
    m_window->moveToScreenCenter(&widget);
    QCOMPARE(widget.pos(), QPoint(400 - 50 + 4, 260 - 25));
    m_window->moveToWorkingAreaCenter(&widget);
    QCOMPARE(widget.pos(), QPoint(480 - 50 + 4, 260 - 25));
    m_window->moveToScreenCenter(nullptr);
    QCOMPARE(CMainWindow::screenCenter(), QPoint(400, 240));
    QCOMPARE(m_window->size(), QSize(800, 460));
    CWidget framed;
    m_window->moveToWorkingArea(&framed);
    QCOMPARE(framed.geometry(), QRect(160, 60, 640, 400));
    QCOMPARE(framed.innerRect(), QRect(0, 1, 639, 398));
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
