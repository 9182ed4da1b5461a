#pragma once

class QObject;

/**
 * Calls a slot without arguments on the nearest descendants of `root` that have it, and leaves what lies
 * below them to them. So translate() and updateWidgetStyle() reach controls inside plain QWidgets too,
 * whatever class they are of.
 * @param slot the normalised signature, for example "translate()"
 */
void callInTree(QObject* root, const char* slot);
