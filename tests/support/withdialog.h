#pragma once

#include "widgets/dialog/dialog.h"

#include <QApplication>
#include <QTimer>

#include <functional>
#include <utility>

/** Does something once, with the next dialog that is up and modal: inside the dialog's own event loop. */
class CWithDialog : public QObject
{
public:
    explicit CWithDialog(std::function<void(CDialog*)> action)
        : m_action(std::move(action))
    {
        m_timer.setInterval(10);
        connect(&m_timer, &QTimer::timeout, this, [this] {
            auto* dialog = qobject_cast<CDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            m_timer.stop();
            m_done = true;
            m_action(dialog);
        });
        m_timer.start();
    }
    bool isDone() const { return m_done; }

private:
    std::function<void(CDialog*)> m_action;
    QTimer m_timer;
    bool m_done = false;
};
