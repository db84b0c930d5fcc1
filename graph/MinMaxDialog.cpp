// The dialog for the ranges of a graph's axes, the place where they cross, and how their labels are written.
#include <climits>

#include "graph/Dialogs.h"
#include "graph/SettingsDialog.h"
#include "graph/resources/DialogIds.h"

namespace kest {
namespace {

// A float has 38 powers of ten; what the setter corrects may be entered.
constexpr WholeRange exponents = {-38, 38}, decimals = {0, 5}, anyNumber = {INT_MIN, INT_MAX};

class MinMaxDialog : public SettingsDialog {
public:
    MinMaxDialog(CcGraph& edited, HWND dialogWindow) : SettingsDialog(edited, dialogWindow) {
        graph.GetMinMaxValues(&x.minimum, &x.maximum, &y.minimum, &y.maximum, &x.exponent, &x.decimalPlaces,
                              &y.exponent, &y.decimalPlaces);
        graph.GetXYOriginCross(&x.origin, &y.origin);
    }

private:
    struct Axis {
        float minimum, maximum, origin;
        int exponent, decimalPlaces;

        bool NeedsNoCorrection() const {
            return minimum != maximum && decimalPlaces >= decimals.lowest && decimalPlaces <= decimals.highest;
        }
    };

    std::span<NumberField> Fields() override { return fields; }

    void UpdatePreview() override {
        if (x.NeedsNoCorrection() && y.NeedsNoCorrection()) SetRanges(preview);
    }
    void Apply() override { SetRanges(graph); }

    void SetRanges(CcGraph& target) const {
        target.SetXYOriginCross(x.origin, y.origin);
        target.SetMinMaxValues(x.minimum, x.maximum, y.minimum, y.maximum, x.exponent, x.decimalPlaces, y.exponent,
                               y.decimalPlaces);
    }

    Axis x = {}, y = {};
    NumberField fields[10] = {
        {IDC_X_MIN, x.minimum},
        {IDC_X_MAX, x.maximum},
        {IDC_X_ORIGIN, x.origin},
        {IDC_X_EXPONENT, x.exponent, exponents, exponents},
        {IDC_X_DECIMALS, x.decimalPlaces, anyNumber, decimals},
        {IDC_Y_MIN, y.minimum},
        {IDC_Y_MAX, y.maximum},
        {IDC_Y_ORIGIN, y.origin},
        {IDC_Y_EXPONENT, y.exponent, exponents, exponents},
        {IDC_Y_DECIMALS, y.decimalPlaces, anyNumber, decimals},
    };
};

}  // namespace

void RunMinMaxDialog(CcGraph& graph, HMODULE resources, HWND owner) {
    SettingsDialog::Run<MinMaxDialog>(graph, resources, owner, "XYMINMAX", "Axis Ranges");
}

}  // namespace kest
