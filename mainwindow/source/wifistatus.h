#pragma once

#include "devicestatus.h"

#include <QString>

/**
 * Reading what "iwconfig" prints about a wireless adapter. Pure functions, any thread.
 */

/**
 * The token after the first occurrence of `key` in `line`, letter case significant. Spaces before the token
 * are skipped; it ends before the next space or "/" or with the line. Empty without the key or without a
 * token.
 */
QString getContent(const QString& line, const QString& key);

/**
 * Takes over what one line of the output says. Words are recognised in any letter case, their values with
 * getContent(), so that a key in unusual spelling gives an empty value.
 *
 * @param[in,out] status what the lines before have said; fresh before the first line
 * @return false when the line says that there is no adapter: what follows it means nothing
 */
bool applyIwconfigLine(WIFIStatus& status, const QString& line);
