#pragma once

#include "utilityid.h"

#include <QHash>

#include <functional>
#include <utility>
#include <vector>

class CWidget;

/**
 * The built-in pages by utility, the home page included. A page that is costly to make is added by how to
 * make it, and made when it is first asked for. What a page has to do outside itself at every start, whether
 * or not anybody opens it, is its launch work.
 *
 * Does not own the pages. Interface thread.
 */
class CInnerPages
{
public:
    using Make = std::function<CWidget*()>;

    void add(UtilityID id, CWidget* page) { m_pages.insert(id, page); }
    void addLater(UtilityID id, const Make& make) { m_makers.insert(id, make); }
    /** Done once by runLaunchWork(), in the order added. */
    void addLaunchWork(std::function<void()> work) { m_launchWork.push_back(std::move(work)); }

    bool contains(UtilityID id) const { return m_pages.contains(id) || m_makers.contains(id); }
    /** The page, made if need be; null for a utility that has none. */
    CWidget* page(UtilityID id)
    {
        if (!m_pages.contains(id) && m_makers.contains(id))
            m_pages.insert(id, m_makers.take(id)());
        return m_pages.value(id);
    }
    void runLaunchWork()
    {
        for (const auto& work : m_launchWork)
            work();
        m_launchWork.clear();
    }

private:
    QHash<int, CWidget*> m_pages;
    QHash<int, Make> m_makers; // of the pages that nobody has asked for yet
    std::vector<std::function<void()>> m_launchWork;
};
