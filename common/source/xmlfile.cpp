#include "xmlfile.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>
#include <QXmlStreamReader>

#include <cstring>

namespace xmlfile {

namespace {

// The stream reader compares every attribute of an element with every other.
bool hasTooManyAttributes(const QByteArray& content)
{
    int count = 0;
    char before = 0; // the last character that is no white space
    for (const char byte : content) {
        if (byte == '<')
            count = 0;
        else if ((byte == '"' || byte == '\'') && before == '=' && ++count > MaxAttributes)
            return true;
        if (std::strchr(" \t\r\n", byte) == nullptr)
            before = byte;
    }
    return false;
}

// Decides from the flat token stream what may become a tree: the document model itself neither bounds its
// depth, which costs stack when it is saved or destroyed, nor the text that entities expand to.
bool isAcceptable(const QByteArray& content)
{
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::DTD:
            if (!reader.entityDeclarations().isEmpty())
                return false;
            break;
        case QXmlStreamReader::StartElement:
            if (++depth > MaxDepth)
                return false;
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        default:
            break;
        }
    }
    return !reader.hasError();
}

bool isXmlCharacter(uint code)
{
    return code == 0x9 || code == 0xA || code == 0xD || (code >= 0x20 && code < 0xD800)
        || (code >= 0xE000 && code < 0xFFFE) || (code >= 0x10000 && code < 0x110000);
}

} // namespace

ReadResult read(const QString& path, QDomDocument& document)
{
    document.clear();
    // A pipe or device would block the reader or never end.
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return ReadResult::CannotOpen;
    const QByteArray content = file.read(MaxFileSize + 1);
    file.close();
    if (content.size() > MaxFileSize || hasTooManyAttributes(content) || !isAcceptable(content)
        || !document.setContent(content)) {
        document.clear();
        return ReadResult::CannotParse;
    }
    return ReadResult::Ok;
}

WriteResult write(const QString& path, const QDomDocument& document)
{
    // Composed first, so that the file is short for as brief a time as possible.
    QByteArray content;
    QTextStream stream(&content);
    document.save(stream, 4);
    stream.flush();

    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Truncate))
        return WriteResult::CannotOpen;
    const bool complete = file.write(content) == content.size() && file.flush();
    return complete ? WriteResult::Ok : WriteResult::Incomplete;
}

void setAttribute(QDomElement element, const QString& name, const QString& text)
{
    QString clean;
    const auto codes = text.toUcs4();
    for (const uint code : codes) {
        if (isXmlCharacter(code))
            clean += QString::fromUcs4(&code, 1);
    }
    element.setAttribute(name, clean);
}

} // namespace xmlfile
