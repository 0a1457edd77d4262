#pragma once

#include "HostKitExport.h"
#include "ModelRecords.h"

namespace Orvo::Kernel::Model {

// What the analysis and the design check need of a cross-section, computed from its shape and dimensions, in
// mm², mm³ and mm⁴. y is the section's major axis (bending in its height), z the minor one.
struct HOSTKIT_EXPORT SectionProperties
{
    double area = 0.0;
    double iy = 0.0;
    double iz = 0.0;
    double torsion = 0.0; // St Venant torsion constant
    // Elastic section moduli, I over the distance of the outermost fibre, in mm³.
    double wy = 0.0;
    double wz = 0.0;

    static SectionProperties Of(const CrossSection& section);
    // Whether the dimension is one the shape uses (a circle has a diameter, no flanges).
    static bool Uses(SectionShape shape, double CrossSection::*dimension);
};

} // namespace Orvo::Kernel::Model
