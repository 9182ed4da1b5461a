#pragma once

#include "utilinterface.h"
#include "widgets/label/label.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QApplication>
#include <QPluginLoader>
#include <QtTest>

#include <qtestsupport_widgets.h>

/** The shell's window with one plug-in, driven as the shell does it. */
class CPluginHost
{
public:
    explicit CPluginHost(const char* pluginFile)
        : m_loader(QString::fromLatin1(pluginFile))
    {
        QApplication::setFont(QFont(QStringLiteral("Arial"))); // the shell's for most languages
        window.setGeometry(0, 0, 800, 460);
        window.setBackgroundColor(CWidgetStyle::ColorScreen);
        plugin = qobject_cast<UtilInterface*>(m_loader.instance());
    }
    ~CPluginHost()
    {
        if (plugin)
            plugin->stop();
    }
    Q_DISABLE_COPY(CPluginHost)

    QByteArray error() const { return m_loader.errorString().toLocal8Bit(); }
    QList<CWidget*> pages() const
    {
        return window.findChildren<CWidget*>(QString(), Qt::FindDirectChildrenOnly);
    }
    CWidget* page() const { return pages().value(0); }

    CWidget window;
    UtilInterface* plugin = nullptr;

private:
    QPluginLoader m_loader;
};

/** What the shell counts on in every utility with a page. */
inline void checkPageRules(CPluginHost& host)
{
    QVERIFY2(host.plugin, host.error().constData());
    UtilInterface& plugin = *host.plugin;
    QVERIFY(!plugin.stop());
    plugin.show();
    plugin.hide();
    plugin.update();
    plugin.terminate();
    QVERIFY(!plugin.bIsStarted);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("without a window")));
    QVERIFY(!plugin.start(nullptr));

    plugin.setCallerID(65542);
    QCOMPARE(plugin.m_callerId, 65542);
    QVERIFY(plugin.bkgRun(&host.window));
    QVERIFY(host.pages().isEmpty());
    QVERIFY(plugin.start(&host.window));
    QVERIFY(plugin.start(&host.window));
    QCOMPARE(host.pages().size(), 1);
    QVERIFY(plugin.bIsStarted);
    host.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host.window));
    CWidget* page = host.page();
    QVERIFY(page->isVisible());
    QCOMPARE(page->geometry(), QRect(160, 60, 640, 400));
    QCOMPARE(page->frameStyle().borderWidths(), QMargins(0, 1, 1, 1));
    QCOMPARE(page->frameStyle().borderColor(), QColor(Qt::white));
    plugin.hide();
    QVERIFY(!page->isVisible());
    plugin.show();
    QVERIFY(page->isVisible());
    QVERIFY(plugin.stop());
    QVERIFY(host.pages().isEmpty());
    QVERIFY(!plugin.bIsStarted);
    QVERIFY(!plugin.stop());

    {
        QWidget gone; // a window that goes first takes the page along
        QVERIFY(plugin.start(&gone));
    }
    QVERIFY(!plugin.stop());
}
