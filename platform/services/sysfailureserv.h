#pragma once

#include <QString>

namespace serv {

/** Codes of the system failure service. */
enum eSystemFailure {
    SYS_FAIL_NONE = 0,
    SYS_FAIL_RTC = 1,
    SYS_FAIL_FB = 2,
    SYS_FAIL_MOUSE = 3,
    SYS_FAIL_KBD = 4,
    SYS_FAIL_COMM_EEPROM_CONTENT = 5,
    SYS_FAIL_COMM_EEPROM_RTC = 6,
    SYS_FAIL_MOD_EEPROM_CONTENT = 7,
    SYS_FAIL_MOD_EEPROM_RTC = 8,
    SYS_FAIL_BATTERY = 9,
    SYS_FAIL_USB0 = 10,
    SYS_FAIL_USB1 = 11
};

/**
 * Client of the platform's system failure service, which keeps what the self-test found.
 * Any thread; time limits as for CLangSwitchServ.
 */
class CSysFailureServ
{
public:
    /**
     * Asks for the latest failure.
     * @param[out] text the failure as text for the user, e.g. "9 (battery)"; empty when none is known
     * @return false when the service did not answer; text is then empty
     */
    bool QueryLatestSysFailure(QString& text);
};

} // namespace serv
