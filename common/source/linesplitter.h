#pragma once

#include <QByteArray>
#include <QStringList>

/**
 * Cuts a stream of bytes into lines. Bounded: it never holds more than one line of MaxLineLength bytes, what
 * a line has beyond that is dropped. Lines are decoded as UTF-8, "\r\n" ends a line like "\n".
 */
class CLineSplitter
{
public:
    static constexpr int MaxLineLength = 4096; ///< bytes

    /** Takes the next bytes of the stream; returns the lines that they complete, in order. */
    QStringList feed(const char* data, int size);

    /** The stream has ended: returns the last line if it had no line end, and starts over. */
    QStringList finish();

private:
    void append(const char* data, int size);
    QString takeLine();

    QByteArray m_line;
};
