// Identifiers of the tool's resources.
#pragma once

#define IDB_TOOL 1
#define IDB_TOOL_SELECTED 2
