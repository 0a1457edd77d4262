#include "PropertyValue.h"

namespace Orvo::Kernel::Framework {

std::size_t ValueIndexOf(PropertyType type)
{
    switch (type) {
    case PropertyType::Bool:
        return 0;
    case PropertyType::Integer:
    case PropertyType::List:
        return 1;
    case PropertyType::Real:
        return 2;
    case PropertyType::String:
        return 3;
    case PropertyType::Color:
        return 4;
    }
    return std::variant_npos;
}

PropertyValue DefaultValueOf(PropertyType type)
{
    switch (type) {
    case PropertyType::Bool:
        return false;
    case PropertyType::Integer:
    case PropertyType::List:
        return std::int32_t { 0 };
    case PropertyType::Real:
        return 0.0;
    case PropertyType::String:
        return QString();
    case PropertyType::Color:
        return QColor(Qt::gray);
    }
    return QString();
}

QString TypeName(PropertyType type)
{
    switch (type) {
    case PropertyType::Bool:
        return QStringLiteral("bool");
    case PropertyType::Integer:
        return QStringLiteral("integer");
    case PropertyType::Real:
        return QStringLiteral("real");
    case PropertyType::String:
        return QStringLiteral("string");
    case PropertyType::List:
        return QStringLiteral("list");
    case PropertyType::Color:
        return QStringLiteral("colour");
    }
    return QStringLiteral("unknown");
}

QString DescribeValue(const PropertyValue& value)
{
    struct Describer
    {
        QString operator()(bool v) const { return v ? QStringLiteral("true") : QStringLiteral("false"); }
        QString operator()(std::int32_t v) const { return QString::number(v); }
        QString operator()(double v) const { return QString::number(v, 'g', 17); }
        QString operator()(const QString& v) const { return QLatin1Char('"') + v + QLatin1Char('"'); }
        QString operator()(const QColor& v) const
        {
            return v.isValid() ? v.name(QColor::HexRgb) : QStringLiteral("invalid colour");
        }
    };
    return std::visit(Describer {}, value);
}

} // namespace Orvo::Kernel::Framework
