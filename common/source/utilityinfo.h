#pragma once

#include <QPixmap>
#include <QString>

/** One external utility of the desktop file. A plain value. */
struct UtilityInfo
{
    int id = 0; ///< number in the space of UtilityID
    QString name; ///< label
    QString path; ///< program to start
    QString args; ///< its arguments, one string
    QString wnd_name; ///< name of the program's top-level window
    QPixmap icon; ///< null if the picture could not be loaded
};
