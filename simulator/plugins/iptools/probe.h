#pragma once

#include "commandlines.h"

#include <QObject>
#include <QStringList>

#include <memory>

/**
 * One run of a network tool against an address, with its last lines of output. It knows nothing of a page, so
 * it may go on without one.
 *
 * The tool runs detached. When the shell goes without ending it, the next line finds nobody reading and ends
 * the tool, and both tools print a line for an answer that does not come as well.
 */
class CProbe : public QObject
{
    Q_OBJECT

public:
    enum Tool { Ping, Trace };
    static constexpr int MAX_LINES = 500; // kept; older ones are forgotten

    explicit CProbe(QObject* parent = nullptr);

    /** Forgets the lines of an earlier run and starts a new one. @return false, with a line that says why */
    bool start(Tool tool, const QString& address);
    /** Asks the tool to end and to print its summary; finished follows. */
    void stop();
    /** Ends the tool, if it runs, at once and without another line. */
    void kill();

    /** Whether the run goes on when its page is left. */
    void setBackground(bool on) { m_isBackground = on; }
    bool isBackground() const { return m_isBackground; }

    bool isRunning() const { return m_pCommand && m_pCommand->isRunning(); }
    /** Of the run now going on, or of the last one. */
    Tool tool() const { return m_tool; }
    QString address() const { return m_address; }
    const QStringList& lines() const { return m_lines; }
    /** Number of lines that the run has printed, the forgotten ones included. */
    int lineCount() const { return m_lineCount; }

signals:
    /** Lines came, or the run started or ended. */
    void changed();

private:
    bool runCommand(const QStringList& command);
    void append(const QString& line);

    std::unique_ptr<CCommandLines> m_pCommand; // destroying it ends the command
    Tool m_tool = Ping;
    QString m_address;
    QStringList m_lines;
    int m_lineCount = 0;
    bool m_isBackground = false;
};
