#include "suites.h"

#include <QApplication>
#include <QtTest>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    int failed = 0;
    for (const auto suite :
        {themeSuite, controlsSuite, dialogsSuite, keyPadSuite, fieldsSuite, touchRegionSuite})
        failed += QTest::qExec(suite().get(), argc, argv);
    return failed == 0 ? 0 : 1;
}
