#include "making/starting_orders.h"

#include <Eigen/Core>
#include <Eigen/Eigenvalues>

#include <algorithm>
#include <numeric>

namespace dorvan {

namespace {

constexpr int Steps = 32;

using Row = Eigen::Map<const Eigen::VectorXd>;

Eigen::VectorXd TimesLaplacian(const Attractions& attractions, const Eigen::VectorXd& x) {
    const int n = attractions.Count();
    Eigen::VectorXd product(n);
    for (int i = 0; i < n; ++i) product[i] = attractions.Total(i) * x[i] - Row(attractions.Row(i), n).dot(x);
    return product;
}

// Twice, since once leaves too much of what was there.
void MakeOrthogonal(Eigen::VectorXd& x, const Eigen::MatrixXd& basis, int count) {
    for (int pass = 0; pass < 2; ++pass) {
        x.array() -= x.mean();
        const auto before = basis.leftCols(count);
        x -= before * (before.transpose() * x);
    }
}

// The combination of the basis that the Laplacian, tridiagonal in it, stretches least.
Eigen::VectorXd LeastStretched(const Eigen::MatrixXd& basis, const Eigen::VectorXd& diagonal,
                               const Eigen::VectorXd& beside) {
    const auto count = diagonal.size();
    Eigen::SelfAdjointEigenSolver<Eigen::MatrixXd> solver;
    solver.computeFromTridiagonal(diagonal, beside.head(count - 1));
    return basis.leftCols(count) * solver.eigenvectors().col(0);
}

// An approximation of the second eigenvector: what is constant, the first, is left out throughout.
Eigen::VectorXd SecondEigenvector(const Attractions& attractions) {
    const int n = attractions.Count();
    const int steps = std::min(Steps, n - 1);
    Eigen::MatrixXd basis(n, steps);
    Eigen::VectorXd diagonal(steps);
    Eigen::VectorXd beside = Eigen::VectorXd::Zero(steps);
    RandomSource random(1);
    Eigen::VectorXd x(n);
    for (double& value : x) value = double(random.Draw());
    MakeOrthogonal(x, basis, 0);
    int made = 0;
    for (double length = x.norm(); made < steps && length > 0;) {
        basis.col(made) = x / length;
        x = TimesLaplacian(attractions, basis.col(made));
        const double stretched = x.norm();
        diagonal[made] = basis.col(made).dot(x);
        MakeOrthogonal(x, basis, ++made);
        length = x.norm();
        if (length <= 1e-12 * stretched) break; // nothing new: all that can be reached has been
        beside[made - 1] = length;
    }
    if (made == 0) return Eigen::VectorXd::Zero(n);
    return LeastStretched(basis, diagonal.head(made), beside);
}

} // namespace

Records SpectralOrder(const Attractions& attractions) {
    Records order(static_cast<std::size_t>(attractions.Count()));
    std::iota(order.begin(), order.end(), 0);
    if (order.size() < 3) return order;
    const Eigen::VectorXd places = SecondEigenvector(attractions);
    if (!places.allFinite()) return order;
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return places[a] < places[b]; });
    return order;
}

} // namespace dorvan
