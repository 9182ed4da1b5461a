#pragma once

/** The status buttons of the top bar. Those without a button there (power, storage, lock) are accepted and
 * show nothing. */
enum StatusType {
    StatusClose = 0,
    StatusHome = 1,
    StatusPower = 2,
    StatusStorage = 3,
    StatusUILock = 4,
    StatusNone = 5
};
