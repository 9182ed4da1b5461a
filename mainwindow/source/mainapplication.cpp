#include "mainapplication.h"

#include "mainwindow.h"

#include <QDialog>
#include <QKeyEvent>
#include <QPointer>

CMainApplication::CMainApplication(int& argc, char** argv)
    : QApplication(argc, argv)
{ }

bool CMainApplication::eventFilter(QObject* watched, QEvent* event)
{
    if (m_pMainWindow && event->type() == QEvent::KeyPress) {
        const int forwarded = qobject_cast<QDialog*>(watched) ? Qt::Key_F3 : Qt::Key_Home;
        if (static_cast<QKeyEvent*>(event)->key() == forwarded) {
            const bool wasAccepted = event->isAccepted(); // the window's answer is not the target's
            const QPointer<QObject> target(watched);
            sendEvent(m_pMainWindow, event);
            event->setAccepted(wasAccepted);
            if (!target)
                return true; // it went with its page: there is nobody left to hand the event to
        }
    }
    return QApplication::eventFilter(watched, event);
}
