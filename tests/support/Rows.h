#pragma once

#include <QtTest>

#include <array>

/// The rows of a data-driven test, each a text of cells that are parted by "|". A row is named by its text.
using Rows = std::vector<const char*>;
inline void addRows(const Rows& rows)
{
    QTest::addColumn<QString>("row");
    for (const char* row : rows)
        QTest::newRow(row) << row;
}

/// The cells of the current row, without the blanks around them.
template <int count>
std::array<QString, count> cells()
{
    QFETCH(QString, row);
    std::array<QString, count> result;
    for (int index = 0; index < count; ++index)
        result[index] = row.section('|', index, index).trimmed();
    return result;
}
