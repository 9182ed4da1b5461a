#include "probe.h"

#include <QDebug>

#include <csignal>

CProbe::CProbe(QObject* parent)
    : QObject(parent)
{
    connect(&m_command, &CCommandLines::lineRead, this, &CProbe::append);
    connect(&m_command, &CCommandLines::finished, this, &CProbe::changed);
}

bool CProbe::start(Tool tool, const QString& address)
{
    m_address = address;
    m_lines.clear();
    const QStringList command = tool == Ping
        ? QStringList{QStringLiteral("ping"), QStringLiteral("-n"), address}
        : QStringList{QStringLiteral("traceroute"), QStringLiteral("-n"), address};
    const bool isStarted = m_command.start(command);
    if (!isStarted) {
        qWarning().noquote() << command.first() << m_command.errorText();
        append(QStringLiteral("%1: %2").arg(command.first(), m_command.errorText()));
    }
    emit changed();
    return isStarted;
}

void CProbe::stop()
{
    m_command.stop(SIGINT);
}

void CProbe::kill()
{
    if (isRunning())
        m_command.stop(SIGKILL);
}

void CProbe::append(const QString& line)
{
    m_lines.append(line);
    if (m_lines.size() > MAX_LINES)
        m_lines.removeFirst();
    emit changed();
}
