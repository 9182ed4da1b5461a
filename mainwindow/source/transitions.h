#pragma once

#include <functional>
#include <map>
#include <vector>

/**
 * One transition of the window at a time. A transition is the work between two states in which the shell can
 * be used: leaving a page and showing another, loading a plug-in, stepping aside for a test application. A
 * plug-in may run an event loop of its own in the middle of one, and its signals, other processes and the
 * user then ask for the next; what they ask for waits until the present one is over.
 *
 * Of each kind the last request wins, except that every word of visibility is kept: who says it counts on
 * both. What waited is done in the order of the kinds. A box is no part of a transition: it is asked before
 * perform() or told after it.
 *
 * Interface thread. Holds no more than one request a kind, besides the words of visibility.
 */
class CTransitions
{
public:
    enum Kind {
        Visibility, ///< a test application takes the screen or gives it back
        Language,
        Ready, ///< the plug-in asked for may be loaded
        Utility, ///< another page: a utility, Home or Close
        Inquiry, ///< the information page asked for over a test application
        PowerPage,
        StoragePage,
        Failure, ///< the self-test reports something
        ScreenLimit ///< no further screenshots
    };
    using Work = std::function<void()>;

    /** Does the work now, or when the transition under way is over. It may show boxes and perform(). */
    void request(Kind kind, Work work);
    /** Does the work as a transition, or as a part of the one under way; then all that waited. */
    void perform(const Work& work);
    /** The end has begun: what waits is dropped, and what is asked for from now on. */
    void close();

private:
    void serveWaiting();

    std::map<Kind, std::vector<Work>> m_waiting;
    bool m_isUnderWay = false;
    bool m_isClosed = false;
};
