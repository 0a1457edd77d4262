#pragma once

#include "ModelRecords.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace Orvo::Kernel::Model {

// The objects of one kind: records in one array, in ascending number, so that a number is found
// by binary search and a run of rows is a run of memory.
template<class Record> class ObjectTable
{
public:
    std::size_t Size() const { return m_records.size(); }
    bool Empty() const { return m_records.empty(); }
    const std::vector<Record>& Records() const { return m_records; }
    const Record& At(std::size_t index) const { return m_records[index]; }
    Record& At(std::size_t index) { return m_records[index]; }

    std::optional<std::size_t> IndexOf(Number number) const
    {
        auto it = LowerBound(number);
        if (it == m_records.end() || it->number != number)
            return std::nullopt;
        return std::size_t(it - m_records.begin());
    }
    const Record* Find(Number number) const
    {
        const auto index = IndexOf(number);
        return index ? &m_records[*index] : nullptr;
    }
    bool Contains(Number number) const { return IndexOf(number).has_value(); }

    // The number the next appended record gets.
    Number NextNumber() const { return m_next; }

    // Counts every number below `next` as handed out (a file remembers the numbers of objects
    // removed before it was saved).
    void SetNextNumber(Number next) { m_next = std::max(m_next, next); }

    // Gives the record the next number and stores it last.
    Number Append(Record record)
    {
        record.number = m_next++;
        m_records.push_back(std::move(record));
        return m_records.back().number;
    }

    // Stores the record under its own number, replacing one of that number (undo and redo put
    // records back this way). Numbers handed out stay handed out.
    void Put(Record record)
    {
        m_next = std::max(m_next, record.number + 1);
        auto it = LowerBound(record.number);
        if (it != m_records.end() && it->number == record.number)
            *it = std::move(record);
        else
            m_records.insert(it, std::move(record));
    }

    bool Remove(Number number)
    {
        auto it = LowerBound(number);
        if (it == m_records.end() || it->number != number)
            return false;
        m_records.erase(it);
        return true;
    }

    // Removes every record whose number the predicate names, in one pass.
    template<class Predicate> std::size_t RemoveIf(Predicate predicate)
    {
        const auto kept = std::remove_if(m_records.begin(), m_records.end(), predicate);
        const auto removed = std::size_t(m_records.end() - kept);
        m_records.erase(kept, m_records.end());
        return removed;
    }

    void Reserve(std::size_t count) { m_records.reserve(count); }
    void Clear()
    {
        m_records.clear();
        m_next = 1;
    }

private:
    typename std::vector<Record>::const_iterator LowerBound(Number number) const
    {
        return std::lower_bound(m_records.begin(), m_records.end(), number,
                                [](const Record& record, Number wanted) { return record.number < wanted; });
    }
    typename std::vector<Record>::iterator LowerBound(Number number)
    {
        return std::lower_bound(m_records.begin(), m_records.end(), number,
                                [](const Record& record, Number wanted) { return record.number < wanted; });
    }

    std::vector<Record> m_records;
    Number m_next = 1;
};

} // namespace Orvo::Kernel::Model
