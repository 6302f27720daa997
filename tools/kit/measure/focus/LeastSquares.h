#pragma once

#include <cstddef>
#include <optional>
#include <vector>

/// Weighted linear least squares by the normal equations, for a few parameters.
class LeastSquares
{
public:
    explicit LeastSquares(std::size_t parameters);

    /// Adds one equation: the sum of the factors times the parameters is the value.
    void add(const std::vector<double> &factors, double value, double weight = 1);

    /// Returns the parameters; nothing if the equations do not determine them.
    std::optional<std::vector<double>> solve() const;

    /// Returns the diagonal of the inverse of the normal matrix: the variances of the parameters if each
    /// equation with weight 1 has the variance 1. Nothing if the equations do not determine the parameters.
    std::optional<std::vector<double>> variances() const;

private:
    std::optional<std::vector<double>> solveFor(const std::vector<double> &right) const;
    double matrix(std::size_t row, std::size_t column) const { return m_matrix[row * m_size + column]; }

    std::size_t m_size;
    std::vector<double> m_matrix; // Line by line.
    std::vector<double> m_right;
};
