#pragma once

#include <csignal>
#include <sys/wait.h>

/** As long as it lives, SIGCHLD is handled as the shell does it: a blocking wait until no child is left. */
class ChildReaper
{
public:
    ChildReaper() { m_before = std::signal(SIGCHLD, reap); }
    ~ChildReaper() { std::signal(SIGCHLD, m_before); }
    ChildReaper(const ChildReaper&) = delete;
    ChildReaper& operator=(const ChildReaper&) = delete;

private:
    static void reap(int)
    {
        while (waitpid(-1, nullptr, 0) > 0) { }
    }

    void (*m_before)(int);
};
