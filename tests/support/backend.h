#pragma once

#include <QTest>

/**
 * Ends a test that the instrument's fall-back without namespaces cannot carry: proot traces its processes and
 * only pretends to be root.
 * @param why what proot does not do
 */
#define SKIP_UNDER_PROOT(why)                                                                                \
    do {                                                                                                     \
        if (qEnvironmentVariable("INSTRUMENT_BACKEND") == QLatin1String("proot"))                            \
            QSKIP("under proot " why);                                                                       \
    } while (false)
