#pragma once

#include <QtGlobal>

/**
 * What Qt's plug-in loader says, in Qt's own contexts: the "Load plugin" box shows it, so it is translated
 * with the shell's texts. Nothing uses this table; lupdate finds the texts here.
 */
[[maybe_unused]] constexpr const char* LOADER_WORDS[] = {
    QT_TRANSLATE_NOOP("QLibrary", "'%1' is an invalid ELF object (%2)"),
    QT_TRANSLATE_NOOP("QLibrary", "'%1' is not an ELF object"),
    QT_TRANSLATE_NOOP("QLibrary", "'%1' is not an ELF object (%2)"),
    QT_TRANSLATE_NOOP("QLibrary", "Cannot load library %1: %2"),
    QT_TRANSLATE_NOOP("QLibrary", "Failed to extract plugin meta data from '%1'"),
    QT_TRANSLATE_NOOP("QLibrary", "The file '%1' is not a valid Qt plugin."),
    QT_TRANSLATE_NOOP("QLibrary", "The plugin '%1' uses incompatible Qt library. (%2.%3.%4) [%5]"),
    QT_TRANSLATE_NOOP("QLibrary", "The shared library was not found."),
    QT_TRANSLATE_NOOP("QPluginLoader", "The plugin was not loaded."),
    QT_TRANSLATE_NOOP("QPluginLoader", "The shared library was not found."),
    QT_TRANSLATE_NOOP("QPluginLoader", "Unknown error"),
};
