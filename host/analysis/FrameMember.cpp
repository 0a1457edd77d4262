#include "FrameMember.h"

#include <Eigen/Dense>
#include <cmath>

namespace Orvo::Kernel::Analysis {

namespace {

using Matrix = Eigen::Matrix<double, 12, 12, Eigen::RowMajor>;
using Vector = Eigen::Matrix<double, 12, 1>;

Eigen::Vector3d ToEigen(const Vector3& v)
{
    return { v[0], v[1], v[2] };
}

Vector3 FromEigen(const Eigen::Vector3d& v)
{
    return { v[0], v[1], v[2] };
}

// Released degrees of freedom of both ends, as positions 0-11.
std::array<bool, 12> Released(Model::DofMask start, Model::DofMask end)
{
    std::array<bool, 12> released {};
    for (int dof = 0; dof < 6; ++dof) {
        released[std::size_t(dof)] = (start & Model::Dof(dof)) != 0;
        released[std::size_t(dof + 6)] = (end & Model::Dof(dof)) != 0;
    }
    return released;
}

Matrix UncondensedStiffness(const FrameMember& member)
{
    const double l = member.length;
    Matrix k = Matrix::Zero();
    const double axial = member.axialStiffness / l;
    const double torsion = member.torsionalStiffness / l;
    k(0, 0) = k(6, 6) = axial;
    k(0, 6) = k(6, 0) = -axial;
    k(3, 3) = k(9, 9) = torsion;
    k(3, 9) = k(9, 3) = -torsion;
    // Bending in x-y: uy with rz (a positive rz turns x towards y).
    {
        const double ei = member.bendingStiffnessZ;
        const double a = 12 * ei / (l * l * l), b = 6 * ei / (l * l), c = 4 * ei / l, d = 2 * ei / l;
        k(1, 1) = k(7, 7) = a;
        k(1, 7) = k(7, 1) = -a;
        k(1, 5) = k(5, 1) = k(1, 11) = k(11, 1) = b;
        k(5, 7) = k(7, 5) = k(7, 11) = k(11, 7) = -b;
        k(5, 5) = k(11, 11) = c;
        k(5, 11) = k(11, 5) = d;
    }
    // Bending in x-z: uz with ry (a positive ry turns x away from z).
    {
        const double ei = member.bendingStiffnessY;
        const double a = 12 * ei / (l * l * l), b = 6 * ei / (l * l), c = 4 * ei / l, d = 2 * ei / l;
        k(2, 2) = k(8, 8) = a;
        k(2, 8) = k(8, 2) = -a;
        k(2, 4) = k(4, 2) = k(2, 10) = k(10, 2) = -b;
        k(4, 8) = k(8, 4) = k(8, 10) = k(10, 8) = b;
        k(4, 4) = k(10, 10) = c;
        k(4, 10) = k(10, 4) = d;
    }
    return k;
}

// Static condensation of released end forces: k and f keep their size, with zero rows and
// columns for the released components, which carry no force.
void Condense(const FrameMember& member, Matrix* k, Vector* f)
{
    const auto released = Released(member.startReleases, member.endReleases);
    std::array<int, 12> kept {};
    std::array<int, 12> freed {};
    int keptCount = 0;
    int freedCount = 0;
    for (int i = 0; i < 12; ++i) {
        if (released[std::size_t(i)])
            freed[std::size_t(freedCount++)] = i;
        else
            kept[std::size_t(keptCount++)] = i;
    }
    if (freedCount == 0)
        return;
    const Matrix full = UncondensedStiffness(member);
    Eigen::MatrixXd kcc(freedCount, freedCount);
    Eigen::MatrixXd krc(keptCount, freedCount);
    for (int i = 0; i < freedCount; ++i) {
        for (int j = 0; j < freedCount; ++j)
            kcc(i, j) = full(freed[std::size_t(i)], freed[std::size_t(j)]);
        for (int r = 0; r < keptCount; ++r)
            krc(r, i) = full(kept[std::size_t(r)], freed[std::size_t(i)]);
    }
    // Releasing the same component at both ends leaves that motion without stiffness: the
    // pseudo-inverse condenses what is left.
    const Eigen::MatrixXd transfer = krc * kcc.completeOrthogonalDecomposition().pseudoInverse();
    if (k) {
        const Eigen::MatrixXd correction = transfer * krc.transpose();
        Matrix condensed = Matrix::Zero();
        for (int r = 0; r < keptCount; ++r) {
            for (int c = 0; c < keptCount; ++c)
                condensed(kept[std::size_t(r)], kept[std::size_t(c)])
                    = full(kept[std::size_t(r)], kept[std::size_t(c)]) - correction(r, c);
        }
        *k = condensed;
    }
    if (f) {
        Eigen::VectorXd fc(freedCount);
        for (int i = 0; i < freedCount; ++i)
            fc[i] = (*f)[freed[std::size_t(i)]];
        const Eigen::VectorXd passed = transfer * fc;
        Vector condensed = Vector::Zero();
        for (int r = 0; r < keptCount; ++r)
            condensed[kept[std::size_t(r)]] = (*f)[kept[std::size_t(r)]] - passed[r];
        *f = condensed;
    }
}

Matrix Transformation(const FrameMember& member)
{
    Eigen::Matrix3d t;
    for (int row = 0; row < 3; ++row)
        t.row(row) = ToEigen(member.axes[std::size_t(row)]).transpose();
    Matrix lambda = Matrix::Zero();
    for (int block = 0; block < 4; ++block)
        lambda.block<3, 3>(3 * block, 3 * block) = t;
    return lambda;
}

Matrix12 ToArray(const Matrix& m)
{
    Matrix12 array;
    Eigen::Map<Matrix>(array.data()) = m;
    return array;
}

} // namespace

void FrameMember::SetGeometry(const Vector3& start, const Vector3& end, double rotationDegrees)
{
    const Eigen::Vector3d d = ToEigen(end) - ToEigen(start);
    length = d.norm();
    const Eigen::Vector3d x = d / length;
    const Eigen::Vector3d up = Eigen::Vector3d::UnitZ();
    // Vertical within a thousandth of a degree: the member's z axis is global x instead.
    const Eigen::Vector3d reference = x.cross(up).norm() < 1e-5 ? Eigen::Vector3d::UnitX() : up;
    Eigen::Vector3d y = reference.cross(x).normalized();
    Eigen::Vector3d z = x.cross(y);
    constexpr double c_pi = 3.14159265358979323846;
    const double angle = rotationDegrees * c_pi / 180.0;
    const Eigen::Vector3d turnedY = std::cos(angle) * y + std::sin(angle) * z;
    z = -std::sin(angle) * y + std::cos(angle) * z;
    y = turnedY;
    axes = { FromEigen(x), FromEigen(y), FromEigen(z) };
}

Vector3 FrameMember::ToLocal(const Vector3& global) const
{
    const Eigen::Vector3d g = ToEigen(global);
    return { ToEigen(axes[0]).dot(g), ToEigen(axes[1]).dot(g), ToEigen(axes[2]).dot(g) };
}

Vector3 FrameMember::ToGlobal(const Vector3& local) const
{
    return FromEigen(local[0] * ToEigen(axes[0]) + local[1] * ToEigen(axes[1]) + local[2] * ToEigen(axes[2]));
}

Vector12 FrameMember::ToLocal(const Vector12& global) const
{
    Vector12 local;
    for (std::size_t block = 0; block < 4; ++block) {
        const Vector3 part
            = ToLocal(Vector3 { global[3 * block], global[3 * block + 1], global[3 * block + 2] });
        std::copy(part.begin(), part.end(), local.begin() + std::ptrdiff_t(3 * block));
    }
    return local;
}

Vector12 FrameMember::ToGlobal(const Vector12& local) const
{
    Vector12 global;
    for (std::size_t block = 0; block < 4; ++block) {
        const Vector3 part
            = ToGlobal(Vector3 { local[3 * block], local[3 * block + 1], local[3 * block + 2] });
        std::copy(part.begin(), part.end(), global.begin() + std::ptrdiff_t(3 * block));
    }
    return global;
}

Matrix12 FrameMember::LocalStiffness() const
{
    Matrix k = UncondensedStiffness(*this);
    if (HasReleases())
        Condense(*this, &k, nullptr);
    return ToArray(k);
}

Matrix12 FrameMember::GlobalStiffness() const
{
    const Matrix lambda = Transformation(*this);
    const Matrix local = Eigen::Map<const Matrix>(LocalStiffness().data());
    return ToArray(lambda.transpose() * local * lambda);
}

Vector12 FrameMember::FixedEndForces(const Vector3& q) const
{
    const double l = length;
    Vector f = Vector::Zero();
    f[0] = f[6] = -q[0] * l / 2;
    f[1] = f[7] = -q[1] * l / 2;
    f[2] = f[8] = -q[2] * l / 2;
    f[5] = -q[1] * l * l / 12;
    f[11] = q[1] * l * l / 12;
    f[4] = q[2] * l * l / 12;
    f[10] = -q[2] * l * l / 12;
    if (HasReleases())
        Condense(*this, nullptr, &f);
    Vector12 forces;
    Eigen::Map<Vector>(forces.data()) = f;
    return forces;
}

Vector12 FrameMember::EndForces(const Vector12& globalDisplacements, const Vector3& q) const
{
    const Vector12 local = ToLocal(globalDisplacements);
    const Matrix12 k = LocalStiffness();
    Vector12 forces = FixedEndForces(q);
    Eigen::Map<Vector>(forces.data())
        += Eigen::Map<const Matrix>(k.data()) * Eigen::Map<const Vector>(local.data());
    return forces;
}

Vector6 FrameMember::SectionForces(const Vector12& endForces, const Vector3& q, double x)
{
    const Vector12& f = endForces;
    return { -f[0] - q[0] * x,
             -f[1] - q[1] * x,
             -f[2] - q[2] * x,
             -f[3],
             -f[4] - x * f[2] - q[2] * x * x / 2,
             -f[5] + x * f[1] + q[1] * x * x / 2 };
}

} // namespace Orvo::Kernel::Analysis
