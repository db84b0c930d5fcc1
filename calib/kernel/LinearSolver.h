// Solves systems of linear equations in single precision.
#pragma once

#include <cstddef>
#include <span>

namespace kest {

/// A matrix of floats, row by row in one block.
struct MatrixView {
    std::span<float> cells;
    std::size_t rows;
    std::size_t columns;

    float& At(std::size_t row, std::size_t column) const { return cells[row * columns + column]; }
};

/// Gauss-Jordan elimination with full pivoting, each step rounded to single precision. `matrix` (n x n) becomes its
/// inverse, the columns of `sides` (n x m) the solutions. Among pivots of equal magnitude the last one in row order is
/// taken. False when a pivot is 0 or not a number, or memory is short; both matrices are then half done.
bool SolveGaussJordan(const MatrixView& matrix, const MatrixView& sides);

}  // namespace kest
