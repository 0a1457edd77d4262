#pragma once

#include "tables/TableContentModel.h"

#include <QHash>
#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <map>
#include <vector>

// The demo's table controller: a structural model of generated members (100,000 unless the demo
// was asked for another number) whose properties are computed from the member number (so they
// cost nothing until shown), with the user's edits kept on top.
// It answers the content model's requests the way the host's table controllers do.
// A page creates one and shows its model; it is ready when created.
class StructuralMembersFeeder : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(StructuralMembersFeeder)
    Q_PROPERTY(Orvo::UI::UIComponents::TableContentModel* model READ GetModel CONSTANT)

public:
    static constexpr int c_defaultMemberCount = 100'000;
    // The number of generated members the feeders created from now on start with.
    static void SetGeneratedMemberCount(int count);

    explicit StructuralMembersFeeder(QObject* parent = nullptr);

    Orvo::UI::UIComponents::TableContentModel* GetModel() { return &m_model; }

private:
    struct ColumnDefinition
    {
        Orvo::UI::UIComponents::TableColumn column;
        bool visible;
    };

    void OnAddColumnsRequest(const std::vector<QString>& ids);
    void OnRefillContentRequest();
    void OnSetRowsRequest(int index, int count, const std::vector<QString>& ids);
    void OnUpdateDataRequest(const Orvo::UI::UIComponents::TableContentUpdate& update);
    void OnExecuteActionRequest(int row, int column);

    int MemberCount() const { return m_generatedMembers + m_addedMembers; }
    Orvo::UI::UIComponents::TableCellContent CellOf(int member, const QString& columnId) const;
    Orvo::UI::UIComponents::TableCellContent GeneratedCell(int member, const QString& columnId) const;
    void SortMembers();

    Orvo::UI::UIComponents::TableContentModel m_model;
    std::vector<ColumnDefinition> m_definitions;
    std::vector<int> m_memberOfRow; // the sort order: row -> member
    std::map<int, QHash<QString, QVariant>> m_edits; // member -> column id -> value typed by the user
    int m_generatedMembers;
    int m_addedMembers = 0;
};
