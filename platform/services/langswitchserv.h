#pragma once

namespace serv {

/**
 * Client of the platform's language switching service: tells the other processes of the unit which language
 * to show.
 *
 * Any thread. A missing bus or daemon costs at most 300 ms once in a process; while it stays away, further
 * calls fail at once.
 */
class CLangSwitchServ
{
public:
    /** @param language the service's language number. @return false when the service did not take it */
    bool SwitchLanguage(int language);
};

} // namespace serv
