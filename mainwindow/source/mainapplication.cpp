#include "mainapplication.h"

#include "mainwindow.h"

#include <QDialog>
#include <QKeyEvent>

CMainApplication::CMainApplication(int& argc, char** argv)
    : QApplication(argc, argv)
{ }

bool CMainApplication::eventFilter(QObject* watched, QEvent* event)
{
    if (m_pMainWindow && event->type() == QEvent::KeyPress) {
        const int forwarded = qobject_cast<QDialog*>(watched) ? Qt::Key_F3 : Qt::Key_Home;
        if (static_cast<QKeyEvent*>(event)->key() == forwarded)
            sendEvent(m_pMainWindow, event);
    }
    return QApplication::eventFilter(watched, event);
}
