#pragma once

#include <QDomDocument>
#include <QString>

/**
 * Reading and writing of the small XML files of the unit: whole, through a document in memory. Nothing else
 * in the shell opens such a file.
 */
namespace xmlfile {

constexpr int MaxFileSize = 1024 * 1024; ///< bytes; a larger file counts as one that cannot be parsed
constexpr int MaxDepth = 100; ///< nested elements; likewise
constexpr int MaxAttributes
    = 500; ///< of one element, counted as quoted values from one "<" to the next; likewise

enum class ReadResult { Ok, CannotOpen, CannotParse };

/**
 * Reads a file or built-in resource into `document`, which is left empty on failure. Only regular files can
 * be opened. A file that is not well-formed, exceeds the limits above or declares entities (none of ours
 * does, and they could expand without bound) cannot be parsed; no more than the size limit is read of it.
 */
ReadResult read(const QString& path, QDomDocument& document);

enum class WriteResult { Ok, CannotOpen, Incomplete };

/**
 * Replaces the file by the document, indented by 4 spaces, in the encoding that the document declares.
 * CannotOpen: the old file is untouched. Incomplete: it is gone, and not everything could be written.
 */
WriteResult write(const QString& path, const QDomDocument& document);

/** Sets an attribute to the text without the characters that XML cannot carry, so that the file stays
 * readable. */
void setAttribute(QDomElement element, const QString& name, const QString& text);

} // namespace xmlfile
