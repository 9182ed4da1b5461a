#pragma once

#include <QEvent>
#include <QObject>

/** Tells of every touch on any widget of the process, whoever handles it. An event filter of the application.
 */
class CTouchWatch : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // The event first goes to the native window; the widget's own is the one that counts.
        if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType())
            emit touched();
        return QObject::eventFilter(watched, event);
    }

signals:
    void touched();
};
