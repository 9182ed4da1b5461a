#include "probe.h"

#include <QtGlobal>

#include <csignal>

namespace {

struct ToolCommand
{
    CProbe::Tool tool;
    QStringList command; // the address follows
};

// Several for one tool: the first that is installed. Numbers instead of names, as a unit in the field often
// has no name server and every name would wait for one.
const QList<ToolCommand>& toolCommands()
{
    static const QList<ToolCommand> commands = {
        // -O: a line for every missing answer too; a ping that prints nothing would not notice that its
        // reader
        // has gone.
        {CProbe::Ping, {QStringLiteral("ping"), QStringLiteral("-n"), QStringLiteral("-O")}},
        {CProbe::Trace, {QStringLiteral("traceroute"), QStringLiteral("-n")}},
        {CProbe::Trace, {QStringLiteral("tracepath"), QStringLiteral("-n")}},
    };
    return commands;
}

} // namespace

CProbe::CProbe(QObject* parent)
    : QObject(parent)
{ }

bool CProbe::start(Tool tool, const QString& address)
{
    m_tool = tool;
    m_address = address;
    m_lines.clear();
    m_lineCount = 0;
    for (const ToolCommand& row : toolCommands()) {
        if (row.tool == tool && runCommand(row.command + QStringList{address})) {
            // A tool that was tried in vain is no news once another one runs.
            m_lines.clear();
            m_lineCount = 0;
            emit changed();
            return true;
        }
    }
    return false;
}

bool CProbe::runCommand(const QStringList& command)
{
    m_pCommand = std::make_unique<CCommandLines>();
    connect(m_pCommand.get(), &CCommandLines::lineRead, this, &CProbe::append);
    connect(m_pCommand.get(), &CCommandLines::finished, this, &CProbe::changed);
    if (m_pCommand->start(command))
        return true;
    qWarning("IP Tools: %s", qPrintable(m_pCommand->errorText()));
    append(m_pCommand->errorText());
    return false;
}

void CProbe::stop()
{
    if (m_pCommand)
        m_pCommand->stop(SIGINT);
}

void CProbe::kill()
{
    if (!isRunning())
        return;
    m_pCommand.reset();
    emit changed();
}

void CProbe::append(const QString& line)
{
    m_lines.append(line);
    ++m_lineCount;
    if (m_lines.size() > MAX_LINES)
        m_lines.removeFirst();
    emit changed();
}
