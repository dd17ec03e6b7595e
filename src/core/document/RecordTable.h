#pragma once

#include "document/Records.h"
#include "document/Result.h"

#include <QList>

namespace tb {

// A fixed-capacity table of rows numbered 1..Capacity (row 0 is never used) with
// a count of rows in use. Rows above the count may hold whatever an earlier document
// left there; nothing reads them. Copying a table copies one pointer; the first write
// to a shared copy copies the row pointers, never the field texts.
template <typename Record, int CapacityValue>
class RecordTable
{
public:
    static constexpr int Capacity = CapacityValue;

    RecordTable()
        : m_rows(Capacity + 1)
    {}

    int count() const { return m_count; }
    bool isEmpty() const { return m_count == 0; }
    // Sets the count without touching the rows (the reader fills rows 1..n itself).
    void setCount(int n)
    {
        Q_ASSERT(n >= 0 && n <= Capacity);
        m_count = n;
    }
    bool canGrow(int n) const { return m_count + n <= Capacity; }

    const Record &operator[](int row) const { return m_rows.at(row); }
    Record &operator[](int row) { return m_rows[row]; }

    // Moves rows at..count up by n and leaves n blank rows at at..at+n-1.
    // Refused, with nothing changed, when the table would grow past its capacity.
    Result insertRows(int at, int n = 1)
    {
        Q_ASSERT(at >= 1 && at <= m_count + 1 && n >= 0);
        if (!canGrow(n))
            return Result::failure(fullMessage());
        for (int row = m_count; row >= at; --row)
            m_rows[row + n] = m_rows[row];
        for (int row = at; row < at + n; ++row)
            m_rows[row].clear();
        m_count += n;
        return Result::success();
    }

    Result insert(int at, const Record &record)
    {
        Result r = insertRows(at, 1);
        if (r)
            m_rows[at] = record;
        return r;
    }

    Result append(const Record &record) { return insert(m_count + 1, record); }

    // Moves the rows after at+n-1 down by n; the count shrinks by n.
    void removeRows(int at, int n = 1)
    {
        Q_ASSERT(at >= 1 && at + n - 1 <= m_count && n >= 0);
        for (int row = at; row + n <= m_count; ++row)
            m_rows[row] = m_rows[row + n];
        m_count -= n;
    }

    // Copies rows 1..n of another table over this one's, leaving the rows above n as
    // they are. Rows that are already shared are skipped, so copying between tables
    // that differ in a few rows touches only those.
    void assignRows(const RecordTable &from, int n)
    {
        const RecordTable &self = *this;
        for (int row = 1; row <= n; ++row) {
            if (!self.m_rows.at(row).sharesWith(from.m_rows.at(row)))
                m_rows[row] = from.m_rows.at(row);
        }
    }

    // Blanks rows first..last, whatever the count.
    void clearRows(int first, int last)
    {
        for (int row = first; row <= last; ++row)
            m_rows[row].clear();
    }

    static QString fullMessage();

private:
    QList<Record> m_rows;
    int m_count = 0;
};

inline constexpr int MaxStrips = 1000;
inline constexpr int MaxElements = 500;
inline constexpr int CrewRowCount = 50;
inline constexpr int MaxCategories = 100;

using StripTable = RecordTable<StripRecord, MaxStrips>;
using ElementTable = RecordTable<ElementRecord, MaxElements>;

template <>
inline QString StripTable::fullMessage()
{
    return QStringLiteral("The schedule is full: it can hold at most %1 strips.").arg(MaxStrips);
}
template <>
inline QString ElementTable::fullMessage()
{
    return QStringLiteral("The schedule is full: it can hold at most %1 elements.").arg(MaxElements);
}

} // namespace tb
