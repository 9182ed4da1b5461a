#pragma once

#include "commandlines.h"

#include <QObject>
#include <QStringList>

/**
 * One run of a network tool against an address, with its last lines of output. It knows nothing of a page, so
 * it may go on without one.
 *
 * The tool runs detached: when the shell goes without ending it, the tool's next line finds nobody reading
 * and ends it.
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
    /** Ends the tool at once, without another line. */
    void kill();

    bool isRunning() const { return m_command.isRunning(); }
    QString address() const { return m_address; }
    const QStringList& lines() const { return m_lines; }

signals:
    /** Lines came, or the run started or ended. */
    void changed();

private:
    void append(const QString& line);

    CCommandLines m_command;
    QString m_address;
    QStringList m_lines;
};
