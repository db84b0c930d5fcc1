// Identifiers of the controls in the graph's dialog templates.
#pragma once

#define IDC_PREVIEW 100
#define IDC_PROBLEM 101

// TITLEDLB
#define IDC_TITLE 110
#define IDC_X_TEXT 111
#define IDC_Y_TEXT 112

// XYMINMAX
#define IDC_X_MIN 120
#define IDC_X_MAX 121
#define IDC_X_ORIGIN 122
#define IDC_X_EXPONENT 123
#define IDC_X_DECIMALS 124
#define IDC_Y_MIN 130
#define IDC_Y_MAX 131
#define IDC_Y_ORIGIN 132
#define IDC_Y_EXPONENT 133
#define IDC_Y_DECIMALS 134

// SETGRIDMARKINGS
#define IDC_X_MAJOR 140
#define IDC_X_MINOR 141
#define IDC_X_MAJOR_LINES 142
#define IDC_X_MINOR_LINES 143
#define IDC_Y_MAJOR 150
#define IDC_Y_MINOR 151
#define IDC_Y_MAJOR_LINES 152
#define IDC_Y_MINOR_LINES 153

// LINESTYLEDLB
#define IDC_CURVES 160
#define IDC_STYLE 161
#define IDC_WIDTH 162
#define IDC_COLOUR 163
#define IDC_SWATCH 164

// Labels and spin buttons: found by their place beside a control, not by number.
#define IDC_UNNAMED -1
