#pragma once

#include "appfeatureheader.h"
#include "mainwindow.h"
#include "widgets/statusicon/statusicon.h"
#include "widgets/toolbox/toolboxbutton.h"

#include <QApplication>
#include <QFile>
#include <QTest>

// What the tests that drive the main window share.

inline const QString PLUGIN_DIR = QStringLiteral("/usr/local/arvo/plugins/");
inline const QString PLUGIN_LOG = QStringLiteral("/tmp/fixture-plugin.log");

/** What the recording plug-in has written down. */
inline QStringList pluginCalls()
{
    QFile file(PLUGIN_LOG);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

/** Puts a fixture library where the shell looks for the plug-in of this name. */
inline void installFixture(const char* fixture, const QString& libraryName)
{
    QFile::remove(PLUGIN_DIR + libraryName);
    const QString from = QStringLiteral(FIXTURE_DIR "/") + QLatin1String(fixture);
    QVERIFY2(QFile::copy(from, PLUGIN_DIR + libraryName), qPrintable(from));
}

/** A main window, driven as a person drives it. */
class CDrivenWindow
{
protected:
    QString caption() const { return m_window->findChild<CAppFeatureHeader*>()->navigationText(); }
    bool homeShown() const { return icon("homeButton")->isVisible(); }
    bool closeShown() const { return icon("closeButton")->isVisible(); }
    CStatusIcon* icon(const char* name) const
    {
        return m_window->findChild<CStatusIcon*>(QLatin1String(name));
    }
    void choose(int id)
    {
        for (auto* button : m_window->findChildren<CToolBoxButton*>()) {
            if (button->id() == id) {
                button->click();
                return;
            }
        }
        QFAIL("no such tool box item");
    }
    /** The tool box item that is marked as chosen, -1 for none. */
    int markedItem() const
    {
        for (const auto* button : m_window->findChildren<CToolBoxButton*>()) {
            if (button->isActive() && button->id() != -1)
                return button->id();
        }
        return -1;
    }
    QRect region() const { return qApp->property("NonInteractiveRegion").toRect(); }
    template <typename Page> Page* page() const { return m_window->findChild<Page*>(); }
    void reset()
    {
        m_window->triggerHome();
        QFile::remove(PLUGIN_LOG);
        for (const char* name : {"libIPtool.so", "libnetwiz.so", "libresultman.so", "libwebbrowser.so"})
            QFile::remove(PLUGIN_DIR + QLatin1String(name));
    }

    std::unique_ptr<CMainWindow> m_window;
};
