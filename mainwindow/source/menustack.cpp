#include "menustack.h"

#include <algorithm>

void CMenuStack::push(int id, int level)
{
    MenuEntry entry{id, level};
    const auto known = std::find_if(
        m_entries.begin(), m_entries.end(), [id](const MenuEntry& other) { return other.entryID == id; });
    if (known != m_entries.end()) {
        entry = *known;
        m_entries.erase(known);
    }
    m_entries.append(entry);
}

void CMenuStack::pop()
{
    if (!m_entries.isEmpty())
        m_entries.removeLast();
}
