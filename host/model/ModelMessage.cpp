#include "ModelMessage.h"

#include "framework/DefaultServices.h"
#include "framework/IStringLoader.h"

#include <QLocale>

namespace Orvo::Kernel::Model {

namespace {

QString Load(const Framework::IStringLoader* loader, const QString& id)
{
    if (!loader)
        return id;
    return QString::fromStdWString(
        loader->Load({ id.toStdWString(), Framework::DefaultServices::c_componentsStringTable }));
}

} // namespace

ModelMessage::ModelMessage(QString textId, std::vector<Argument> args)
    : id(std::move(textId))
    , arguments(std::move(args))
{ }

QString ModelMessage::ToText(const Framework::IStringLoader* loader) const
{
    QStringList texts;
    for (const Argument& argument : arguments) {
        if (const auto* plain = std::get_if<QString>(&argument))
            texts << *plain;
        else if (const auto* number = std::get_if<double>(&argument))
            texts << QLocale().toString(*number, 'g', 12);
        else {
            const auto& object = std::get<ObjectRef>(argument);
            texts << QStringLiteral("%1 %2").arg(Load(loader, KindNameId(object.kind))).arg(object.number);
        }
    }
    // Without the string table (a log line), the identifier and its arguments.
    if (!loader)
        return texts.isEmpty() ? id : QStringLiteral("%1 (%2)").arg(id, texts.join(QStringLiteral(", ")));
    QString text = Load(loader, id);
    for (const QString& argument : texts)
        text = text.arg(argument);
    return text;
}

QString ModelMessage::KindNameId(ObjectKind kind)
{
    switch (kind) {
    case ObjectKind::Node:
        return QStringLiteral("UI_OBJECT_NODE");
    case ObjectKind::Member:
        return QStringLiteral("UI_OBJECT_MEMBER");
    case ObjectKind::Support:
        return QStringLiteral("UI_OBJECT_SUPPORT");
    case ObjectKind::CrossSection:
        return QStringLiteral("UI_OBJECT_CROSS_SECTION");
    case ObjectKind::Material:
        return QStringLiteral("UI_OBJECT_MATERIAL");
    case ObjectKind::LoadCase:
        return QStringLiteral("UI_OBJECT_LOAD_CASE");
    case ObjectKind::NodalLoad:
        return QStringLiteral("UI_OBJECT_NODAL_LOAD");
    case ObjectKind::MemberLoad:
        return QStringLiteral("UI_OBJECT_MEMBER_LOAD");
    case ObjectKind::Combination:
        return QStringLiteral("UI_OBJECT_COMBINATION");
    }
    return {};
}

QString ModelMessage::KindPluralNameId(ObjectKind kind)
{
    switch (kind) {
    case ObjectKind::Node:
        return QStringLiteral("UI_OBJECT_NODES");
    case ObjectKind::Member:
        return QStringLiteral("UI_OBJECT_MEMBERS");
    case ObjectKind::Support:
        return QStringLiteral("UI_OBJECT_SUPPORTS");
    case ObjectKind::CrossSection:
        return QStringLiteral("UI_OBJECT_CROSS_SECTIONS");
    case ObjectKind::Material:
        return QStringLiteral("UI_OBJECT_MATERIALS");
    case ObjectKind::LoadCase:
        return QStringLiteral("UI_OBJECT_LOAD_CASES");
    case ObjectKind::NodalLoad:
        return QStringLiteral("UI_OBJECT_NODAL_LOADS");
    case ObjectKind::MemberLoad:
        return QStringLiteral("UI_OBJECT_MEMBER_LOADS");
    case ObjectKind::Combination:
        return QStringLiteral("UI_OBJECT_COMBINATIONS");
    }
    return {};
}

ObjectId ModelMessage::Subject() const
{
    for (const Argument& argument : arguments) {
        if (const auto* object = std::get_if<ObjectRef>(&argument))
            return MakeObjectId(object->kind, object->number);
    }
    return 0;
}

} // namespace Orvo::Kernel::Model
