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

    /** Ends what an event handler throws, mostly one of a plug-in: it is logged, and the event counts as
     * taken. */
    bool notify(QObject* receiver, QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void reportException(const QMetaObject* receiver, const char* what) const;

    CMainWindow* m_pMainWindow = nullptr;
};
