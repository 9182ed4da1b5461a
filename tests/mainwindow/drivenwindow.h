#pragma once

#include "appfeatureheader.h"
#include "fixtureplugins.h"
#include "mainwindow.h"
#include "widgets/statusicon/statusicon.h"
#include "widgets/toolbox/toolboxbutton.h"

#include <QApplication>
#include <QFile>
#include <QTest>

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
        clearPluginCalls();
        for (const char* name : {"libIPtool.so", "libnetwiz.so", "libresultman.so", "libwebbrowser.so"})
            QFile::remove(PLUGIN_DIR + QLatin1String(name));
    }

    std::unique_ptr<CMainWindow> m_window;
};
