#pragma once

#include "utilinterface.h"
#include "widgets/label/label.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPluginLoader>
#include <QTranslator>
#include <QtTest>

#include <qtestsupport_widgets.h>

/** Gives every text as a longer one, as German and Russian do. */
class CLongTexts : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return QString::fromUtf8(text) + QStringLiteral(" \u0434\u043b\u0438\u043d\u043d\u044b\u0439")
            + QStringLiteral(" verl\u00e4ngerter Text");
    }
};

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

/** Controls of a page that are to be seen: they lie in their parent, apart from one another, and can be
 * touched. */
inline void checkLayout(CWidget* page)
{
    const QList<QWidget*> all = page->findChildren<QWidget*>();
    for (QWidget* one : all) {
        if (!one->isVisible())
            continue;
        const QByteArray name
            = QByteArray(one->metaObject()->className()) + " " + one->objectName().toLatin1();
        QVERIFY2(one->parentWidget()->rect().contains(one->geometry()), name.constData());
        if (qobject_cast<QAbstractButton*>(one))
            QVERIFY2(one->width() >= 40 && one->height() >= 40, name.constData());
        for (QWidget* other : all) {
            if (other != one && other->isVisible() && other->parentWidget() == one->parentWidget())
                QVERIFY2(!other->geometry().intersects(one->geometry()), name.constData());
        }
    }
}

/** Keeps a picture of the page for a person to look at, if $PAGE_PICTURES names a directory. */
inline void keepPicture(CWidget* page, const QString& name)
{
    const QString directory = qEnvironmentVariable("PAGE_PICTURES");
    if (!directory.isEmpty())
        QVERIFY(page->grab().save(directory + QLatin1Char('/') + name + QStringLiteral(".png")));
}
