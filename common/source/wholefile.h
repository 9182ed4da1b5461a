#pragma once

#include <QByteArray>
#include <QString>

enum class WriteResult { Ok, CannotOpen, Incomplete };

/**
 * Replaces a file by `content`: written to a file beside it, which takes its name once it is whole on the
 * disk. Whatever happens, the name stands for all of the old content or all of the new. The file is readable
 * by all and writable by its owner. Behind a link the file that the link leads to is replaced. A pipe or
 * device of the name gives way to the file, as does a link to one; a directory does not. Any thread; waits
 * for the disk.
 *
 * @param reason gets why it was not written; may be null
 * @return CannotOpen: no file can be made or replaced there. Incomplete: mostly there is no room.
 */
WriteResult writeWholeFile(const QString& path, const QByteArray& content, QString* reason = nullptr);
