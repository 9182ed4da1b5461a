#include "mainapplication.h"

#include "mainwindow.h"
#include "pluginman.h"

#include <QDebug>
#include <QDialog>
#include <QKeyEvent>
#include <QPointer>
#include <QThread>

#include <exception>

CMainApplication::CMainApplication(int& argc, char** argv)
    : QApplication(argc, argv)
{ }

bool CMainApplication::notify(QObject* receiver, QEvent* event)
{
    const QMetaObject* type
        = receiver ? receiver->metaObject() : nullptr; // the event may delete the receiver
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& exception) {
        reportException(type, exception.what());
    } catch (...) {
        reportException(type, "of no standard type");
    }
    return true;
}

void CMainApplication::reportException(const QMetaObject* receiver, const char* what) const
{
    const QString library = CPluginManager::libraryOf(receiver);
    if (!library.isEmpty()) {
        qCritical("Exception out of plug-in %s: %s", qPrintable(library), what);
        return;
    }
    // The handler may still be a plug-in's, connected to an object of Qt's: the one in front is the first
    // guess.
    const auto* plugins = QThread::currentThread() == thread() && m_pMainWindow
        ? m_pMainWindow->findChild<CPluginManager*>()
        : nullptr;
    qCritical("Exception in an event of %s, plug-in %s in front: %s",
        receiver ? receiver->className() : "nobody",
        plugins ? qPrintable(plugins->currentLibrary()) : "unknown", what);
}

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
