#include "widgets/widget/treecall.h"

#include <QMetaMethod>
#include <QPointer>
#include <QVector>
#include <QWidget>

void callInTree(QObject* root, const char* slot)
{
    // A call may delete siblings: a page that rebuilds its children in translate() does.
    QVector<QPointer<QObject>> children;
    for (QObject* child : root->children()) {
        if (child->isWidgetType())
            children.append(child);
    }
    for (const QPointer<QObject>& child : qAsConst(children)) {
        if (!child)
            continue;
        const int index = child->metaObject()->indexOfMethod(slot);
        if (index >= 0)
            child->metaObject()->method(index).invoke(child, Qt::DirectConnection);
        else
            callInTree(child, slot);
    }
}
