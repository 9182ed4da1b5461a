#pragma once

/** Everything that decides who gets a touch. */
struct TouchState
{
    bool isLocked = false; ///< F4 has locked the screen
    bool isDialogUp = false; ///< a box, an information page or a key pad that is not set aside
    bool isBrowserStarting = false; ///< its deliberate two seconds
    bool isTestAppInFront = false;
    bool isCalibrating = false; ///< the calibration page is up, and reads the touch screen itself
};

/** Who gets a touch. */
enum class TouchOwner {
    Nobody, ///< it is dropped everywhere on the screen
    Shell, ///< whatever it hits
    TestApplication, ///< above the bottom bar; the shell keeps the bar
    AsRequested ///< nothing is in the way: the region that was asked for, mostly none
};

/** The one rule; the first line that applies decides. Pure. */
constexpr TouchOwner touchOwner(const TouchState& state)
{
    if (state.isLocked)
        return TouchOwner::Nobody;
    if (state.isDialogUp)
        return TouchOwner::Shell;
    if (state.isBrowserStarting)
        return TouchOwner::Nobody;
    if (state.isTestAppInFront)
        return TouchOwner::TestApplication;
    if (state.isCalibrating)
        return TouchOwner::Nobody;
    return TouchOwner::AsRequested;
}
