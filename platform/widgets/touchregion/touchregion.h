#pragma once

class QWidget;

/**
 * Drops mouse and touch events anywhere in the process whose position on the screen lies in the application
 * property "NonInteractiveRegion" (a QRect in screen pixels; null or unset drops nothing).
 *
 * A button that a touch holds lets go when it is hidden, when a dialog blocks its window and when the region
 * comes to cover it: lifting the finger does nothing, and the button does not stay pressed.
 *
 * installTouchRegion() puts the one filter on the application; further calls do nothing. CWidget and CDialog
 * call it, so a program that uses the controls needs no call of its own.
 */
void installTouchRegion();

/** True when a touch on the middle of a widget would be dropped; a control that a key presses asks first. */
bool isTouchDropped(const QWidget* widget);
