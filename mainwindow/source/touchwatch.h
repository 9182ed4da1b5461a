#pragma once

#include <QObject>
#include <QSet>

class CDialog;

/**
 * Tells of what decides about touches and happens anywhere in the process: every touch on any widget, whoever
 * handles it, and every dialog that comes up or goes. An event filter of the application. Interface thread.
 */
class CTouchWatch : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /** True while a dialog is up that its owner has not set aside. */
    bool isDialogUp() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void touched();
    /** A dialog came up, went, was set aside or taken back. */
    void dialogsChanged();

private:
    QSet<QObject*> m_dialogs; // those that are up; each leaves the set before its destructor is through
};
