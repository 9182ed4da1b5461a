#include "xmlfile.h"

#include "files/plainfile.h"

#include <QTextCodec>
#include <QTextStream>
#include <QXmlStreamReader>

#include <algorithm>
#include <iterator>
#include <utility>

namespace xmlfile {

namespace {

// More than any file of ours needs; what stays below is read in half a second.
constexpr qint64 MaxComparisons
    = qint64(50) * 1000 * 1000; // of attributes: 10,000 of one element, 500 of each of 400
constexpr int MaxDeclarations
    = 16384; // characters of a document type, without comments and quoted values: 1000 entities or attributes
constexpr int MaxAttributes
    = 200 * 1000; // of all elements: no file holds as many, but a document type adds some

// The stream reader compares every attribute of an element with every other, and every declared one with
// every other, before it shows the first. So they are counted ahead, without what only looks like markup.
bool isTooCrowded(const QByteArray& content)
{
    QString text
        = QTextCodec::codecForUtfText(content, QTextCodec::codecForName("ISO-8859-1"))->toUnicode(content);
    text.remove(QChar::Null); // of an encoding of two bytes that does not say so
    static const std::pair<QLatin1String, QLatin1String> skipped[] = {
        {QLatin1String("<!--"), QLatin1String("-->")},
        {QLatin1String("<![CDATA["), QLatin1String("]]>")},
        {QLatin1String("<?"), QLatin1String("?>")},
    };
    qint64 comparisons = 0;
    int declarations = 0; // characters of all of them
    for (int at = text.indexOf(QLatin1Char('<')); at >= 0; at = text.indexOf(QLatin1Char('<'), at)) {
        const QStringRef rest = text.midRef(at);
        const auto* const piece = std::find_if(std::begin(skipped), std::end(skipped),
            [&rest](const auto& candidate) { return rest.startsWith(candidate.first); });
        if (piece != std::end(skipped)) {
            at = text.indexOf(piece->second, at + piece->first.size());
            if (at < 0)
                break;
            continue;
        }
        const bool isDeclaration = rest.startsWith(QLatin1String("<!"));
        qint64 values = 0;
        for (++at; at < text.size() && text[at] != QLatin1Char('>') && text[at] != QLatin1Char('<'); ++at) {
            declarations += isDeclaration;
            if (text[at] != QLatin1Char('"') && text[at] != QLatin1Char('\''))
                continue;
            at = text.indexOf(text[at], at + 1);
            if (at < 0)
                return false; // not well-formed
            comparisons += values++;
        }
        if (comparisons > MaxComparisons || declarations > MaxDeclarations)
            return true;
    }
    return false;
}

// Decides from the flat token stream what may become a tree: the document model itself bounds neither its
// depth, which costs stack when it is made, saved or destroyed, nor what all entities expand to.
bool isAcceptable(const QByteArray& content)
{
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    // Of one reference; so all of them together expand to no more than a file may hold.
    reader.setEntityExpansionLimit(MaxFileSize / std::max(1, content.count('&') + content.count('%')));
    int depth = 0;
    int attributes = 0; // those that a document type adds count too
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            attributes += reader.attributes().size();
            if (++depth > MaxDepth || attributes > MaxAttributes)
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
    QFile file(path);
    if (!openPlainFile(file))
        return ReadResult::CannotOpen;
    const QByteArray content = file.read(MaxFileSize + 1);
    file.close();
    if (content.size() > MaxFileSize || isTooCrowded(content) || !isAcceptable(content)
        || !document.setContent(content)) {
        document.clear();
        return ReadResult::CannotParse;
    }
    return ReadResult::Ok;
}

WriteResult write(const QString& path, const QDomDocument& document)
{
    QByteArray content;
    QTextStream stream(&content);
    document.save(stream, 4);
    stream.flush();
    // Indenting may have made more of it than could be read again.
    return content.size() > MaxFileSize ? WriteResult::Incomplete : writeWholeFile(path, content);
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
