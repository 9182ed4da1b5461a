#pragma once

#include <QString>
#include <QStringList>

/** Where the shell looks for plug-ins, with the closing slash. */
inline const QString PLUGIN_DIR = QStringLiteral("/usr/local/arvo/plugins/");

/** Path of a fixture as it was built, such as "libfixture_recorder.so". */
QString fixturePath(const char* fixture);

/** Puts a fixture where the shell looks for the plug-in of this file name, in the place of what is there. */
void installFixture(const char* fixture, const QString& libraryName);

/** What the recording fixtures have written down, one call a line; empty when none was called. */
QStringList pluginCalls();

/** Forgets what was written down. */
void clearPluginCalls();
