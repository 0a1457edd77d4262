#include "ModelFile.h"

#include "MaterialCatalog.h"
#include "ObjectIds.h"
#include "StructureValidator.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <cmath>
#include <limits>
#include <optional>

namespace Orvo::Kernel::Model {

namespace {

const QLatin1String c_formatKey("format");
const QLatin1String c_versionKey("version");
const QLatin1String c_nextNumbersKey("nextNumbers");
const QLatin1String c_nameKey("name");
const QLatin1String c_numberKey("number");

const std::array<const char*, 6> c_dofNames { "ux", "uy", "uz", "rx", "ry", "rz" };
const std::array<const char*, 5> c_shapeNames { "I", "rectangularHollow", "circularHollow", "rectangle",
                                                "circle" };
const std::array<const char*, 3> c_materialNames { "steel", "concrete", "timber" };
const std::array<const char*, 4> c_loadCategoryNames { "permanent", "imposed", "snow", "wind" };
const std::array<const char*, 5> c_directionNames { "globalX", "globalY", "globalZ", "localY", "localZ" };

// The file's list of each kind of object.
QLatin1String ListKey(ObjectKind kind)
{
    switch (kind) {
    case ObjectKind::Node:
        return QLatin1String("nodes");
    case ObjectKind::Member:
        return QLatin1String("members");
    case ObjectKind::Support:
        return QLatin1String("supports");
    case ObjectKind::CrossSection:
        return QLatin1String("sections");
    case ObjectKind::Material:
        return QLatin1String("materials");
    case ObjectKind::LoadCase:
        return QLatin1String("loadCases");
    case ObjectKind::NodalLoad:
        return QLatin1String("nodalLoads");
    case ObjectKind::MemberLoad:
        return QLatin1String("memberLoads");
    case ObjectKind::Combination:
        return QLatin1String("combinations");
    }
    return QLatin1String();
}

template<std::size_t N> QJsonValue EnumName(const std::array<const char*, N>& names, std::int32_t value)
{
    return value >= 0 && std::size_t(value) < N ? QJsonValue(QLatin1String(names[std::size_t(value)]))
                                                : QJsonValue();
}

QJsonArray Reals(const std::array<double, 6>& values)
{
    QJsonArray array;
    for (double value : values)
        array.append(value);
    return array;
}

QJsonArray Dofs(DofMask mask)
{
    QJsonArray array;
    for (std::size_t i = 0; i < c_dofNames.size(); ++i) {
        if (mask & Dof(int(i)))
            array.append(QLatin1String(c_dofNames[i]));
    }
    return array;
}

QString ColorName(const QColor& color)
{
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

QJsonObject Write(const Node& n)
{
    return { { c_numberKey, n.number }, { "x", n.x }, { "y", n.y }, { "z", n.z }, { c_nameKey, n.name } };
}

QJsonObject Write(const Member& m)
{
    return { { c_numberKey, m.number },
             { "startNode", m.startNode },
             { "endNode", m.endNode },
             { "section", m.section },
             { "material", m.material },
             { "rotation", m.rotation },
             { "startReleases", Dofs(m.startReleases) },
             { "endReleases", Dofs(m.endReleases) },
             { c_nameKey, m.name } };
}

QJsonObject Write(const Support& s)
{
    return { { c_numberKey, s.number },
             { "node", s.node },
             { "fixed", Dofs(s.fixed) },
             { "springs", Reals(s.springs) },
             { c_nameKey, s.name } };
}

QJsonObject Write(const CrossSection& s)
{
    return { { c_numberKey, s.number },
             { "shape", EnumName(c_shapeNames, std::int32_t(s.shape)) },
             { "height", s.height },
             { "width", s.width },
             { "flangeThickness", s.flangeThickness },
             { "webThickness", s.webThickness },
             { "wallThickness", s.wallThickness },
             { "diameter", s.diameter },
             { c_nameKey, s.name } };
}

QJsonObject Write(const Material& m)
{
    return { { c_numberKey, m.number },
             { "category", EnumName(c_materialNames, std::int32_t(m.category)) },
             { "grade", m.grade },
             { "elasticModulus", m.elasticModulus },
             { "shearModulus", m.shearModulus },
             { "density", m.density },
             { "strength", m.strength },
             { "color", ColorName(m.color) },
             { c_nameKey, m.name } };
}

QJsonObject Write(const LoadCase& l)
{
    return { { c_numberKey, l.number },
             { "category", EnumName(c_loadCategoryNames, std::int32_t(l.category)) },
             { "selfWeight", l.selfWeight },
             { "color", ColorName(l.color) },
             { c_nameKey, l.name } };
}

QJsonObject Write(const NodalLoad& l)
{
    return { { c_numberKey, l.number },
             { "loadCase", l.loadCase },
             { "node", l.node },
             { "values", Reals(l.values) } };
}

QJsonObject Write(const MemberLoad& l)
{
    return { { c_numberKey, l.number },
             { "loadCase", l.loadCase },
             { "member", l.member },
             { "direction", EnumName(c_directionNames, std::int32_t(l.direction)) },
             { "value", l.value } };
}

QJsonObject Write(const Combination& c)
{
    QJsonArray factors;
    for (const auto& [loadCase, factor] : c.factors)
        factors.append(QJsonObject { { "loadCase", loadCase }, { "factor", factor } });
    return { { c_numberKey, c.number }, { "factors", factors }, { c_nameKey, c.name } };
}

// A JSON number that is a whole number from lowest to highest.
std::optional<std::int32_t> WholeNumber(const QJsonValue& value, std::int32_t lowest, std::int32_t highest)
{
    const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    if (!value.isDouble() || std::floor(number) != number || number < lowest || number > highest)
        return std::nullopt;
    return std::int32_t(number);
}

// A JSON number that is finite: numbers too large for a double come out infinite.
std::optional<double> FiniteNumber(const QJsonValue& value)
{
    if (!value.isDouble() || !std::isfinite(value.toDouble()))
        return std::nullopt;
    return value.toDouble();
}

// Reads the fields of one object of the file. A field that is missing keeps the record's
// default (except those marked required); one that is there must be of the right kind and range.
// The first problem is kept and every later read does nothing.
class RecordReader
{
public:
    RecordReader(const QJsonObject& object, QLatin1String list, qsizetype index)
        : m_object(object)
        , m_list(list)
        , m_index(index)
    { }

    const ModelFileError& Error() const { return m_error; }

    void Integer(const char* key, std::int32_t& out, std::int32_t lowest, std::int32_t highest, bool required)
    {
        Read(key, required, out,
             [&](const QJsonValue& value) { return WholeNumber(value, lowest, highest); });
    }

    // An object's own number, or the number of one it refers to.
    void ObjectNumber(const char* key, Number& out) { Integer(key, out, 1, c_largestNumber, true); }

    void Real(const char* key, double& out) { Read(key, false, out, FiniteNumber); }

    void Reals(const char* key, std::array<double, 6>& out)
    {
        Read(key, false, out, [](const QJsonValue& value) -> std::optional<std::array<double, 6>> {
            const QJsonArray array = value.toArray();
            std::array<double, 6> read {};
            if (!value.isArray() || array.size() != qsizetype(read.size()))
                return std::nullopt;
            for (qsizetype i = 0; i < array.size(); ++i) {
                const std::optional<double> number = FiniteNumber(array[i]);
                if (!number)
                    return std::nullopt;
                read[std::size_t(i)] = *number;
            }
            return read;
        });
    }

    void Bool(const char* key, bool& out)
    {
        Read(key, false, out, [](const QJsonValue& value) {
            return value.isBool() ? std::optional<bool>(value.toBool()) : std::nullopt;
        });
    }

    void Text(const char* key, QString& out)
    {
        Read(key, false, out, [](const QJsonValue& value) {
            return value.isString() ? std::optional<QString>(value.toString()) : std::nullopt;
        });
    }

    void Color(const char* key, QColor& out)
    {
        Read(key, false, out, [](const QJsonValue& value) {
            const QColor color = QColor::fromString(value.toString());
            return value.isString() && color.isValid() ? std::optional<QColor>(color) : std::nullopt;
        });
    }

    template<class Enum, std::size_t N>
    void Name(const char* key, Enum& out, const std::array<const char*, N>& names)
    {
        Read(key, false, out, [&](const QJsonValue& value) -> std::optional<Enum> {
            for (std::size_t i = 0; i < N; ++i) {
                if (value.toString() == QLatin1String(names[i]))
                    return Enum(i);
            }
            return std::nullopt;
        });
    }

    void Dofs(const char* key, DofMask& out)
    {
        Read(key, false, out, [](const QJsonValue& value) -> std::optional<DofMask> {
            if (!value.isArray())
                return std::nullopt;
            DofMask mask = 0;
            for (const QJsonValue& name : value.toArray()) {
                std::size_t i = 0;
                while (i < c_dofNames.size() && name.toString() != QLatin1String(c_dofNames[i]))
                    ++i;
                if (!name.isString() || i == c_dofNames.size())
                    return std::nullopt;
                mask |= Dof(int(i));
            }
            return mask;
        });
    }

    void Factors(const char* key, std::vector<std::pair<Number, double>>& out)
    {
        using Factors = std::vector<std::pair<Number, double>>;
        Read(key, false, out, [](const QJsonValue& value) -> std::optional<Factors> {
            if (!value.isArray())
                return std::nullopt;
            Factors factors;
            for (const QJsonValue& entry : value.toArray()) {
                const QJsonObject pair = entry.toObject();
                const std::optional<std::int32_t> loadCase
                    = WholeNumber(pair.value(QLatin1String("loadCase")), 1, c_largestNumber);
                const std::optional<double> factor = FiniteNumber(pair.value(QLatin1String("factor")));
                if (!entry.isObject() || !loadCase || !factor)
                    return std::nullopt;
                factors.emplace_back(Number(*loadCase), *factor);
            }
            return factors;
        });
    }

private:
    // Reads the field through parse, which gives nothing for a value of the wrong kind or range;
    // a missing field leaves out as it was.
    template<class T, class Parse> void Read(const char* key, bool required, T& out, Parse&& parse)
    {
        const QJsonValue value = Field(key, required);
        if (value.isUndefined())
            return;
        std::optional<T> read = parse(value);
        if (!read)
            return Fail(key);
        out = std::move(*read);
    }

private:
    QJsonValue Field(const char* key, bool required)
    {
        if (m_error)
            return QJsonValue(QJsonValue::Undefined);
        const QJsonValue value = m_object.value(QLatin1String(key));
        if (value.isUndefined() && required)
            Fail(key);
        return value;
    }

    void Fail(const char* key)
    {
        if (!m_error)
            m_error.message
                = ModelMessage(QStringLiteral("UI_MODEL_FILE_BAD_FIELD"),
                               { double(m_index + 1), QString(m_list), QString::fromLatin1(key) });
    }

    QJsonObject m_object;
    QLatin1String m_list;
    qsizetype m_index;
    ModelFileError m_error;
};

void Read(RecordReader& r, Node& n)
{
    r.Real("x", n.x);
    r.Real("y", n.y);
    r.Real("z", n.z);
    r.Text("name", n.name);
}

void Read(RecordReader& r, Member& m)
{
    r.ObjectNumber("startNode", m.startNode);
    r.ObjectNumber("endNode", m.endNode);
    r.ObjectNumber("section", m.section);
    r.ObjectNumber("material", m.material);
    r.Real("rotation", m.rotation);
    r.Dofs("startReleases", m.startReleases);
    r.Dofs("endReleases", m.endReleases);
    r.Text("name", m.name);
}

void Read(RecordReader& r, Support& s)
{
    r.ObjectNumber("node", s.node);
    r.Dofs("fixed", s.fixed);
    r.Reals("springs", s.springs);
    r.Text("name", s.name);
}

void Read(RecordReader& r, CrossSection& s)
{
    r.Name("shape", s.shape, c_shapeNames);
    r.Real("height", s.height);
    r.Real("width", s.width);
    r.Real("flangeThickness", s.flangeThickness);
    r.Real("webThickness", s.webThickness);
    r.Real("wallThickness", s.wallThickness);
    r.Real("diameter", s.diameter);
    r.Text("name", s.name);
}

void Read(RecordReader& r, Material& m)
{
    r.Name("category", m.category, c_materialNames);
    // The catalogue's grades of the category, or -1 for values of the user's own.
    const auto grades = std::int32_t(MaterialCatalog::Grades(m.category).size());
    r.Integer("grade", m.grade, -1, grades - 1, false);
    r.Real("elasticModulus", m.elasticModulus);
    r.Real("shearModulus", m.shearModulus);
    r.Real("density", m.density);
    r.Real("strength", m.strength);
    r.Color("color", m.color);
    r.Text("name", m.name);
}

void Read(RecordReader& r, LoadCase& l)
{
    r.Name("category", l.category, c_loadCategoryNames);
    r.Bool("selfWeight", l.selfWeight);
    r.Color("color", l.color);
    r.Text("name", l.name);
}

void Read(RecordReader& r, NodalLoad& l)
{
    r.ObjectNumber("loadCase", l.loadCase);
    r.ObjectNumber("node", l.node);
    r.Reals("values", l.values);
}

void Read(RecordReader& r, MemberLoad& l)
{
    r.ObjectNumber("loadCase", l.loadCase);
    r.ObjectNumber("member", l.member);
    r.Name("direction", l.direction, c_directionNames);
    r.Real("value", l.value);
}

void Read(RecordReader& r, Combination& c)
{
    r.Factors("factors", c.factors);
    r.Text("name", c.name);
}

template<class Record> ModelFileError ReadTable(const QJsonObject& root, ObjectTable<Record>& table)
{
    const QLatin1String key = ListKey(Record::c_kind);
    const QJsonValue list = root.value(key);
    // A kind the file does not list has no objects.
    if (list.isUndefined())
        return {};
    if (!list.isArray())
        return { ModelMessage(QStringLiteral("UI_MODEL_FILE_BAD_LIST"), { QString(key) }) };
    const QJsonArray array = list.toArray();
    table.Reserve(std::size_t(array.size()));
    for (qsizetype i = 0; i < array.size(); ++i) {
        RecordReader reader(array[i].toObject(), key, i);
        Record record;
        // An entry that is not an object has no number either, which says what is wrong.
        reader.ObjectNumber("number", record.number);
        Read(reader, record);
        if (reader.Error())
            return reader.Error();
        if (table.Contains(record.number))
            return { ModelMessage(QStringLiteral("UI_MODEL_FILE_DUPLICATE"),
                                  { ObjectRef { Record::c_kind, record.number } }) };
        table.Put(std::move(record));
    }
    return {};
}

// The rules every object of a structure keeps, checked once everything is read, since objects
// may refer to ones that come later in the file.
template<class Record> ModelFileError CheckTable(const Structure& structure)
{
    for (const Record& record : structure.Table<Record>().Records()) {
        ModelMessage problem = StructureValidator::Check(structure, record);
        if (problem)
            return { std::move(problem), MakeObjectId(Record::c_kind, record.number) };
    }
    return {};
}

ModelFileError ReadStructure(const QJsonObject& root, Structure& structure)
{
    ModelFileError error;
    const auto readKind = [&](auto tag) {
        using Record = typename decltype(tag)::Type;
        if (!error)
            error = ReadTable(root, structure.Table<Record>());
    };
    for (ObjectKind kind : c_allKinds)
        VisitKind(kind, readKind);
    if (error)
        return error;

    const QJsonObject next = root.value(c_nextNumbersKey).toObject();
    for (ObjectKind kind : c_allKinds) {
        const double number = next.value(ListKey(kind)).toDouble(0.0);
        if (number >= 1 && number <= c_largestNumber + 1.0)
            VisitKind(kind, [&](auto tag) {
                using Record = typename decltype(tag)::Type;
                structure.Table<Record>().SetNextNumber(Number(number));
            });
    }

    const auto checkKind = [&](auto tag) {
        using Record = typename decltype(tag)::Type;
        if (!error)
            error = CheckTable<Record>(structure);
    };
    for (ObjectKind kind : c_allKinds)
        VisitKind(kind, checkKind);
    return error;
}

} // namespace

QString ModelFileError::ToText(const Framework::IStringLoader* loader) const
{
    const QString text = message.ToText(loader);
    if (object == 0)
        return text;
    return ModelMessage(QStringLiteral("UI_MODEL_FILE_OBJECT_PROBLEM"),
                        { ObjectRef { KindOf(object), NumberOf(object) }, text })
        .ToText(loader);
}

QByteArray ModelFile::ToJson(const Structure& structure)
{
    QJsonObject root { { c_formatKey, QLatin1String(c_formatName) }, { c_versionKey, c_formatVersion } };
    QJsonObject next;
    for (ObjectKind kind : c_allKinds) {
        VisitKind(kind, [&](auto tag) {
            using Record = typename decltype(tag)::Type;
            const auto& table = structure.Table<Record>();
            QJsonArray list;
            for (const Record& record : table.Records())
                list.append(Write(record));
            root.insert(ListKey(kind), list);
            next.insert(ListKey(kind), table.NextNumber());
        });
    }
    // Numbers are never reused, also not those of objects removed before the file was saved.
    root.insert(c_nextNumbersKey, next);
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

ModelFileError ModelFile::FromJson(const QByteArray& json, Structure& structure)
{
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error != QJsonParseError::NoError)
        return { ModelMessage(QStringLiteral("UI_MODEL_FILE_NOT_JSON"),
                              { parseError.errorString(), double(parseError.offset) }) };
    const QJsonObject root = document.object();
    if (!document.isObject() || root.value(c_formatKey).toString() != QLatin1String(c_formatName))
        return { ModelMessage(QStringLiteral("UI_MODEL_FILE_NOT_MODEL")) };
    const QJsonValue versionValue = root.value(c_versionKey);
    const double version = versionValue.toDouble(0.0);
    if (!versionValue.isDouble() || version < 1 || std::floor(version) != version)
        return { ModelMessage(QStringLiteral("UI_MODEL_FILE_BAD_VERSION")) };
    if (version > c_formatVersion)
        return { ModelMessage(QStringLiteral("UI_MODEL_FILE_NEWER"), { version, double(c_formatVersion) }) };

    Structure read;
    if (ModelFileError error = ReadStructure(root, read))
        return error;
    structure = std::move(read);
    return {};
}

ModelFileError ModelFile::Save(const Structure& structure, const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return { ModelMessage(QStringLiteral("UI_MODEL_FILE_CANNOT_WRITE"),
                              { QDir::toNativeSeparators(path), file.errorString() }) };
    }
    file.write(ToJson(structure));
    if (!file.commit())
        return { ModelMessage(QStringLiteral("UI_MODEL_FILE_CANNOT_WRITE"),
                              { QDir::toNativeSeparators(path), file.errorString() }) };
    return {};
}

ModelFileError ModelFile::Load(const QString& path, Structure& structure)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return { ModelMessage(QStringLiteral("UI_MODEL_FILE_CANNOT_READ"),
                              { QDir::toNativeSeparators(path), file.errorString() }) };
    return FromJson(file.readAll(), structure);
}

bool ModelFile::IsModelFileName(const QString& path)
{
    return QFileInfo(path).suffix().compare(c_extension, Qt::CaseInsensitive) == 0;
}

} // namespace Orvo::Kernel::Model
