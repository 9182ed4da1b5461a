#pragma once

#include "transitions.h"

#include <QString>

class CWindowHost;

/**
 * Pictures of the screen, as F4 takes them when it does not lock. Interface thread.
 */
class CScreenshots
{
public:
    CScreenshots(CWindowHost& host, CTransitions& transitions)
        : m_host(host)
        , m_transitions(transitions)
    { }

    /**
     * Saves what is on the screen as "yyyyMMdd_hhmmss.png" of the local time; the directory is made when it
     * is missing. A picture that cannot be written whole is a line in the log, and what an earlier one of the
     * same second saved stays.
     */
    static void save(const QString& directory);

    /** Tells that there may be no more of them, once the shell has the screen. */
    void reportLimit();

private:
    void waitAndTell();

    CWindowHost& m_host;
    CTransitions& m_transitions;
    bool m_isReported = false; // the box is up, or waits for the screen
};
