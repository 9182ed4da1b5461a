#include "wholefile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>

WriteResult writeWholeFile(const QString& path, const QByteArray& content, QString* reason)
{
    // Qt would replace the device or pipe that a link leads to.
    const QFileInfo before(path);
    if (before.isSymLink() && before.exists() && !before.isFile() && !before.isDir())
        QFile::remove(path);
    QSaveFile file(path);
    WriteResult result = WriteResult::CannotOpen;
    bool isShort = false;
    // Without a buffer: a buffered file does not tell of a short write.
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        const qint64 written = file.write(content);
        isShort = written >= 0 && written < content.size();
        const bool isWhole = written == content.size()
            && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther)
            && file.commit();
        result = isWhole ? WriteResult::Ok : WriteResult::Incomplete;
    }
    if (reason && result != WriteResult::Ok)
        *reason = isShort ? qt_error_string(ENOSPC) : file.errorString(); // the file does not say why
    return result;
}
