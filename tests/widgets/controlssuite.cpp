#include "paintcounter.h"
#include "suites.h"

#include "widgets/checkbox/checkbox.h"
#include "widgets/dialog/dialog.h"
#include "widgets/entrywidget/entrywidget.h"
#include "widgets/label/label.h"
#include "widgets/progressbar/progressbar.h"
#include "widgets/statusicon/statusicon.h"
#include "widgets/tabwidget/tabbutton.h"
#include "widgets/tabwidget/tabwidget.h"
#include "widgets/toolbox/toolbox.h"
#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QFontMetrics>
#include <QSignalSpy>
#include <QtTest>

#include <functional>

namespace {

using MakeButton = std::function<CPushButton*(QWidget*)>;

QPixmap colored(const QColor& color)
{
    QPixmap picture(40, 40);
    picture.fill(color);
    return picture;
}

QImage look(QWidget* window, QWidget* control)
{
    return window->grab(control->geometry()).toImage();
}

} // namespace

Q_DECLARE_METATYPE(MakeButton)
Q_DECLARE_METATYPE(CThemeColor)

class CControlsSuite : public QObject
{
    Q_OBJECT

private slots:
    void everyStateLooksDifferent_data()
    {
        QTest::addColumn<MakeButton>("make");
        QTest::addColumn<QColor>("ground");
        const struct
        {
            const char* name;
            MakeButton make;
        } controls[] = {
            {"button", [](QWidget* parent) { return new CPushButton(QStringLiteral("OK"), parent); }},
            {"picture button",
                [](QWidget* parent) {
                    auto* button = new CPushButton(parent);
                    button->setBackgroundImage(colored(Qt::darkGreen));
                    return button;
                }},
            {"check box", [](QWidget* parent) { return new CCheckBox(QStringLiteral("On"), parent); }},
            {"status icon",
                [](QWidget* parent) {
                    auto* icon = new CStatusIcon(parent);
                    icon->setIcon(colored(Qt::darkGreen));
                    return icon;
                }},
            {"tool box header",
                [](QWidget* parent) {
                    return new CToolBoxButton(
                        CToolBoxButton::PageHeader, QString(), QStringLiteral("Tools"), -1, parent);
                }},
            {"tool box item",
                [](QWidget* parent) {
                    return new CToolBoxButton(
                        CToolBoxButton::Item, QString(), QStringLiteral("IP Tools"), 7, parent);
                }},
            {"entry",
                [](QWidget* parent) {
                    return new CEntryItem(QString(), CEntryItem::ColorTeal, QStringLiteral("WiFi"), parent);
                }},
        };
        for (const auto& control : controls) {
            QTest::addRow("%s on dark", control.name)
                << control.make << CWidgetStyle::getColor(CWidgetStyle::ColorScreen);
            QTest::addRow("%s on light", control.name)
                << control.make << CWidgetStyle::getColor(CWidgetStyle::ColorDialog);
        }
    }

    void everyStateLooksDifferent()
    {
        QFETCH(MakeButton, make);
        QFETCH(QColor, ground);
        CWidget window;
        window.resize(400, 120);
        window.setBackgroundColor(ground);
        CPushButton* control = make(&window);
        control->resize(control->sizeHint().expandedTo(QSize(60, 40)));
        control->move(10, 10);

        QList<QImage> looks = {look(&window, control)};
        control->setDown(true);
        looks.append(look(&window, control));
        control->setDown(false);
        control->setArrowKeyFocus(true);
        looks.append(look(&window, control));
        control->setArrowKeyFocus(false);
        QCOMPARE(look(&window, control), looks.first()); // back to how it was
        control->setEnabled(false);
        looks.append(look(&window, control));
        for (int i = 0; i < looks.size(); ++i) {
            for (int k = 0; k < i; ++k)
                QVERIFY2(
                    looks.at(i) != looks.at(k), qPrintable(QStringLiteral("states %1 and %2").arg(k).arg(i)));
        }
    }

    void everyKindOfColourIsPainted_data()
    {
        QTest::addColumn<CThemeColor>("color");
        QTest::addColumn<QColor>("painted");
        QTest::newRow("outright") << CThemeColor(QColor(1, 2, 3)) << QColor(1, 2, 3);
        QTest::newRow("text") << CThemeColor(QStringLiteral("#102030")) << QColor(0x10, 0x20, 0x30);
        QTest::newRow("name that has a code's number") << CThemeColor(Qt::red) << QColor(255, 0, 0);
        QTest::newRow("code") << CThemeColor(CWidgetStyle::ColorAlert) << QColor(0xb2, 0x36, 0x2f);
        QTest::newRow("code's number") << CThemeColor(7) << QColor(0xb2, 0x36, 0x2f);
    }

    void everyKindOfColourIsPainted()
    {
        QFETCH(CThemeColor, color);
        QFETCH(QColor, painted);
        CWidget widget;
        widget.setBackgroundColor(color);
        CPushButton button;
        button.setBackgroundColor(color);
        CProgressBar bar;
        bar.setBarColor(color);
        bar.setValue(bar.maximum());
        for (QWidget* control : std::initializer_list<QWidget*>{&widget, &button, &bar}) {
            control->resize(80, 40);
            QCOMPARE(control->grab().toImage().pixelColor(40, 20), painted);
        }
    }

    void focusMarkerStandsOutOnEveryGround_data()
    {
        QTest::addColumn<QColor>("ground");
        QTest::newRow("white") << QColor(Qt::white);
        QTest::newRow("top bar") << QColor(181, 199, 239);
        QTest::newRow("screen") << CWidgetStyle::getColor(CWidgetStyle::ColorScreen);
        QTest::newRow("black") << QColor(Qt::black);
    }

    void focusMarkerStandsOutOnEveryGround()
    {
        QFETCH(QColor, ground);
        CWidget widget;
        widget.resize(80, 60);
        widget.setBackgroundColor(ground);
        widget.setArrowKeyFocus(true);
        const QImage image = widget.grab().toImage();
        double best = 0;
        for (int x = 0; x < 6; ++x)
            best = std::max(best, CStylePainter::contrast(image.pixelColor(x, 30), ground));
        QVERIFY2(best >= 3.0, qPrintable(QString::number(best)));
        QCOMPARE(image.pixelColor(40, 30), ground); // only a frame
    }

    void pressIsOnTheScreenAtOnce()
    {
        CToolBox box;
        box.resize(160, 400);
        box.addPage(QString(), QStringLiteral("Tools"));
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        auto* header = box.findChild<CToolBoxButton*>();
        CPaintCounter counter(header);
        QTest::mousePress(header, Qt::LeftButton);
        QVERIFY(counter.paints > 0); // no turn of the event loop lies between
        QTest::mouseRelease(header, Qt::LeftButton);
    }

    void unchangedValuesDoNotRepaint()
    {
        CWidget window;
        window.resize(400, 300);
        window.setBackgroundColor(CWidgetStyle::ColorScreen);
        auto* label = new CLabel(QStringLiteral("text"), &window);
        auto* button = new CPushButton(QStringLiteral("text"), &window);
        auto* icon = new CStatusIcon(&window);
        const QPixmap picture = colored(Qt::red);
        icon->setIcon(picture);
        icon->setExtraAttribute(CPushButton::PressBackground, picture);
        button->move(200, 0);
        icon->move(0, 100);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCoreApplication::processEvents();

        CPaintCounter labelPaints(label), buttonPaints(button), iconPaints(icon), windowPaints(&window);
        label->setText(QStringLiteral("text"));
        label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        label->setTextColor(CWidgetStyle::ColorTextLight);
        button->setText(QStringLiteral("text"));
        button->setArrowKeyFocus(false);
        button->setTextSize(0);
        icon->setIcon(picture);
        icon->setExtraAttribute(CPushButton::PressBackground, picture);
        window.setBackgroundColor(CWidgetStyle::ColorScreen);
        window.setBorderWidth(0);
        window.setArrowKeyFocus(false);
        QCoreApplication::processEvents();
        QCOMPARE(labelPaints.paints + buttonPaints.paints + iconPaints.paints + windowPaints.paints, 0);
        icon->setIcon(colored(Qt::blue));
        QTRY_VERIFY(iconPaints.paints > 0);
    }

    void dialogStandsInTheMiddleUnlessItWasMoved()
    {
        CWidget window;
        window.setGeometry(0, 20, 800, 460);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        CDialog placed(&window);
        CDialog moved(&window);
        placed.resize(200, 100);
        moved.resize(200, 100);
        moved.move(30, 40);
        placed.show();
        moved.show();
        QCOMPARE(placed.pos(), QPoint(160 + (640 - 200) / 2, 20 + 60 + (400 - 100) / 2));
        QCOMPARE(moved.pos(), QPoint(30, 40));
    }

    void toolBoxOpensOnePage()
    {
        CToolBox box;
        box.resize(160, 400);
        fill(box);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        const auto rows = box.findChildren<CToolBoxButton*>();
        CToolBoxButton *first = row(box, QStringLiteral("Tools")),
                       *second = row(box, QStringLiteral("Files"));
        QCOMPARE(first->geometry(), QRect(0, 0, 160, 46));
        QCOMPARE(second->geometry(), QRect(0, 47, 160, 46));

        QTest::mouseClick(first, Qt::LeftButton);
        QCOMPARE(box.openPage(), 0);
        QCOMPARE(row(box, QStringLiteral("IP Tools"))->geometry(), QRect(0, 47, 160, 48));
        QCOMPARE(row(box, QStringLiteral("Advanced"))->geometry(), QRect(0, 95, 160, 48));
        QCOMPARE(second->y(), 143);
        QVERIFY(!row(box, QStringLiteral("USB"))->isVisible());

        QTest::mouseClick(second, Qt::LeftButton);
        QCOMPARE(box.openPage(), 1);
        QVERIFY(!row(box, QStringLiteral("IP Tools"))->isVisible());
        QVERIFY(row(box, QStringLiteral("USB"))->isVisible());
        QTest::mouseClick(second, Qt::LeftButton);
        QCOMPARE(box.openPage(), -1);
        for (const CToolBoxButton* each : rows)
            QCOMPARE(each->isVisible(), each->role() == CToolBoxButton::PageHeader);

        box.setBorderWidth(1);
        QCOMPARE(first->geometry(), QRect(1, 1, 158, 46));
    }

    void toolBoxTellsEveryChoice()
    {
        CToolBox box;
        box.resize(160, 400);
        fill(box);
        box.setOpenPage(0);
        QSignalSpy chosen(&box, &CToolBox::currentItemChanged);
        CToolBoxButton* item = row(box, QStringLiteral("Advanced"));
        QTest::mouseClick(item, Qt::LeftButton);
        QTest::mouseClick(item, Qt::LeftButton); // the same again
        QCOMPARE(chosen, (QList<QList<QVariant>>{{12}, {12}}));
        QVERIFY(item->isActive());
        box.setCurrentItem(11);
        QVERIFY(!item->isActive());
        QVERIFY(row(box, QStringLiteral("IP Tools"))->isActive());
        box.collapseAll();
        QCOMPARE(box.openPage(), -1);
        QVERIFY(!row(box, QStringLiteral("IP Tools"))->isActive());
        QCOMPARE(chosen.count(), 2);
    }

    void entryGridPlacesAndTells()
    {
        CEntryWidget grid;
        grid.resize(640, 400);
        auto* first = new CEntryItem(QString(), 7, QStringLiteral("Fiber Scope"));
        grid.addItem(0, 0, first, 100);
        grid.addItem(3, 1, new CEntryItem(QString(), 4, QStringLiteral("a")), 101);
        grid.addItem(1, 1, nullptr, 102);
        QCOMPARE(first->geometry(), QRect(24, 20, 288, 80));
        QCOMPARE(grid.itemAt(3, 1)->geometry(), QRect(328, 302, 288, 80));
        QVERIFY(!grid.itemAt(1, 1));

        const QPointer<CEntryItem> replaced = grid.itemAt(3, 1);
        auto* second = new CEntryItem(QString(), 4, QStringLiteral("b"));
        grid.addItem(3, 1, second, 103);
        QVERIFY(!replaced);
        QSignalSpy chosen(&grid, &CEntryWidget::currentItemChanged);
        QTest::mouseClick(second, Qt::LeftButton);
        QTest::mouseClick(first, Qt::LeftButton);
        QCOMPARE(chosen, (QList<QList<QVariant>>{{103}, {100}}));

        first->setArrowKeyFocus(true);
        second->setArrowKeyFocus(true);
        grid.clearFocus();
        QVERIFY(!first->hasArrowKeyFocus() && !second->hasArrowKeyFocus());
    }

    void textLinesFit_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("maxLines");
        QTest::addColumn<bool>("wrap");
        QTest::addColumn<int>("lines");
        QTest::addColumn<bool>("elided");
        QTest::newRow("line feed") << QStringLiteral("Optical\nMeter") << 3 << false << 2 << false;
        QTest::newRow("German") << QStringLiteral("Bildschirmkalibrierung") << 1 << false << 1 << true;
        QTest::newRow("Russian wrapped")
            << QStringLiteral("Точный источник тактов") << 3 << true << 3 << false;
        QTest::newRow("too many lines") << QStringLiteral("a\nb\nc") << 2 << false << 2 << true;
    }

    void textLinesFit()
    {
        QFETCH(QString, text);
        QFETCH(int, maxLines);
        QFETCH(bool, wrap);
        QFETCH(int, lines);
        QFETCH(bool, elided);
        const int width = 100;
        const QFont font = CWidgetStyle::getFont(CWidgetStyle::FontText);
        const QStringList fitted = CStylePainter::textLines(text, font, width, maxLines, wrap);
        QCOMPARE(fitted.size(), lines);
        QCOMPARE(fitted.last().endsWith(QChar(0x2026)), elided);
        for (const QString& line : fitted)
            QVERIFY(QFontMetrics(font).horizontalAdvance(line) <= width);
    }

    void checkBoxTogglesAndExclusiveOnesStay()
    {
        CCheckBox box(QStringLiteral("x"));
        QSignalSpy changed(&box, &CCheckBox::stateChanged);
        QTest::mouseClick(&box, Qt::LeftButton);
        QTest::mouseClick(&box, Qt::LeftButton);
        QCOMPARE(changed, (QList<QList<QVariant>>{{int(Qt::Checked)}, {int(Qt::Unchecked)}}));
        box.setExclusive(true);
        QTest::mouseClick(&box, Qt::LeftButton);
        QTest::mouseClick(&box, Qt::LeftButton);
        QVERIFY(box.isChecked());
        QCOMPARE(changed.count(), 3);
        const QImage round = box.grab().toImage();
        box.setExclusive(false);
        QVERIFY(box.grab().toImage() != round);
    }

    void statusIconTriggersOnACompletedTouch()
    {
        CStatusIcon icon;
        icon.setIconSize(60, 60);
        QCOMPARE(icon.size(), QSize(60, 60));
        QSignalSpy triggered(&icon, &CStatusIcon::triggered);
        QTest::mousePress(&icon, Qt::LeftButton);
        QTest::mouseRelease(&icon, Qt::LeftButton, {}, QPoint(200, 200));
        QCOMPARE(triggered.count(), 0);
        QTest::mouseClick(&icon, Qt::LeftButton);
        QCOMPARE(triggered.count(), 1);

        // Without a release picture the icon shows; the released look comes back after a press.
        icon.setIcon(colored(Qt::red));
        icon.setExtraAttribute(CPushButton::PressBackground, colored(Qt::blue));
        const auto middle = [&icon] { return icon.grab().toImage().pixelColor(30, 30); };
        QCOMPARE(middle(), QColor(Qt::red));
        icon.setDown(true);
        QCOMPARE(middle(), QColor(Qt::blue));
    }

    void tabsShowOnePage()
    {
        CTabWidget tabs;
        tabs.resize(400, 300);
        tabs.show();
        QSignalSpy changed(&tabs, &CTabWidget::currentChanged);
        for (const char* text : {"One", "Two", "Three"})
            tabs.addTab(new CWidget, QLatin1String(text));
        const auto buttons = tabs.findChildren<CTabButton*>();
        const auto seen = [&tabs] {
            QList<int> indexes;
            for (int i = 0; i < tabs.count(); ++i) {
                if (tabs.widget(i)->isVisible())
                    indexes << i;
            }
            return indexes;
        };
        QCOMPARE(seen(), QList<int>{0});
        QTest::mouseClick(buttons.at(2), Qt::LeftButton);
        QTest::mouseClick(buttons.at(2), Qt::LeftButton); // stays
        QCOMPARE(seen(), QList<int>{2});
        QVERIFY(buttons.at(2)->isChecked() && !buttons.at(0)->isChecked());
        tabs.setCurrentIndex(7);
        QCOMPARE(tabs.currentIndex(), 2);
        QCOMPARE(changed.count(), 2); // the first page, and the third
        QRegion taken;
        for (const CTabButton* button : buttons) {
            QVERIFY(button->width() >= 40 && button->height() >= 40 && !taken.intersects(button->geometry()));
            taken += button->geometry();
        }
        QCOMPARE(taken.boundingRect().width(), 400);
        QCOMPARE(tabs.widget(2)->geometry().bottom(), 299);
        QVERIFY(!taken.intersects(tabs.widget(2)->geometry()));
    }

private:
    static void fill(CToolBox& box)
    {
        box.addPage(QString(), QStringLiteral("Tools"));
        box.addPage(QString(), QStringLiteral("Files"));
        box.addItem(0, QString(), QStringLiteral("IP Tools"), 11);
        box.addItem(0, QString(), QStringLiteral("Advanced"), 12);
        box.addItem(1, QString(), QStringLiteral("USB"), 13);
    }

    static CToolBoxButton* row(const CToolBox& box, const QString& text)
    {
        for (CToolBoxButton* each : box.findChildren<CToolBoxButton*>()) {
            if (each->text() == text)
                return each;
        }
        return nullptr;
    }
};

std::unique_ptr<QObject> controlsSuite()
{
    return std::make_unique<CControlsSuite>();
}

#include "controlssuite.moc"
