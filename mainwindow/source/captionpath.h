#pragma once

#include "utilityid.h"

#include <QStringList>

/**
 * The navigation path of a utility in the current language, "Home" first; "Home" alone for an identifier that
 * has no place of its own.
 */
QStringList captionPath(int utilityID);
