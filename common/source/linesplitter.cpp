#include "linesplitter.h"

#include <cstring>

QStringList CLineSplitter::feed(const char* data, int size)
{
    QStringList lines;
    while (size > 0) {
        const auto* end = static_cast<const char*>(std::memchr(data, '\n', static_cast<size_t>(size)));
        if (!end) {
            append(data, size);
            break;
        }
        const int length = static_cast<int>(end - data);
        append(data, length);
        lines << takeLine();
        data += length + 1;
        size -= length + 1;
    }
    return lines;
}

QStringList CLineSplitter::finish()
{
    if (m_line.isEmpty())
        return {};
    return {takeLine()};
}

void CLineSplitter::append(const char* data, int size)
{
    m_line.append(data, qMin(size, MaxLineLength - m_line.size()));
}

QString CLineSplitter::takeLine()
{
    if (m_line.endsWith('\r'))
        m_line.chop(1);
    const int length = qMax(0, m_line.size());
    QString line = QString::fromUtf8(m_line.constData(), length); // all of it, also behind a NUL
    m_line.clear();
    return line;
}
