#include "SectionProperties.h"

#include <algorithm>
#include <cmath>

namespace Orvo::Kernel::Model {

namespace {

constexpr double c_pi = 3.14159265358979323846;

SectionProperties Rectangle(double h, double b)
{
    // Torsion of a solid rectangle: Roark's series approximation, long side a, short side c.
    const double a = std::max(h, b);
    const double c = std::min(h, b);
    const double ratio = c / a;
    const double torsion = a * c * c * c * (1.0 / 3.0 - 0.21 * ratio * (1.0 - std::pow(ratio, 4) / 12.0));
    return { b * h, b * h * h * h / 12.0, h * b * b * b / 12.0, torsion, 0.0, 0.0 };
}

SectionProperties Tube(double d, double t)
{
    const double inner = d - 2.0 * t;
    const double i = c_pi * (std::pow(d, 4) - std::pow(inner, 4)) / 64.0;
    return { c_pi * (d * d - inner * inner) / 4.0, i, i, 2.0 * i, 0.0, 0.0 };
}

SectionProperties Box(double h, double b, double t)
{
    const double hi = h - 2.0 * t;
    const double bi = b - 2.0 * t;
    // A closed thin-walled section (Bredt): 4 A_m² t / perimeter of the mid-line.
    const double enclosed = (h - t) * (b - t);
    const double perimeter = 2.0 * ((h - t) + (b - t));
    return { b * h - bi * hi,
             (b * h * h * h - bi * hi * hi * hi) / 12.0,
             (h * b * b * b - hi * bi * bi * bi) / 12.0,
             4.0 * enclosed * enclosed * t / perimeter,
             0.0,
             0.0 };
}

SectionProperties ISection(double h, double b, double tf, double tw)
{
    const double web = h - 2.0 * tf;
    // An open thin-walled section: the sum of b t³ / 3 over its plates.
    return { 2.0 * b * tf + web * tw,
             (b * h * h * h - (b - tw) * web * web * web) / 12.0,
             (2.0 * tf * b * b * b + web * tw * tw * tw) / 12.0,
             (2.0 * b * tf * tf * tf + web * tw * tw * tw) / 3.0,
             0.0,
             0.0 };
}

SectionProperties Circle(double d)
{
    const double i = c_pi * std::pow(d, 4) / 64.0;
    return { c_pi * d * d / 4.0, i, i, 2.0 * i, 0.0, 0.0 };
}

// Every shape is symmetric about both axes: the outermost fibres lie half the height (y) and
// half the width (z) from the centroid.
SectionProperties WithModuli(SectionProperties properties, double height, double width)
{
    properties.wy = height > 0.0 ? properties.iy / (height / 2.0) : 0.0;
    properties.wz = width > 0.0 ? properties.iz / (width / 2.0) : 0.0;
    return properties;
}

} // namespace

SectionProperties SectionProperties::Of(const CrossSection& s)
{
    switch (s.shape) {
    case SectionShape::I:
        return WithModuli(ISection(s.height, s.width, s.flangeThickness, s.webThickness), s.height, s.width);
    case SectionShape::RectangularHollow:
        return WithModuli(Box(s.height, s.width, s.wallThickness), s.height, s.width);
    case SectionShape::CircularHollow:
        return WithModuli(Tube(s.diameter, s.wallThickness), s.diameter, s.diameter);
    case SectionShape::Rectangle:
        return WithModuli(Rectangle(s.height, s.width), s.height, s.width);
    case SectionShape::Circle:
        return WithModuli(Circle(s.diameter), s.diameter, s.diameter);
    }
    return {};
}

bool SectionProperties::Uses(SectionShape shape, double CrossSection::*dimension)
{
    switch (shape) {
    case SectionShape::I:
        return dimension == &CrossSection::height || dimension == &CrossSection::width
            || dimension == &CrossSection::flangeThickness || dimension == &CrossSection::webThickness;
    case SectionShape::RectangularHollow:
        return dimension == &CrossSection::height || dimension == &CrossSection::width
            || dimension == &CrossSection::wallThickness;
    case SectionShape::CircularHollow:
        return dimension == &CrossSection::diameter || dimension == &CrossSection::wallThickness;
    case SectionShape::Rectangle:
        return dimension == &CrossSection::height || dimension == &CrossSection::width;
    case SectionShape::Circle:
        return dimension == &CrossSection::diameter;
    }
    return false;
}

} // namespace Orvo::Kernel::Model
