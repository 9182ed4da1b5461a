#pragma once

#include "appfeatureheader.h"
#include "fixtureplugins.h"
#include "mainwindow.h"
#include "systemsettings.h"
#include "testfiles.h"
#include "widgets/statusicon/statusicon.h"
#include "widgets/toolbox/toolbox.h"
#include "widgets/toolbox/toolboxbutton.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>

#include <memory>

inline const QString FAILURE_MARK = QStringLiteral("/tmp/.sysfail_indicator");

/** What the process takes no touches in: everything, or what a test application shows. */
constexpr QRect WHOLE_SCREEN(0, 0, 800, 480);
constexpr QRect TEST_APP_AREA(0, 0, 800, 460);

inline QRect region()
{
    return qApp->property("NonInteractiveRegion").toRect();
}

inline void setSetting(CSystemSettings::SystemAttribute attribute, const QVariant& value)
{
    CSystemSettings::globalSettings()->setAttribute(attribute, value, false);
}

/** A main window on the screen, driven as a person drives it. */
class CDrivenWindow
{
protected:
    static constexpr int KEY_PAUSE = 230; // ms; a key that comes sooner counts as a repeat

    void open()
    {
        m_window = std::make_unique<CMainWindow>(nullptr);
        m_window->setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
        m_window->move(0, 0);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }
    /** The home page with a closed tool box, and no plug-in that a test brought. */
    void reset()
    {
        m_window->triggerHome();
        clearPluginCalls();
        for (const char* name : {"libnetwiz.so", "libresultman.so", "libwebbrowser.so"})
            QFile::remove(PLUGIN_DIR + QLatin1String(name));
    }

    QString caption() const { return m_window->findChild<CAppFeatureHeader*>()->navigationText(); }
    bool homeShown() const { return icon("homeButton")->isVisible(); }
    bool closeShown() const { return icon("closeButton")->isVisible(); }
    CStatusIcon* icon(const char* name) const
    {
        return m_window->findChild<CStatusIcon*>(QLatin1String(name));
    }
    template <typename Page> Page* page() const { return m_window->findChild<Page*>(); }
    CToolBox* toolBox() const { return page<CToolBox>(); }
    /** The headers of the tool box, from the top. */
    QList<CToolBoxButton*> headers() const
    {
        QList<CToolBoxButton*> found;
        for (auto* button : m_window->findChildren<CToolBoxButton*>()) {
            if (button->role() == CToolBoxButton::PageHeader)
                found << button;
        }
        return found;
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

    /** Presses a key, in the window unless a dialog is up, no sooner after the last than counts as a press of
     * its own. */
    void press(Qt::Key key, QWidget* receiver = nullptr)
    {
        QTRY_VERIFY(!m_sinceKey.isValid() || m_sinceKey.elapsed() >= KEY_PAUSE);
        pressAtOnce(key, receiver);
    }
    void pressAtOnce(Qt::Key key, QWidget* receiver = nullptr)
    {
        QTest::keyClick(receiver ? receiver : m_window.get(), key);
        m_sinceKey.start();
    }
    /** The control that carries the arrow keys' marker. */
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
