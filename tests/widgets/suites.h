#pragma once

#include <QObject>

#include <memory>

// The suites of tst_widgets; each stands in a file of its own.
std::unique_ptr<QObject> themeSuite();
std::unique_ptr<QObject> controlsSuite();
std::unique_ptr<QObject> dialogsSuite();
std::unique_ptr<QObject> fieldsSuite();
std::unique_ptr<QObject> keyPadSuite();
std::unique_ptr<QObject> touchRegionSuite();
