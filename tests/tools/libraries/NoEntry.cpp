// A library that is no tool.
extern "C" __declspec(dllexport) int KestInitialise() { return 1; }
