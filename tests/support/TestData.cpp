// Where tests/data is; the only file that is compiled for one place.
#include "support/TestData.h"

std::string test::DataPath(const std::string& name) { return KEST_TEST_DATA_DIR "/" + name; }
