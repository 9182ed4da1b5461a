#pragma once

#include <QVector>

/** One step of the user's menu path. */
struct MenuEntry
{
    int entryID; ///< a UtilityID
    int menuLevel; ///< 0: only Home is offered, 1: Home and Close
};

/**
 * The user's menu path. Each utility stands on it once: choosing it again moves its entry to the top, with
 * the level it came with first. A plain value.
 */
class CMenuStack
{
public:
    void push(int id, int level);
    void pop();
    void clear() { m_entries.clear(); }

    bool isEmpty() const { return m_entries.isEmpty(); }
    int count() const { return m_entries.size(); }
    /** From the first step to the last. */
    const QVector<MenuEntry>& entries() const { return m_entries; }
    /** The top entry; only on a stack that is not empty. */
    const MenuEntry& top() const { return m_entries.last(); }

private:
    QVector<MenuEntry> m_entries;
};
