#include "fixtureplugins.h"

#include <QFile>
#include <QTest>

namespace {

const QString CALL_LOG = QStringLiteral("/tmp/fixture-plugin.log");

} // namespace

QString fixturePath(const char* fixture)
{
    return QStringLiteral(FIXTURE_DIR "/") + QLatin1String(fixture);
}

void installFixture(const char* fixture, const QString& libraryName)
{
    const QString from = fixturePath(fixture);
    QFile::remove(PLUGIN_DIR + libraryName);
    QVERIFY2(QFile::copy(from, PLUGIN_DIR + libraryName), qPrintable(from));
}

QStringList pluginCalls()
{
    QFile file(CALL_LOG);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void clearPluginCalls()
{
    QFile::remove(CALL_LOG);
}
