// Solves systems of linear equations in single precision.
#include "calib/kernel/LinearSolver.h"

#include <cmath>
#include <utility>

#include "core/kernel/HeapArray.h"

namespace kest {
namespace {

struct Pivot {
    std::size_t row;
    std::size_t column;
};

bool FindPivot(const MatrixView& matrix, const int* used, Pivot& pivot) {
    float largest = 0.0F;
    bool isFound = false;
    for (std::size_t row = 0; row < matrix.rows; ++row) {
        if (used[row] == 1) continue;
        for (std::size_t column = 0; column < matrix.columns; ++column) {
            if (used[column] > 1) return false;
            if (used[column] != 0 || !(std::fabs(matrix.At(row, column)) >= largest)) continue;
            largest = std::fabs(matrix.At(row, column));
            pivot = {row, column};
            isFound = true;
        }
    }
    return isFound;
}

void SwapRows(const MatrixView& matrix, std::size_t a, std::size_t b) {
    for (std::size_t column = 0; column < matrix.columns; ++column)
        std::swap(matrix.At(a, column), matrix.At(b, column));
}

void SwapColumns(const MatrixView& matrix, std::size_t a, std::size_t b) {
    for (std::size_t row = 0; row < matrix.rows; ++row) std::swap(matrix.At(row, a), matrix.At(row, b));
}

void MultiplyRow(const MatrixView& matrix, std::size_t row, float factor) {
    for (std::size_t column = 0; column < matrix.columns; ++column) matrix.At(row, column) *= factor;
}

void SubtractRow(const MatrixView& matrix, std::size_t row, std::size_t subtracted, float factor) {
    for (std::size_t column = 0; column < matrix.columns; ++column)
        matrix.At(row, column) -= matrix.At(subtracted, column) * factor;
}

}  // namespace

bool SolveGaussJordan(const MatrixView& matrix, const MatrixView& sides) {
    const std::size_t n = matrix.rows;
    // How often each column was the pivot's, and the pivots in their order.
    const HeapArray<int> used(static_cast<Size64>(n));
    const HeapArray<Pivot> pivots(static_cast<Size64>(n));
    if (!used || !pivots) return false;

    for (std::size_t pass = 0; pass < n; ++pass) {
        Pivot pivot;
        if (!FindPivot(matrix, used.Get(), pivot)) return false;
        ++used[pivot.column];
        pivots[pass] = pivot;
        const std::size_t pivotRow = pivot.column;
        if (pivot.row != pivotRow) {
            SwapRows(matrix, pivot.row, pivotRow);
            SwapRows(sides, pivot.row, pivotRow);
        }

        float& element = matrix.At(pivotRow, pivot.column);
        if (element == 0.0F) return false;
        const float reciprocal = 1.0F / element;
        element = 1.0F;
        MultiplyRow(matrix, pivotRow, reciprocal);
        MultiplyRow(sides, pivotRow, reciprocal);
        for (std::size_t row = 0; row < n; ++row) {
            if (row == pivotRow) continue;
            const float factor = std::exchange(matrix.At(row, pivot.column), 0.0F);
            SubtractRow(matrix, row, pivotRow, factor);
            SubtractRow(sides, row, pivotRow, factor);
        }
    }
    for (std::size_t pass = n; pass-- > 0;) {
        const Pivot& pivot = pivots[pass];
        if (pivot.row != pivot.column) SwapColumns(matrix, pivot.row, pivot.column);
    }
    return true;
}

}  // namespace kest
