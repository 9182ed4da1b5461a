#pragma once

class QKeyEvent;

/** A key going down or up: which one, and when. */
struct KeyMoment
{
    unsigned key = 0; ///< scan code; Qt's key code where there is none
    unsigned long time = 0; ///< ms on the X server's clock; 0 when the event carries no time stamp
};

KeyMoment momentOf(const QKeyEvent& event);

/** True for one key at one time. What has no time is like nothing else, not even like itself. */
bool isSameMoment(const KeyMoment& one, const KeyMoment& other);

/**
 * Watches the keys of the process, wherever they go. Interface thread only.
 *
 * - It knows the last release, by which a repetition is told: isKeyRepetition().
 * - What takes the keyboard, a text field or a list, gets the application object as event filter (unless it
 *   stands in a dialog), so that an application may hear keys that the field keeps for itself.
 *
 * Further calls do nothing. CWidget and CDialog call it, so a program that uses the controls needs no call of
 * its own.
 */
void installKeyWatch();

/**
 * Whether a press is no press of its own, but comes from a key that is held: the X server stamps it like the
 * release that it makes up before it. Qt's auto-repeat flag says so only when both have arrived by the time
 * the release is handled, which on a busy machine they often have not. A press without a time stamp is a
 * fresh one.
 */
bool isKeyRepetition(const QKeyEvent& press);
