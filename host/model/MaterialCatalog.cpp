#include "MaterialCatalog.h"

namespace Orvo::Kernel::Model {

const std::vector<MaterialGrade>& MaterialCatalog::Grades(MaterialCategory category)
{
    static const std::vector<MaterialGrade> steel {
        { QStringLiteral("UI_CHOICE_MATERIAL_S235"), 235.0, 210000.0, 81000.0, 7850.0 },
        { QStringLiteral("UI_CHOICE_MATERIAL_S275"), 275.0, 210000.0, 81000.0, 7850.0 },
        { QStringLiteral("UI_CHOICE_MATERIAL_S355"), 355.0, 210000.0, 81000.0, 7850.0 },
        { QStringLiteral("UI_CHOICE_MATERIAL_S460"), 460.0, 210000.0, 81000.0, 7850.0 },
    };
    // Mean secant moduli of the strength classes; G from a Poisson's ratio of 0.2.
    static const std::vector<MaterialGrade> concrete {
        { QStringLiteral("UI_CHOICE_MATERIAL_C20"), 20.0, 30000.0, 12500.0, 2500.0 },
        { QStringLiteral("UI_CHOICE_MATERIAL_C25"), 25.0, 31000.0, 12917.0, 2500.0 },
        { QStringLiteral("UI_CHOICE_MATERIAL_C30"), 30.0, 33000.0, 13750.0, 2500.0 },
        { QStringLiteral("UI_CHOICE_MATERIAL_C35"), 35.0, 34000.0, 14167.0, 2500.0 },
        { QStringLiteral("UI_CHOICE_MATERIAL_C40"), 40.0, 35000.0, 14583.0, 2500.0 },
    };
    static const std::vector<MaterialGrade> timber {
        { QStringLiteral("UI_CHOICE_MATERIAL_C24"), 24.0, 11000.0, 690.0, 420.0 },
        { QStringLiteral("UI_CHOICE_MATERIAL_GL24H"), 24.0, 11500.0, 650.0, 385.0 },
        { QStringLiteral("UI_CHOICE_MATERIAL_GL28H"), 28.0, 12600.0, 650.0, 425.0 },
    };
    switch (category) {
    case MaterialCategory::Concrete:
        return concrete;
    case MaterialCategory::Timber:
        return timber;
    case MaterialCategory::Steel:
        break;
    }
    return steel;
}

Material MaterialCatalog::WithGrade(Material material, std::int32_t grade)
{
    const auto& grades = Grades(material.category);
    if (grade < 0 || grade >= std::int32_t(grades.size())) {
        material.grade = -1;
        return material;
    }
    const MaterialGrade& values = grades[std::size_t(grade)];
    material.grade = grade;
    material.strength = values.strength;
    material.elasticModulus = values.elasticModulus;
    material.shearModulus = values.shearModulus;
    material.density = values.density;
    return material;
}

std::int32_t MaterialCatalog::GradeMatching(const Material& material)
{
    const auto& grades = Grades(material.category);
    for (std::size_t i = 0; i < grades.size(); ++i) {
        const MaterialGrade& grade = grades[i];
        if (grade.strength == material.strength && grade.elasticModulus == material.elasticModulus
            && grade.shearModulus == material.shearModulus && grade.density == material.density)
            return std::int32_t(i);
    }
    return -1;
}

} // namespace Orvo::Kernel::Model
