#pragma once

#include <QByteArray>
#include <QString>

#include <cstring>

/**
 * Copies a text as UTF-8 into a field of a shared record: at most `size` bytes with the terminating NUL, cut
 * between characters. Bytes of the field behind the NUL stay as they are.
 */
inline void copyFieldText(char* field, int size, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    // A text ends at its first NUL for everybody who reads the field.
    int length
        = qMin(static_cast<int>(qstrnlen(bytes.constData(), static_cast<uint>(bytes.size()))), size - 1);
    if (length < bytes.size()) {
        while (length > 0 && (static_cast<uchar>(bytes.at(length)) & 0xC0) == 0x80)
            --length;
    }
    std::memcpy(field, bytes.constData(), static_cast<size_t>(length));
    field[length] = '\0';
}

/** The text of such a field, which need not be terminated. */
inline QString fieldText(const char* field, int size)
{
    return QString::fromUtf8(field, static_cast<int>(qstrnlen(field, static_cast<uint>(size))));
}
