#pragma once

#include "standardstreams.h"

#include <cstddef>
#include <cstring>
#include <unistd.h>

/**
 * A log line that may be written in signal context: built in a buffer of its own and written at once, or
 * counted as lost when nobody takes it. What does not fit is cut off.
 */
class CLogLine
{
public:
    explicit CLogLine(const char* start) { text(start); }

    CLogLine& text(const char* part)
    {
        append(part, std::strlen(part));
        return *this;
    }

    CLogLine& number(int value)
    {
        char digits[12];
        std::size_t at = sizeof digits;
        unsigned rest = value < 0 ? 0U - unsigned(value) : unsigned(value);
        do {
            digits[--at] = char('0' + rest % 10);
            rest /= 10;
        } while (rest);
        if (value < 0)
            digits[--at] = '-';
        append(digits + at, sizeof digits - at);
        return *this;
    }

    void write(int fd = STDERR_FILENO)
    {
        m_buffer[m_size++] = '\n';
        standardstreams::writeInSignal(fd, m_buffer, m_size);
    }

private:
    void append(const char* part, std::size_t size)
    {
        const std::size_t room = sizeof m_buffer - 1 - m_size;
        const std::size_t taken = size < room ? size : room;
        std::memcpy(m_buffer + m_size, part, taken);
        m_size += taken;
    }

    char m_buffer[128];
    std::size_t m_size = 0;
};
