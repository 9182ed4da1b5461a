#pragma once

#include "widgets/messagebox/messagebox.h"
#include "widgets/pushbutton/pushbutton.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>

/** Answers the next message box by pressing one of its buttons, and remembers what the box said and where it
 * stood. */
class CBoxAnswer : public QObject
{
public:
    /** @param button object name of the button to press: "ok", "cancel", "yes" or "no" */
    explicit CBoxAnswer(const char* button)
        : m_button(QLatin1String(button))
    {
        m_timer.setInterval(10);
        connect(&m_timer, &QTimer::timeout, this, &CBoxAnswer::look);
        m_timer.start();
    }

    bool isAnswered() const { return m_answered; }
    QString title() const { return m_title; }
    QString text() const { return m_text; }
    QRect geometry() const { return m_geometry; }

private:
    void look()
    {
        auto* box = qobject_cast<CMessageBox*>(QApplication::activeModalWidget());
        auto* button = box ? box->findChild<CPushButton*>(m_button) : nullptr;
        if (!button || !box->isVisible())
            return;
        m_timer.stop();
        m_title = box->title();
        m_text = box->text();
        m_geometry = box->geometry();
        m_answered = true;
        button->click();
    }

    QString m_button;
    QTimer m_timer;
    QString m_title;
    QString m_text;
    QRect m_geometry;
    bool m_answered = false;
};
