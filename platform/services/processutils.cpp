#include "processutils.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

namespace miscutils {

namespace {

// First argument of a process as it was started, without its directory. Empty for kernel threads.
QByteArray programName(const QString& process)
{
    QFile file(process + QStringLiteral("/cmdline"));
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray(); // it has just ended
    const QByteArray line = file.readAll();
    const QByteArray program = line.left(line.indexOf('\0'));
    return program.mid(program.lastIndexOf('/') + 1);
}

// The kernel's name of a process: cut to 15 bytes, but right where argv[0] was rewritten or is an
// interpreter's.
QByteArray kernelName(const QString& process)
{
    QFile file(process + QStringLiteral("/comm"));
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll().trimmed();
}

// One that has ended keeps its place in the table until its parent looks; it runs no more.
bool hasEnded(const QString& process)
{
    QFile file(process + QStringLiteral("/stat"));
    if (!file.open(QIODevice::ReadOnly))
        return true;
    const QByteArray line = file.readAll();
    const QByteArray state = line.mid(line.lastIndexOf(')') + 1).trimmed().left(1); // a name may hold ")"
    return state == "Z" || state == "X";
}

} // namespace

bool CCommUtils::IsProcessExist(const QString& name)
{
    if (name.isEmpty())
        return false;
    const QByteArray wanted = QFile::encodeName(name);
    const QDir table(QStringLiteral("/proc"));
    const QStringList entries = table.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::NoSort);
    for (const QString& entry : entries) {
        if (!entry.at(0).isDigit())
            continue;
        const QString process = table.filePath(entry);
        if ((programName(process) == wanted || kernelName(process) == wanted) && !hasEnded(process))
            return true;
    }
    return false;
}

} // namespace miscutils
