#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <cstdint>
#include <string>
#include <vector>

namespace Orvo::Kernel::Tables {

// The value type of a table column or cell, numbered as the table models number their content
// types. A group column only heads the columns that name it as their group.
enum class TableDataType : std::int32_t
{
    Group = 0,
    Bool = 1,
    Integer = 2,
    Real = 3,
    String = 4,
    List = 5,
    Color = 6,
};

// A value a user may pick by name instead of typing it (a steel grade's yield strength).
struct TableNamedValue
{
    QString name;
    QVariant value;
};

// One column of a host table as the column data adapters read it. Texts are in the user's
// language; ids are stable across sessions (layouts are stored by them).
struct TableDataColumn
{
    std::wstring id;
    std::wstring label;
    TableDataType type = TableDataType::Group;
    QString unit; // empty: the values have none
    std::int32_t decimals = -1; // -1: not a number shown with fixed decimals
    bool required = false; // a new row needs a value in it
    bool readOnly = false;
    bool sortable = true;
    QStringList listValues; // the choices of a list column
    std::vector<TableNamedValue> parameters;
    std::wstring groupId;
    std::wstring groupLabel;
};

} // namespace Orvo::Kernel::Tables
