#include "commutils.h"

#include "files/plainfile.h"

#include <QDebug>

#include <cerrno>
#include <cstdio>
#include <unistd.h>

namespace {

constexpr int PidTextSize = 31; // characters of the answer that count

// The first line of what a pipe delivers, at most `size` characters of it.
QByteArray readFirstLine(int fd, int size)
{
    QByteArray line;
    char byte;
    while (line.size() < size) {
        const ssize_t count = ::read(fd, &byte, 1);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0 || byte == '\n')
            break;
        line.append(byte);
    }
    return line;
}

} // namespace

int CUICommUtils::pidof(const QString& name)
{
    // Short-lived, so it may be a direct child. "e": no other command inherits the pipe.
    const QByteArray command = QByteArrayLiteral("pidof ") + name.toLocal8Bit();
    std::FILE* const pipe = ::popen(command.constData(), "re");
    if (!pipe)
        return -2;
    const QByteArray output = readFirstLine(::fileno(pipe), PidTextSize).trimmed();
    ::pclose(pipe); // its result says nothing: the SIGCHLD handler may have collected the process
    qDebug("%s -- %s", qPrintable(name), output.constData());
    return output.isEmpty() ? -1 : output.toInt();
}

bool CUICommUtils::isTestAppDlgPopup()
{
    constexpr qint64 MaxLineSize = 256;
    QFile file(QStringLiteral("/tmp/var/lib/wmsv/dlg-info"));
    if (!openPlainFile(file))
        return false;
    QString line = QString::fromUtf8(file.readLine(MaxLineSize));
    return line.remove(QStringLiteral("with_dialog: ")).trimmed().toInt() == 1;
}
