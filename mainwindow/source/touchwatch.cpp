#include "touchwatch.h"

#include "widgets/dialog/dialog.h"

#include <QEvent>

#include <algorithm>

bool CTouchWatch::isDialogUp() const
{
    return std::any_of(m_dialogs.begin(), m_dialogs.end(),
        [](const QObject* dialog) { return !static_cast<const CDialog*>(dialog)->isAside(); });
}

bool CTouchWatch::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        // The event first goes to the native window; the widget's own is the one that counts.
        if (watched->isWidgetType())
            emit touched();
        break;
    case QEvent::Show:
        if (auto* dialog = qobject_cast<CDialog*>(watched); dialog && !event->spontaneous()) {
            m_dialogs.insert(dialog);
            connect(dialog, &CDialog::asideChanged, this, &CTouchWatch::dialogsChanged, Qt::UniqueConnection);
            emit dialogsChanged();
        }
        break;
    case QEvent::Hide:
        if (!event->spontaneous() && m_dialogs.remove(watched))
            emit dialogsChanged();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
