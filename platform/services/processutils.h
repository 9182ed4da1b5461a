#pragma once

#include <QString>

namespace miscutils {

/** Process checks on this machine's process table. Any thread. */
class CCommUtils
{
public:
    /** True when a process whose program name (last part of argv[0], or the kernel's name) equals `name`
     * runs. One that has ended and waits for its parent does not. */
    static bool IsProcessExist(const QString& name);
};

} // namespace miscutils
