#pragma once

#include <QEvent>
#include <QWidget>

/** Counts the paint events of a widget and of all that is below it now. */
class CPaintCounter : public QObject
{
public:
    explicit CPaintCounter(QWidget* root)
    {
        root->installEventFilter(this);
        for (QWidget* child : root->findChildren<QWidget*>())
            child->installEventFilter(this);
    }
    int paints = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
};
