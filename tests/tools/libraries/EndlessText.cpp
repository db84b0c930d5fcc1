// A tool that fills its menu text to the last byte, without a terminator, and nothing else.
#include <KestTool.h>

KEST_TOOL_EXPORT void KestInitialize(tagToolInfo* pInfo) {
    for (char& c : pInfo->szMenuText) c = 'x';
}
