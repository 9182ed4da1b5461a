#pragma once

#include <QProcess>
#include <QtTest>

// The instrument's places, and its knobs.

/** These tests write to the unit's fixed places: run them through simulator/instrument. */
#define REQUIRE_INSTRUMENT()                                                                                 \
    do {                                                                                                     \
        if (!qEnvironmentVariableIsSet("INSTRUMENT_SOURCE"))                                                 \
            qFatal("This test writes to /home and /tmp; run it through simulator/instrument.");              \
    } while (false)

inline QString operator""_s(const char* text, size_t size)
{
    return QString::fromUtf8(text, static_cast<int>(size));
}

/** Replaces the file by `content`; its directory is made. */
inline void writeFile(const QString& path, const QByteArray& content = QByteArray())
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly | QIODevice::Truncate), qPrintable(file.errorString()));
    QCOMPARE(file.write(content), static_cast<qint64>(content.size()));
}

inline QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Turns knobs of the instrument, e.g. "wifi link 63". @return whether it let itself be turned */
inline bool simctl(const QString& knob)
{
    return QProcess::execute("simctl"_s, knob.split(" "_s)) == 0;
}

/** Descriptors that this process holds. */
inline int openDescriptors()
{
    return QDir("/proc/self/fd"_s).entryList(QDir::Files | QDir::System).size();
}
