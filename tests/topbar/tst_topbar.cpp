#include "appfeatureheader.h"
#include "appstatusindicator.h"
#include "breadcrumb.h"
#include "sigtransfer.h"
#include "topbar.h"
#include "widgets/statusicon/statusicon.h"
#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QApplication>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <memory>

#include "paintcounter.h"

namespace {

/** The widget alone, on a transparent ground. */
QImage rendered(QWidget* widget, bool withBackground = false)
{
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget->render(&image, QPoint(), QRegion(),
        withBackground ? QWidget::DrawWindowBackground | QWidget::DrawChildren : QWidget::RenderFlags());
    return image;
}

QImage slice(const char* strip, int x, int y)
{
    QImage image(60, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter(&image).drawPixmap(0, 0, QPixmap(QLatin1String(strip)), x, y, 60, 60);
    return image;
}

WIFIStatus wifiRecord(bool plugged, bool connected, int strength)
{
    WIFIStatus status;
    status.bIsPlugged = plugged;
    status.bIsConnected = connected;
    status.signalStrength = strength;
    return status;
}

/** The part of the header where texts may stand. */
const QRect TEXT_AREA(22, 10, 452, 40);

bool isPlateOnly(const QImage& image, const QRect& area)
{
    const QRgb plate = CWidgetStyle::getColor(CWidgetStyle::ColorPlate).rgb();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (image.pixel(x, y) != plate)
                return false;
        }
    }
    return true;
}

} // namespace

class TestTopBar : public QObject
{
    Q_OBJECT

private slots:
    void placesItsParts();
    void iconSizeHoldsFromTheNextLayout();
    void showsOnlyHomeAndClose_data();
    void showsOnlyHomeAndClose();
    void wifiButton_data();
    void wifiButton();
    void markerStandsOut();
    void unchangedWifiRecordCostsNoRepaint();
    void followsTheRelay();
    void leavesOutFirstSteps();
    void textStaysOnItsPlate_data();
    void textStaysOnItsPlate();
};

void TestTopBar::placesItsParts()
{
    CTopBar bar;
    bar.ensurePolished();
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    QCOMPARE(bar.size(), QSize(800, 60));
    QCOMPARE(bar.findChild<CAppFeatureHeader*>()->geometry(), QRect(0, 0, 500, 60));
    QCOMPARE(bar.getAppStateInidcator()->geometry(), QRect(500, 0, 300, 60));
    QCOMPARE(bar.findChild<CStatusIcon*>(QStringLiteral("closeButton"))->geometry(), QRect(236, 0, 60, 60));
    QCOMPARE(bar.findChild<CStatusIcon*>(QStringLiteral("homeButton"))->geometry(), QRect(176, 0, 60, 60));
    QCOMPARE(
        bar.findChild<CStatusIcon*>(QStringLiteral("wifiWizardButton"))->geometry(), QRect(116, 0, 60, 60));
    // Without texts and buttons the bar is one colour.
    const QImage image = rendered(&bar, true);
    QCOMPARE(image.pixelColor(250, 30), QColor(181, 199, 239));
    QCOMPARE(image.pixelColor(799, 0), QColor(181, 199, 239));
}

void TestTopBar::iconSizeHoldsFromTheNextLayout()
{
    CAppStatusIndicator indicator;
    indicator.show();
    auto* home = indicator.findChild<CStatusIcon*>(QStringLiteral("homeButton"));
    const QRect before = home->geometry();
    indicator.setIconSize(48, 40);
    QCOMPARE(home->geometry(), before);
    indicator.setFixedSize(260, 60);
    QCOMPARE(home->geometry(), QRect(260 - 1 - 3 - 2 * 48, 0, 48, 40));
}

void TestTopBar::showsOnlyHomeAndClose_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("home");
    QTest::addColumn<bool>("close");
    QTest::newRow("close") << int(StatusClose) << false << true;
    QTest::newRow("home") << int(StatusHome) << true << false;
    QTest::newRow("none") << int(StatusNone) << false << false;
}

void TestTopBar::showsOnlyHomeAndClose()
{
    QFETCH(int, type);
    CAppStatusIndicator indicator;
    QWidget* home = indicator.findChild<CStatusIcon*>(QStringLiteral("homeButton"));
    QWidget* close = indicator.findChild<CStatusIcon*>(QStringLiteral("closeButton"));
    QVERIFY(home->isHidden() && close->isHidden());
    indicator.setStatusVisible(StatusType(type), true);
    QTEST(!home->isHidden(), "home");
    QTEST(!close->isHidden(), "close");
    indicator.setStatusVisible(StatusType(type), false);
    QVERIFY(home->isHidden() && close->isHidden());
}

void TestTopBar::wifiButton_data()
{
    QTest::addColumn<bool>("plugged");
    QTest::addColumn<bool>("connected");
    QTest::addColumn<int>("strength");
    QTest::addColumn<int>("row"); // -1: hidden
    QTest::newRow("no adapter") << false << false << 0 << -1;
    QTest::newRow("no adapter, stale link") << false << true << 90 << -1;
    QTest::newRow("not connected") << true << false << 0 << 240;
    QTest::newRow("not connected, strong") << true << false << 90 << 240;
    const struct
    {
        int strength;
        int row;
    } limits[] = {{-7, 300}, {0, 300}, {1, 360}, {10, 360}, {11, 420}, {25, 420}, {26, 480}, {50, 480},
        {51, 540}, {75, 540}, {76, 600}, {100, 600}};
    for (const auto& limit : limits)
        QTest::addRow("strength %d", limit.strength) << true << true << limit.strength << limit.row;
}

void TestTopBar::wifiButton()
{
    QFETCH(bool, plugged);
    QFETCH(bool, connected);
    QFETCH(int, strength);
    QFETCH(int, row);
    CAppStatusIndicator indicator;
    auto* icon = indicator.findChild<CStatusIcon*>(QStringLiteral("wifiWizardButton"));
    QVERIFY(icon->isHidden());
    // Another row first, so that a change and a return from an unplugged adapter are seen too.
    indicator.updateWifiWizStatus(wifiRecord(true, row != 600, 80));
    indicator.updateWifiWizStatus(wifiRecord(false, false, 0));
    indicator.updateWifiWizStatus(wifiRecord(plugged, connected, strength));
    QCOMPARE(icon->isHidden(), row < 0);
    if (row < 0)
        return;
    const char* const strip = ":/images/TB_WIFI_11states.png";
    QCOMPARE(rendered(icon), slice(strip, 0, row));
    icon->setArrowKeyFocus(true);
    QCOMPARE(rendered(icon), slice(strip, 120, row));
    icon->setDown(true);
    QCOMPARE(rendered(icon), slice(strip, 60, row));
}

void TestTopBar::markerStandsOut()
{
    CTopBar bar;
    auto* icon = bar.findChild<CStatusIcon*>(QStringLiteral("homeButton"));
    icon->show();
    const QImage plain = bar.grab().toImage();
    icon->setArrowKeyFocus(true);
    const QImage marked = bar.grab().toImage();
    // Along a line from the bar into the button: the bar, the marker's dark line, its accent.
    const QPoint from = icon->mapTo(&bar, QPoint(0, icon->height() / 2));
    QColor last = plain.pixelColor(from);
    QVector<double> steps;
    for (int x = 1; x < icon->width() / 4; ++x) {
        const QColor color = marked.pixelColor(from + QPoint(x, 0));
        if (color != last)
            steps << CStylePainter::contrast(color, last);
        last = color;
    }
    QVERIFY(steps.size() >= 3);
    for (int step = 0; step < 3; ++step)
        QVERIFY2(steps[step] >= 4.5, qPrintable(QString::number(steps[step])));
}

void TestTopBar::unchangedWifiRecordCostsNoRepaint()
{
    CTopBar bar;
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    CAppStatusIndicator* indicator = bar.getAppStateInidcator();
    auto* icon = indicator->findChild<CStatusIcon*>(QStringLiteral("wifiWizardButton"));
    CPaintCounter header(bar.findChild<CAppFeatureHeader*>());
    CPaintCounter icons(indicator);

    indicator->updateWifiWizStatus(wifiRecord(true, true, 60));
    QTRY_VERIFY(icons.paints > 0);
    const QVariant picture = icon->extraAttribute(CPushButton::PressBackground);
    // The header's paint shows that a repaint of the button would have come, too.
    const auto paintHeader = [&bar, &header](const QString& text) {
        header.paints = 0;
        bar.setNavigationText(text);
        return QTest::qWaitFor([&header] { return header.paints > 0; });
    };
    QVERIFY(paintHeader(QStringLiteral("Home")));
    icons.paints = 0;
    for (int strength = 51; strength <= 75; ++strength)
        indicator->updateWifiWizStatus(wifiRecord(true, true, strength));
    QVERIFY(paintHeader(QStringLiteral("Home>Tools")));
    QCOMPARE(icons.paints, 0);
    QCOMPARE(icon->extraAttribute(CPushButton::PressBackground).value<QPixmap>().cacheKey(),
        picture.value<QPixmap>().cacheKey());

    indicator->updateWifiWizStatus(wifiRecord(true, true, 76));
    QTRY_VERIFY(icons.paints > 0);

    header.paints = 0;
    bar.setNavigationText(QStringLiteral("Home>Tools"));
    icons.paints = 0;
    indicator->updateWifiWizStatus(wifiRecord(true, true, 1));
    QTRY_VERIFY(icons.paints > 0);
    QCOMPARE(header.paints, 0);
}

void TestTopBar::followsTheRelay()
{
    const auto relay = std::make_unique<CSigTransfer>();
    g_pSigTransfer = relay.get();
    CTopBar bar;
    g_pSigTransfer = nullptr;
    QWidget* wifi = bar.findChild<CStatusIcon*>(QStringLiteral("wifiWizardButton"));
    emit relay->wifiStatusChanged(wifiRecord(true, false, 0));
    QVERIFY(!wifi->isHidden());
    emit relay->wifiStatusChanged(wifiRecord(false, false, 0));
    QVERIFY(wifi->isHidden());

    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    CPaintCounter paints(bar.getAppStateInidcator());
    emit relay->lockStateChanged(true);
    QTRY_VERIFY(paints.paints > 0);
    for (CStatusIcon* icon : bar.findChildren<CStatusIcon*>())
        QVERIFY(icon->isHidden());
}

void TestTopBar::leavesOutFirstSteps()
{
    const QFontMetrics plain(CWidgetStyle::getFont(CWidgetStyle::FontNavigation));
    const QString ellipsis(QChar(0x2026));
    const QStringList steps{QStringLiteral("Home"), QStringLiteral("Tools"), QStringLiteral("Advanced"),
        QStringLiteral("Optical Power Meter")};
    const auto textsFor = [&](int right) {
        QStringList texts;
        const auto items = layoutBreadcrumb(steps, 10, right, plain, plain);
        for (const BreadcrumbItem& item : items)
            texts.append(item.text);
        return texts;
    };
    const auto whole = layoutBreadcrumb(steps, 10, 2000, plain, plain);
    const int end = whole.last().x + whole.last().width;
    QCOMPARE(textsFor(end), steps);
    QCOMPARE(textsFor(end - 1), QStringList(ellipsis) + steps.mid(1));

    // Two marks, 6 pixels apart, stand where steps are missing, and only there.
    const auto cut = layoutBreadcrumb(steps, 10, end - 1, plain, plain);
    QCOMPARE(cut[1].separator, BreadcrumbItem::DoubleChevron);
    QCOMPARE(cut[1].chevronX, cut[0].x + cut[0].width + 8);
    QCOMPARE(cut[1].x, cut[1].chevronX + 6 + 4 + 4);
    QCOMPARE(cut[2].separator, BreadcrumbItem::Chevron);

    // However little room there is, nothing passes the right edge, and the last step goes last.
    for (int right = 10; right < end; ++right) {
        const auto items = layoutBreadcrumb(steps, 10, right, plain, plain);
        if (items.isEmpty())
            continue;
        QVERIFY(items.last().x + items.last().width <= right);
        QVERIFY(steps.last().startsWith(items.last().text.left(1)) || items.last().text == ellipsis);
    }
    QVERIFY(layoutBreadcrumb(steps, 10, 10, plain, plain).isEmpty());
}

void TestTopBar::textStaysOnItsPlate_data()
{
    QTest::addColumn<QString>("top");
    QTest::addColumn<QString>("navigation");
    QTest::newRow("title only") << "Optical Power Meter" << QString();
    QTest::newRow("title and path") << "Optical Power Meter"
                                    << "Home>Tools>Advanced";
    QTest::newRow("endless title") << QString(80, QLatin1Char('W')) << "Home>Tools";
    QTest::newRow("long Russian")
        << QString::fromUtf8("Анализатор спектра")
        << QString::fromUtf8("Главная>Инструменты>Дополнительные возможности>Измеритель оптической мощности");
}

void TestTopBar::textStaysOnItsPlate()
{
    QFETCH(QString, top);
    QFETCH(QString, navigation);
    CAppFeatureHeader header;
    QCOMPARE(rendered(&header).pixelColor(200, 30).alpha(), 0); // no plate without text
    header.setTopText(top);
    header.setNavigationText(navigation);
    const QImage image = rendered(&header);
    QVERIFY(!isPlateOnly(image, TEXT_AREA));
    // Margins of the plate on all sides, its rounded corners left out.
    QVERIFY(isPlateOnly(image, QRect(16, 12, 4, 36)));
    QVERIFY(isPlateOnly(image, QRect(476, 12, 4, 36)));
    QVERIFY(isPlateOnly(image, QRect(16, 11, 464, 6)));
    QVERIFY(isPlateOnly(image, QRect(16, 44, 464, 5)));
    QCOMPARE(image.pixelColor(494, 30).alpha(), 0);
}

QTEST_MAIN(TestTopBar)
#include "tst_topbar.moc"
