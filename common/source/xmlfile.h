#pragma once

#include "wholefile.h"

#include <QDomDocument>
#include <QString>

/**
 * Reading and writing of the small XML files of the unit: whole, through a document in memory. Nothing else
 * in the shell opens such a file.
 */
namespace xmlfile {

constexpr int MaxFileSize = 1024 * 1024; ///< bytes; a larger file counts as one that cannot be parsed
constexpr int MaxDepth = 500; ///< nested elements; likewise

enum class ReadResult { Ok, CannotOpen, CannotParse };

/**
 * Reads a file or built-in resource into `document`, which is left empty on failure. Only plain files can be
 * opened, by themselves or behind a link. A file that is not well-formed or exceeds the limits above cannot
 * be parsed, nor one that would keep the parser busy for long: thousands of attributes on one element or of
 * entity declarations, entities that expand to more than a file may hold. No more than the size limit is
 * read.
 */
ReadResult read(const QString& path, QDomDocument& document);

/**
 * Replaces the file by the document, indented by 4 spaces, in the encoding that the document declares, as
 * writeWholeFile() does: unless the result is Ok, the old file is untouched. Incomplete: also a document that
 * would be too large to be read again.
 */
WriteResult write(const QString& path, const QDomDocument& document);

/** Sets an attribute to the text without the characters that XML cannot carry, so that the file stays
 * readable. */
void setAttribute(QDomElement element, const QString& name, const QString& text);

} // namespace xmlfile
