#include "transitions.h"

#include <utility>

void CTransitions::request(Kind kind, Work work)
{
    if (m_isClosed)
        return;
    if (!m_isUnderWay) {
        work();
        return;
    }
    std::vector<Work>& waiting = m_waiting[kind];
    if (kind != Visibility)
        waiting.clear();
    waiting.push_back(std::move(work));
}

void CTransitions::perform(const Work& work)
{
    if (m_isUnderWay) {
        work();
        return;
    }
    m_isUnderWay = true;
    try {
        work();
    } catch (...) { // whoever catches it, the window goes on
        m_isUnderWay = false;
        serveWaiting();
        throw;
    }
    m_isUnderWay = false;
    serveWaiting();
}

void CTransitions::close()
{
    m_isClosed = true;
    m_waiting.clear();
}

void CTransitions::serveWaiting()
{
    // Taken out before it is done: it may be a transition itself, and then serves what is left.
    while (!m_waiting.empty()) {
        const auto first = m_waiting.begin();
        const Work next = std::move(first->second.front());
        first->second.erase(first->second.begin());
        if (first->second.empty())
            m_waiting.erase(first);
        next();
    }
}
