#pragma once

#include <QApplication>

class CMainWindow;

/**
 * The application object. As an event filter it hands two keys on to the main window whatever has the
 * keyboard: F3 pressed in a dialog, Home pressed anywhere else. The event then goes its usual way, unless its
 * target is gone by then. The controls put it on dialogs and on whatever takes the keyboard
 * (widgets/keywatch/keywatch.h).
 */
class CMainApplication : public QApplication
{
    Q_OBJECT

public:
    CMainApplication(int& argc, char** argv);

    /** The window keys are forwarded to; not owned, null forwards nothing. */
    void setMainWindowInstance(CMainWindow* window) { m_pMainWindow = window; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    CMainWindow* m_pMainWindow = nullptr;
};
