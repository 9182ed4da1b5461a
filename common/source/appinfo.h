#pragma once

#include <QMetaType>
#include <QString>

/** State of one test application as it travels through CSigTransfer. */
struct AppInfo
{
    QString appMsg;
    QString modeName;
    QString clientName;
    int state = 0;
    int sessionNum = 0;
};

Q_DECLARE_METATYPE(AppInfo)
