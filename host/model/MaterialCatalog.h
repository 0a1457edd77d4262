#pragma once

#include "HostKitExport.h"
#include "ModelRecords.h"

#include <QString>
#include <vector>

namespace Orvo::Kernel::Model {

// The standard grades a material can take, per category: steel grades, concrete strength
// classes and timber strength classes with their design values.
struct MaterialGrade
{
    QString nameId; // text identifier of the grade's name ("S355")
    double strength; // MPa: yield strength, fck, or bending strength
    double elasticModulus; // MPa
    double shearModulus; // MPa
    double density; // kg/m³
};

class HOSTKIT_EXPORT MaterialCatalog
{
public:
    static const std::vector<MaterialGrade>& Grades(MaterialCategory category);
    // The material with every value of the grade; grade -1 keeps the values as they are.
    static Material WithGrade(Material material, std::int32_t grade);
    // The grade of the category whose values the material has, or -1.
    static std::int32_t GradeMatching(const Material& material);
};

} // namespace Orvo::Kernel::Model
