#include "tools/kit/measure/focus/LeastSquares.h"

#include <cmath>

LeastSquares::LeastSquares(std::size_t parameters)
    : m_size(parameters), m_matrix(parameters * parameters), m_right(parameters)
{ }

void LeastSquares::add(const std::vector<double> &factors, double value, double weight)
{
    for (std::size_t row = 0; row < m_size; ++row) {
        for (std::size_t column = 0; column < m_size; ++column)
            m_matrix[row * m_size + column] += weight * factors[row] * factors[column];
        m_right[row] += weight * factors[row] * value;
    }
}

std::optional<std::vector<double>> LeastSquares::solve() const
{
    return solveFor(m_right);
}

std::optional<std::vector<double>> LeastSquares::variances() const
{
    std::vector<double> result;
    for (std::size_t i = 0; i < m_size; ++i) {
        std::vector<double> unit(m_size);
        unit[i] = 1;
        const auto column = solveFor(unit);
        if (!column)
            return {};
        result.push_back(column->at(i));
    }
    return result;
}

std::optional<std::vector<double>> LeastSquares::solveFor(const std::vector<double> &right) const
{
    // Cholesky decomposition: the matrix is lower times its transpose.
    constexpr double tiny = 1e-10; // Relative to the diagonal: the equations depend on each other.
    std::vector<double> lower(m_size * m_size);
    const auto at
        = [&](std::size_t row, std::size_t column) -> double & { return lower[row * m_size + column]; };
    std::vector<double> x = right;
    for (std::size_t row = 0; row < m_size; ++row) {
        for (std::size_t column = 0; column <= row; ++column) {
            double sum = matrix(row, column);
            for (std::size_t k = 0; k < column; ++k)
                sum -= at(row, k) * at(column, k);
            if (column < row)
                at(row, column) = sum / at(column, column);
            else if (sum > tiny * matrix(row, row))
                at(row, row) = std::sqrt(sum);
            else
                return {};
        }
        for (std::size_t k = 0; k < row; ++k)
            x[row] -= at(row, k) * x[k];
        x[row] /= at(row, row);
    }
    for (std::size_t row = m_size; row-- > 0;) {
        for (std::size_t k = row + 1; k < m_size; ++k)
            x[row] -= at(k, row) * x[k];
        x[row] /= at(row, row);
    }
    return x;
}
