#include "transitions.h"

#include <QScopeGuard>

#include <utility>

void CTransitions::request(Kind kind, Work work)
{
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
    {
        m_isUnderWay = true;
        const auto over = qScopeGuard([this] { m_isUnderWay = false; });
        work();
    }
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
